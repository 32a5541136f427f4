// What there is to say about files that were written, in the user's language.
#pragma once

#include "platform/files.h"
#include "text/language_library.h"

#include <filesystem>
#include <string>

namespace quendra {

/// Why a file could not be read or written; names the folder that is the reason.
[[nodiscard]] std::string failureText(LanguageLibrary& language, const FileFailure& failure);

/// Why `path` could not be written, and where its old bytes are should they be lost there.
[[nodiscard]] std::string failureText(LanguageLibrary& language, const ReplaceResult& result);

/// Where the old bytes of `path` are kept: a name if that is beside it, else the whole path.
[[nodiscard]] std::string keptName(const std::filesystem::path& path,
                                   const std::filesystem::path& kept);

/// What a save of `path` left to tell; empty for an ordinary one.
[[nodiscard]] std::string savedNote(LanguageLibrary& language, const std::filesystem::path& path,
                                    const ReplaceResult& result);

}  // namespace quendra
