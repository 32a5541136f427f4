// Entries through their stored form and back: nothing that a file can hold may get lost or mixed
// up.
#include "scriptfile/entry_codec.h"

#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

const HiddenTextCipher myCipher("mine");
const HiddenTextCipher theirCipher("theirs");

EntryHandle packed(const ScriptEntry& entry, const HiddenTextCipher& cipher = myCipher) {
    const PackResult result = packEntry(entry, cipher);
    EXPECT_TRUE(result.ok());
    return result.entry;
}

ScriptEntry withCode(CommandCode code) {
    ScriptEntry entry;
    entry.commandCode = code;
    return entry;
}

ScriptEntry hiddenType(std::string_view text) {
    ScriptEntry entry = withCode(CommandCode::Type);
    setText(slotFields(entry, Slot::Entry), text);
    entry.hidden = 1;
    return entry;
}

}  // namespace

TEST(EntryCodec, keepsApartWhatTheFileStoresApart) {
    ScriptEntry compare = withCode(CommandCode::IfInputIs);
    compare.firstOperandKind = 1;
    compare.secondOperandKind = 2;
    compare.thenCode = CommandCode::SetCursor;
    compare.row = 24;
    compare.column = 80;
    EXPECT_EQ(unpackEntry(packed(compare), myCipher), compare);

    ScriptEntry wait = withCode(CommandCode::WaitFor);
    wait.hasTimeout = 1;
    wait.thenCode = CommandCode::MenuCommand;
    wait.commandId = 201;
    wait.commandData = 0x01020304;
    wait.elseCode = CommandCode::Copy;
    wait.elseArea = packArea({1, 2, 3, 4});
    EXPECT_EQ(unpackEntry(packed(wait), myCipher), wait);
}

TEST(EntryCodec, enciphersHiddenTextsInEverySlot) {
    ScriptEntry compare = withCode(CommandCode::IfInputIs);
    compare.thenCode = compare.elseCode = CommandCode::Type;
    setText(slotFields(compare, Slot::Then), "thenSecret");
    setText(slotFields(compare, Slot::Else), "elseSecret");
    compare.hidden = compare.elseHidden = 1;
    const EntryHandle stored = packed(compare);
    EXPECT_EQ(unpackEntry(stored, myCipher), compare);
    const std::string bytes(stored.record().begin(), stored.record().end());
    EXPECT_EQ(bytes.find("Secret"), std::string::npos);
}

TEST(EntryCodec, givesBackWhatAnotherKeyHidUntilItIsEdited) {
    const EntryHandle theirs = packed(hiddenType("their password"), theirCipher);
    ScriptEntry seen = unpackEntry(theirs, myCipher);
    EXPECT_EQ(textOf(slotFields(seen, Slot::Entry)), "");
    EXPECT_EQ(packed(seen), theirs);
    setText(slotFields(seen, Slot::Entry), "mine now");
    const ScriptEntry edited = unpackEntry(packed(seen), myCipher);
    EXPECT_EQ(textOf(slotFields(edited, Slot::Entry)), "mine now");
    EXPECT_FALSE(edited.kept);
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
    EXPECT_EQ(packed(seen), packed(hiddenType("changed")));
}

TEST(EntryCodec, neverStoresAHiddenTextThatDoesNotFit) {
    EXPECT_TRUE(packEntry(hiddenType(std::string(246, 'x')), myCipher).ok());
    const PackResult tooLong = packEntry(hiddenType(std::string(247, 'x')), myCipher);
    EXPECT_EQ(tooLong.fault, WriteFault::HiddenTextTooLong);
    ScriptEntry plain = hiddenType(std::string(255, 'x'));
    plain.hidden = 0;
    EXPECT_EQ(unpackEntry(packed(plain), myCipher), plain);
}

TEST(EntryCodec, bringsForeignActionsThroughEditsOfTheirOwner) {
    // An If_Input_Is that owns an If_Input_Is whose else action is a hidden Type of somebody else.
    const auto secret = theirCipher.encipher("x").value();
    const Bytes type = joined({{15}, counted(std::string(secret.begin(), secret.end())), {1}});
    const Bytes inner = joined({{9}, counted("in"), {0}, counted(""), {3}, {4}, type});
    const Bytes file =
        joined({bytesOf("QDMDSCR="), {9}, counted("out"), {0}, counted("b"), {0}, inner, {12}});
    const ReadResult read = readScript(file);
    ASSERT_TRUE(read.isWhole());
    EXPECT_EQ(writeScript(read.script, HostType::Mainframe), file);
    ScriptEntry entry = unpackEntry(read.script.entries[0], myCipher);
    EXPECT_EQ(entry.thenCode, CommandCode::IfInputIs);
    EXPECT_EQ(entry.elseCode, CommandCode::Return);
    EXPECT_EQ(packed(entry), read.script.entries[0]);
    setCode(slotFields(entry, Slot::Then), CommandCode::Beep);
    const EntryHandle edited = packed(entry);
    EXPECT_EQ(Bytes(edited.record().begin(), edited.record().end()),
              joined({{9}, counted("out"), {0}, counted("b"), {0}, {4}, {12}}));
}

TEST(EntryCodec, sharesOptionsOfAWatchedWaitForWithItsOwner) {
    ScriptEntry watch = withCode(CommandCode::WatchFor);
    setText(slotFields(watch, Slot::Entry), "alarm");
    watch.thenCode = CommandCode::WaitFor;
    setText(slotFields(watch, Slot::Then), "inner");
    watch.searchRow = 3;
    watch.searchColumn = 4;
    watch.exactPosition = watch.caseSensitive = 1;
    EXPECT_EQ(unpackEntry(packed(watch), myCipher), watch);
    // Whatever else the record holds, a watched Wait_For is stored without a timeout.
    ScriptEntry claims = watch;
    claims.hasTimeout = 1;
    claims.timeoutSeconds = 9;
    EXPECT_EQ(packed(claims), packed(watch));
}

}  // namespace quendra::test
