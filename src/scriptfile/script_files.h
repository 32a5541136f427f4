// Script files on disk: loading, saving, and bringing an older file up to date.
#pragma once

#include "platform/files.h"
#include "scriptfile/script_reader.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quendra {

/// A file as it was read: its script, or the system's reason why it cannot be read.
struct LoadedScript {
    std::optional<FileFailure> failure;
    ReadResult read;
    FileStamp stamp;

    [[nodiscard]] bool ok() const { return !failure && !read.refusal; }
};

/// Reads a script file of any version. Never writes, and never waits for a pipe: that is refused.
[[nodiscard]] LoadedScript loadScriptFile(const std::filesystem::path& path);

/// Writes the script to `path` in the current version, whole or not at all.
[[nodiscard]] ReplaceResult saveScriptFile(const std::filesystem::path& path, const Script& script,
                                           HostType hostType, OldFile oldFile,
                                           NewFile newFile = NewFile::AsInItsFolder);

/// Rewrites a file that was loaded in an older version, whole, and keeps the old one as a backup.
/// Does nothing for a current file, for one that was not read whole, and for one that changed on
/// disk since it was loaded: none then.
[[nodiscard]] std::optional<ReplaceResult> upgradeScriptFile(const std::filesystem::path& path,
                                                             const LoadedScript& loaded);

/// In English, why reading stopped: "the file ends inside a record". Empty when it did not.
[[nodiscard]] std::string describe(ReadStop stop);
/// In English, why a file was refused.
[[nodiscard]] std::string describe(ReadRefusal refusal);

}  // namespace quendra
