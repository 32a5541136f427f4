// The table of fields against the records that files hold: every command's fields are there, each
// is its own, and none takes what a record cannot store.
#include "model/entry_fields.h"

#include "scriptfile/entry_codec.h"
#include "scriptfile/script_reader.h"
#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

const HiddenTextCipher cipher("mine");

ScriptEntry withCode(CommandCode code, std::uint32_t commandId = 0) {
    ScriptEntry entry;
    entry.code = code;
    entry.commandId = commandId;
    entry.hasTimeout = 1;
    return entry;
}

// Every list of fields that there is, as an entry and as both actions.
std::vector<std::pair<ScriptEntry, Slot>> everySlot() {
    std::vector<std::pair<ScriptEntry, Slot>> all;
    for (std::uint8_t code = 0; code <= 23; ++code) {
        for (const std::uint32_t id : {201U, 202U, 236U}) {
            if (!isCommandCode(code) || (id != 201 && code != 2)) continue;
            const ScriptEntry entry = withCode(static_cast<CommandCode>(code), id);
            all.emplace_back(entry, Slot::Entry);
            for (const Slot slot : {Slot::Then, Slot::Else}) {
                ScriptEntry owner = withCode(CommandCode::IfInputIs);
                if (entry.code == CommandCode::WaitFor && slot == Slot::Then) {
                    owner = withCode(CommandCode::WatchFor);
                }
                setCode(slotFields(owner, slot), entry.code);
                slotFields(owner, slot).commandId = id;
                all.emplace_back(owner, slot);
            }
        }
    }
    return all;
}

// A value that is not the one of an empty entry, and leaves the list of fields as it is.
FieldValue otherValue(const EntryField& field) {
    if (isText(field.kind)) return std::string_view("x");
    return field.kind == FieldKind::MenuCode ? 237U : 7U;
}

TEST(EntryFields, areEachStoredInAPlaceOfTheirOwn) {
    for (const auto& [before, slot] : everySlot()) {
        const auto fields = fieldsOf(before, slot);
        for (const EntryField& field : fields) {
            if (field.kind == FieldKind::MenuCode || field.name == "hasTimeout") continue;
            SCOPED_TRACE(std::string(commandKeyword(slotFields(before, slot).code)) + " " +
                         fieldPath(slot, field));
            ScriptEntry changed = before;
            ASSERT_EQ(setField(changed, slot, field, otherValue(field)), FieldRefusal::None);
            const ScriptEntry stored = unpackEntry(packEntry(changed, cipher).entry, cipher);
            EXPECT_EQ(fieldValue(stored, slot, field), otherValue(field));
            for (const EntryField& other : fields)
                EXPECT_EQ(sameField(before, slot, stored, slot, other), &other != &field)
                    << other.name;
        }
    }
}

TEST(EntryFields, areAllThatARecordHolds) {
    // Given one after the other to an entry of nothing but codes, they make the whole of it.
    for (const Case& frozen : frozenCases()) {
        for (const EntryHandle& handle : readScript(frozen.expected).script.entries) {
            const ScriptEntry entry = unpackEntry(handle, cipher);
            ScriptEntry made;
            for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
                setCode(slotFields(made, slot), slotFields(entry, slot).code);
                slotFields(made, slot).kept = slotFields(entry, slot).kept;
            }
            for (const Slot slot : slotsOf(entry)) {
                for (const EntryField& field : fieldsOf(entry, slot))
                    ASSERT_EQ(setField(made, slot, field, fieldValue(entry, slot, field)),
                              FieldRefusal::None)
                        << frozen.name << " " << fieldPath(slot, field);
                // Setting a text drops what was kept of the old one.
                slotFields(made, slot).kept = slotFields(entry, slot).kept;
            }
            EXPECT_EQ(made, entry) << frozen.name;
        }
    }
}

const EntryField& fieldOf(const ScriptEntry& entry, Slot slot, std::string_view path) {
    const auto fields = fieldsOf(entry, slot);
    const auto found = std::ranges::find(
        fields, path, [&](const EntryField& field) { return fieldPath(slot, field); });
    EXPECT_NE(found, fields.end()) << path;
    return *found;
}

TEST(EntryFields, dependOnWhatTheEntrySays) {
    ScriptEntry entry = withCode(CommandCode::WaitFor);
    EXPECT_EQ(slotsOf(entry).size(), 3U);
    EXPECT_EQ(fieldsOf(entry, Slot::Entry).back().name, "timeoutSeconds");
    entry.hasTimeout = 0;
    EXPECT_EQ(slotsOf(entry).size(), 1U);
    EXPECT_EQ(fieldsOf(entry, Slot::Entry).back().name, "hasTimeout");
    entry = withCode(CommandCode::WatchFor);
    entry.thenAction.code = CommandCode::WaitFor;
    EXPECT_EQ(slotsOf(entry).size(), 2U);
    EXPECT_EQ(fieldsOf(entry, Slot::Then).back().name, "caseSensitive");
    entry.thenAction.code = CommandCode::IfInputIs;
    EXPECT_TRUE(fieldsOf(entry, Slot::Then).empty()) << "carried as a record";
    entry.thenAction.code = CommandCode::MenuCommand;
    EXPECT_EQ(fieldsOf(entry, Slot::Then).size(), 2U);
    entry.thenAction.commandId = 254;
    EXPECT_EQ(fieldOf(entry, Slot::Then, "then.text").kind, FieldKind::FileName);
    entry.thenAction.commandId = 237;
    EXPECT_FALSE(fieldOf(entry, Slot::Then, "then.transferSettings.hostFileName").inVt);
}

TEST(EntryFields, refuseWhatNoRecordHoldsAndTellWhatNoDialogTakes) {
    struct Row {
        CommandCode code;
        const char* name;
        FieldValue value;
        FieldRefusal refusal;
        bool inRange;
    };
    using enum CommandCode;
    constexpr FieldRefusal stored = FieldRefusal::None;
    constexpr FieldRefusal tooLarge = FieldRefusal::TooLarge;
    constexpr FieldRefusal wrongType = FieldRefusal::WrongType;
    constexpr FieldRefusal holdsNul = FieldRefusal::HoldsNul;
    static const std::string long255(255, 'x');
    static const std::string long256(256, 'x');
    const std::string_view nul("a\0b", 3);
    const Row rows[] = {
        {Comment, "text", long255, stored, true},
        {Comment, "text", long256, tooLarge, false},
        {Comment, "text", "", stored, false},
        {Comment, "text", nul, stored, true},
        {Comment, "text", 5U, wrongType, false},
        {IfInputIs, "compareText", "", stored, true},
        {WaitFor, "searchRow", 62U, stored, true},
        {WaitFor, "searchRow", 63U, stored, false},
        {WaitFor, "searchColumn", 256U, tooLarge, false},
        {WaitFor, "exactPosition", "1", wrongType, false},
        {Input, "maxLength", 0U, stored, true},
        {Input, "maxLength", 1U, stored, false},
        {Input, "inputVariable", 6U, stored, false},
        {WaitUntil, "waitUntil.year", 0U, stored, true},
        {WaitUntil, "waitUntil.year", 1600U, stored, false},
        {WaitUntil, "waitUntil.month", 65536U, tooLarge, false},
        {Wait, "number", 0xFFFFFFFFU, stored, true},
        {MenuCommand, "transferSettings.member", std::string_view(long255).substr(0, 31), stored,
         true},
        {MenuCommand, "transferSettings.member", std::string_view(long255).substr(0, 32), tooLarge,
         false},
        {MenuCommand, "transferSettings.member", nul, holdsNul, true},
        {MenuCommand, "transferSettings.crlf", 2U, stored, false},
        {MenuCommand, "transferSettings.recordLength", 10'000'000U, stored, false},
    };
    for (const Row& row : rows) {
        ScriptEntry entry = withCode(row.code, 236);
        const EntryField& field = fieldOf(entry, Slot::Entry, row.name);
        const ScriptEntry before = entry;
        EXPECT_EQ(isInRange(field, row.value), row.inRange) << row.name;
        EXPECT_EQ(setField(entry, Slot::Entry, field, row.value), row.refusal) << row.name;
        EXPECT_TRUE(row.refusal == stored || entry == before) << row.name;
    }
    ScriptEntry type = withCode(Type);
    const EntryField& text = fieldOf(type, Slot::Entry, "text");
    EXPECT_FALSE(isSecret(type, Slot::Entry, text));
    type.hidden = 1;
    EXPECT_TRUE(isSecret(type, Slot::Entry, text));
    EXPECT_EQ(setField(type, Slot::Entry, text, long255), tooLarge);
    EXPECT_EQ(setField(type, Slot::Entry, text, nul), holdsNul);
}

TEST(EntryFields, areTheSameOnlyWhenTheyAreStoredAlike) {
    ScriptEntry mine = withCode(CommandCode::Type);
    ScriptEntry theirs = mine;
    theirs.kept = {1, 2, 3};
    EXPECT_FALSE(
        sameField(mine, Slot::Entry, theirs, Slot::Entry, fieldOf(mine, Slot::Entry, "text")))
        << "one is a text that could not be deciphered";
    mine = theirs = withCode(CommandCode::MenuCommand, 236);
    theirs.transferSettings.bytes[transfer::member.offset + 5] = 'x';
    EXPECT_FALSE(sameField(mine, Slot::Entry, theirs, Slot::Entry,
                           fieldOf(mine, Slot::Entry, "transferSettings.member")))
        << "bytes behind the end of the text";
}

}  // namespace
}  // namespace quendra::test
