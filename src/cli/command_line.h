// The arguments of qds, taken apart.
#pragma once

#include "analysis/check_rules.h"
#include "hosts/host_type.h"
#include "text/text_pattern.h"

#include <memory>
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
/// Of commands that look for something: check and diff found it, grep did not, merge met a
/// conflict; and something kept them from looking everywhere.
inline constexpr int statusFound = 1;
inline constexpr int statusTrouble = 2;

/// The file name that means standard input, or standard output where a file is written.
inline constexpr const char* standardStream = "-";

struct ShowRequest {
    bool numbers = false;
    bool full = false;
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

struct CheckRequest {
    bool json = false;
    bool notes = false;
    RuleSet disabled;
    std::vector<std::string> files;
};

/// What is looked for, and where.
struct SearchTerms {
    std::shared_ptr<const TextPattern> pattern;
    /// Names of fields as FieldFilter takes them; none means all.
    std::vector<std::string> fields;
};

struct GrepRequest {
    SearchTerms search;
    /// Only the names of files with a match.
    bool filesOnly = false;
    std::vector<std::string> files;
};

struct ReplaceRequest {
    SearchTerms search;
    std::string replacement;
    bool isDryRun = false;
    std::vector<std::string> files;
};

struct RenameLabelRequest {
    std::string before;
    std::string after;
    bool isDryRun = false;
    std::vector<std::string> files;
};

struct DiffRequest {
    bool json = false;
    std::string left;
    std::string right;
};

struct MergeRequest {
    std::string oursName = "ours";
    std::string theirsName = "theirs";
    std::string base;
    std::string ours;
    std::string theirs;
    /// Empty: `ours` is replaced.
    std::string output;
};

struct TextsRequest {};

/// Nothing to do but to print: help and version to standard output, with status 0; wrong usage to
/// standard error.
struct Announcement {
    std::string text;
    int status = statusWell;
};

using Request =
    std::variant<Announcement, ShowRequest, ConvertRequest, BuildRequest, CheckRequest, GrepRequest,
                 ReplaceRequest, RenameLabelRequest, DiffRequest, MergeRequest, TextsRequest>;

/// Takes apart the arguments without the program's name. Arguments that make no sense give an
/// announcement that says so.
[[nodiscard]] Request parseArguments(const std::vector<std::string>& arguments);

}  // namespace quendra::cli
