// File paths as text.
#pragma once

#include <filesystem>
#include <string>

namespace quendra {

/// A path as it is shown, in UTF-8. File names that are not valid text show replacement characters:
/// keep the path itself for opening the file.
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

}  // namespace quendra
