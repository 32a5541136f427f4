// The command line of the editor: which script to open, under which host type.
#pragma once

#include "hosts/host_type.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace quendra {

struct CommandLine {
    /// The script to open, as it was given; empty for none.
    std::filesystem::path script;
    /// The two scripts to compare in place of editing one, as they were given.
    struct Compared {
        std::filesystem::path left;
        std::filesystem::path right;
    };
    std::optional<Compared> compared;
    /// The host type to begin with; none leaves it as it is.
    std::optional<HostType> hostType;
    bool help = false;
    bool version = false;
    /// What is wrong with the command line, for standard error; the exit status is 2 then. Empty
    /// when all is well.
    std::string error;
};

/// What is at a path, links followed; tests answer for paths that no machine has.
using PathProbe = std::function<std::filesystem::file_type(const std::filesystem::path&)>;
[[nodiscard]] std::filesystem::file_type fileTypeAt(const std::filesystem::path& path);

/// Parses the arguments behind the program's own name and behind those options that ask for a
/// picture of the window, which whoever draws it has taken out before.
///
///   PATH, /e PATH, /ePATH    the script, the path taken as it stands
///   /t1, /t2                 iSeries, VT; "/t" and any other character is passed over, and only
///                            the first "/t" counts
///   /t1/ePATH, /t1/e PATH    both in one argument
///   --compare A B            shows the difference of two scripts in place of the editor
///   --                       what follows is a path
///   --help, --version
///
/// Paths begin with "/" too. An argument is a path, whatever it begins with, when it names a file
/// that is there (a folder is no file), or when the folder that it would lie in is there, unless
/// that is "/": "/etc/new.qds" is no "/e", so a script that is yet to be written can be named.
[[nodiscard]] CommandLine parseCommandLine(std::span<const std::string> arguments,
                                           const PathProbe& probe = fileTypeAt);

/// The absolute form of a path, without "." and "..". Links stay what they are called, but where a
/// ".." behind one leads elsewhere than it reads. As it is when the current folder is gone.
[[nodiscard]] std::filesystem::path tidyPath(const std::filesystem::path& path);

/// For --help and --version, each with its final line end.
[[nodiscard]] std::string commandLineHelp();
[[nodiscard]] std::string versionText();

}  // namespace quendra
