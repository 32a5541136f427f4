// The dialogs with actions, run as the editor runs them, on a made-up entry.
#pragma once

#include "app/editor_fixture.h"
#include "dialogs/dialog_fixture.h"
#include "dialogs/modal_steps.h"

namespace quendra::test {

class SearchDialogTest : public ::testing::Test {
  protected:
    SearchDialogTest() : state(editor.state) {}

    /// A new entry as the editor makes it.
    void startNew(CommandCode code) {
        entry = newEntry(code);
        if (code != CommandCode::WaitFor) return;
        entry.searchRow = 1;
        entry.searchColumn = 1;
        entry.caseSensitive = 1;
    }
    /// A Wait_For whose actions are offered.
    void startWithTimeout() {
        startNew(CommandCode::WaitFor);
        setText(slotFields(entry, Slot::Entry), "READY");
        entry.hasTimeout = 1;
    }
    void startCompare() {
        startNew(CommandCode::IfInputIs);
        setText(slotFields(entry, Slot::Entry), "yes");
    }

    /// Runs the dialog of the entry's command with the steps prepared so far.
    bool run() {
        return steps.run([this] { return editParameters({state, nullptr}, {entry}); });
    }

    [[nodiscard]] SlotFields then() { return slotFields(entry, Slot::Then); }
    [[nodiscard]] SlotFields otherwise() { return slotFields(entry, Slot::Else); }

    EditorState editor;
    ApplicationState& state;
    Answers answers;
    ModalSteps steps;
    ScriptEntry entry;
};

}  // namespace quendra::test
