// Display lines that the frozen files do not reach, what a search finds in them, and what it must
// never find.
#include "analysis/entry_display.h"
#include "analysis/script_search.h"
#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

const HiddenTextCipher cipher("");

TEST(EntryLine, showsWhatAnEntryMeansAndNeverAHiddenText) {
    const Bytes compare = {9, 1, 'x', 0, 0, 0};
    const Bytes waitFor = {17, 1, 'R', 1, 1, 0, 1, 1, 9};
    const std::pair<Bytes, const char*> rows[] = {
        {{0}, ""},
        {{1, 4, 1}, "<Lu Function 4/1>"},
        {menuRecord(300), "<Menu Command 300>"},
        {{9, 0, 6, 0, 5, 0, 0}, "If_Input_Is  = VarUserPrompt"},
        {joined({{8}, counted("Title"), word(0), {255, 0, 6}}), "Input Title As "},
        {joined({{15}, counted("p\xE4ss"), {0}}), "Type \"p\u00E4ss\""},
        {hiddenTypeRecord("p\xE4ss", ""), "Type \"****\" (H)"},
        {joined({{16}, word(4294967295)}), "Wait 4294967295"},
        {{19, 255, 255, 1, 0, 0, 0, 2, 0, 3, 0, 4, 0, 5, 0, 6, 0},
         "Wait_Until 01-02-65535 03:04:05"},
        {joined({waitFor, {20, 1, 'w', 4}, {12}}), "Wait_For \"R\" If Found Then  Else Return"},
        {joined({compare, {22, 9, 9, 9, 9}, word(0), {23, 7, 6, 0, 0}, word(0)}),
         "If_Input_Is \"x\" = InputStr If Equal Then Copy from r9, c9  -  r9, c9 Else Paste to r7, "
         "c6"},
    };
    for (const auto& [record, line] : rows) {
        const ScriptEntry entry = unpackEntry(storeRecord(record), cipher);
        EXPECT_EQ(formatEntryLine(entry, NumberedNames().of(HostType::UTS)), line);
    }
}

TEST(LastTransferShown, isTheLastOneThatALineShows) {
    FileTransferSettings second;
    setTransferText(second, transfer::hostFileName, "SECOND");
    Script script = {{storeRecord(transferRecord({}, sendFileCommand))}};
    script.entries.push_back(storeRecord(
        joined({{20, 1, 'w'}, transferRecord(second, receiveFileCommand, 0, transferHostTso)})));
    script.entries.push_back(storeRecord(Bytes{4}));
    const auto last = lastTransferShown(script, cipher);
    ASSERT_TRUE(last);
    EXPECT_EQ(last->settings, second);
    EXPECT_EQ(last->host, transferHostTso);
    EXPECT_EQ(last->direction, TransferDirection::Receive);
    EXPECT_FALSE(lastTransferShown({}, cipher));
}

bool finds(const Bytes& record, std::string_view text) {
    const NumberedNames names;
    ScriptSearch search;
    search.update({{storeRecord(record)}}, cipher, names.of(HostType::UTS));
    const auto pattern = TextPattern::of(text, {.ignoreCase = true});
    return !search.find(std::get<TextPattern>(pattern)).empty();
}

TEST(EntrySearch, LooksIntoLinesAndFieldsWithoutRegardToCase) {
    const Bytes home = joined({{7}, counted("H\xc4me")});
    EXPECT_TRUE(finds(home, "goto h\xc3\xa4"));
    EXPECT_FALSE(finds(home, "house"));
    EXPECT_TRUE(finds(joined({{20, 1, 'w', 11}, counted("Lost it")}), "lost it"));
    EXPECT_TRUE(finds(joined({{8, 0}, word(4), bytesOf("Name"), {255, 0, 0}}), "name"));
    EXPECT_TRUE(finds({9, 0, 0, 1, 'Y', 0, 0, 0}, "y"));
}

TEST(EntrySearch, KeepsWhatItKnowsAndFollowsTheScript) {
    const NumberedNames names;
    const DisplayNames uts = names.of(HostType::UTS);
    Script script = {{storeRecord(Bytes{1, 4, 3}), storeRecord(commentRecord("abc")),
                      storeRecord(commentRecord("ab"))}};
    script.entries.push_back(script.entries[1]);
    ScriptSearch search;
    const auto places = [&](std::string_view text) {
        const auto pattern = TextPattern::of(text, {});
        std::vector<std::size_t> steps;
        for (const SearchHit& hit : search.find(std::get<TextPattern>(pattern)))
            steps.push_back(hit.place.step);
        return steps;
    };
    search.update(script, cipher, uts);
    EXPECT_EQ(places("b"), (std::vector<std::size_t>{1, 2, 3}));
    removeEntries(script, std::vector<std::size_t>{0, 2});
    replaceEntry(script, 1, storeRecord(commentRecord("b")));
    search.update(script, cipher, uts);
    EXPECT_EQ(places("b"), (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(places("c"), std::vector<std::size_t>{0});
}

TEST(EntrySearch, NeverLooksIntoHiddenTextsAndThePasswordsOfTransfers) {
    const Bytes type = hiddenTypeRecord("Secret", "");
    const Bytes owners[] = {{}, {20, 1, 'w'}, {9, 0, 0, 0, 0, 0}};
    for (const Bytes& owner : owners) {
        EXPECT_FALSE(finds(joined({owner, type}), "cr"));
        EXPECT_TRUE(finds(joined({owner, type}), "******")) << "the mask";
    }
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::pcFileName, "pc.txt");
    setTransferText(settings, transfer::hostFilePassword, "Secret");
    EXPECT_TRUE(finds(transferRecord(settings, sendFileCommand), "PC.TXT"));
    EXPECT_FALSE(finds(transferRecord(settings, sendFileCommand), "secret"));
}

}  // namespace
}  // namespace quendra::test
