// A running editor for tests: a made-up home, the real language library, the real window, and
// answers for every question that it may ask.
#pragma once

#include "app/command_handlers.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"
#include "widgets/pane_list.h"

#include <QAction>
#include <QLabel>
#include <QToolButton>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quendra::test {

/// State as after start-up with an empty script; scripts lie in `folder`.
struct EditorState {
    /// `language` is the base name of the language library.
    explicit EditorState(const std::string& language = "qdstring");

    TemporaryFolder folder;
    ApplicationState state;
};

/// Answers message boxes and file dialogs while it lives, and keeps what was asked. A question
/// without a prepared answer fails the test and is answered with Cancel.
class Answers {
  public:
    Answers();
    ~Answers();
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;

    std::deque<MessageAnswer> toMessages;
    std::deque<std::optional<std::filesystem::path>> toFileDialogs;
    std::vector<Message> messages;
    std::vector<FileDialogRequest> fileDialogs;

  private:
    MessageHandler messagesBefore_;
    FileDialogHandler fileDialogsBefore_;
};

/// What a user does in a parameter dialog: changes the working copy and gives true for OK.
using DialogAnswer = std::function<bool(ScriptEntry&)>;

/// The object names of a command's action and of its button.
[[nodiscard]] inline QString actionName(EditorCommand command) {
    return QStringLiteral("command%1").arg(commandNumber(command));
}
[[nodiscard]] inline QString toolButtonName(EditorCommand command) {
    return QStringLiteral("toolButton%1").arg(commandNumber(command));
}

class EditorTest : public ::testing::Test {
  protected:
    EditorTest();
    ~EditorTest() override;

    /// Opens a file with these bytes through the menu command.
    std::filesystem::path open(const std::string& name, const Bytes& bytes);
    void select(const std::vector<std::size_t>& entries, int focused) {
        window.pane().selectEntries(entries, focused);
    }
    void choosePaletteRow(const char* list, int row) {
        auto& view = widget<PaneList>(list);
        view.setCurrentIndex(view.model()->index(row, 0));
    }
    [[nodiscard]] QAction& action(EditorCommand command) {
        return widget<QAction>(actionName(command));
    }
    [[nodiscard]] QToolButton& toolButton(EditorCommand command) {
        return widget<QToolButton>(toolButtonName(command));
    }
    [[nodiscard]] bool isEnabled(EditorCommand command) { return action(command).isEnabled(); }
    void run(EditorCommand command) { action(command).trigger(); }
    /// The same with an answer prepared for the question that it asks.
    void run(EditorCommand command, MessageAnswer answer) {
        answers.toMessages.push_back(answer);
        run(command);
    }
    /// The same with a choice prepared for the file dialog that it opens, none for Cancel.
    void run(EditorCommand command, std::optional<std::filesystem::path> choice) {
        answers.toFileDialogs.push_back(std::move(choice));
        run(command);
    }
    /// Through the menu command; its question is answered, and not kept.
    void deleteFirstEntry() {
        select({0}, 0);
        run(EditorCommand::DeleteEntries, MessageAnswer::Yes);
        answers.messages.clear();
    }
    [[nodiscard]] std::string title() const { return window.windowTitle().toStdString(); }
    [[nodiscard]] bool isMarked() const { return title().ends_with(" *"); }
    [[nodiscard]] std::string status() { return widget<QLabel>("statusLine").text().toStdString(); }
    [[nodiscard]] std::string lines();
    /// These lines, with "|" between them, and this selection.
    void expectScript(const std::string& expected, const std::vector<std::size_t>& selected,
                      int focused);
    template <class T>
    [[nodiscard]] T& widget(const QString& name) {
        T* found = window.findChild<T*>(name);
        if (found == nullptr) throw std::runtime_error("no widget " + name.toStdString());
        return *found;
    }
    template <class T>
    [[nodiscard]] T& widget(const char* name) {
        return widget<T>(QString::fromLatin1(name));
    }
    [[nodiscard]] PaneList& list(const char* name) { return widget<PaneList>(name); }
    [[nodiscard]] PaneList& script() { return list("scriptList"); }

    EditorState editor;
    ApplicationState& state = editor.state;
    Answers answers;
    /// For the parameter dialogs in the order in which they open.
    std::deque<DialogAnswer> toDialogs;
    MainWindow window;
    ScriptEditor scriptEditor;
    CommandHandlers handlers;
};

}  // namespace quendra::test
