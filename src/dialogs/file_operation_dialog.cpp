// Run and the menu commands that take a file name.
#include "dialogs/command_dialogs.h"
#include "model/menu_commands.h"
#include "text/text_ids.h"
#include "widgets/file_dialogs.h"
#include "widgets/ui_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quendra {

namespace {

/// Which files "Browse" offers.
enum class FileKind : std::uint8_t { Program, Session, Any, Macro };

struct FileOperation {
    /// Of the menu command; 0 for Run.
    std::uint32_t commandId;
    StringId caption;
    StringId label;
    FileKind kind;
};

constexpr std::array<FileOperation, 6> fileOperations = {{
    {0, textid::runTitle, textid::runLabel, FileKind::Program},
    {202, textid::openSessionTitle, textid::openSessionLabel, FileKind::Session},
    {204, textid::saveSessionAsTitle, textid::saveSessionAsLabel, FileKind::Session},
    {219, textid::pasteFromFileTitle, textid::pasteFromFileLabel, FileKind::Any},
    {254, textid::runMacroTitle, textid::runMacroLabel, FileKind::Macro},
    {257, textid::editMacroTitle, textid::editMacroLabel, FileKind::Macro},
}};

static_assert(std::ranges::all_of(menuCommandTable,
                                  [](const MenuCommandInfo& info) {
                                      return takesFileName(info.code) ==
                                             (std::ranges::count(fileOperations, info.code,
                                                                 &FileOperation::commandId) == 1);
                                  }),
              "each menu command that takes a file name has its row");

const FileOperation& fileOperation(const Step& fields) {
    const std::uint32_t id = fields.code == CommandCode::Run ? 0 : fields.commandId;
    const auto found =
        std::find_if(fileOperations.begin(), fileOperations.end(),
                     [id](const FileOperation& operation) { return operation.commandId == id; });
    return found == fileOperations.end() ? fileOperations.front() : *found;
}

FileDialogRequest browseRequest(FileKind kind, const ApplicationState& state) {
    const auto& folder = state.settings.workingDir;
    const HostTypeInfo& host = hostTypeInfo(state.currentHostType);
    switch (kind) {
        case FileKind::Session:
            return {FileDialogMode::Open,
                    {},
                    std::string(host.sessionFileFilter),
                    std::string(host.sessionFileExtension),
                    folder / "Config"};
        // No extension: with "*" for one, files without a dot in their names would be left out.
        case FileKind::Any: return {FileDialogMode::Open, {}, "All Files(*.*)", {}, folder};
        case FileKind::Macro:
            return {FileDialogMode::Open, {}, "Quendra Macros(*.qdm)", "qdm", folder / "Macros"};
        case FileKind::Program: break;
    }
    return {FileDialogMode::Open, {}, "Program Files(*.exe)", "exe", folder};
}

class FileOperationDialog : public ParameterDialog {
  public:
    FileOperationDialog(const DialogContext& context, const EditTarget& target)
        : ParameterDialog(context, target, "fileOperationDialog", "File_Operation"),
          operation_(fileOperation(fields())) {
        setWindowTitle(text(operation_.caption));
        file_ = named(new TextEdit, "file");
        auto* browse = named(new QPushButton(text(textid::browseButton)), "browse");
        connect(browse, &QPushButton::clicked, this, [this] { chooseName(); });
        body().addWidget(makeLabel("fileLabel", text(operation_.label), file_));
        auto* row = new QHBoxLayout;
        row->addWidget(file_, 1);
        row->addWidget(browse);
        body().addLayout(row);
        addButtons();
    }

    void load() override { file_->setBytes(textOf(fields())); }

    [[nodiscard]] std::optional<Refusal> check() const override {
        if (file_->text().isEmpty()) return required(file_, text(textid::fileNameMissingTitle));
        return std::nullopt;
    }

    void store() override { storeText(*file_); }

  private:
    void chooseName() {
        FileDialogRequest request = browseRequest(operation_.kind, context().state);
        request.title = windowTitle().toStdString();
        const auto path = chooseFile(this, request);
        if (!path) return;
        file_->setFocus();
        if (file_->takeText(qtText(pathText(*path)))) file_->selectAll();
    }

    const FileOperation& operation_;
    TextEdit* file_ = nullptr;
};

}  // namespace

std::unique_ptr<ParameterDialog> makeFileOperationDialog(const DialogContext& context,
                                                         const EditTarget& target) {
    return std::make_unique<FileOperationDialog>(context, target);
}

}  // namespace quendra
