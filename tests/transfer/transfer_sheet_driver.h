// Opens the sheet of the transfer settings and works on it while it is open.
#pragma once

#include "app/editor_fixture.h"

#include <QDialog>

#include <functional>

namespace quendra::test {

/// The open sheet, with the hands of a user.
class OpenSheet {
  public:
    explicit OpenSheet(QDialog& sheet) : dialog(sheet) {}

    template <class T>
    [[nodiscard]] T& widget(const QString& name) {
        T* found = dialog.findChild<T*>(name);
        if (found == nullptr) throw std::runtime_error("no widget " + name.toStdString());
        return *found;
    }
    [[nodiscard]] bool isEnabled(const char* name);
    [[nodiscard]] bool isChecked(const char* name);
    [[nodiscard]] QString text(const char* name);

    /// Shows the page by a click on its tab: 0 Settings, 1 Advanced.
    void showPage(int page);
    void click(const char* name);
    /// Replaces the text of an edit by what these keys give.
    void type(const char* name, const QString& keys);
    void paste(const char* name, const QString& text);
    /// Goes to an item of a drop-down list by its arrow keys.
    void choose(const char* name, int item);
    /// Ends the sheet with its button "ok" or "cancel".
    void end(const char* button) { click(button); }

    QDialog& dialog;
};

/// The names of the two libraries.
inline constexpr const char* english = "qdstring";
inline constexpr const char* german = "qdstring_de";

class TransferSheetTest : public ::testing::Test {
  protected:
    /// Opens the sheet on the working settings and `host`, and lets `work` do something with it;
    /// a sheet that is still open behind that is cancelled. Gives the result, and the host system
    /// in `host`.
    bool open(const std::function<void(OpenSheet&)>& work);

    [[nodiscard]] std::string stored(const TransferField& field) const;
    [[nodiscard]] std::uint32_t number(const TransferField& field) const;

    EditorState editor;
    ApplicationState& state = editor.state;
    FileTransferSettings& settings = editor.state.workingTransfer.settings;
    Answers answers;
    std::uint8_t host = transferHostVmCms;
};

}  // namespace quendra::test
