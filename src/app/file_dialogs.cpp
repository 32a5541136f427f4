#include "app/file_dialogs.h"

#include "app/ui_text.h"

#include <QFileDialog>

#include <utility>

namespace quendra {

namespace {

FileDialogHandler& currentHandler() {
    static FileDialogHandler handler;
    return handler;
}

std::optional<std::filesystem::path> runDialog(QWidget* owner, const FileDialogRequest& request) {
    QFileDialog dialog(owner, qtText(request.title));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    const bool saving = request.mode == FileDialogMode::Save;
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilter(fileDialogFilter(request));
    if (!request.extension.empty()) dialog.setDefaultSuffix(qtText(request.extension));
    if (!request.initialFolder.empty()) {
        dialog.setDirectory(QFile::decodeName(request.initialFolder.c_str()));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return std::filesystem::absolute(pathFromQt(dialog.selectedFiles().constFirst()));
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
    return handler ? handler(owner, request) : runDialog(owner, request);
}

FileDialogHandler replaceFileDialogHandler(FileDialogHandler handler) {
    return std::exchange(currentHandler(), std::move(handler));
}

}  // namespace quendra
