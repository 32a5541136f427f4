// The Wait_For, If_Input_Is and Watch_For dialogs with keys and mouse.
#include "analysis/entry_display.h"
#include "support/dialog_fixture.h"

namespace quendra::test {
namespace {

class SearchTest : public SearchDialogTest {
  protected:
    [[nodiscard]] std::string line() const { return formatEntryLine(entry, state.displayNames()); }
};

TEST_F(SearchTest, ANewWaitForIsTypedAndItsTimeoutSwitchesTheActionsAtOnce) {
    const std::string actionParts = "thenButton thenLine elseButton elseLine timeoutSeconds";
    entry = newCommand(CommandCode::WaitFor);
    ScriptEntry expected = entry;
    setText(slotFields(expected, Slot::Entry), "READY");
    expected.hasTimeout = 1;
    expected.timeoutSeconds = 30;
    expected.searchRow = 24;
    expected.exactPosition = 1;
    expected.caseSensitive = 0;
    steps.in("waitForDialog", [&](const OpenDialog& d) {
        EXPECT_EQ(d.shown("row") + ' ' + d.shown("column"), "1 1");
        EXPECT_EQ(d.checked("exactPosition caseSensitive noTimeout"), "011");
        EXPECT_EQ(d.enabled(actionParts), "00000");
        EXPECT_TRUE(d.widget("actionsReason").isVisible());
        EXPECT_EQ(d.shown("actionsReason"), d.widget("thenButton").toolTip().toStdString());
        d.click("ok");
        expectTold("A value is required in this field.", "Wait_For");
        EXPECT_EQ(d.focused(), "text");
        d.type("READY");
        d.press(Qt::Key_M, Qt::AltModifier);
        EXPECT_TRUE(d.isChecked("timeout")) << "what is typed next goes to the new fields";
        EXPECT_EQ(d.enabled(actionParts), "11111");
        EXPECT_FALSE(d.widget("actionsReason").isVisible());
        EXPECT_TRUE(d.widget("thenButton").toolTip().isEmpty());
        d.click("noTimeout");
        EXPECT_EQ(d.enabled(actionParts), "00000");
        for (const char* button : {"timeout", "exactPosition", "caseSensitive"})
            d.click(button);
        d.retype("timeoutSeconds", "30");
        d.retype("row", "24");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry, expected);
}

TEST_F(SearchTest, CancelDropsTheActionsToo) {
    startWithTimeout();
    const ScriptEntry before = entry;
    click("waitForDialog", "thenButton");
    chooseRow("scriptEventsList", "Beep");
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Found Then Beep");
        d.press(Qt::Key_Escape);
    });
    EXPECT_FALSE(run());
    EXPECT_EQ(entry, before);
}

TEST_F(SearchTest, NumbersOutsideOfTheirFieldsAreRefusedByName) {
    const struct {
        const char* field;
        std::vector<const char*> refused;
        const char* taken;
        const char* text;
    } rows[] = {{"row", {"", "0", "63", "75"}, "62", "Row: enter a number from 1 to 62."},
                {"column", {"", "0", "161"}, "160", "Column: enter a number from 1 to 160."},
                {"timeoutSeconds",
                 {"", "256", "999"},
                 "255",
                 "Timeout in Seconds: enter a number from 0 to 255."}};
    startWithTimeout();
    steps.in("waitForDialog", [&](const OpenDialog& d) {
        for (const auto& row : rows) {
            for (const char* typed : row.refused) {
                d.retype(row.field, typed);
                EXPECT_EQ(d.shown(row.field), typed);
                d.click("ok");
                expectTold(row.text, "Wait_For");
                EXPECT_EQ(d.focused(), row.field);
            }
            d.retype(row.field, row.taken + std::string("0"));
            EXPECT_EQ(d.shown(row.field), row.taken) << "no more digits than the range has";
        }
        d.retype("timeoutSeconds", "999");
        d.click("noTimeout");
        d.click("ok");
    });
    ASSERT_TRUE(run()) << "a disabled field must not keep the dialog open";
    EXPECT_EQ(entry.searchRow, 62);
    EXPECT_EQ(entry.searchColumn, 160);
    EXPECT_EQ(entry.timeoutSeconds, 0);
}

TEST_F(SearchTest, APositionFromAForeignFileStaysUntilItIsChanged) {
    for (const auto& [row, column] : {std::pair{0, 0}, {63, 161}, {255, 255}}) {
        startWithTimeout();
        entry.searchRow = static_cast<std::uint8_t>(row);
        entry.searchColumn = static_cast<std::uint8_t>(column);
        const ScriptEntry before = entry;
        click("waitForDialog", "ok");
        ASSERT_TRUE(run());
        EXPECT_EQ(entry, before);
    }
}

TEST_F(SearchTest, ActionsThatCannotBeReadSurviveAnEditOfTheText) {
    startWithTimeout();
    entry.thenAction.code = CommandCode::Type;
    entry.thenAction.hidden = 1;
    entry.thenAction.kept = {1, 2, 3};
    entry.elseAction.code = CommandCode::WatchFor;
    entry.elseAction.kept = {4, 5, 6};
    ScriptEntry expected = entry;
    setText(slotFields(expected, Slot::Entry), "OTHER");
    steps.in("waitForDialog", [](const OpenDialog& d) {
        d.retype("text", "OTHER");
        d.click("thenButton");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Type");
        d.click("ok");
    });
    click("waitForDialog", "elseButton");
    steps.in("actionDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Watch_For");
        d.click("ok");
        EXPECT_EQ(answers.messages.size(), 1U) << "it cannot be chosen anew";
        d.click("cancel");
    });
    click("waitForDialog", "ok");
    ASSERT_TRUE(run());
    EXPECT_EQ(entry, expected);

    entry.code = expected.code = CommandCode::WatchFor;
    setText(slotFields(expected, Slot::Entry), "AGAIN");
    steps.in("watchForDialog", [](const OpenDialog& d) {
        d.retype("text", "AGAIN");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry, expected);
}

TEST_F(SearchTest, ANewIfInputIsTakesAVariableInAnyCaseAndALiteral) {
    entry = newCommand(CommandCode::IfInputIs);
    steps.in("ifInputIsDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.shown("firstOperand") + d.shown("secondOperand"), "InputStr");
        d.retype("secondOperandText", "");
        for (const auto& [box, typed] :
             {std::pair{"firstOperand", "varuserid"}, {"secondOperand", "Var"}}) {
            d.click("ok");
            expectTold("A value is required in this field.", "If_Input_Is");
            EXPECT_EQ(d.focused(), box);
            d.type(typed);
        }
        EXPECT_EQ(d.shown("secondOperand"), "Var") << "completed to a variable that was not meant";
        d.type("\u0416");
        EXPECT_EQ(d.shown("note"), "The character \u0416 (U+0416) cannot be stored in a script.");
        d.click("elseButton");
    });
    chooseRow("scriptEventsList", "Return");
    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Equal Then ");
        EXPECT_EQ(d.shown("elseLine"), "If Not Equal Then Return");
        d.widget("firstOperand").setFocus();
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(line(), "If_Input_Is VarUserId = \"Var\" If Not Equal Then Return");

    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.focused(), "firstOperand");
        EXPECT_EQ(d.shown("firstOperand"), "VarUserId");
        d.widget("secondOperand").setFocus();
        d.press(Qt::Key_Down);
        d.press(Qt::Key_Down);
        d.repaste("firstOperandText", std::string(300, 'x'));
        d.click("thenButton");
    });
    chooseRow("luFunctionsList", "Enter");
    click("ifInputIsDialog", "ok");
    ASSERT_TRUE(run());
    const std::string literal = '"' + std::string(255, 'x') + '"';
    EXPECT_EQ(line(), "If_Input_Is " + literal + " = VarPassword If Equal Then Enter Else Return");
    EXPECT_EQ(compareTextOf(entry), "");
}

TEST_F(SearchTest, AWaitForActionOfAWatchForHasATextAndSearchOptionsOnly) {
    entry = newCommand(CommandCode::WatchFor);
    setText(own(), "ERROR");
    steps.in("watchForDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Wait_For");
        d.click("ok");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_FALSE(d.has("timeoutGroup") || d.has("actionGroup"));
        EXPECT_EQ(d.shown("text") + d.shown("row") + d.checked("caseSensitive"), "11");
        d.type("CLEAR");
        d.retype("column", "80");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(line(), "Watch_For \"ERROR\" Then Wait_For \"CLEAR\"");
    EXPECT_TRUE(entry.searchRow == 1 && entry.searchColumn == 80 && entry.caseSensitive == 1);
    EXPECT_EQ(entry.hasTimeout, 0);

    // With its text there, OK asks no more, and a double-click shows what is stored.
    steps.in("watchForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Wait_For");
        d.doubleClickRow("scriptEventsList", "Wait_For");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("text") + d.shown("column"), "CLEAR80");
        d.click("exactPosition");
        d.click("ok");
    });
    click("watchForDialog", "ok");
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.exactPosition, 1);
    EXPECT_EQ(textOf(own()), "ERROR");
}

TEST_F(SearchTest, ANewWatchForOffersBeepAndRefusesInTheWordsOfTheLibraryAndOnlyAtOk) {
    entry = newCommand(CommandCode::WatchFor);
    state.currentHostType = HostType::VT;
    steps.in("watchForDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.focused(), "text");
        EXPECT_EQ(d.selected("scriptEventsList"), "Beep");
        d.click("ok");
        expectTold("A value is required in this field.", "Watch_For");
        EXPECT_EQ(d.focused(), "text");
        d.type("ERROR");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(line(), "Watch_For \"ERROR\" Then Beep");

    entry.thenAction.code = CommandCode::LuFunction;
    entry.thenAction.row = 99;
    steps.in("watchForDialog", [this](const OpenDialog& d) {
        d.click("ok");
        expectTold("Select an action to perform when the watched text appears.", "Watch_For");
        for (const char* event : {"If_Input_Is", "Watch_For"}) {
            d.doubleClickRow("scriptEventsList", event);
            EXPECT_TRUE(answers.messages.empty());
            d.click("ok");
            expectTold("If_Input_Is and Watch_For events are not valid for this operation.",
                       "Watch_For");
        }
        d.clickRow("menuCommandsList", menuCommandName(state.menuCommands, 213));
        d.click("ok");
        expectTold("This menu command is not compatible with the mode of the script.",
                   "Script Edit Info");
        d.clickRow("luFunctionsList", "F7");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.thenAction.code, CommandCode::LuFunction);
    EXPECT_EQ(entry.thenAction.row, 4);
    EXPECT_EQ(entry.thenAction.column, 7);
}

}  // namespace
}  // namespace quendra::test
