// Asking for the name of a file: one routine for opening and saving, and one seam, so tests can
// answer.
#pragma once

#include <QString>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

class QWidget;

namespace quendra {

enum class FileDialogMode { Open, Save };

struct FileDialogRequest {
    FileDialogMode mode = FileDialogMode::Open;
    /// UTF-8.
    std::string title;
    /// "Quendra Script Files(*.qds)".
    std::string filterDescription;
    /// Without a dot. Save adds it to a name that has no extension that the system knows: to
    /// "release1.2", not to "a.txt", nor to one that is there. Empty: every file is offered.
    std::string extension;
    /// Where the dialog starts; empty for the current folder.
    std::filesystem::path initialFolder;
    /// The name that is offered; one with a folder takes the dialog there. Empty for none.
    std::filesystem::path initialFile = {};
};

/// The absolute path that the user chose; none on Cancel. Open gives files that exist only. Save
/// does not ask before it gives the name of an existing file.
[[nodiscard]] std::optional<std::filesystem::path> chooseFile(QWidget* owner,
                                                              const FileDialogRequest& request);

/// The filter as the dialog takes it: the description, and the pattern in parentheses behind it
/// when the description does not end in it already.
[[nodiscard]] QString fileDialogFilter(const FileDialogRequest& request);

/// Puts `handler` in the place of the dialog and gives what was there; an empty one stands for the
/// dialog itself.
using FileDialogHandler = std::function<std::optional<std::filesystem::path>(
    QWidget* owner, const FileDialogRequest& request)>;
FileDialogHandler replaceFileDialogHandler(FileDialogHandler handler);

}  // namespace quendra
