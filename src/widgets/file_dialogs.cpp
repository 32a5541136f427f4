#include "widgets/file_dialogs.h"

#include "widgets/placement.h"
#include "widgets/ui_text.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QMimeDatabase>
#include <QTreeView>

#include <utility>

namespace quendra {

namespace {

constexpr QSize comfortableDialogSize{820, 520};

FileDialogHandler& currentHandler() {
    static FileDialogHandler handler;
    return handler;
}

// Sizes and dates whole, all the rest of the width for the names.
void fitColumns(const QFileDialog& dialog) {
    const auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    files->header()->setStretchLastSection(false);
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

std::optional<std::filesystem::path> runDialog(QWidget* owner, const FileDialogRequest& request) {
    QFileDialog dialog(owner, qtText(request.title));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.resize(comfortableDialogSize.boundedTo(largestWindow(dialog)));
    const bool saving = request.mode == FileDialogMode::Save;
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilter(fileDialogFilter(request));
    if (!request.extension.empty()) dialog.setDefaultSuffix(qtText(request.extension));
    if (!request.initialFolder.empty()) {
        dialog.setDirectory(QFile::decodeName(request.initialFolder.c_str()));
    }
    fitColumns(dialog);
    if (!request.initialFile.empty()) {
        dialog.selectFile(QFile::decodeName(request.initialFile.c_str()));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return std::filesystem::absolute(pathFromQt(dialog.selectedFiles().constFirst()));
}

// The dialog adds it only to a name without any dot.
std::filesystem::path withExtension(const std::filesystem::path& path,
                                    const std::string& extension) {
    std::error_code ignored;
    const QString name = qtText(path.filename().native());
    const QString ending = QLatin1Char('.') + qtText(extension);
    const bool isComplete = extension.empty() || name.endsWith(ending, Qt::CaseInsensitive) ||
                            !QMimeDatabase().suffixForFileName(name).isEmpty() ||
                            std::filesystem::exists(path, ignored);
    return isComplete ? path : std::filesystem::path(path.native() + '.' + extension);
}

}  // namespace

QString fileDialogFilter(const FileDialogRequest& request) {
    const std::string pattern =
        "(*" + (request.extension.empty() ? std::string() : "." + request.extension) + ")";
    const QString description = qtText(request.filterDescription);
    if (description.endsWith(qtText(pattern))) return description;
    return description + QLatin1Char(' ') + qtText(pattern);
}

std::optional<std::filesystem::path> chooseFile(QWidget* owner, const FileDialogRequest& request) {
    const FileDialogHandler handler = currentHandler();
    auto path = handler ? handler(owner, request) : runDialog(owner, request);
    if (path && request.mode == FileDialogMode::Save)
        return withExtension(*path, request.extension);
    return path;
}

FileDialogHandler replaceFileDialogHandler(FileDialogHandler handler) {
    return std::exchange(currentHandler(), std::move(handler));
}

}  // namespace quendra
