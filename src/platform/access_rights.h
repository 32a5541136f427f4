// Who may do what with a file: a new one in the place of an old one gives nobody a right and takes
// none away.
#pragma once

#include <cstdint>
#include <filesystem>
#include <sys/stat.h>

namespace quendra {

/// The attribute in which the system keeps a file's access control list.
inline constexpr const char* accessListName = "system.posix_acl_access";

/// What a new file could take over.
enum class Rights : std::uint8_t { All, AllButOwner, Failed };

/// Gives the open file `file` the owner, group, access control list, extended attributes and mode
/// of the one at `from`, whose state is `old`. A group that cannot be kept loses its rights, for
/// the file would give them to another one. What the file system does not know is no failure;
/// Failed leaves the reason in errno.
[[nodiscard]] Rights takeOverRights(int file, const std::filesystem::path& from,
                                    const struct stat& old);

}  // namespace quendra
