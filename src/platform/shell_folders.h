// The shell folders: where the user's and the machine's documents and data lie, by their numbers.
#pragma once

#include "platform/environment.h"

#include <filesystem>
#include <optional>

namespace quendra {

enum class ShellFolder {
    Documents = 5,
    ApplicationData = 26,
    CommonApplicationData = 35,
    CommonDocuments = 46,
};

/// Where each folder is; none when the lookup fails. A folder that is named here need not exist
/// yet. A plain record, so that tests put every folder where they want it.
struct ShellFolders {
    std::optional<std::filesystem::path> documents;
    std::optional<std::filesystem::path> applicationData;
    std::optional<std::filesystem::path> commonApplicationData;
    std::optional<std::filesystem::path> commonDocuments;
    /// For files that may be gone at the next start; never empty.
    std::filesystem::path temporary = "/tmp";

    [[nodiscard]] const std::optional<std::filesystem::path>& of(ShellFolder folder) const;
};

/// The folders on Linux:
/// - Documents: XDG_DOCUMENTS_DIR of "user-dirs.dirs" in $XDG_CONFIG_HOME (default ~/.config), else
///   ~/Documents.
/// - ApplicationData: $XDG_DATA_HOME, else ~/.local/share.
/// - CommonApplicationData: /var/lib, the place for data that programs change and users share. Not
///   a folder of $XDG_DATA_DIRS: those hold what packages install, and which one comes first
///   depends on the desktop that the user chose at login.
/// - CommonDocuments: /srv, the place for a site's own files.
/// - temporary: $TMPDIR, else /tmp.
/// Variables with a relative path count as not set; without $HOME, what rests on it is not found.
[[nodiscard]] ShellFolders shellFolders(const Environment& environment);

/// Where programs keep what is neither settings nor the user's documents: $XDG_STATE_HOME, else
/// ~/.local/state. It need not exist yet; none without $HOME.
[[nodiscard]] std::optional<std::filesystem::path> stateFolder(const Environment& environment);

}  // namespace quendra
