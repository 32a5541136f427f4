// Parameter dialogs on a made-up entry, for tests: one that is shown, but not run, so that keys and
// mouse reach it; or run as the editor runs it, with those that it opens.
#pragma once

#include "app/editor_fixture.h"
#include "dialogs/command_dialogs.h"
#include "dialogs/modal_steps.h"

#include <memory>
#include <ostream>
#include <string>

namespace quendra {

/// The parameters of all slots, for messages of failed tests.
void PrintTo(const ScriptEntry& entry, std::ostream* out);

namespace test {

/// What the editor puts into a new entry of a command.
[[nodiscard]] ScriptEntry newEntry(CommandCode code);
/// Takes every text from another library from now on.
void useLanguage(ApplicationState& state, const std::string& name);

inline constexpr Slot allSlots[] = {Slot::Entry, Slot::Then, Slot::Else};
/// Behind the name of a test's row.
[[nodiscard]] std::string slotSuffix(Slot slot);

/// A running editor and the entry that its dialogs work on.
class DialogContextTest : public ::testing::Test {
  protected:
    DialogContextTest() : state(editor.state) {}

    /// Exactly one box was shown since the last call, with this text and caption.
    void expectTold(const std::string& text, const std::string& caption);
    [[nodiscard]] SlotFields own() { return slotFields(entry, Slot::Entry); }
    [[nodiscard]] SlotFields then() { return slotFields(entry, Slot::Then); }
    [[nodiscard]] SlotFields otherwise() { return slotFields(entry, Slot::Else); }
    /// A Wait_For with this command as an action; or the command itself for Slot::Entry.
    void startWith(CommandCode code, Slot slot, std::uint32_t commandId = 0);

    EditorState editor;
    ApplicationState& state;
    Answers answers;
    ScriptEntry entry;
};

class DialogTest : public DialogContextTest, protected OpenDialog {
  protected:
    /// Opens the dialog of the slot's command on `entry`. The code of an action's owner is that of
    /// the entry.
    void open(Slot slot = Slot::Entry, ActionOwner owner = ActionOwner::WaitForOrWatchFor);
    void openNew(CommandCode code);
    void close() { opened_.reset(); }

    [[nodiscard]] std::string note() const { return shown("note"); }
    [[nodiscard]] bool endedWithOk() const {
        return !dialog->isVisible() && dialog->result() == QDialog::Accepted;
    }

  private:
    std::unique_ptr<ParameterDialog> opened_;
};

/// The dialogs with actions, run as the editor runs them.
class SearchDialogTest : public DialogContextTest {
  protected:
    /// A Wait_For whose actions are offered.
    void startWithTimeout();
    void startCompare();

    /// Runs the dialog of the entry's command with the steps prepared so far.
    bool run(Slot slot = Slot::Entry);
    /// The choice of an action; true when it ended with OK.
    bool choose(Slot slot, ActionOwner owner = ActionOwner::WaitForOrWatchFor);
    /// A step that selects a row of the Action dialog and presses OK.
    void chooseRow(const char* list, const std::string& text);
    void click(const char* dialog, const char* button);

    ModalSteps steps;
};

}  // namespace test
}  // namespace quendra
