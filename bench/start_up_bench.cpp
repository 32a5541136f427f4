// Starting the editor up to the first paint of its window, beside a bare window: whole processes,
// started in turn. Under the platform "offscreen", and under the X server of $DISPLAY if there is
// one.
//
// Beside a window without any text and beside one with a line of it, since the first text of a
// program makes Qt look for fonts, which takes longer than all the rest of an empty window.
#include "first_paint.h"
#include "pair.h"
#include "sample_scripts.h"
#include "scriptfile/script_writer.h"
#include "work_folder.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fstream>
#include <map>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quendra::bench {

namespace {

namespace fs = std::filesystem;
using MakeScript = Script (*)(const HiddenTextCipher&);

constexpr int starts = 40;

// The user's variables, but for a home, a runtime folder and a platform of our own.
std::vector<std::string> childEnvironment(const std::string& platform) {
    std::map<std::string, std::string> variables;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        const std::size_t equals = text.find('=');
        if (equals != std::string::npos)
            variables[text.substr(0, equals)] = text.substr(equals + 1);
    }
    const fs::path& home = workFolder();
    variables["HOME"] = home;
    variables["XDG_CONFIG_HOME"] = home / ".config";
    variables["XDG_DATA_HOME"] = home / ".local/share";
    variables["XDG_CACHE_HOME"] = home / ".cache";
    variables["XDG_RUNTIME_DIR"] = home / "runtime";
    variables["QT_QPA_PLATFORM"] = platform;
    variables["LD_PRELOAD"] = FIRST_PAINT_PROBE;
    std::vector<std::string> entries;
    for (const auto& [name, value] : variables) {
        entries.push_back(name + "=" + value);
    }
    return entries;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Runs a program until its window is painted; anything else that it does is an error.
void startUntilPainted(std::vector<std::string> command, std::vector<std::string>& environment) {
    pid_t child = 0;
    if (posix_spawn(&child, command[0].c_str(), nullptr, nullptr, pointersTo(command).data(),
                    pointersTo(environment).data()) != 0) {
        throw std::runtime_error("cannot start " + command[0]);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != firstPaintStatus) {
        throw std::runtime_error(command[0] + " ended without painting its window");
    }
}

std::string writtenScript(MakeScript make) {
    const HiddenTextCipher cipher("{01234567-89AB-CDEF-0123-456789ABCDEF}");
    const auto bytes = writeScript(make(cipher), HostType::Mainframe);
    const fs::path path = workFolder() / "script.qds";
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
    return path;
}

struct Case {
    const char* name;
    /// Null for the empty window.
    MakeScript make;
    double mostRatio;
};
constexpr Case cases[] = {
    {"empty", nullptr, 1.35}, {"typical", typicalScript, 1.45}, {"largest", largestScript, 1.8}};

struct Beside {
    const char* name;
    std::vector<std::string> command;
};
const Beside besides[] = {{"blank_window", {BARE_WINDOW_PROGRAM}},
                          {"window_with_text", {BARE_WINDOW_PROGRAM, "Script"}}};

// The socket of an editor that was ended without a chance to remove it would be tried by the next.
void makeRuntimeFolder() {
    const fs::path folder = workFolder() / "runtime";
    fs::remove_all(folder);
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms::owner_all);
}

void startUp(benchmark::State& state, const std::string& platform, const Case& row,
             const Beside& beside) {
    auto environment = childEnvironment(platform);
    std::vector<std::string> editor = {EDITOR_PROGRAM};
    if (row.make != nullptr) editor.push_back(writtenScript(row.make));
    comparePair(
        state, [&] { startUntilPainted(beside.command, environment); },
        [&] { startUntilPainted(editor, environment); }, makeRuntimeFolder,
        {.ratio = row.mostRatio});
}

void registerFor(const std::string& platform) {
    for (const Case& row : cases) {
        for (const Beside& beside : besides) {
            const std::string name = std::string(row.name) + "/" + platform + "/" + beside.name;
            benchmark::RegisterBenchmark(name.c_str(),
                                         [&row, &beside, platform](benchmark::State& state) {
                                             startUp(state, platform, row, beside);
                                         })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(starts)
                ->UseManualTime();
        }
    }
}

}  // namespace

}  // namespace quendra::bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    quendra::bench::registerFor("offscreen");
    if (std::getenv("DISPLAY") != nullptr) quendra::bench::registerFor("xcb");
    benchmark::RunSpecifiedBenchmarks();
}
