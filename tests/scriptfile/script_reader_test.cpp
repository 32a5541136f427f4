// Damaged and hostile files: what came before the damage is loaded, and the place is named.
#include "scriptfile/script_reader.h"

#include "scriptfile/script_writer.h"
#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {
namespace {

const Bytes mainframe = bytesOf("QDMDSCR=");
const Bytes beep = {4};

// A file transfer as VT files store it.
const Bytes transferNumber = joined({{2}, word(234), word(0)});

Bytes repeated(const Bytes& piece, std::size_t count) {
    Bytes all;
    for (std::size_t i = 0; i < count; ++i)
        all.insert(all.end(), piece.begin(), piece.end());
    return all;
}

// An If_Input_Is whose then action is an If_Input_Is, and so on; the innermost does nothing.
Bytes nestedCompares(std::size_t depth) {
    const Bytes start = joined({{9}, counted(""), {0}, counted(""), {0}});
    return joined({repeated(start, depth), {0}, repeated({0}, depth)});
}

TEST(ScriptReader, stopsAtTheDamageAndSaysWhere) {
    const auto prompt = [](std::uint32_t size) {
        return joined({{8}, counted("t"), word(size), Bytes(size, 'p'), {255, 0, 0}});
    };
    using enum ReadStop;
    const struct {
        const char* name;
        Bytes records;
        std::size_t entries;
        ReadStop stop;
        std::size_t offset;
    } rows[] = {
        {"inside a text", {4, 6, 5, 'a'}, 1, EndInsideRecord, 11},
        {"inside an action", {4, 20, 0, 15}, 1, EndInsideRecord, 12},
        {"before an action", {20, 0}, 0, EndInsideRecord, 10},
        {"code 3", {4, 4, 3, 4}, 2, UnknownCode, 10},
        {"code 24", {24}, 0, UnknownCode, 8},
        {"unknown code of an action", {4, 20, 0, 99}, 1, UnknownCode, 11},
        {"a prompt that does not fit", joined({beep, prompt(1024), beep}), 1, PromptTooLong, 12},
        {"a prompt that fits", joined({beep, prompt(1023), beep}), 3, None, 0},
        {"a prompt of 4 gigabytes", joined({{8, 0}, word(0xFFFFFFFF)}), 0, PromptTooLong, 10},
        {"4096 entries", repeated(beep, 4096), 4096, None, 0},
        {"more than 16 bits count", repeated({0}, 70'000), 4096, TooManyEntries, 8 + 4096},
        {"actions a few levels deep", joined({nestedCompares(4), beep}), 2, None, 0},
        {"very many levels deep", joined({beep, nestedCompares(100'000)}), 1, NestedTooDeep, 34},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ReadResult read = readScript(joined({mainframe, row.records}));
        ASSERT_FALSE(read.refusal);
        EXPECT_EQ(read.script.entryCount(), row.entries);
        EXPECT_EQ(read.stop, row.stop);
        EXPECT_EQ(read.stopOffset, row.offset);
    }
    EXPECT_EQ(readScript(bytesOf("QDMDSCR")).refusal, ReadRefusal::TooShort);
    EXPECT_EQ(readScript(bytesOf("QDMDSCR>")).refusal, ReadRefusal::UnknownSignature);
    // Renumbering lifts this code out of the range.
    EXPECT_EQ(readScript(bytesOf("QDMDSCR9\x17")).stop, UnknownCode);
}

TEST(ScriptReader, loadsTheWholeEntriesOfAFileCutAnywhere) {
    for (const char* name : {"kinds-mainframe-v2", "kinds-vt-vD"}) {
        const Bytes& file = frozenCase(name).file;
        const auto whole = readScript(file).script.entries;
        for (std::size_t size = signatureSize; size < file.size(); size += 7) {
            const auto bytes = std::span(file).first(size);
            const ReadResult cut = readScript(bytes);
            const auto& entries = cut.script.entries;
            ASSERT_LE(entries.size(), whole.size());
            ASSERT_TRUE(std::equal(entries.begin(), entries.end(), whole.begin()));
            ASSERT_TRUE(cut.stop == ReadStop::EndInsideRecord || cut.stop == ReadStop::None);
        }
    }
}

TEST(ScriptReader, leavesTheRecordsOfACurrentFileWhereTheyLie) {
    const Bytes& file = frozenCase("kinds-mainframe-v2").expected;
    const auto pages = std::make_shared<const SecretPages>(file.size());
    std::ranges::copy(file, pages->data());
    const ReadResult read = readScript(pages, file.size());
    EXPECT_TRUE(read.isWhole());
    const std::uint8_t* next = pages->data() + signatureSize;
    for (const EntryHandle& entry : read.script.entries) {
        ASSERT_EQ(entry.record().data(), next);
        next += entry.record().size();
    }
    EXPECT_EQ(next, pages->data() + file.size());
}

TEST(ScriptReader, readsTheFirstEntriesOfAFileLongerThanAnyScript) {
    Bytes file = mainframe;
    file.resize(maxScriptFileSize + 1);
    EXPECT_EQ(readScript(file).stop, ReadStop::TooManyEntries);
    // Records so large that the limit is met first.
    const Bytes compare =
        joined({{9}, counted(std::string(255, 'a')), {0}, counted(std::string(255, 'b')), {0}});
    const Bytes input = joined({{8}, counted(""), word(1023), Bytes(1023, 'p'), {0, 0, 0}});
    const Bytes record = joined({compare, compare, input, input, compare, input, input});
    const Bytes large =
        joined({mainframe, repeated(record, maxScriptFileSize / record.size() + 1)});
    EXPECT_EQ(readScript(large).stop, ReadStop::FileTooLong);
}

TEST(ScriptReader, carriesTheTimeoutOfAWatchedWaitForInEveryVersionAndHostType) {
    // In the file and in one of the current version: a menu command and what it is numbered, an
    // If_Input_Is of either layout, and one Wait_For that claims a timeout below another.
    const Bytes watched = joined({{20}, counted("w"), {17}, counted("i"), {1, 2, 0, 1, 7, 30}});
    const Bytes oldWatched = joined({{19}, counted("w"), {16}, counted("i"), {1, 2, 0, 1, 7, 30}});
    const Bytes compare = joined({{9}, counted("c"), {4}});
    const Bytes newCompare = joined({{9}, counted("c"), {0, 0, 0, 4, 0}});
    const std::tuple<const char*, Bytes, Bytes> rows[] = {
        {"QDMDSCR=", joined({beep, watched, newCompare, watched, {0, 0}, {5}}), {}},
        {"QDVTSCR=", joined({watched, menuRecord(267), transferNumber, {5}}), {}},
        {"QDMDSCR9", joined({oldWatched, compare, {0}, {5}}),
         joined({watched, newCompare, {0}, {5}})},
    };
    for (const auto& [signature, records, current] : rows) {
        SCOPED_TRACE(signature);
        const ReadResult read = readScript(joined({bytesOf(signature), records}));
        EXPECT_TRUE(read.isWhole());
        const Bytes written = writeScript(read.script, read.signature.hostType);
        EXPECT_EQ(Bytes(written.begin() + signatureSize, written.end()),
                  current.empty() ? records : current);
        const Bytes again = writeScript(readScript(written).script, read.signature.hostType);
        EXPECT_EQ(again, written);
    }
}

TEST(ScriptWriter, setsTheMarkOfATransferBlock) {
    const Bytes expected = joined({mainframe, transferRecord({}, 236)});
    Bytes file = expected;
    file[signatureSize + 9] = 7;
    EXPECT_EQ(writeScript(readScript(file).script, HostType::Mainframe), expected);
}

TEST(ScriptWriter, knowsWhatVtCannotStore) {
    Script script;
    const auto add = [&](std::uint32_t id, const FileTransferSettings& settings,
                         std::uint8_t host) {
        const bool transfers = id == 236;
        const Bytes menu = transfers ? transferRecord(settings, id, 0, host) : menuRecord(id);
        script.entries.push_back(storeRecord(menu));
        script.entries.push_back(storeRecord(joined({{9, 0, 0, 0, 0, 0}, menu})));
    };
    for (const std::uint32_t id : {212U, 214U, 236U, 213U})
        add(id, {}, 0);
    add(236, defaultTransferSettings(), 0);
    add(236, {}, 1);
    EXPECT_EQ(unstorableEntries(script, HostType::VT),
              (std::vector<std::size_t>{6, 7, 8, 9, 10, 11}));
    EXPECT_TRUE(unstorableEntries(script, HostType::ICL).empty());
    script.entries.resize(6);
    EXPECT_EQ(readScript(writeScript(script, HostType::VT)).script, script);
}

}  // namespace
}  // namespace quendra::test
