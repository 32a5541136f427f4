// The arguments of qds, taken apart.
#pragma once

#include "hosts/host_type.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quendra::cli {

/// The exit status of qds.
inline constexpr int statusWell = 0;
/// A file was refused, was not whole, could not be written, or would lose something.
inline constexpr int statusRefused = 1;
inline constexpr int statusWrongUsage = 2;

/// The file name that means standard input, or standard output where a file is written.
inline constexpr const char* standardStream = "-";

struct ShowRequest {
    bool numbers = false;
    bool json = false;
    bool reveal = false;
    std::vector<std::string> files;
};

struct ConvertRequest {
    /// None: each file keeps its host type.
    std::optional<HostType> hostType;
    bool allowLoss = false;
    /// Every file is replaced; otherwise the only one is written to `output`.
    bool inPlace = false;
    std::string output;
    std::vector<std::string> files;
};

struct BuildRequest {
    bool allowLoss = false;
    std::string source;
    std::string output;
};

struct TextsRequest {};

/// Nothing to do but to print: help and version to standard output, with status 0; wrong usage to
/// standard error.
struct Announcement {
    std::string text;
    int status = statusWell;
};

using Request = std::variant<Announcement, ShowRequest, ConvertRequest, BuildRequest, TextsRequest>;

/// Takes apart the arguments without the program's name. Arguments that make no sense give an
/// announcement that says so.
[[nodiscard]] Request parseArguments(const std::vector<std::string>& arguments);

}  // namespace quendra::cli
