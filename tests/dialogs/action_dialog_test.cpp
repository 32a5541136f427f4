// The choice of an action: what is selected, what OK and double-click ask for, and what Cancel
// takes back; and where a file transfer starts from.
#include "support/dialog_fixture.h"
#include "transfer/command_builder.h"

#include <QListView>

namespace quendra::test {
namespace {

constexpr const char* events = "scriptEventsList";
constexpr const char* keys = "luFunctionsList";
constexpr const char* menuCommands = "menuCommandsList";

class ActionDialogTest : public SearchDialogTest {
  protected:
    [[nodiscard]] std::string menuName(std::uint32_t commandId) const {
        return menuCommandName(state.menuCommands, commandId);
    }
    void doubleClickRow(const char* list, const std::string& text) {
        steps.in("actionDialog", [=](const OpenDialog& d) { d.doubleClickRow(list, text); });
    }
    /// Types over a field of a dialog that an action asks for, and ends it with OK.
    void answer(const char* dialog, const char* field, const char* text) {
        steps.in(dialog, [=](const OpenDialog& d) {
            d.retype(field, text);
            d.click("ok");
        });
    }
    /// The transfer sheet shows this name of the host's file, and is cancelled.
    void expectSheet(const char* hostFile) {
        steps.in("transferSheet", [=](const OpenDialog& d) {
            EXPECT_EQ(d.shown("hostFileName"), hostFile);
            d.click("cancel");
        });
    }
};

TEST_F(ActionDialogTest, SelectsNothingWhereNothingWasChosenAndRefusesInItsWords) {
    const struct {
        CommandCode owner;
        Slot slot;
        const char* title;
        const char* awaited;
    } rows[] = {{CommandCode::WaitFor, Slot::Then, "Wait_For Found Action",
                 "search string or <Lu Function> is found."},
                {CommandCode::WaitFor, Slot::Else, "Wait_For Not Found Action",
                 "search string or <Lu Function> is not found."},
                {CommandCode::IfInputIs, Slot::Then, "If_Input_Is Equal Action",
                 "compare string and/or variable(s) are equal."},
                {CommandCode::IfInputIs, Slot::Else, "If_Input_Is Not Equal Action",
                 "compare string and/or variable(s) are not equal."}};
    state.currentHostType = HostType::VT;
    for (const auto& row : rows) {
        entry = newCommand(row.owner);
        const ScriptEntry before = entry;
        steps.in("actionDialog", [&](const OpenDialog& d) {
            EXPECT_EQ(d.title(), row.title);
            EXPECT_EQ(d.selected(events) + d.selected(keys) + d.selected(menuCommands), "");
            EXPECT_EQ(d.focused(), events);
            d.press(Qt::Key_Return);
            expectTold(std::string("Select an action to perform when the ") + row.awaited,
                       "Script Info");
            const std::string invalid =
                "If_Input_Is, Wait_For and Watch_For events are not valid for this operation.";
            for (const char* event : {"If_Input_Is", "Wait_For", "Watch_For"}) {
                d.clickRow(events, event);
                d.click("ok");
                expectTold(invalid, "Script Info");
                d.doubleClickRow(events, event);
                expectTold(invalid, "Script Info");
            }
            d.clickRow(menuCommands, menuName(213));
            d.click("ok");
            expectTold("Menu Command is not compatible with Script Mode.", "Script Edit Info");
            d.press(Qt::Key_Escape);
        });
        const bool compares = row.owner == CommandCode::IfInputIs;
        EXPECT_FALSE(
            choose(row.slot, compares ? ActionOwner::IfInputIs : ActionOwner::WaitForOrWatchFor));
        EXPECT_EQ(entry, before);
    }
}

TEST_F(ActionDialogTest, OneRowIsSelectedInAllThreeListsAndThatIsTheChoice) {
    startWithTimeout();
    const auto& farDown = state.luCatalogues.of(HostType::Mainframe).rows[60];
    otherwise().code = CommandCode::LuFunction;
    otherwise().row = farDown.key.group;
    otherwise().column = farDown.key.number;
    steps.in("actionDialog", [&](const OpenDialog& d) {
        EXPECT_EQ(d.selected(keys), farDown.name);
        EXPECT_EQ(d.focused(), keys);
        const auto& list = d.widget<QListView>(keys);
        const QPoint shown = list.visualRect(list.currentIndex()).center();
        EXPECT_TRUE(list.viewport()->rect().contains(shown)) << "in sight";
        d.clickRow(menuCommands, menuName(201));
        EXPECT_EQ(d.selected(keys), "");
        d.widget(events).setFocus();
        EXPECT_EQ(d.selected(menuCommands), menuName(201)) << "the focus chooses nothing";
        // Every list goes to what is typed.
        d.type("clear");
        EXPECT_EQ(d.selected(events) + d.selected(menuCommands), "Clear_Watch");
        d.widget(keys).setFocus();
        d.type(farDown.name);
        EXPECT_EQ(d.selected(keys) + d.selected(events), farDown.name);
        d.widget(menuCommands).setFocus();
        d.type(menuName(214));
        d.press(Qt::Key_Up);
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseAction.code, CommandCode::MenuCommand);
    EXPECT_EQ(entry.elseAction.commandId, 213U) << "which only a script for VT refuses";
    EXPECT_EQ(entry.thenAction.code, CommandCode::None);
}

TEST_F(ActionDialogTest, OkAsksForWhatTheActionLacksUntilItHasIt) {
    startWithTimeout();
    chooseRow(events, "Wait");
    ASSERT_TRUE(choose(Slot::Then));
    EXPECT_EQ(then().number, 3U) << "a found action of a new entry has the seconds of a new Wait";
    chooseRow(events, "Wait");
    steps.in("waitDialog", [](const OpenDialog& d) { d.press(Qt::Key_Escape); });
    chooseRow(events, "Wait");
    answer("waitDialog", "number", "7");
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(entry.elseAction.number, 7U);
    EXPECT_EQ(then().number, 3U);
    click("actionDialog", "ok");
    EXPECT_TRUE(choose(Slot::Else)) << "seconds that are there are not asked for again";

    // Only a new entry's text can still be hidden.
    for (const bool editing : {false, true}) {
        startWithTimeout();
        state.editing = editing;
        chooseRow(events, "Type");
        steps.in("textDialog", [editing](const OpenDialog& d) {
            EXPECT_EQ(d.has("hide"), !editing);
            d.retype("text", "secret");
            if (!editing) d.click("hide");
            d.click("ok");
        });
        ASSERT_TRUE(choose(Slot::Else));
        EXPECT_EQ(entry.elseAction.hidden, editing ? 0 : 1);
        EXPECT_EQ(textOf(otherwise()), "secret");
        EXPECT_EQ(then().hidden, 0);
    }
}

TEST_F(ActionDialogTest, AnActionCanBeTakenBackWithAllThatItHad) {
    entry = newCommand(CommandCode::WaitFor);
    setText(own(), "READY");
    entry.hasTimeout = 1;
    const ScriptEntry before = entry;
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        Step& action = slotFields(entry, slot);
        action.code = CommandCode::Type;
        setText(action, "secret");
        action.hidden = 1;
        action.number = 77;
        action.kept = {1, 2, 3};
    }
    for (const char* button : {"thenButton", "elseButton"}) {
        click("waitForDialog", button);
        click("actionDialog", "noAction");
    }
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Found Then ");
        EXPECT_EQ(d.shown("elseLine"), "If Not Found Then ");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry, before);
}

// By the mouse, and by the key.
TEST_F(ActionDialogTest, DoubleClickAsksAgainAndCancelTakesAllOfItBack) {
    for (const bool ok : {false, true}) {
        startWithTimeout();
        entry.thenAction.code = CommandCode::Goto;
        setText(then(), "old");
        const ScriptEntry before = entry;
        steps.in("actionDialog", [=](const OpenDialog& d) {
            if (ok) return d.doubleClickRow(events, "Message");
            d.clickRow(events, "Message");
            d.press(Qt::Key_F2);
        });
        answer("textDialog", "text", "new");
        steps.in("actionDialog", [this](const OpenDialog& d) {
            d.doubleClickRow(keys, "Enter");
            d.press(Qt::Key_F2);
            d.doubleClickRow(menuCommands, menuName(201));
            EXPECT_TRUE(d.dialog->isVisible()) << "rows without parameters do nothing";
            d.clickRow(events, "Wait_Until");
            d.click("ok");
        });
        click("waitUntilDialog", "cancel");
        steps.in("actionDialog", [ok](const OpenDialog& d) {
            d.clickRow(events, "Message");
            d.click(ok ? "ok" : "cancel");
        });
        EXPECT_EQ(choose(Slot::Then), ok);
        EXPECT_EQ(entry == before, !ok);
        EXPECT_EQ(textOf(then()), ok ? "new" : "old");
        EXPECT_EQ(textOf(own()), "READY");
    }
}

TEST_F(ActionDialogTest, AHiddenTypeStaysHiddenThroughEveryDetour) {
    // Commands that are chosen on the way; the second is accepted.
    for (const bool accepted : {false, true}) {
        entry = newCommand(CommandCode::WatchFor);
        setText(own(), "ERROR");
        then().code = CommandCode::Type;
        then().hidden = 1;
        setText(then(), "secret");
        const ScriptEntry before = entry;
        state.editing = true;
        const auto doubleClick = [&](const char* event) {
            steps.in("watchForDialog",
                     [=](const OpenDialog& d) { d.doubleClickRow(events, event); });
        };
        doubleClick("Comment");
        click("textDialog", "cancel");
        if (accepted) {
            doubleClick("Message");
            answer("textDialog", "text", "hello");
        }
        doubleClick("Type");
        steps.in("textDialog", [accepted](const OpenDialog& d) {
            EXPECT_EQ(d.shown("text"), accepted ? "*****" : "******") << "masked";
            d.retype("text", "new");
            EXPECT_EQ(d.shown("text"), "***");
            d.click("ok");
        });
        click("watchForDialog", "ok");
        ASSERT_TRUE(run());
        ScriptEntry expected = before;
        setText(slotFields(expected, Slot::Then), "new");
        EXPECT_EQ(entry, expected);
    }
    // From one opening of the Action dialog to the next.
    startWithTimeout();
    otherwise().code = CommandCode::Type;
    otherwise().hidden = 1;
    setText(otherwise(), "secret");
    click("waitForDialog", "elseButton");
    chooseRow(events, "Beep");
    click("waitForDialog", "elseButton");
    chooseRow(events, "Type");
    answer("textDialog", "text", "new");
    click("waitForDialog", "ok");
    ASSERT_TRUE(run());
    EXPECT_EQ(otherwise().hidden, 1);
    EXPECT_EQ(textOf(otherwise()), "new");
}

TEST_F(ActionDialogTest, OkStartsATransferFromTheWorkingSettingsAndADoubleClickFromItsOwn) {
    startWithTimeout();
    FileTransferSettings& working = state.workingTransfer.settings;
    setTransferText(working, transfer::hostFileName, "REPORT");
    setTransferText(working, transfer::pcFileName, "report.txt");
    otherwise().transferHost = transferHostTso;
    chooseRow(menuCommands, menuName(receiveFileCommand));
    expectSheet("REPORT");
    click("actionDialog", "ok");
    answer("transferSheet", "member", "MEMBER1");
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(state.workingTransfer.direction, TransferDirection::Receive);
    EXPECT_EQ(entry.elseAction.transferHost, transferHostTso);
    EXPECT_EQ(entry.elseAction.transferSettings, working);
    EXPECT_EQ(transferText(working, transfer::member), "MEMBER1");
    EXPECT_EQ(then().transferSettings, FileTransferSettings{});

    setTransferText(working, transfer::hostFileName, "OTHER");
    const ScriptEntry before = entry;
    doubleClickRow(menuCommands, menuName(sendFileCommand));
    expectSheet("REPORT");
    chooseRow(menuCommands, menuName(receiveFileCommand));
    ASSERT_TRUE(choose(Slot::Else)) << "a transfer with both files is not asked for again";
    EXPECT_EQ(entry, before) << "a cancelled sheet changes no action";
    doubleClickRow(menuCommands, menuName(sendFileCommand));
    answer("transferSheet", "pcFileName", "mine.txt");
    click("actionDialog", "ok");
    ASSERT_TRUE(choose(Slot::Else));
    EXPECT_EQ(state.workingTransfer.direction, TransferDirection::Send);
    EXPECT_EQ(entry.elseAction.commandId, sendFileCommand);
    EXPECT_EQ(transferText(entry.elseAction.transferSettings, transfer::pcFileName), "mine.txt");

    // One that has no file of the PC yet goes on from what it has, not from what was shown since.
    setTransferText(entry.elseAction.transferSettings, transfer::pcFileName, "");
    setTransferText(working, transfer::hostFileName, "OTHER");
    chooseRow(menuCommands, menuName(receiveFileCommand));
    expectSheet("REPORT");
    click("actionDialog", "cancel");
    EXPECT_FALSE(choose(Slot::Else));

    // A new one starts from the one that an action's line shows.
    setTransferText(working, transfer::hostFileName, "OTHER");
    click("waitForDialog", "thenButton");
    chooseRow(menuCommands, menuName(receiveFileCommand));
    expectSheet("REPORT");
    click("actionDialog", "cancel");
    click("waitForDialog", "cancel");
    EXPECT_FALSE(run());
}

FileTransferSettings settingsWith(std::string_view hostFile) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, hostFile);
    return settings;
}

TEST_F(ActionDialogTest, ATransferStartsFromItsOwnSettingsOrElseFromTheWorkingOnes) {
    const struct {
        Slot slot;
        bool editing;
        bool hasOwn;
        const char* shown;
        std::uint32_t commandId;
    } rows[] = {{Slot::Entry, false, false, "WORKING", sendFileCommand},
                {Slot::Entry, true, true, "OWN", receiveFileCommand},
                {Slot::Entry, true, false, "", receiveFileCommand},
                {Slot::Else, false, true, "OWN", receiveFileCommand},
                {Slot::Else, true, false, "WORKING", sendFileCommand}};
    for (const auto& row : rows) {
        for (const bool ok : {true, false}) {
            SCOPED_TRACE(&row - rows);
            state.editing = row.editing;
            state.workingTransfer = {settingsWith("WORKING"), transferHostVmCms, {}};
            startWith(CommandCode::MenuCommand, row.slot, row.commandId);
            Step& fields = slotFields(entry, row.slot);
            if (row.hasOwn) fields.transferSettings = settingsWith("OWN");
            fields.transferHost = transferHostCics;
            const ScriptEntry before = entry;
            steps.in("transferSheet", [&](const OpenDialog& d) {
                EXPECT_EQ(d.shown("hostFileName"), row.shown);
                EXPECT_TRUE(d.isChecked("transferHost2"));
                d.retype("hostFileName", "EDITED");
                d.click("transferHost1");
                d.click(ok ? "ok" : "cancel");
            });
            EXPECT_EQ(run(row.slot), ok);
            const auto& working = state.workingTransfer;
            EXPECT_EQ(working.direction == TransferDirection::Send,
                      row.commandId == sendFileCommand);
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
