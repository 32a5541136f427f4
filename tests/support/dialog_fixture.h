// Parameter dialogs on a made-up entry, for tests: one that is shown, but not run, so that keys and
// mouse reach it; or run as the editor runs it, with those that it opens.
#pragma once

#include "dialogs/command_dialogs.h"
#include "model/new_command.h"
#include "session/editing.h"
#include "support/editor_fixture.h"
#include "support/modal_steps.h"

#include <memory>
#include <string>

namespace quendra::test {

inline constexpr Slot allSlots[] = {Slot::Entry, Slot::Then, Slot::Else};

/// A running editor and the entry that its dialogs work on.
class DialogContextTest : public ::testing::Test {
  protected:
    explicit DialogContextTest(const std::string& language = "qdstring")
        : editor(language), state(editor.state) {}

    /// Exactly one box was shown since the last call, with this text and caption.
    void expectTold(const std::string& text, const std::string& caption);
    [[nodiscard]] Step& own() { return slotFields(entry, Slot::Entry); }
    [[nodiscard]] Step& then() { return slotFields(entry, Slot::Then); }
    [[nodiscard]] Step& otherwise() { return slotFields(entry, Slot::Else); }
    /// A Wait_For with this command as an action; or the command itself for Slot::Entry.
    void startWith(CommandCode code, Slot slot, std::uint32_t commandId = 0);

    EditorState editor;
    ApplicationState& state;
    Answers answers;
    ScriptEntry entry;
    ModalSteps steps;
};

class DialogTest : public DialogContextTest, protected OpenDialog {
  protected:
    using DialogContextTest::DialogContextTest;

    /// Opens the dialog of the slot's command on `entry`.
    void open(Slot slot = Slot::Entry);
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
    using DialogContextTest::DialogContextTest;

    /// A Wait_For whose actions are offered.
    void startWithTimeout();

    /// Runs the dialog of the entry's command with the steps prepared so far.
    bool run(Slot slot = Slot::Entry);
    /// The choice of an action; true when it ended with OK.
    bool choose(Slot slot, ActionOwner owner = ActionOwner::WaitForOrWatchFor);
    /// A step that selects a row of the Action dialog and presses OK.
    void chooseRow(const char* list, const std::string& text);
    void click(const char* dialog, const char* button);
};

}  // namespace quendra::test
