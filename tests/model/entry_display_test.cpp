// Display lines that the frozen files do not reach.
#include "model/entry_display.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

using enum CommandCode;

ScriptEntry entryOf(CommandCode code, std::string_view text = {}) {
    ScriptEntry entry;
    entry.commandCode = code;
    setText(slotFields(entry, Slot::Entry), text);
    return entry;
}

std::string lineOf(const ScriptEntry& entry) {
    return formatEntryLine(entry, NumberedNames().of(HostType::UTS));
}

TEST(EntryLine, showsWhatNoCatalogueKnowsAndNothingForNoCommand) {
    ScriptEntry key = entryOf(LuFunction);
    key.row = 4;
    key.column = 1;
    EXPECT_EQ(lineOf(key), "<Lu Function 4/1>");
    ScriptEntry menu = entryOf(MenuCommand);
    menu.commandId = 300;
    EXPECT_EQ(lineOf(menu), "<Menu Command 300>");
    EXPECT_EQ(lineOf(entryOf(None, "text")), "");
    ScriptEntry compare = entryOf(IfInputIs);
    compare.firstOperandKind = 6;
    compare.secondOperandKind = 5;
    EXPECT_EQ(lineOf(compare), "If_Input_Is  = VarUserPrompt");
    ScriptEntry input = entryOf(Input, "Title");
    input.inputVariable = 6;
    EXPECT_EQ(lineOf(input), "Input Title As ");
}

TEST(EntryLine, neverShowsAHiddenTextAndKeepsForeignLettersAndUnsignedNumbers) {
    ScriptEntry type = entryOf(Type, "pass\xE4word");
    EXPECT_EQ(lineOf(type), "Type \"pass\u00E4word\"");
    type.hidden = 2;
    EXPECT_EQ(lineOf(type), "Type \"*********\" (H)");
    ScriptEntry wait = entryOf(Wait);
    wait.number = 4294967295;
    EXPECT_EQ(lineOf(wait), "Wait 4294967295");
    ScriptEntry until = entryOf(WaitUntil);
    until.waitUntil = {65535, 1, 0, 2, 3, 4, 5, 6};
    EXPECT_EQ(lineOf(until), "Wait_Until 01-02-65535 03:04:05");
}

TEST(EntryLine, keepsTheKeywordOfAnActionThatShowsNothing) {
    ScriptEntry wait = entryOf(WaitFor, "READY");
    wait.thenCode = WatchFor;
    wait.elseCode = Return;
    EXPECT_EQ(lineOf(wait), "Wait_For \"READY\"");
    wait.hasTimeout = 1;
    EXPECT_EQ(lineOf(wait), "Wait_For \"READY\" If Found Then  Else Return");
    ScriptEntry watch = entryOf(WatchFor, "a");
    watch.thenCode = IfInputIs;
    EXPECT_EQ(lineOf(watch), "Watch_For \"a\" Then ");
}

TEST(EntryLine, readsAnElseActionFromItsOwnFields) {
    ScriptEntry compare = entryOf(IfInputIs, "x");
    compare.thenCode = Copy;
    compare.commandId = packArea({9, 9, 9, 9});
    compare.elseCode = Paste;
    compare.elseCommandId = packArea({8, 8, 8, 8});
    compare.elseArea = packArea({7, 6, 0, 0});
    EXPECT_EQ(lineOf(compare),
              "If_Input_Is \"x\" = InputStr If Equal Then Copy from r9, c9  -  "
              "r9, c9 Else Paste to r7, c6");
}

TEST(LastTransferShown, isTheLastOneThatALineShows) {
    const HiddenTextCipher cipher("");
    Script script;
    EXPECT_FALSE(lastTransferShown(script, cipher));
    ScriptEntry entry = entryOf(MenuCommand);
    for (const char* file : {"FIRST", "SECOND", "NOT SHOWN"}) {
        entry.thenCode = MenuCommand;
        entry.commandId = receiveFileCommand;
        entry.transferHost = transferHostTso;
        setTransferText(entry.transferSettings, transfer::hostFileName, file);
        script.entries.push_back(packEntry(entry, cipher).entry);
        entry = entryOf(WaitFor);
        entry.hasTimeout = script.entryCount() == 1 ? 1 : 0;
    }
    const auto last = lastTransferShown(script, cipher);
    ASSERT_TRUE(last);
    EXPECT_EQ(transferText(last->settings, transfer::hostFileName), "SECOND");
    EXPECT_EQ(last->host, transferHostTso);
    EXPECT_EQ(last->direction, TransferDirection::Receive);
}

}  // namespace
}  // namespace quendra::test
