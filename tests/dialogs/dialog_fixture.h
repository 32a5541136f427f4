// One parameter dialog on a made-up entry, for tests: shown, but not run, so that keys and mouse
// reach it.
#pragma once

#include "app/editor_fixture.h"
#include "dialogs/command_dialogs.h"
#include "dialogs/text_edit.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>
#include <ostream>
#include <string>

namespace quendra {

void PrintTo(Slot slot, std::ostream* out);
/// The parameters of all slots, for messages of failed tests.
void PrintTo(const ScriptEntry& entry, std::ostream* out);

namespace test {

/// What the editor puts into a new entry of a command.
[[nodiscard]] ScriptEntry newEntry(CommandCode code);

/// Sends a text as keys, characters outside of ASCII included.
void typeText(QWidget& widget, const QString& text);
void clickOn(QWidget& widget);
void pasteInto(QWidget& widget, const QString& text);

/// Takes every text from another library from now on.
void useLanguage(ApplicationState& state, const std::string& name);

class DialogTest : public ::testing::Test {
  protected:
    DialogTest() : state(editor.state) {}

    /// Opens the dialog of the slot's command on `entry`. The code of an action's owner is that of
    /// the entry.
    void open(Slot slot = Slot::Entry, ActionOwner owner = ActionOwner::None);
    void openNew(CommandCode code);

    template <class T>
    [[nodiscard]] T& widget(const char* name) {
        T* found = dialog->findChild<T*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }
    [[nodiscard]] bool has(const char* name) const {
        return dialog->findChild<QWidget*>(QLatin1String(name)) != nullptr;
    }
    [[nodiscard]] QString labelText(const char* name) { return widget<QLabel>(name).text(); }
    [[nodiscard]] std::string note() { return labelText("note").toStdString(); }
    [[nodiscard]] QString libraryLine(StringId id) {
        return QString::fromStdString(state.language.loadText(id));
    }
    /// The object name of the widget that has the focus.
    [[nodiscard]] std::string focused() const;
    /// Replaces what a line edit shows.
    void retype(const char* name, const QString& text);

    void pressOk() { clickOn(widget<QPushButton>("ok")); }
    [[nodiscard]] bool endedWithOk() const {
        return !dialog->isVisible() && dialog->result() == QDialog::Accepted;
    }

    EditorState editor;
    ApplicationState& state;
    Answers answers;
    ScriptEntry entry;
    std::unique_ptr<ParameterDialog> dialog;
};

}  // namespace test
}  // namespace quendra
