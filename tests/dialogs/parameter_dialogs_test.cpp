// What all dialogs share, and which dialog editParameters opens.
#include "dialogs/dialog_fixture.h"
#include "dialogs/other_dialogs.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <gmock/gmock.h>

namespace quendra::test {
namespace {

TEST_F(DialogTest, ReturnIsOkAndTheFirstFieldIsSelectedAtTheStart) {
    entry = newEntry(CommandCode::Goto);
    setText(slotFields(entry, Slot::Entry), "old");
    open();
    EXPECT_EQ(focused(), "text");
    typeText(widget<QLineEdit>("text"), QStringLiteral("new"));
    QTest::keyClick(&widget<QLineEdit>("text"), Qt::Key_Return);
    EXPECT_TRUE(endedWithOk());
    EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), "new");
}

TEST_F(DialogTest, ReturnInAFieldIsOkWhereAnotherButtonComesBeforeIt) {
    openNew(CommandCode::Run);
    typeText(widget<QLineEdit>("file"), QStringLiteral("a.exe"));
    QTest::keyClick(&widget<QLineEdit>("file"), Qt::Key_Return);
    EXPECT_TRUE(endedWithOk());
}

TEST_F(DialogTest, TheCloseBoxIsCancel) {
    openNew(CommandCode::Wait);
    retype("number", QStringLiteral("9"));
    dialog->close();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(entry.number, 3U);
}

TEST_F(DialogTest, TabsGoThroughTheFieldsToTheButtons) {
    openNew(CommandCode::Copy);
    std::string order;
    for (int i = 0; i < 7; ++i) {
        order += focused() + ' ';
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, "startRow startColumn endRow endColumn entireScreen ok cancel ");
}

TEST_F(DialogTest, StandsInTheMiddleOfTheScreenTenPixelsUp) {
    openNew(CommandCode::Input);
    const QRect screen = dialog->screen()->geometry();
    EXPECT_EQ(dialog->pos().x(), (screen.width() - dialog->width()) / 2);
    EXPECT_EQ(dialog->pos().y(), (screen.height() - dialog->height()) / 2 - 10);
}

TEST_F(DialogTest, NamesItsPageOfTheManual) {
    const std::pair<CommandCode, const char*> rows[] = {
        {CommandCode::Type, "Type"},          {CommandCode::WaitReady, "Wait_Ready"},
        {CommandCode::Run, "File_Operation"}, {CommandCode::Copy, "Copy"},
        {CommandCode::Input, "Input"},        {CommandCode::WaitUntil, "Wait_Until"}};
    for (const auto& [code, page] : rows) {
        openNew(code);
        EXPECT_EQ(dialog->property("helpPage").toString().toStdString(), page);
    }
}

/// Runs `act` on the dialog that opens next.
void whenOpen(const std::function<void(QWidget& dialog)>& act) {
    QTimer::singleShot(0, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

class EditParameters : public DialogTest {
  protected:
    EditParameters() { otherDialogs() = {}; }

    [[nodiscard]] bool edit(Slot slot = Slot::Entry) {
        return editParameters({state, nullptr}, {entry, slot, ActionOwner::None});
    }
};

TEST_F(EditParameters, RunsTheDialogOfTheSlot) {
    entry = newEntry(CommandCode::WaitFor);
    entry.elseCode = CommandCode::Wait;
    whenOpen([](QWidget& opened) {
        EXPECT_EQ(opened.windowTitle(), QStringLiteral("Wait"));
        typeText(*opened.findChild<QLineEdit*>(QStringLiteral("number")), QStringLiteral("12"));
        clickOn(*opened.findChild<QWidget*>(QStringLiteral("ok")));
    });
    EXPECT_TRUE(edit(Slot::Else));
    EXPECT_EQ(entry.elseNumber, 12U);
    whenOpen([](QWidget& opened) {
        typeText(*opened.findChild<QLineEdit*>(QStringLiteral("number")), QStringLiteral("13"));
        clickOn(*opened.findChild<QWidget*>(QStringLiteral("cancel")));
    });
    EXPECT_FALSE(edit(Slot::Else));
    EXPECT_EQ(entry.elseNumber, 12U);
}

TEST_F(EditParameters, IsDoneAtOnceWhereThereIsNothingToEdit) {
    const auto at = [this](CommandCode code, std::uint32_t commandId) {
        entry = newEntry(code);
        entry.commandId = commandId;
        return edit();
    };
    for (const CommandCode code : {CommandCode::None, CommandCode::Beep, CommandCode::ClearWatch,
                                   CommandCode::Return, CommandCode::LuFunction}) {
        EXPECT_TRUE(at(code, 0));
    }
    for (const std::uint32_t id : {201U, 203U, 235U, 238U, 268U, 300U}) {
        EXPECT_TRUE(at(CommandCode::MenuCommand, id)) << id;
    }
    EXPECT_TRUE(otherDialogs().opened.empty());
}

TEST_F(EditParameters, OpensTheDialogsOfTheCommandsThatCarryActions) {
    for (const CommandCode code :
         {CommandCode::WaitFor, CommandCode::IfInputIs, CommandCode::WatchFor}) {
        entry = newEntry(code);
        EXPECT_TRUE(edit());
    }
    entry.thenCode = CommandCode::WaitFor;
    EXPECT_TRUE(edit(Slot::Then));
    otherDialogs().answer = false;
    EXPECT_FALSE(edit(Slot::Then));
    EXPECT_THAT(otherDialogs().opened,
                ::testing::ElementsAre("Wait_For", "If_Input_Is", "Watch_For", "watched Wait_For",
                                       "watched Wait_For"));
}

FileTransferSettings settingsWith(std::string_view hostFile) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, hostFile);
    return settings;
}

TEST_F(EditParameters, ANewTransferStartsFromTheWorkingSettings) {
    state.workingTransfer = {settingsWith("WORKING"), transferHostCics, TransferDirection::Receive};
    entry = newEntry(CommandCode::MenuCommand);
    entry.commandId = 236;
    otherDialogs().inTransferSheet = [](ApplicationState& s, std::uint8_t& host) {
        s.workingTransfer.settings = settingsWith("EDITED");
        host = transferHostTso;
    };
    EXPECT_TRUE(edit());
    EXPECT_EQ(otherDialogs().transfer.settings, settingsWith("WORKING"));
    EXPECT_EQ(otherDialogs().transfer.host, transferHostVmCms);
    EXPECT_EQ(otherDialogs().transfer.direction, TransferDirection::Send);
    EXPECT_EQ(state.workingTransfer.direction, TransferDirection::Send);
    EXPECT_EQ(entry.transferSettings, settingsWith("EDITED"));
    EXPECT_EQ(entry.transferHost, transferHostTso);
    EXPECT_EQ(state.workingTransfer.host, transferHostTso);
}

TEST_F(EditParameters, ATransferStartsFromItsOwnSettingsAndCancelLeavesThem) {
    state.workingTransfer.settings = settingsWith("WORKING");
    entry = newEntry(CommandCode::WaitFor);
    entry.elseCode = CommandCode::MenuCommand;
    entry.elseCommandId = 237;
    entry.elseTransferSettings = settingsWith("OWN");
    entry.elseTransferHost = transferHostCics;
    const ScriptEntry before = entry;
    otherDialogs().answer = false;
    otherDialogs().inTransferSheet = [](ApplicationState& s, std::uint8_t& host) {
        s.workingTransfer.settings = settingsWith("EDITED");
        host = transferHostTso;
    };
    EXPECT_FALSE(edit(Slot::Else));
    EXPECT_EQ(otherDialogs().transfer.settings, settingsWith("OWN"));
    EXPECT_EQ(otherDialogs().transfer.host, transferHostCics);
    EXPECT_EQ(otherDialogs().transfer.direction, TransferDirection::Receive);
    EXPECT_EQ(entry, before);
    EXPECT_EQ(state.workingTransfer.settings, settingsWith("EDITED"))
        << "edits stay with the working settings";
}

TEST_F(EditParameters, AnExistingTransferWithoutSettingsShowsThatItHasNone) {
    state.workingTransfer.settings = settingsWith("WORKING");
    state.editing = true;
    entry = newEntry(CommandCode::MenuCommand);
    entry.commandId = 237;
    EXPECT_TRUE(edit());
    EXPECT_EQ(otherDialogs().transfer.settings, FileTransferSettings{});
}

}  // namespace
}  // namespace quendra::test
