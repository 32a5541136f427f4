// Script files of every host type and version against the bytes and lines that an independent
// encoder gave for them.
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"
#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace quendra::test {

TEST(FrozenCases, areReadWholeAndWrittenAndShownAsExpected) {
    std::set<std::pair<HostType, char>> signatures;
    for (const Case& frozen : frozenCases()) {
        SCOPED_TRACE(frozen.name);
        const ReadResult read = readScript(frozen.file);
        ASSERT_TRUE(read.isWhole());
        EXPECT_EQ(read.signature, (Signature{frozen.hostType, frozen.version}));
        signatures.emplace(frozen.hostType, frozen.version);
        EXPECT_EQ(writeScript(read.script, frozen.hostType), frozen.expected);
        EXPECT_TRUE(unstorableEntries(read.script, frozen.hostType).empty());
        EXPECT_EQ(readScript(frozen.expected).script, read.script);
        const auto lines =
            linesOf(read.script, frozen.hostType, HiddenTextCipher(frozenIdentity()));
        ASSERT_EQ(lines.size(), frozen.lines.size());
        for (std::size_t row = 0; row < lines.size(); ++row) {
            const bool isOpen = std::ranges::count(frozen.openRows, row) > 0;
            EXPECT_EQ(isOpen ? frozen.lines[row] : lines[row], frozen.lines[row]) << "row " << row;
        }
    }
    EXPECT_EQ(frozenCases().size(), 150U);
    EXPECT_EQ(signatures.size(), 50U);
}

}  // namespace quendra::test
