// What a search finds, and what it must never find.
#include "model/entry_search.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <functional>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

struct SearchRow {
    const char* name;
    CommandCode code;
    std::function<void(ScriptEntry&)> fill;
    const char* text;
    bool found;
};

void putText(ScriptEntry& entry, Slot slot, CommandCode code, std::string_view text) {
    const SlotFields fields = slotFields(entry, slot);
    setCode(fields, code);
    setText(fields, text);
}

void putTransfer(ScriptEntry& entry, const TransferField& field, std::string_view text) {
    entry.commandId = sendFileCommand;
    entry.transferSettings = defaultTransferSettings();
    setTransferText(entry.transferSettings, field, text);
}

TEST(EntrySearch, LooksIntoLinesAndFieldsButNeverIntoHiddenTexts) {
    using enum CommandCode;
    const auto text = [](const char* value) {
        return [value](ScriptEntry& entry) { setText(slotFields(entry, Slot::Entry), value); };
    };
    const auto hide = [](Slot slot) {
        return [slot](ScriptEntry& entry) {
            if (slot != Slot::Entry) entry.hasTimeout = 1;
            putText(entry, slot, Type, "Secret");
            slotFields(entry, slot).hidden = 1;
        };
    };
    const SearchRow rows[] = {
        {"the line", Goto, text("Home"), "goto h", true},
        {"no regard to case", Comment, text("\xc4rger"), "\xc3\xa4RGER", true},
        {"absent", Comment, text("Home"), "house", false},
        {"the empty text", Comment, text("Home"), "", false},
        {"prompt, which no line shows", Input,
         [](ScriptEntry& entry) { setPrompt(slotFields(entry, Slot::Entry), "Your name?"); },
         "your name", true},
        {"action that no line shows, kept without a timeout", WaitFor,
         [](ScriptEntry& entry) { putText(entry, Slot::Then, Message, "Found it"); }, "found it",
         false},
        {"else action", WaitFor,
         [](ScriptEntry& entry) {
             entry.hasTimeout = 1;
             putText(entry, Slot::Else, Message, "Lost it");
         },
         "lost it", true},
        {"second operand", IfInputIs, [](ScriptEntry& entry) { setCompareText(entry, "Yes"); },
         "yes", true},
        {"file of this computer", MenuCommand,
         [](ScriptEntry& entry) { putTransfer(entry, transfer::pcFileName, "pc.txt"); }, "PC.TXT",
         true},
        {"hidden text", Type, hide(Slot::Entry), "secret", false},
        {"hidden text's first letter", Type, hide(Slot::Entry), "s", false},
        {"hidden text of a then action", WaitFor, hide(Slot::Then), "secret", false},
        {"hidden text of an else action", WaitFor, hide(Slot::Else), "secret", false},
        {"hidden text's mask", Type, hide(Slot::Entry), "******", true},
    };
    const HiddenTextCipher cipher("");
    const NumberedNames names;
    for (const SearchRow& row : rows) {
        ScriptEntry entry;
        entry.commandCode = row.code;
        row.fill(entry);
        Script script;
        script.entries = {packEntry(entry, cipher).entry};
        const auto found = findEntries(script, cipher, names.of(HostType::Mainframe), row.text);
        EXPECT_EQ(found.size(), row.found ? 1U : 0U) << row.name;
    }
}

}  // namespace
}  // namespace quendra::test
