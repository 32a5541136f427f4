// What reading, replacing and keeping files share: bytes through descriptors, and their folder.
// Where a function fails, errno says why.
#pragma once

#include "platform/files.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <span>
#include <sys/stat.h>
#include <sys/types.h>

namespace quendra {

[[nodiscard]] FileStamp stampOf(const struct stat& state);

/// Reads until the buffer is full or the file ends; the number of bytes, or -1.
[[nodiscard]] ssize_t readFully(int descriptor, std::uint8_t* buffer, std::size_t size);

[[nodiscard]] bool writeAll(int descriptor, std::span<const std::uint8_t> bytes);

/// Copies from where the source is to its end, `most` bytes of it.
[[nodiscard]] bool copyBytes(int source, int target,
                             std::uint64_t most = std::numeric_limits<std::uint64_t>::max());

/// Opens a file only if it is a regular one, and never waits for another program: the descriptor,
/// or -1. A failure of another kind of file has errno notRegularFile.
[[nodiscard]] int openRegular(const std::filesystem::path& path, int flags);

/// Makes what happened to the names in a folder last.
[[nodiscard]] bool syncFolder(const std::filesystem::path& folder);

}  // namespace quendra
