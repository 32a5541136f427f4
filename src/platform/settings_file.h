// Reading the small files that say how a program is to behave.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace quendra {

/// What is read of a settings file; nobody writes longer ones by hand.
inline constexpr std::size_t maxSettingsSize = std::size_t{1024} * 1024;

/// Whose word is taken for it.
enum class WrittenBy : std::uint8_t {
    Anybody,
    /// File and folder belong to the user or to root, and nobody else may write them. The folder is
    /// that of the name and, where the name is a link, also that of the file itself. The group of
    /// the owner's own name, which has no other member, is nobody else.
    UserOrRoot,
};

/// The bytes of the regular file at `path`: whole lines up to maxSettingsSize. None when there is
/// no such file, it cannot be read, or somebody else may have written it. Never waits, whatever
/// lies there.
[[nodiscard]] std::optional<std::string> readSettingsFile(const std::filesystem::path& path,
                                                          WrittenBy writer = WrittenBy::Anybody);

/// Whether a file of that name is one that nobody but the user or root may have written.
[[nodiscard]] bool isTrusted(const std::filesystem::path& path);

}  // namespace quendra
