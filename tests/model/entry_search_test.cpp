// What a search finds, and what it must never find.
#include "model/entry_search.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

using enum CommandCode;

// An entry, in this slot of which is a command with a text.
ScriptEntry with(CommandCode owner, Slot slot, CommandCode code, const char* text) {
    ScriptEntry entry;
    entry.commandCode = owner;
    entry.hasTimeout = 1;
    setCode(slotFields(entry, slot), code);
    setText(slotFields(entry, slot), text);
    return entry;
}

bool finds(const ScriptEntry& entry, std::string_view text) {
    static const NumberedNames names;
    const HiddenTextCipher cipher("");
    const Script script = {{packEntry(entry, cipher).entry}};
    return findEntries(script, cipher, names.of(HostType::Mainframe), text).size() == 1;
}

TEST(EntrySearch, LooksIntoLinesAndFieldsWithoutRegardToCase) {
    const ScriptEntry home = with(Goto, Slot::Entry, Goto, "H\xc4me");
    EXPECT_TRUE(finds(home, "goto h\xc3\xa4"));
    EXPECT_FALSE(finds(home, "house"));
    EXPECT_FALSE(finds(home, ""));
    EXPECT_TRUE(finds(with(WaitFor, Slot::Else, Message, "Lost it"), "lost it"));
    ScriptEntry entry = with(WaitFor, Slot::Then, Message, "Found it");
    entry.hasTimeout = 0;
    EXPECT_FALSE(finds(entry, "found it")) << "kept, but no part of the script";
    entry = with(Input, Slot::Entry, Input, "");
    setPrompt(slotFields(entry, Slot::Entry), "Your name?");
    EXPECT_TRUE(finds(entry, "your name"));
    entry = with(IfInputIs, Slot::Entry, IfInputIs, "");
    setCompareText(entry, "Yes");
    EXPECT_TRUE(finds(entry, "yes"));
}

TEST(EntrySearch, NeverLooksIntoHiddenTextsAndThePasswordsOfTransfers) {
    for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
        ScriptEntry entry = with(slot == Slot::Entry ? Type : WaitFor, slot, Type, "Secret");
        slotFields(entry, slot).hidden = 1;
        EXPECT_FALSE(finds(entry, "cr"));
        EXPECT_TRUE(finds(entry, "******")) << "the mask";
    }
    ScriptEntry entry = with(MenuCommand, Slot::Entry, MenuCommand, "");
    entry.commandId = sendFileCommand;
    entry.transferSettings = defaultTransferSettings();
    setTransferText(entry.transferSettings, transfer::pcFileName, "pc.txt");
    setTransferText(entry.transferSettings, transfer::hostFilePassword, "Secret");
    EXPECT_TRUE(finds(entry, "PC.TXT"));
    EXPECT_FALSE(finds(entry, "secret"));
}

}  // namespace
}  // namespace quendra::test
