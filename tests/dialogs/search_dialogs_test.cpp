// The Wait_For, If_Input_Is and Watch_For dialogs with keys and mouse.
#include "dialogs/search_fixture.h"
#include "model/entry_display.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QRadioButton>

namespace quendra::test {
namespace {

using WaitForTest = SearchDialogTest;
using IfInputIsTest = SearchDialogTest;
using WatchForTest = SearchDialogTest;

constexpr const char* actionParts[] = {"thenButton", "thenLine", "elseButton", "elseLine",
                                       "timeoutSeconds"};

TEST_F(WaitForTest, ANewOneIsTypedAndGivenAFoundActionFromEndToEnd) {
    startNew(CommandCode::WaitFor);
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.focused(), "text");
        EXPECT_EQ(d.shown("row"), "1");
        EXPECT_EQ(d.shown("column"), "1");
        EXPECT_FALSE(d.isChecked("exactPosition"));
        EXPECT_TRUE(d.isChecked("caseSensitive"));
        EXPECT_TRUE(d.isChecked("noTimeout"));
        for (const char* part : actionParts) {
            EXPECT_FALSE(d.isEnabled(part)) << part;
        }
        EXPECT_EQ(d.shown("thenLine"), "If Found Then ");
        EXPECT_EQ(d.shown("elseLine"), "If Not Found Then ");

        d.type("READY");
        QTest::keyClick(d.dialog.focusWidget(), Qt::Key_M, Qt::AltModifier);
        // A button chosen by its key stays down for a moment.
        EXPECT_TRUE(QTest::qWaitFor([&] { return d.isChecked("timeout"); }));
        for (const char* part : actionParts) {
            EXPECT_TRUE(d.isEnabled(part)) << part;
        }
        d.retype("timeoutSeconds", "30");
        d.retype("row", "24");
        d.click("thenButton");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.title(), "Wait_For Found Action");
        d.clickRow("luFunctionsList", "Enter");
        d.press(Qt::Key_Return);
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Found Then Enter");
        EXPECT_EQ(d.shown("elseLine"), "If Not Found Then ");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(formatEntryLine(entry, state.displayNames()),
              "Wait_For \"READY\" If Found Then Enter");
    EXPECT_EQ(entry.hasTimeout, 1);
    EXPECT_EQ(entry.timeoutSeconds, 30);
    EXPECT_EQ(entry.searchRow, 24);
    EXPECT_EQ(entry.searchColumn, 1);
    EXPECT_EQ(entry.exactPosition, 0);
    EXPECT_EQ(entry.caseSensitive, 1);
    EXPECT_TRUE(answers.messages.empty());
}

TEST_F(WaitForTest, EitherRadioButtonSwitchesTheTimeoutAndTheActionsAtOnce) {
    startWithTimeout();
    steps.in("waitForDialog", [](const OpenDialog& d) {
        for (const auto& [button, enabled] :
             {std::pair{"noTimeout", false}, std::pair{"timeout", true},
              std::pair{"noTimeout", false}}) {
            d.click(button);
            for (const char* part : actionParts) {
                EXPECT_EQ(d.isEnabled(part), enabled) << part << " after " << button;
            }
        }
        d.click("exactPosition");
        d.click("caseSensitive");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.hasTimeout, 0);
    EXPECT_EQ(entry.exactPosition, 1);
    EXPECT_EQ(entry.caseSensitive, 0);
}

TEST_F(WaitForTest, AnEmptyTextIsRefusedAndCancelDropsTheActionsToo) {
    startWithTimeout();
    const ScriptEntry before = entry;
    steps.in("waitForDialog", [this](const OpenDialog& d) {
        d.retype("text", "");
        d.click("ok");
        ASSERT_EQ(answers.messages.size(), 1U);
        EXPECT_EQ(answers.messages[0].text, "A value is required in this field.");
        EXPECT_EQ(answers.messages[0].title, "Wait_For");
        EXPECT_EQ(d.focused(), "text");
        d.click("thenButton");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        d.clickRow("scriptEventsList", "Beep");
        d.click("ok");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Found Then Beep");
        d.press(Qt::Key_Escape);
    });
    EXPECT_FALSE(run());
    EXPECT_EQ(entry, before);
}

TEST_F(WaitForTest, NumbersOutsideOfTheirFieldsCannotBeTypedOrAreRefusedByName) {
    startWithTimeout();
    steps.in("waitForDialog", [this](const OpenDialog& d) {
        const struct {
            const char* field;
            const char* typed;
            const char* taken;
        } rows[] = {{"row", "63", "6"},
                    {"row", "62", "62"},
                    {"row", "621", "62"},
                    {"column", "161", "16"},
                    {"column", "160", "160"},
                    {"column", "-5", "5"},
                    {"timeoutSeconds", "256", "25"},
                    {"timeoutSeconds", "255", "255"}};
        for (const auto& row : rows) {
            d.retype(row.field, row.typed);
            EXPECT_EQ(d.shown(row.field), row.taken) << row.field << " " << row.typed;
        }
        for (const auto& [field, typed, name] :
             {std::tuple{"row", "0", "Row"}, std::tuple{"column", "", "Column"},
              std::tuple{"timeoutSeconds", "", "Timeout in Seconds"}}) {
            const std::string good = d.shown(field);
            d.retype(field, typed);
            d.click("ok");
            ASSERT_FALSE(answers.messages.empty());
            EXPECT_NE(answers.messages.back().text.find(name), std::string::npos)
                << answers.messages.back().text;
            EXPECT_EQ(d.focused(), field);
            d.retype(field, good);
        }
        d.retype("timeoutSeconds", "");
        d.click("noTimeout");
        d.click("ok");
    });
    ASSERT_TRUE(run()) << "a disabled field must not keep the dialog open";
    EXPECT_EQ(answers.messages.size(), 3U);
    EXPECT_EQ(entry.searchRow, 62);
    EXPECT_EQ(entry.searchColumn, 5);
}

TEST_F(WaitForTest, APositionFromAForeignFileStaysUntilItIsChanged) {
    for (const auto& [row, column] : {std::pair{0, 0}, std::pair{63, 161}, std::pair{255, 255}}) {
        startWithTimeout();
        entry.searchRow = static_cast<std::uint8_t>(row);
        entry.searchColumn = static_cast<std::uint8_t>(column);
        steps.in("waitForDialog", [](const OpenDialog& d) { d.click("ok"); });
        ASSERT_TRUE(run());
        EXPECT_EQ(entry.searchRow, row);
        EXPECT_EQ(entry.searchColumn, column);
    }
}

TEST_F(WaitForTest, ActionsThatCannotBeReadSurviveAnEditOfTheText) {
    startWithTimeout();
    entry.thenCode = CommandCode::Type;
    entry.hidden = 1;
    entry.thenKept = {1, 2, 3};
    entry.elseCode = CommandCode::WatchFor;
    entry.elseKept = {4, 5, 6};
    const ScriptEntry before = entry;
    steps.in("waitForDialog", [](const OpenDialog& d) {
        d.retype("text", "OTHER");
        d.click("thenButton");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Type");
        d.click("ok");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) { d.click("elseButton"); });
    steps.in("actionDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Watch_For");
        d.click("ok");
        EXPECT_EQ(answers.messages.size(), 1U) << "it cannot be chosen anew";
        d.clickRow("scriptEventsList", "Beep");
        d.click("cancel");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) { d.click("ok"); });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.thenKept, before.thenKept);
    EXPECT_EQ(entry.elseKept, before.elseKept);
    EXPECT_EQ(entry.elseCode, CommandCode::WatchFor);
    EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), "OTHER");
}

TEST_F(IfInputIsTest, ANewOneTakesAVariableInAnyCaseAndALiteral) {
    startNew(CommandCode::IfInputIs);
    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.focused(), "firstOperand");
        EXPECT_EQ(d.shown("firstOperand"), "");
        EXPECT_EQ(d.shown("secondOperand"), "InputStr");
        EXPECT_EQ(d.widget<QComboBox>("secondOperand").currentIndex(), 0);
        d.type("varuserid");
        d.retype("secondOperandText", "Var");
        EXPECT_EQ(d.shown("secondOperand"), "Var") << "completed to a variable that was not meant";
        d.click("elseButton");
    });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.title(), "If_Input_Is Not Equal Action");
        d.clickRow("scriptEventsList", "Return");
        d.click("ok");
    });
    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("thenLine"), "If Equal Then ");
        EXPECT_EQ(d.shown("elseLine"), "If Not Equal Then Return");
        d.widget<QWidget>("firstOperand").setFocus();
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.firstOperandKind, 2);
    EXPECT_EQ(formatEntryLine(entry, state.displayNames()),
              "If_Input_Is VarUserId = \"Var\" If Not Equal Then Return");

    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("firstOperand"), "VarUserId");
        EXPECT_EQ(d.widget<QComboBox>("firstOperand").currentIndex(), 2);
        EXPECT_EQ(d.shown("secondOperand"), "Var");
        d.widget<QWidget>("secondOperand").setFocus();
        QTest::keyClick(d.dialog.focusWidget(), Qt::Key_Down);
        QTest::keyClick(d.dialog.focusWidget(), Qt::Key_Down);
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(compareTextOf(entry), "");
    EXPECT_EQ(entry.secondOperandKind, 1);
    EXPECT_EQ(entry.firstOperandKind, 2);
}

TEST_F(IfInputIsTest, EachEmptyBoxIsRefusedInItsTurn) {
    startNew(CommandCode::IfInputIs);
    steps.in("ifInputIsDialog", [this](const OpenDialog& d) {
        d.retype("secondOperandText", "");
        d.click("ok");
        EXPECT_EQ(d.focused(), "firstOperand");
        d.retype("firstOperandText", "yes");
        d.click("ok");
        EXPECT_EQ(d.focused(), "secondOperand");
        ASSERT_EQ(answers.messages.size(), 2U);
        for (const Message& message : answers.messages) {
            EXPECT_EQ(message.title, "If_Input_Is");
            EXPECT_EQ(message.text, "A value is required in this field.");
        }
        d.click("cancel");
    });
    EXPECT_FALSE(run());
}

TEST_F(IfInputIsTest, TheBoxesTakeWhatAScriptCanStoreAndNoMore) {
    startCompare();
    steps.in("ifInputIsDialog", [](const OpenDialog& d) {
        d.retype("firstOperandText", std::string(300, 'x'));
        EXPECT_EQ(d.shown("firstOperand").size(), 255);
        auto& text = d.widget<QWidget>("secondOperandText");
        d.retype("secondOperandText", "a");
        typeText(text, QStringLiteral("\u20AC\u0416"));
        EXPECT_NE(d.shown("note"), "");
        d.type("b");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.textLength, 255);
    EXPECT_EQ(compareTextOf(entry),
              "a\x80"
              "b");
}

TEST_F(IfInputIsTest, AnEqualActionWithAKeyLeavesTheOperandsAlone) {
    startCompare();
    entry.secondOperandKind = 4;
    steps.in("ifInputIsDialog", [](const OpenDialog& d) { d.click("thenButton"); });
    steps.in("actionDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.title(), "If_Input_Is Equal Action");
        d.clickRow("luFunctionsList", "Enter");
        d.click("ok");
    });
    steps.in("ifInputIsDialog", [](const OpenDialog& d) { d.click("ok"); });
    ASSERT_TRUE(run());
    EXPECT_EQ(formatEntryLine(entry, state.displayNames()),
              "If_Input_Is \"yes\" = VarStaticText If Equal Then Enter");
}

TEST_F(WatchForTest, ANewOneOffersBeep) {
    startNew(CommandCode::WatchFor);
    steps.in("watchForDialog", [this](const OpenDialog& d) {
        EXPECT_EQ(d.focused(), "text");
        EXPECT_EQ(d.selected("scriptEventsList"), "Beep");
        d.click("ok");
        ASSERT_EQ(answers.messages.size(), 1U);
        EXPECT_EQ(answers.messages[0].title, "Watch_For");
        EXPECT_EQ(d.focused(), "text");
        d.type("ERROR");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(formatEntryLine(entry, state.displayNames()), "Watch_For \"ERROR\" Then Beep");
}

TEST_F(WatchForTest, AWaitForActionHasATextAndSearchOptionsOnly) {
    startNew(CommandCode::WatchFor);
    steps.in("watchForDialog", [](const OpenDialog& d) {
        d.type("ERROR");
        d.clickRow("scriptEventsList", "Wait_For");
        d.click("ok");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_FALSE(d.has("timeoutGroup"));
        EXPECT_FALSE(d.has("actionGroup"));
        EXPECT_EQ(d.shown("text"), "");
        EXPECT_EQ(d.shown("row"), "1");
        EXPECT_TRUE(d.isChecked("caseSensitive"));
        d.type("CLEAR");
        d.retype("column", "80");
        d.click("ok");
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(formatEntryLine(entry, state.displayNames()),
              "Watch_For \"ERROR\" Then Wait_For \"CLEAR\"");
    EXPECT_EQ(entry.searchRow, 1);
    EXPECT_EQ(entry.searchColumn, 80);
    EXPECT_EQ(entry.caseSensitive, 1);
    EXPECT_EQ(entry.hasTimeout, 0);

    // With its text there, OK asks no more, and a double-click shows what is stored.
    steps.in("watchForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("scriptEventsList"), "Wait_For");
        d.doubleClickRow("scriptEventsList", "Wait_For");
    });
    steps.in("waitForDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("text"), "CLEAR");
        EXPECT_EQ(d.shown("column"), "80");
        d.click("exactPosition");
        d.click("ok");
    });
    steps.in("watchForDialog", [](const OpenDialog& d) { d.click("ok"); });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.exactPosition, 1);
    EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), "ERROR");
}

TEST_F(WatchForTest, RefusesInTheWordsOfTheLibraryAndOnlyAtOk) {
    startNew(CommandCode::WatchFor);
    state.currentHostType = HostType::VT;
    setText(slotFields(entry, Slot::Entry), "ERROR");
    entry.thenCode = CommandCode::LuFunction;
    entry.row = 99;
    steps.in("watchForDialog", [this](const OpenDialog& d) {
        const auto refused = [&](const char* text, const char* title) {
            d.click("ok");
            ASSERT_FALSE(answers.messages.empty());
            EXPECT_EQ(answers.messages.back().text, text);
            EXPECT_EQ(answers.messages.back().title, title);
        };
        refused("Select an action to perform when the watched text appears.", "Watch_For");
        for (const char* event : {"If_Input_Is", "Watch_For"}) {
            answers.messages.clear();
            d.doubleClickRow("scriptEventsList", event);
            EXPECT_TRUE(answers.messages.empty());
            refused("If_Input_Is and Watch_For events are not valid for this operation.",
                    "Watch_For");
        }
        const std::string refusedInVt = state.menuCommands.names[12];
        d.clickRow("menuCommandsList", refusedInVt);
        refused("This menu command is not compatible with the mode of the script.",
                "Script Edit Info");
        d.clickRow("luFunctionsList", "F7");
        d.press(Qt::Key_Return);
    });
    ASSERT_TRUE(run());
    EXPECT_EQ(entry.thenCode, CommandCode::LuFunction);
    EXPECT_EQ(entry.row, 4);
    EXPECT_EQ(entry.column, 7);
}

}  // namespace
}  // namespace quendra::test
