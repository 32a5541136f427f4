// The list operations against the plain loops that they replace, and the shared records below them.
#include "model/script.h"

#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <random>
#include <ranges>

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

TEST(EntryHandle, wipesARecordWithItsLastHandleOnly) {
    EntryHandle kept = numbered(1);
    EntryHandle first = storeRecord(commentRecord("canary-in-a-comment"));
    const std::uint8_t* memory = first.record().data();
    const std::size_t size = first.record().size();
    EntryHandle second = first;
    first = kept;
    EXPECT_EQ(second.record().data(), memory);
    EXPECT_EQ(second.code(), CommandCode::Comment);
    second = EntryHandle();
    // The chunk is still alive through `kept`, so the memory may be looked at.
    EXPECT_EQ(std::count(memory, memory + size, 0), static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(kept, numbered(1));
}

TEST(EntryHandle, ofARecordInPlaceKeepsTheBytesAndWipesItsOwn) {
    const Bytes bytes = joined({commentRecord("first"), commentRecord("second")});
    SecretPages pages(bytes.size());
    std::ranges::copy(bytes, pages.data());
    const std::uint8_t* memory = pages.data();
    auto records = std::make_unique<RecordsInPlace>(std::move(pages), 2);
    EntryHandle first = records->record(0, 7);
    const EntryHandle second = records->record(7, 8);
    records.reset();
    EXPECT_EQ(first.record().data(), memory) << "not copied";
    first = EntryHandle();
    EXPECT_EQ(std::count(memory, memory + 7, 0), 7);
    EXPECT_EQ(second, storeRecord(std::span(bytes).subspan(7)));
}

}  // namespace
}  // namespace quendra::test
