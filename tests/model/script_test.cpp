// The list operations against the plain loops that they replace, and the shared records below them.
#include "model/script.h"

#include "support/fixtures.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <random>
#include <ranges>
#include <unistd.h>

namespace quendra::test {
namespace {

EntryHandle numbered(std::size_t number) {
    return storeRecord(joined({{16}, word(static_cast<std::uint32_t>(number))}));
}

TEST(Script, removesAndMovesEntriesAsOneByOne) {
    std::mt19937 random(2);
    for (std::size_t count = 1; count < 40; ++count) {
        Script script;
        std::vector<std::size_t> chosen;
        for (std::size_t i = 0; i < count; ++i) {
            script.entries.push_back(numbered(i));
            if (random() % 3 == 0) chosen.push_back(i);
        }
        Script removed = script;
        removeEntries(removed, chosen);
        Script expected = script;
        for (const std::size_t index : std::views::reverse(chosen))
            expected.entries.erase(expected.entries.begin() + static_cast<std::ptrdiff_t>(index));
        ASSERT_EQ(removed, expected);

        // Those that stay, with the moved ones put among them from the front to the back.
        std::vector<std::size_t> places(count);
        std::iota(places.begin(), places.end(), std::size_t{0});
        std::ranges::shuffle(places, random);
        std::vector<EntryMove> moves;
        for (std::size_t i = 0; i < chosen.size(); ++i)
            moves.push_back({chosen[i], places[i]});
        std::ranges::sort(moves, {}, &EntryMove::to);
        for (const EntryMove& move : moves)
            insertEntries(expected, move.to, {&script.entries[move.from], 1});
        std::ranges::shuffle(moves, random);
        moveEntries(script, moves);
        ASSERT_EQ(script, expected);
    }
}

Bytes largeRecord() {
    return joined({{8}, counted(std::string(255, 'c')), word(1000), Bytes(1000, 'c'), {0, 0, 0}});
}

// How much of a large record there is, also in memory that was given back, of which a read in the
// usual way would be a fault itself. Neither looks at its ends, where the heap makes its notes, nor
// takes anything from the heap, which would hand out that very memory.
std::ptrdiff_t leftOfLargeRecord(const std::uint8_t* record) {
    std::array<char, 1000> bytes = {};
    const int memory = open("/proc/self/mem", O_RDONLY | O_CLOEXEC);
    const auto offset = static_cast<off_t>(reinterpret_cast<std::uintptr_t>(record + 100));
    const ssize_t got = pread(memory, bytes.data(), bytes.size(), offset);
    close(memory);
    return got == ssize_t{bytes.size()} ? std::ranges::count(bytes, 'c') : -1;
}

TEST(EntryHandle, wipesASingleRecordWithItsLastHandleOnly) {
    const Bytes record = largeRecord();
    EntryHandle first = storeRecord(record);
    const std::uint8_t* memory = first.record().data();
    EntryHandle second = first;
    first = numbered(1);
    EXPECT_EQ(second.record().data(), memory);
    EXPECT_EQ(second, storeRecord(record));
    EXPECT_GT(leftOfLargeRecord(memory), 900);
    second = EntryHandle();
    EXPECT_EQ(leftOfLargeRecord(memory), 0);
}

TEST(EntryHandle, ofASingleRecordHasItsBytesLeftOutOfDumps) {
    const EntryHandle kept = storeRecord(largeRecord());
    const auto end = [&] {
        wipeMarkedMemory();
        std::_Exit(std::ranges::count(kept.record(), 'c') == 0 ? 0 : 1);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "");
}

TEST(RecordPages, liveAsLongAsOneOfTheirRecordsAndAreNotCopied) {
    const Bytes bytes = joined({commentRecord("first"), commentRecord("second")});
    auto pages = std::make_shared<SecretPages>(bytes.size());
    std::ranges::copy(bytes, pages->data());
    const std::weak_ptr<SecretPages> watched = pages;
    auto records = std::make_unique<RecordPages>(pages);
    EntryHandle first = records->record(0, 7);
    EntryHandle second = records->record(7, 8);
    records.reset();
    EXPECT_EQ(first.record().data(), pages->data());
    pages.reset();
    first = std::move(second);
    EXPECT_EQ(first, storeRecord(std::span(bytes).subspan(7)));
    EXPECT_EQ(first.code(), CommandCode::Comment);
    EXPECT_FALSE(watched.expired());
    first = EntryHandle();
    EXPECT_TRUE(watched.expired());
}

TEST(RecordStore, keepsRecordsApartWhereABlockIsFullOrTooSmall) {
    RecordStore store(20);
    std::vector<EntryHandle> entries;
    std::vector<Bytes> records;
    for (const std::size_t length : {1UL, 17UL, 3UL, 200UL, 5UL, 5UL, 5UL}) {
        records.push_back(commentRecord(std::string(length, 'x')));
        entries.push_back(store.store(records.back()));
    }
    for (std::size_t i = 0; i < records.size(); ++i)
        EXPECT_TRUE(std::ranges::equal(entries[i].record(), records[i])) << i;
}

}  // namespace
}  // namespace quendra::test
