// The choice of an action: what is selected, what OK and double-click ask for, and what Cancel
// takes back.
#include "dialogs/search_fixture.h"
#include "model/entry_display.h"
#include "transfer/file_transfer_settings.h"

#include <QScrollBar>

namespace quendra::test {
namespace {

class ActionDialogTest : public SearchDialogTest {
  protected:
    /// Opens the dialog for one action and runs the steps; true when it ended with OK.
    bool choose(Slot slot, ActionOwner owner = ActionOwner::WaitForOrWatchFor) {
        return steps.run([&] { return chooseAction({state, nullptr}, {entry, slot, owner}); });
    }

    [[nodiscard]] std::string menuName(std::uint32_t commandId) const {
        return menuCommandName(state.menuCommands, commandId);
    }
};

struct Mode {
    const char* name;
    Slot slot;
    ActionOwner owner;
};
constexpr Mode modes[] = {
    {"Found", Slot::Then, ActionOwner::WaitForOrWatchFor},
    {"Not Found", Slot::Else, ActionOwner::WaitForOrWatchFor},
    {"Equal", Slot::Then, ActionOwner::IfInputIs},
    {"Not Equal", Slot::Else, ActionOwner::IfInputIs},
};

TEST_F(ActionDialogTest, WithNothingChosenItSelectsNothingAndSaysWhatIsMissing) {
    const char* expected[][2] = {
        {"Wait_For Found Action",
         "Select an action to perform when the search string or <Lu Function> is found."},
        {"Wait_For Not Found Action",
         "Select an action to perform when the search string or <Lu Function> is not found."},
        {"If_Input_Is Equal Action",
         "Select an action to perform when the compare string and/or variable(s) are equal."},
        {"If_Input_Is Not Equal Action",
         "Select an action to perform when the compare string and/or variable(s) are not equal."}};
    for (std::size_t i = 0; i < std::size(modes); ++i) {
        SCOPED_TRACE(modes[i].name);
        startWithTimeout();
        if (modes[i].owner == ActionOwner::IfInputIs) startCompare();
        const ScriptEntry before = entry;
        answers.messages.clear();
        steps.in("actionDialog", [&](const OpenDialog& d) {
            EXPECT_EQ(d.title(), expected[i][0]);
            for (const char* list : {"scriptEventsList", "luFunctionsList", "menuCommandsList"}) {
                EXPECT_EQ(d.selected(list), "") << list;
            }
            EXPECT_EQ(d.focused(), "scriptEventsList");
            d.press(Qt::Key_Return);
            ASSERT_EQ(answers.messages.size(), 1U);
            EXPECT_EQ(answers.messages[0].text, expected[i][1]);
            EXPECT_EQ(answers.messages[0].title, "Script Info");
            d.press(Qt::Key_Escape);
        });
        EXPECT_FALSE(choose(modes[i].slot, modes[i].owner));
        EXPECT_EQ(entry, before);
    }
}

TEST_F(ActionDialogTest, ShowsTheActionThatThereIsInSightAndWithTheFocus) {
    const struct {
        const char* name;
        CommandCode code;
        LuKey key;
        std::uint32_t commandId;
        const char* list;
        std::string selected;
    } rows[] = {
        {"the last event", CommandCode::WaitUntil, {}, 0, "scriptEventsList", "Wait_Until"},
        {"a key far down", CommandCode::LuFunction,
         state.luCatalogues.of(HostType::Mainframe).rows[60].key, 0, "luFunctionsList",
         state.luCatalogues.of(HostType::Mainframe).rows[60].name},
        {"the last menu command",
         CommandCode::MenuCommand,
         {},
         268,
         "menuCommandsList",
         menuName(268)},
    };
    for (const auto& row : rows) {
        for (const Slot slot : {Slot::Then, Slot::Else}) {
            SCOPED_TRACE(row.name);
            startWithTimeout();
            const SlotFields action = slotFields(entry, slot);
            action.code = row.code;
            action.row = row.key.group;
            action.column = row.key.number;
            action.commandId = row.commandId;
            steps.in("actionDialog", [&](const OpenDialog& d) {
                EXPECT_EQ(d.selected(row.list), row.selected);
                EXPECT_EQ(d.focused(), row.list);
                auto& list = d.widget<QListView>(row.list);
                EXPECT_TRUE(list.viewport()->rect().contains(
                    list.visualRect(list.currentIndex()).center()));
                d.click("cancel");
            });
            EXPECT_FALSE(choose(slot));
        }
    }
}

TEST_F(ActionDialogTest, OneRowIsSelectedInAllThreeListsAndThatIsTheChoice) {
    startWithTimeout();
    steps.in("actionDialog", [this](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Return");
        d.clickRow("menuCommandsList", menuName(201));
        EXPECT_EQ(d.selected("scriptEventsList"), "");
        auto& events = d.widget<QListView>("scriptEventsList");
        events.setFocus();
        EXPECT_EQ(d.selected("menuCommandsList"), menuName(201)) << "the focus chooses nothing";
        d.type("clear");
        EXPECT_EQ(d.selected("scriptEventsList"), "Clear_Watch") << "typed ahead";
        EXPECT_EQ(d.selected("menuCommandsList"), "");
        QTest::keyClick(&events, Qt::Key_Up);
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseCode, CommandCode::Beep);
    EXPECT_EQ(entry.thenCode, CommandCode::None);
}

TEST_F(ActionDialogTest, AWaitAsFoundActionUsesTheEntrysSecondsAndAsNotFoundAsks) {
    startWithTimeout();
    steps.in("actionDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Wait");
        d.click("ok");
    });
    ASSERT_TRUE(choose(Slot::Then));
    EXPECT_EQ(entry.thenCode, CommandCode::Wait);
    EXPECT_EQ(entry.number, 3U);

    steps.in("actionDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Wait");
        d.click("ok");
    });
    steps.in("waitDialog", [](const OpenDialog& d) { d.press(Qt::Key_Escape); });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Wait");
        d.click("ok");
    });
    steps.in("waitDialog", [](const OpenDialog& d) {
        d.retype("number", "7");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseNumber, 7U);
    EXPECT_EQ(entry.number, 3U);

    steps.in("actionDialog", [](const OpenDialog& d) { d.click("ok"); });
    EXPECT_TRUE(choose(Slot::Else)) << "seconds that are there are not asked for again";
}

TEST_F(ActionDialogTest, CancelTakesBackWhatOkAndDoubleClicksDid) {
    startWithTimeout();
    entry.elseCode = CommandCode::Goto;
    setText(otherwise(), "END");
    const ScriptEntry before = entry;
    steps.in("actionDialog",
             [](const OpenDialog& d) { d.doubleClickRow("scriptEventsList", "Message"); });
    steps.in("textDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.title(), "Message");
        EXPECT_EQ(d.shown("text"), "END");
        d.retype("text", "gone");
        d.click("ok");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Wait_Ready");
        d.click("ok");
    });
    steps.in("waitDialog", [](const OpenDialog& d) { d.click("cancel"); });
    steps.in("actionDialog", [](const OpenDialog& d) { d.click("cancel"); });
    EXPECT_FALSE(choose(Slot::Else));
    EXPECT_EQ(entry, before);
}

TEST_F(ActionDialogTest, DoubleClickAsksAgainAndLeavesTheDialogOpen) {
    startWithTimeout();
    setText(then(), "old");
    then().code = CommandCode::Goto;
    steps.in("actionDialog",
             [](const OpenDialog& d) { d.doubleClickRow("scriptEventsList", "Goto"); });
    steps.in("textDialog", [](const OpenDialog& d) {
        d.retype("text", "new");
        d.click("ok");
    });
    steps.in("actionDialog", [this](const OpenDialog& d) {
        d.doubleClickRow("luFunctionsList", "Enter");
        d.doubleClickRow("menuCommandsList", menuName(201));
        EXPECT_TRUE(d.dialog.isVisible()) << "rows without parameters do nothing";
        d.clickRow("scriptEventsList", "Goto");
        d.click("ok");
    });
    ASSERT_TRUE(choose(Slot::Then));
    EXPECT_EQ(entry.thenCode, CommandCode::Goto);
    EXPECT_EQ(textOf(then()), "new");
    EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), "READY");
}

TEST_F(ActionDialogTest, RefusesCommandsWithActionsAtOkAndAtDoubleClick) {
    for (const Mode& mode : modes) {
        startWithTimeout();
        if (mode.owner == ActionOwner::IfInputIs) startCompare();
        slotFields(entry, mode.slot).code = CommandCode::Beep;
        answers.messages.clear();
        steps.in("actionDialog", [this](const OpenDialog& d) {
            for (const char* event : {"If_Input_Is", "Wait_For", "Watch_For"}) {
                d.clickRow("scriptEventsList", event);
                d.click("ok");
                d.doubleClickRow("scriptEventsList", event);
            }
            ASSERT_EQ(answers.messages.size(), 6U);
            for (const Message& message : answers.messages) {
                EXPECT_EQ(message.text,
                          "If_Input_Is, Wait_For and Watch_For events are not valid for this "
                          "operation.");
                EXPECT_EQ(message.title, "Script Info");
            }
            d.clickRow("scriptEventsList", "Return");
            d.click("ok");
        });
        EXPECT_TRUE(choose(mode.slot, mode.owner)) << mode.name;
        EXPECT_EQ(slotFields(entry, mode.slot).code, CommandCode::Return);
    }
}

TEST_F(ActionDialogTest, VtRefusesItsMenuCommandAndListsItsKeys) {
    startWithTimeout();
    state.currentHostType = HostType::VT;
    steps.in("actionDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.widget<QListView>("luFunctionsList").model()->rowCount(), 142);
        d.clickRow("menuCommandsList", menuName(213));
        d.click("ok");
        ASSERT_EQ(answers.messages.size(), 1U);
        EXPECT_EQ(answers.messages[0].text, "Menu Command is not compatible with Script Mode.");
        EXPECT_EQ(answers.messages[0].title, "Script Edit Info");
        d.clickRow("menuCommandsList", menuName(212));
        d.click("ok");
    });
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseCommandId, 212U);
    EXPECT_EQ(entry.commandId, 0U);
}

TEST_F(ActionDialogTest, AMenuCommandWithAFileAsksForItsName) {
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        startWithTimeout();
        steps.in("actionDialog", [this](const OpenDialog& d) {
            d.clickRow("menuCommandsList", menuName(202));
            d.click("ok");
        });
        steps.in("fileOperationDialog", [](const OpenDialog& d) { d.click("cancel"); });
        steps.in("actionDialog", [this](const OpenDialog& d) {
            d.doubleClickRow("menuCommandsList", menuName(254));
        });
        steps.in("fileOperationDialog", [](const OpenDialog& d) {
            d.retype("file", "logon.qdm");
            d.click("ok");
        });
        steps.in("actionDialog", [this](const OpenDialog& d) {
            EXPECT_EQ(d.selected("menuCommandsList"), menuName(254));
            d.click("ok");
        });
        ASSERT_TRUE(choose(slot));
        EXPECT_EQ(slotFields(entry, slot).commandId, 254U);
        EXPECT_EQ(textOf(slotFields(entry, slot)), "logon.qdm");
        EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), "READY");
    }
}

TEST_F(ActionDialogTest, ATransferThatLacksItsFilesStartsFromTheWorkingSettings) {
    startWithTimeout();
    setTransferText(state.workingTransfer.settings, transfer::hostFileName, "REPORT");
    setTransferText(state.workingTransfer.settings, transfer::pcFileName, "report.txt");
    otherwise().transferHost = transferHostTso;
    steps.in("actionDialog", [this](const OpenDialog& d) {
        d.clickRow("menuCommandsList", menuName(receiveFileCommand));
        d.click("ok");
    });
    steps.in("transferSheet", [](const OpenDialog& d) { d.click("cancel"); });
    steps.in("actionDialog", [](const OpenDialog& d) { d.click("ok"); });
    steps.in("transferSheet", [this](const OpenDialog& d) {
        EXPECT_EQ(state.workingTransfer.direction, TransferDirection::Receive);
        EXPECT_EQ(d.shown("hostFileName"), "REPORT");
        d.retype("member", "MEMBER1");
        d.click("ok");
    });
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseTransferHost, transferHostTso);
    EXPECT_EQ(transferText(entry.elseTransferSettings, transfer::hostFileName), "REPORT");
    EXPECT_EQ(transferText(entry.elseTransferSettings, transfer::member), "MEMBER1");
    EXPECT_EQ(entry.transferSettings, FileTransferSettings{});

    steps.in("actionDialog", [](const OpenDialog& d) { d.click("ok"); });
    EXPECT_TRUE(choose(Slot::Else)) << "a transfer with both files is not asked for again";
}

TEST_F(ActionDialogTest, ADoubleClickOnATransferStartsFromTheActionsSettings) {
    startWithTimeout();
    entry.thenCode = CommandCode::Beep;
    setTransferText(state.workingTransfer.settings, transfer::hostFileName, "OTHER");
    setTransferText(then().transferSettings, transfer::hostFileName, "MINE");
    then().transferHost = transferHostCics;
    const FileTransferSettings mine = then().transferSettings;
    steps.in("actionDialog", [this](const OpenDialog& d) {
        d.doubleClickRow("menuCommandsList", menuName(sendFileCommand));
    });
    steps.in("transferSheet", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("hostFileName"), "MINE");
        d.click("cancel");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Beep");
        d.click("ok");
    });
    ASSERT_TRUE(choose(Slot::Then));
    EXPECT_EQ(entry.thenCode, CommandCode::Beep) << "a cancelled sheet changes no action";
    EXPECT_EQ(entry.transferSettings, mine);

    steps.in("actionDialog", [this](const OpenDialog& d) {
        d.doubleClickRow("menuCommandsList", menuName(sendFileCommand));
    });
    steps.in("transferSheet", [this](const OpenDialog& d) {
        EXPECT_EQ(state.workingTransfer.direction, TransferDirection::Send);
        d.retype("pcFileName", "mine.txt");
        d.click("ok");
    });
    steps.in("actionDialog", [](const OpenDialog& d) { d.click("ok"); });
    ASSERT_TRUE(choose(Slot::Then));
    EXPECT_EQ(entry.thenCode, CommandCode::MenuCommand);
    EXPECT_EQ(entry.commandId, sendFileCommand);
    EXPECT_EQ(transferText(entry.transferSettings, transfer::pcFileName), "mine.txt");
    EXPECT_EQ(entry.transferHost, transferHostCics);
}

TEST_F(ActionDialogTest, ATypeActionOffersToHideItsTextOnlyInANewEntry) {
    for (const bool editing : {false, true}) {
        startWithTimeout();
        state.editing = editing;
        steps.in("actionDialog", [](const OpenDialog& d) {
            d.clickRow("scriptEventsList", "Type");
            d.click("ok");
        });
        steps.in("textDialog", [editing](const OpenDialog& d) {
            EXPECT_EQ(d.has("hide"), !editing);
            d.retype("text", "secret");
            if (!editing) d.click("hide");
            d.click("ok");
        });
        ASSERT_TRUE(choose(Slot::Else));
        EXPECT_EQ(entry.elseHidden, editing ? 0 : 1);
        EXPECT_EQ(textOf(otherwise()), "secret");
        EXPECT_EQ(entry.hidden, 0);
    }
}

}  // namespace
}  // namespace quendra::test
