# shellcheck shell=bash
# What ./run, ./test and the checks share: the packages they need, and building a preset. Sourced, never started.
# The caller has set -euo pipefail.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"
# Checkouts of the same text share what ccache keeps, wherever they lie.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$root}" CCACHE_NOHASHDIR="${CCACHE_NOHASHDIR:-1}"

# One list per purpose, so that ./run does not install what only the checks need.
declare -A packages=(
    [build]="g++ cmake ninja-build ccache cmark-gfm
        qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools libfontconfig-dev
        libssl-dev libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev libbenchmark-dev"
    # qt6-qpa-plugins holds both xcb and offscreen, and Qt's own package only recommends it; without a font
    # offscreen windows show no text. qt6-translations-l10n has the buttons of message boxes and the file dialogs
    # in other languages.
    [runtime]="qt6-qpa-plugins qt6-translations-l10n hicolor-icon-theme fonts-dejavu-core"
    [test]="xvfb xauth xdotool openbox gdb git"
    # clang-tidy 14 cannot read the ranges of g++ 12's library; 16 can.
    [check]="clang-format-14 clang-tidy-16 shellcheck"
    # What looks at the package: validators, what detects types and completes words, and a clean system to install into.
    [package]="dpkg-dev file lintian appstream desktop-file-utils shared-mime-info libglib2.0-bin xdg-utils
        man-db bsdextrautils mandoc bash-completion ca-certificates mmdebstrap"
    [fuzz]="clang-14 libclang-rt-14-dev"
)

say() { printf '==> %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The comment that opens a script is its help.
printHelp() { sed -n '2,/^$/{/^#/!q;s/^# \{0,1\}//;p}' "$1"; }

missingPackages() {
    local wanted=("$@")
    # dpkg-query fails when it has never heard of one of them; what it prints for the others still holds.
    { dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true; } |
        awk -v wanted="${wanted[*]}" '
            $2 == "installed" { have[$1] = 1 }
            END { n = split(wanted, list, " "); for (i = 1; i <= n; i++) if (!(list[i] in have)) print list[i] }'
}

asRoot() {
    if [[ $(id -u) -eq 0 ]]; then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@" # nobody is there to type a password
    fi
}

# ensurePackages GROUP...: installs what is missing of these groups, and nothing when nothing is.
ensurePackages() {
    local group wanted=() missing
    for group in "$@"; do
        read -r -d '' -a words <<<"${packages[$group]}" || true
        wanted+=("${words[@]}")
    done
    if ! command -v dpkg-query >/dev/null; then
        say "Not a Debian system: install the counterparts of these yourself: ${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missingPackages "${wanted[@]}")
    [[ ${#missing[@]} -gt 0 ]] || return 0
    local install=(apt-get install -y --no-install-recommends "${missing[@]}")
    if [[ $(id -u) -ne 0 ]] && ! command -v sudo >/dev/null; then
        fail "packages are missing, and there is no sudo. As root: ${install[*]}"
    fi
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    # A machine that has just started may still hold the lock for its own updates: wait instead of failing.
    local options=(-qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
    asRoot env DEBIAN_FRONTEND=noninteractive apt-get "${options[@]}" update
    asRoot env DEBIAN_FRONTEND=noninteractive apt-get "${options[@]}" "${install[@]:1}"
    # A name that only others provide would count as missing again at every call.
    mapfile -t missing < <(missingPackages "${missing[@]}")
    [[ ${#missing[@]} -eq 0 ]] || fail "apt installed nothing named ${missing[*]}"
}

# Ninja configures again by itself when a CMakeLists.txt changed. It knows nothing of the presets file, nor that the
# checkout was moved or copied together with its build folder.
needsConfigure() {
    local build=$1
    [[ -f $build/build.ninja && -f $build/CMakeCache.txt ]] || return 0
    [[ $root/CMakePresets.json -nt $build/build.ninja ]] && return 0
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt"
}

# buildPreset PRESET [TARGET...]: configures when needed, then builds the targets, or everything.
buildPreset() {
    local preset=$1 build=$root/build/$1
    shift
    if needsConfigure "$build"; then
        say "Configuring ($preset)"
        (cd "$root" && cmake --preset "$preset" --fresh) || fail "configuring the $preset preset failed"
    fi
    say "Building ($preset)"
    cmake --build "$build" ${1:+--target "$@"} || fail "building the $preset preset failed"
}

# ourFiles: the files of the tree, NUL-separated and relative to the current folder; no version control needed.
ourFiles() {
    find . \( -name .git -o -path './build' -o -path './build-*' -o -path './.cache' \) -prune -o -type f -print0
}
