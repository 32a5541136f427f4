// Entries through their stored form and back: nothing that a file can hold may get lost or mixed
// up.
#include "scriptfile/entry_codec.h"

#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

using enum CommandCode;

const HiddenTextCipher myCipher("mine");

EntryHandle packed(const ScriptEntry& entry) {
    const PackResult result = packEntry(entry, myCipher);
    EXPECT_TRUE(result.ok());
    return result.entry;
}

ScriptEntry withCode(CommandCode code, std::string_view text = "") {
    ScriptEntry entry;
    entry.code = code;
    setText(slotFields(entry, Slot::Entry), text);
    return entry;
}

TEST(EntryCodec, keepsBothActionsApartAndEnciphersInEverySlot) {
    ScriptEntry compare = withCode(IfInputIs);
    compare.firstOperandKind = 1;
    compare.secondOperandKind = 2;
    compare.thenAction.code = compare.elseAction.code = Type;
    setText(slotFields(compare, Slot::Then), "thenSecret");
    setText(slotFields(compare, Slot::Else), "elseSecret");
    compare.thenAction.hidden = compare.elseAction.hidden = 1;
    const EntryHandle stored = packed(compare);
    EXPECT_EQ(unpackEntry(stored, myCipher), compare);
    const std::string bytes(stored.record().begin(), stored.record().end());
    EXPECT_EQ(bytes.find("Secret"), std::string::npos);
}

TEST(EntryCodec, givesBackWhatAnotherKeyHidUntilItIsEdited) {
    const EntryHandle theirs = storeRecord(hiddenTypeRecord("their password", "theirs"));
    ScriptEntry seen = unpackEntry(theirs, myCipher);
    EXPECT_EQ(textOf(slotFields(seen, Slot::Entry)), "");
    EXPECT_EQ(packed(seen), theirs);
    setText(slotFields(seen, Slot::Entry), "mine now");
    EXPECT_EQ(packed(seen), storeRecord(hiddenTypeRecord("mine now", "mine")));
}

TEST(EntryCodec, givesBackATextThatDecipheredOnlyByChanceUntilItIsChanged) {
    const TripleDesCbc bare(deriveTripleDesKey("mine").value());
    const Bytes odd = bare.encipher(bytesOf("no closing NUL")).value();
    const Bytes record = joined({{15}, {static_cast<std::uint8_t>(odd.size())}, odd, {1}});
    ScriptEntry seen = unpackEntry(storeRecord(record), myCipher);
    EXPECT_EQ(textOf(slotFields(seen, Slot::Entry)), "no closing NUL");
    setText(slotFields(seen, Slot::Entry), "no closing NUL");
    EXPECT_EQ(packed(seen), storeRecord(record));
    setText(slotFields(seen, Slot::Entry), "changed");
    EXPECT_EQ(packed(seen), storeRecord(hiddenTypeRecord("changed", "mine")));
}

TEST(EntryCodec, neverStoresAHiddenTextThatDoesNotFit) {
    ScriptEntry type = withCode(Type, std::string(255, 'x'));
    EXPECT_EQ(unpackEntry(packed(type), myCipher), type);
    type.hidden = 1;
    type.textLength = 246;
    EXPECT_TRUE(packEntry(type, myCipher).ok());
    type.textLength = 247;
    EXPECT_EQ(packEntry(type, myCipher).fault, WriteFault::HiddenTextTooLong);
}

TEST(EntryCodec, leavesNothingOfAnEntryInTheNextThatIsUnpackedInItsPlace) {
    for (const auto& frozen : frozenCases()) {
        Script script = readScript(frozen.file).script;
        // Each kind after each neighbour, and the whole file from its end as well.
        std::vector<EntryHandle> backwards(script.entries.rbegin(), script.entries.rend());
        script.entries.insert(script.entries.end(), backwards.begin(), backwards.end());
        auto next = script.entries.begin();
        forEachEntry(script, myCipher, [&](const ScriptEntry& entry) {
            EXPECT_EQ(entry, unpackEntry(*next++, myCipher)) << frozen.name;
        });
        EXPECT_EQ(next, script.entries.end());
    }
}

TEST(EntryCodec, bringsForeignActionsThroughEditsOfTheirOwner) {
    // An If_Input_Is that owns an If_Input_Is whose else action is a hidden Type of somebody else.
    const Bytes type = hiddenTypeRecord("x", "theirs");
    const Bytes inner = joined({{9}, counted("in"), {0}, counted(""), {3}, {4}, type});
    const Bytes outer = joined({{9}, counted("out"), {0}, counted("b"), {0}});
    const Bytes file = joined({bytesOf("QDMDSCR="), outer, inner, {12}});
    const ReadResult read = readScript(file);
    EXPECT_EQ(writeScript(read.script, HostType::Mainframe), file);
    ScriptEntry entry = unpackEntry(read.script.entries.at(0), myCipher);
    EXPECT_EQ(entry.thenAction.code, IfInputIs);
    EXPECT_EQ(entry.elseAction.code, Return);
    EXPECT_EQ(packed(entry), read.script.entries[0]);
    setCode(slotFields(entry, Slot::Then), Beep);
    EXPECT_EQ(packed(entry), storeRecord(joined({outer, {4}, {12}})));
}

TEST(EntryCodec, sharesOptionsOfAWatchedWaitForWithItsOwnerAndStoresNoTimeout) {
    ScriptEntry watch = withCode(WatchFor, "alarm");
    watch.thenAction.code = WaitFor;
    setText(slotFields(watch, Slot::Then), "inner");
    watch.searchRow = 3;
    watch.exactPosition = watch.caseSensitive = 1;
    EXPECT_EQ(unpackEntry(packed(watch), myCipher), watch);
    ScriptEntry claims = watch;
    claims.hasTimeout = 1;
    claims.timeoutSeconds = 9;
    EXPECT_EQ(packed(claims), packed(watch));
}

TEST(EntryCodec, carriesTheTimeoutThatAWatchedWaitForClaimsUntilItIsEdited) {
    // Its then action is a hidden Type of whoever made the file.
    const Bytes options = {1, 2, 0, 1};
    const Bytes head = joined({{20}, counted("w"), {17}, counted("i"), options});
    const Bytes whole = joined({head, {1, 30}, hiddenTypeRecord("x", "mine"), {12}});
    const ScriptEntry entry = unpackEntry(storeRecord(whole), myCipher);
    EXPECT_EQ(packed(entry), storeRecord(whole));
    ScriptEntry edited = entry;
    setText(edited.thenAction, "i");
    setText(edited, "another watched text");
    EXPECT_EQ(packed(edited).record().size(), whole.size() + 19) << "its owner was edited";
    edited = entry;
    edited.exactPosition = 1;
    EXPECT_EQ(packed(edited).record().back(), 0);
    EXPECT_EQ(packed(edited).record().size(), head.size() + 1);
    edited.exactPosition = 0;
    EXPECT_EQ(packed(edited), storeRecord(whole)) << "as it was";
    setText(edited.thenAction, "other");
    EXPECT_EQ(packed(edited).record().size(), head.size() + 5);
}

}  // namespace
}  // namespace quendra::test
