// Directories: making them, and finding out whether files can be made in them.
#pragma once

#include <filesystem>

namespace quendra {

/// Makes the directory and every missing parent, as far as that can be done.
void makeDirectoryPath(const std::filesystem::path& path);

/// Makes one directory whose parent exists, if it can be made.
void makeDirectory(const std::filesystem::path& path);

/// Makes the directory and every missing parent so that only this user enters them. False, with the
/// reason in errno, when it is not there then.
[[nodiscard]] bool makePrivateDirectoryPath(const std::filesystem::path& path);

/// Whether the user can make files in the directory, found out by making one ("qdt" and six
/// characters) and removing it: permissions alone do not tell of a read-only or full disk.
[[nodiscard]] bool canMakeFilesIn(const std::filesystem::path& directory);

/// The same by permissions alone, for who must leave everything as it is. A directory that is not
/// there goes by the one in which it would be made.
[[nodiscard]] bool mayMakeFilesIn(const std::filesystem::path& directory);

}  // namespace quendra
