// Old bytes that are kept when a file gets new ones: under a free name beside it, or in the user's
// folder for them.
#pragma once

#include "platform/files.h"

#include <filesystem>
#include <optional>

namespace quendra {

/// Where the old bytes of a file are now, or why they could not be kept; nothing is left behind
/// then.
struct KeptBytes {
    /// NAME.bak beside the file, NAME.bak2 and so on when that exists, a name that is too long cut
    /// at a whole character. Where that folder takes no file, the same in `quendra/kept` of the
    /// user's state folder, for this user only.
    std::filesystem::path path;
    std::optional<FileFailure> failure;
    /// They are kept, but a power cut may undo that, and why.
    std::optional<FileFailure> unsynced;
};

/// Gives the file one more name: it is the old file itself then, and cannot be half written. Where
/// that is impossible, a copy.
[[nodiscard]] KeptBytes keepUnderOtherName(const std::filesystem::path& file);

/// Copies what the open file holds from its start, for one that is going to be written over.
/// `file` is its path.
[[nodiscard]] KeptBytes keepCopy(const std::filesystem::path& file, int descriptor);

}  // namespace quendra
