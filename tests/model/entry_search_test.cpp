// What a search finds, and what it must never find.
#include "model/entry_search.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

using enum CommandCode;

class EntrySearch : public testing::Test {
  protected:
    // An entry, in this slot of which is a command with a text.
    static ScriptEntry with(CommandCode owner, Slot slot, CommandCode code, const char* text) {
        ScriptEntry entry;
        entry.commandCode = owner;
        entry.hasTimeout = 1;
        setCode(slotFields(entry, slot), code);
        setText(slotFields(entry, slot), text);
        return entry;
    }
    static ScriptEntry with(CommandCode code, const char* text) {
        return with(code, Slot::Entry, code, text);
    }
    static bool finds(const ScriptEntry& entry, std::string_view text) {
        static const NumberedNames names;
        const HiddenTextCipher cipher("");
        Script script;
        script.entries = {packEntry(entry, cipher).entry};
        return findEntries(script, cipher, names.of(HostType::Mainframe), text).size() == 1;
    }
};

TEST_F(EntrySearch, LooksIntoLinesAndFieldsWithoutRegardToCase) {
    EXPECT_TRUE(finds(with(Goto, "Home"), "goto h"));
    EXPECT_TRUE(finds(with(Comment, "\xc4rger"), "\xc3\xa4RGER"));
    EXPECT_FALSE(finds(with(Comment, "Home"), "house"));
    EXPECT_FALSE(finds(with(Comment, "Home"), ""));
    EXPECT_TRUE(finds(with(WaitFor, Slot::Else, Message, "Lost it"), "lost it"));
    ScriptEntry entry = with(WaitFor, Slot::Then, Message, "Found it");
    entry.hasTimeout = 0;
    EXPECT_FALSE(finds(entry, "found it")) << "kept, but no part of the script";
    entry = with(Input, "");
    setPrompt(slotFields(entry, Slot::Entry), "Your name?");
    EXPECT_TRUE(finds(entry, "your name"));
    entry = with(IfInputIs, "");
    setCompareText(entry, "Yes");
    EXPECT_TRUE(finds(entry, "yes"));
    entry = with(MenuCommand, "");
    entry.commandId = sendFileCommand;
    entry.transferSettings = defaultTransferSettings();
    setTransferText(entry.transferSettings, transfer::pcFileName, "pc.txt");
    EXPECT_TRUE(finds(entry, "PC.TXT"));
}

TEST_F(EntrySearch, NeverLooksIntoHiddenTexts) {
    for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
        ScriptEntry entry = with(slot == Slot::Entry ? Type : WaitFor, slot, Type, "Secret");
        slotFields(entry, slot).hidden = 1;
        EXPECT_FALSE(finds(entry, "secret"));
        EXPECT_FALSE(finds(entry, "cr"));
        EXPECT_TRUE(finds(entry, "******")) << "the mask";
    }
}

}  // namespace
}  // namespace quendra::test
