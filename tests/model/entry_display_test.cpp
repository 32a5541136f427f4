// Display lines that the frozen files do not reach.
#include "model/entry_display.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

ScriptEntry entryOf(CommandCode code, std::string_view text = {}) {
    ScriptEntry entry;
    entry.commandCode = code;
    setText(slotFields(entry, Slot::Entry), text);
    return entry;
}

std::string lineOf(const ScriptEntry& entry, HostType type = HostType::Mainframe) {
    static const NumberedNames names;
    return formatEntryLine(entry, names.of(type));
}

}  // namespace

TEST(EntryLine, showsWhatNoCatalogueKnowsAndNothingForNoCommand) {
    ScriptEntry key = entryOf(CommandCode::LuFunction);
    key.row = 4;
    key.column = 1;
    EXPECT_EQ(lineOf(key, HostType::Mainframe), "{11620}");
    EXPECT_EQ(lineOf(key, HostType::VT), "F1");
    EXPECT_EQ(lineOf(key, HostType::UTS), "<Lu Function 4/1>");
    ScriptEntry menu = entryOf(CommandCode::MenuCommand);
    menu.commandId = 300;
    EXPECT_EQ(lineOf(menu), "<Menu Command 300>");
    EXPECT_EQ(lineOf(entryOf(CommandCode::None, "text")), "");
}

TEST(EntryLine, neverShowsAHiddenTextAndKeepsForeignLetters) {
    ScriptEntry type = entryOf(CommandCode::Type, "pass\xE4word");
    EXPECT_EQ(lineOf(type), "Type \"pass\u00E4word\"");
    type.hidden = 2;
    EXPECT_EQ(lineOf(type), "Type \"*********\" (H)");
}

TEST(EntryLine, leavesUnknownVariableKindsOut) {
    ScriptEntry compare = entryOf(CommandCode::IfInputIs);
    compare.firstOperandKind = 6;
    compare.secondOperandKind = 5;
    EXPECT_EQ(lineOf(compare), "If_Input_Is  = VarUserPrompt");
    ScriptEntry input = entryOf(CommandCode::Input, "Title");
    input.inputVariable = 6;
    EXPECT_EQ(lineOf(input), "Input Title As ");
}

TEST(EntryLine, keepsTheKeywordOfAnActionThatShowsNothing) {
    ScriptEntry wait = entryOf(CommandCode::WaitFor, "READY");
    EXPECT_EQ(lineOf(wait), "Wait_For \"READY\"");
    wait.hasTimeout = 1;
    wait.thenCode = CommandCode::WatchFor;
    wait.elseCode = CommandCode::Return;
    EXPECT_EQ(lineOf(wait), "Wait_For \"READY\" If Found Then  Else Return");
    ScriptEntry watch = entryOf(CommandCode::WatchFor, "a");
    watch.thenCode = CommandCode::WaitFor;
    setText(slotFields(watch, Slot::Then), "b");
    EXPECT_EQ(lineOf(watch), "Watch_For \"a\" Then Wait_For \"b\"");
    watch.thenCode = CommandCode::IfInputIs;
    EXPECT_EQ(lineOf(watch), "Watch_For \"a\" Then ");
}

TEST(EntryLine, readsAnElseActionFromItsOwnFields) {
    ScriptEntry compare = entryOf(CommandCode::IfInputIs, "x");
    compare.thenCode = CommandCode::MenuCommand;
    compare.commandId = 201;
    compare.commandData = packArea({9, 9, 9, 9});
    compare.elseCode = CommandCode::Paste;
    compare.elseCommandId = packArea({8, 8, 8, 8});
    compare.elseArea = packArea({7, 6, 0, 0});
    EXPECT_EQ(lineOf(compare),
              "If_Input_Is \"x\" = InputStr If Equal Then {11913} Else Paste to r7, c6");
}

TEST(EntryLine, printsNumbersUnsigned) {
    ScriptEntry wait = entryOf(CommandCode::Wait);
    wait.number = 4294967295;
    EXPECT_EQ(lineOf(wait), "Wait 4294967295");
    ScriptEntry until = entryOf(CommandCode::WaitUntil);
    until.waitUntil = {65535, 1, 0, 2, 3, 4, 5, 6};
    EXPECT_EQ(lineOf(until), "Wait_Until 01-02-65535 03:04:05");
}

TEST(ActionSummaries, nameTheBranchWithoutALeadingBlank) {
    static const NumberedNames names;
    ScriptEntry wait = entryOf(CommandCode::WaitFor, "READY");
    auto summaries = actionSummaries(wait, false, names.of(HostType::VT));
    EXPECT_EQ(summaries.thenLine, "If Found Then ");
    EXPECT_FALSE(summaries.elseLine);
    wait.thenCode = CommandCode::Beep;
    wait.elseCode = CommandCode::IfInputIs;
    summaries = actionSummaries(wait, true, names.of(HostType::VT));
    EXPECT_EQ(summaries.thenLine, "If Equal Then Beep");
    EXPECT_EQ(summaries.elseLine, "If Not Equal Then ");
}

TEST(LastTransferShown, isTheLastOneThatALineShows) {
    const HiddenTextCipher cipher("");
    const auto transferring = [](CommandCode code, std::uint32_t commandId, std::string_view file) {
        ScriptEntry entry = entryOf(code);
        entry.hasTimeout = 1;
        entry.thenCode = CommandCode::MenuCommand;
        entry.commandId = commandId;
        entry.transferHost = transferHostTso;
        setTransferText(entry.transferSettings, transfer::hostFileName, file);
        return entry;
    };
    Script script;
    EXPECT_FALSE(lastTransferShown(script, cipher));
    for (const ScriptEntry& entry :
         {transferring(CommandCode::MenuCommand, sendFileCommand, "FIRST"),
          transferring(CommandCode::WaitFor, receiveFileCommand, "SECOND"),
          entryOf(CommandCode::Beep)})
        script.entries.push_back(packEntry(entry, cipher).entry);
    const auto last = lastTransferShown(script, cipher);
    ASSERT_TRUE(last);
    EXPECT_EQ(transferText(last->settings, transfer::hostFileName), "SECOND");
    EXPECT_EQ(last->host, transferHostTso);
    EXPECT_EQ(last->direction, TransferDirection::Receive);
}

}  // namespace quendra::test
