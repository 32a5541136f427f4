// What all dialogs share, and how the one for a file transfer starts and ends.
#include "dialogs/dialog_fixture.h"
#include "transfer/command_builder.h"

#include <QScreen>

namespace quendra::test {
namespace {

TEST_F(DialogTest, ReturnIsOkAndTheFirstFieldIsSelectedAtTheStart) {
    // Browse comes before OK in the second one.
    for (const CommandCode code : {CommandCode::Goto, CommandCode::Run}) {
        entry = newEntry(code);
        setText(own(), "old");
        open();
        type("new");
        press(Qt::Key_Return);
        EXPECT_TRUE(endedWithOk());
        EXPECT_EQ(textOf(own()), "new");
    }
}

TEST_F(DialogTest, TheCloseBoxIsCancel) {
    openNew(CommandCode::Wait);
    retype("number", "9");
    dialog->close();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(entry.number, 3U);
}

TEST_F(DialogTest, TabsGoThroughTheFieldsToTheButtons) {
    openNew(CommandCode::Copy);
    std::string order;
    for (int i = 0; i < 7; ++i) {
        order += focused() + ' ';
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(order, "startRow startColumn endRow endColumn entireScreen ok cancel ");
}

TEST_F(DialogTest, StandsInTheMiddleOfTheScreenTenPixelsUp) {
    openNew(CommandCode::Input);
    const QRect screen = dialog->screen()->geometry();
    EXPECT_EQ(dialog->pos().x(), (screen.width() - dialog->width()) / 2);
    EXPECT_EQ(dialog->pos().y(), (screen.height() - dialog->height()) / 2 - 10);
}

class EditParameters : public SearchDialogTest {};

TEST_F(EditParameters, IsDoneAtOnceWhereThereIsNothingToEdit) {
    for (const CommandCode code : {CommandCode::None, CommandCode::Beep, CommandCode::ClearWatch,
                                   CommandCode::Return, CommandCode::LuFunction}) {
        startWith(code, Slot::Entry);
        EXPECT_TRUE(run()) << static_cast<int>(code);
    }
    for (const std::uint32_t id : {201U, 203U, 235U, 238U, 268U, 300U}) {
        startWith(CommandCode::MenuCommand, Slot::Entry, id);
        EXPECT_TRUE(run()) << id;
    }
    for (const CommandCode nested :
         {CommandCode::WaitFor, CommandCode::IfInputIs, CommandCode::WatchFor}) {
        startWith(nested, Slot::Then);
        EXPECT_TRUE(run(Slot::Then)) << static_cast<int>(nested);
    }
}

FileTransferSettings settingsWith(std::string_view hostFile) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, hostFile);
    return settings;
}

TEST_F(EditParameters, ATransferStartsFromItsOwnSettingsOrElseFromTheWorkingOnes) {
    const struct {
        const char* name;
        std::uint32_t commandId;
        Slot slot;
        bool editing;
        const char* own;
        const char* shown;
    } rows[] = {
        {"a new entry", 236, Slot::Entry, false, nullptr, "WORKING"},
        {"an entry with settings", 237, Slot::Entry, true, "OWN", "OWN"},
        {"an entry without settings shows that it has none", 237, Slot::Entry, true, nullptr, ""},
        {"an action with settings", 237, Slot::Else, false, "OWN", "OWN"},
        {"an action without settings", 236, Slot::Else, true, nullptr, "WORKING"},
    };
    for (const auto& row : rows) {
        for (const char* button : {"ok", "cancel"}) {
            SCOPED_TRACE(row.name + std::string(" ends with ") + button);
            state.editing = row.editing;
            state.workingTransfer = {settingsWith("WORKING"), transferHostVmCms, {}};
            startWith(CommandCode::MenuCommand, row.slot, row.commandId);
            const SlotFields fields = slotFields(entry, row.slot);
            if (row.own != nullptr) fields.transferSettings = settingsWith(row.own);
            fields.transferHost = transferHostCics;
            const ScriptEntry before = entry;
            const auto direction =
                row.commandId == 236 ? TransferDirection::Send : TransferDirection::Receive;
            steps.in("transferSheet", [&](const OpenDialog& d) {
                EXPECT_EQ(d.shown("hostFileName"), row.shown);
                EXPECT_TRUE(d.isChecked("transferHost2"));
                EXPECT_EQ(state.workingTransfer.direction, direction);
                d.retype("hostFileName", "EDITED");
                d.click("transferHost1");
                d.click(button);
            });
            const bool ok = run(row.slot);
            EXPECT_EQ(ok, std::string(button) == "ok");
            const auto& working = state.workingTransfer;
            EXPECT_EQ(transferText(working.settings, transfer::hostFileName), "EDITED")
                << "edits stay with the working settings";
            if (ok) {
                EXPECT_EQ(fields.transferSettings, working.settings);
                EXPECT_EQ(fields.transferHost, transferHostTso);
                EXPECT_EQ(working.host, transferHostTso);
            } else {
                EXPECT_EQ(entry, before);
            }
        }
    }
}

}  // namespace
}  // namespace quendra::test
