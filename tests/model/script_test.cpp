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

Script numberedScript(std::size_t count) {
    Script script;
    for (std::size_t i = 0; i < count; ++i)
        script.entries.push_back(numbered(i));
    return script;
}

std::vector<std::size_t> someIndexes(std::mt19937& random, std::size_t count) {
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < count; ++i)
        if (random() % 3 == 0) indexes.push_back(i);
    return indexes;
}

}  // namespace

TEST(Script, insertsUpToTheLimitAndNoFurther) {
    Script script = numberedScript(4090);
    const Script added = numberedScript(10);
    EXPECT_EQ(insertEntries(script, 5, added.entries), 6u);
    EXPECT_TRUE(script.isFull());
    EXPECT_EQ(script.entries[5], numbered(0));
    EXPECT_EQ(script.entries[10], numbered(5));
    EXPECT_EQ(script.entries[11], numbered(5));
    EXPECT_EQ(insertEntries(script, 0, added.entries), 0u);
}

TEST(Script, removesAnySelectionLikeOneByOne) {
    std::mt19937 random(1);
    for (std::size_t count = 0; count < 40; ++count) {
        Script script = numberedScript(count);
        auto expected = script.entries;
        const auto indexes = someIndexes(random, count);
        for (const std::size_t index : std::views::reverse(indexes))
            expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
        removeEntries(script, indexes);
        EXPECT_EQ(script.entries, expected);
    }
}

TEST(Script, movesEntriesToTheirPlacesAndKeepsTheOrderOfTheRest) {
    std::mt19937 random(2);
    for (std::size_t count = 1; count < 40; ++count) {
        Script script = numberedScript(count);
        const auto from = someIndexes(random, count);
        std::vector<std::size_t> to(count);
        std::iota(to.begin(), to.end(), std::size_t{0});
        std::ranges::shuffle(to, random);
        std::vector<EntryMove> moves;
        for (std::size_t i = 0; i < from.size(); ++i)
            moves.push_back({from[i], to[i]});
        // Those that stay, with the moved ones put among them from the front to the back.
        Script expected = script;
        removeEntries(expected, from);
        std::ranges::sort(moves, {}, &EntryMove::to);
        for (const EntryMove& move : moves)
            insertEntries(expected, move.to, {&script.entries[move.from], 1});
        std::ranges::shuffle(moves, random);
        moveEntries(script, moves);
        EXPECT_EQ(script, expected);
    }
}

TEST(EntryHandle, wipesARecordWithItsLastHandleOnly) {
    const std::string secret = "canary-in-a-comment";
    EntryHandle kept = numbered(1);
    EntryHandle first = storeRecord(joined({{6}, counted(secret)}));
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
    const Bytes bytes = joined({{6}, counted("first"), {6}, counted("second")});
    SecretPages pages(bytes.size());
    std::ranges::copy(bytes, pages.data());
    const std::uint8_t* memory = pages.data();
    auto records = std::make_unique<RecordsInPlace>(std::move(pages), 2);
    EntryHandle first = records->record(0, 7);
    const EntryHandle second = records->record(7, 8);
    records.reset();
    EXPECT_EQ(first.record().data(), memory) << "not copied";
    EXPECT_EQ(second, storeRecord(std::span(bytes).subspan(7)));
    first = EntryHandle();
    EXPECT_EQ(std::count(memory, memory + 7, 0), 7);
    EXPECT_EQ(second.record().front(), 6);
}

}  // namespace quendra::test
