// Differences and merges of small scripts, written as words: "a12" is an Input with the title "a",
// the prompt "1" and at most 2 characters.
#include "compare/common_parts.h"
#include "compare/script_diff.h"
#include "compare/script_merge.h"
#include "model/entry_fields.h"
#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace quendra::test {
namespace {

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// A word of one letter or of marks is a Comment.
EntryHandle entryOf(const std::string& word) {
    ScriptEntry entry;
    entry.code = word.size() == 3 ? CommandCode::Input : CommandCode::Comment;
    setText(entry, word.size() == 3 ? word.substr(0, 1) : word);
    if (word.size() == 3) {
        setPrompt(entry, word.substr(1, 1));
        entry.maxLength = static_cast<std::uint8_t>(word[2] - '0');
    }
    return packSealedEntry(entry).entry;
}

Script scriptOf(const std::string& words) {
    Script script;
    for (const std::string& word : wordsOf(words))
        script.entries.push_back(entryOf(word));
    return script;
}

std::string textOfScript(const Script& script) {
    std::string words;
    forEachSealedEntry(script, [&](const ScriptEntry& entry) {
        if (!words.empty()) words += ' ';
        words += textOf(entry);
        if (entry.code != CommandCode::Input) return;
        words += promptOf(entry);
        words += std::to_string(entry.maxLength);
    });
    return words;
}

std::size_t lengthByTable(const std::vector<std::uint32_t>& left,
                          const std::vector<std::uint32_t>& right) {
    std::vector<std::vector<std::size_t>> best(left.size() + 1,
                                               std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 1; i <= left.size(); ++i) {
        for (std::size_t j = 1; j <= right.size(); ++j) {
            best[i][j] = left[i - 1] == right[j - 1] ? best[i - 1][j - 1] + 1
                                                     : std::max(best[i - 1][j], best[i][j - 1]);
        }
    }
    return best.back().back();
}

TEST(CommonPart, IsALongestOneAcrossTheEdgesOfWords) {
    std::mt19937 random(1);
    for (std::uint32_t round = 0; round < 300; ++round) {
        std::vector<std::uint32_t> lists[2];
        for (auto& list : lists) {
            list.resize(random() % 200);
            for (auto& value : list)
                value = static_cast<std::uint32_t>(random() % (1 + round / 10));
        }
        auto& [left, right] = lists;
        if (left.size() + right.size() <= 30) continue;
        const auto places = longestCommonPart(left, right);
        ASSERT_EQ(places.size(), lengthByTable(left, right));
        for (std::size_t i = 0; i < places.size(); ++i) {
            ASSERT_EQ(left[places[i].left], right[places[i].right]);
            if (i == 0) continue;
            ASSERT_LT(places[i - 1].left, places[i].left);
            ASSERT_LT(places[i - 1].right, places[i].right);
        }
    }
}

std::string differences(const std::string& left, const std::string& right) {
    std::string text;
    const auto number = [](const std::optional<std::size_t>& step) {
        return step ? std::to_string(*step) : std::string();
    };
    for (const DiffLine& line : diffLines(diffScripts(scriptOf(left), scriptOf(right)))) {
        if (!text.empty()) text += ' ';
        text +=
            number(line.left) + ".!>+"[static_cast<std::size_t>(line.change)] + number(line.right);
    }
    return text;
}

TEST(Diff, TellsChangedMovedGoneAndNewSteps) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"a b c", "a b c", ""},
        {"", "a b", "+0 +1"},
        {"a b", "", "0+ 1+"},
        {"a12 b12 c12", "a12 b15 c12", "1!1"},
        {"a b c d", "b c d a", "0>3"},
        {"a12 b12", "x99 a15 b12", "0!1 +0"},
        {"a12 x b12", "a13 b13", "0!0 1+ 2!1"},
        {"a a b", "a b", "1+"},
        {"a12 m b", "m b a15", "0+ +2"},
    };
    for (const auto& [left, right, expected] : rows) {
        auto told = wordsOf(differences(left, right));
        auto wanted = wordsOf(expected);
        std::ranges::sort(told);
        std::ranges::sort(wanted);
        EXPECT_EQ(told, wanted) << left << " | " << right;
    }
}

TEST(Diff, KnowsATransferByItsHostFile) {
    const auto transfer = [](std::string_view hostFile, std::uint32_t data) {
        FileTransferSettings settings = defaultTransferSettings();
        setTransferText(settings, transfer::hostFileName, hostFile);
        return storeRecord(transferRecord(settings, 236, data, 0));
    };
    const ScriptDiff diff =
        diffScripts({{transfer("a", 0)}}, {{transfer("b", 0), transfer("a", 1)}});
    EXPECT_EQ(diff.left[0].other, 1U) << "each has one field that differs";
}

TEST(Diff, NamesEachFieldThatAloneWasChangedAndNoOther) {
    for (std::uint32_t code = 1; code <= 23; ++code) {
        if (!isCommandCode(code)) continue;
        for (const std::uint32_t commandId : {202U, 236U}) {
            ScriptEntry left;
            left.code = static_cast<CommandCode>(code);
            left.commandId = commandId;
            left.hasTimeout = 1;
            for (const EntryField& field : fieldsOf(left, Slot::Entry)) {
                if (field.kind == FieldKind::MenuCode || field.name == "hasTimeout") continue;
                ScriptEntry right = left;
                const FieldValue value = isText(field.kind) ? FieldValue("x") : FieldValue(77U);
                ASSERT_EQ(setField(right, Slot::Entry, field, value), FieldRefusal::None);
                const auto told = fieldDifferences(left, right);
                ASSERT_EQ(told.size(), 1U) << code << field.name;
                EXPECT_EQ(told[0].name, fieldPath(Slot::Entry, field));
            }
        }
    }
}

std::string merged(const std::string& base, const std::string& ours, const std::string& theirs) {
    const Script scripts[] = {scriptOf(base), scriptOf(ours), scriptOf(theirs)};
    return textOfScript(mergeScripts({scripts[0], HostType::UTS}, {scripts[1], HostType::UTS, "O"},
                                     {scripts[2], HostType::UTS, "T"})
                            .script);
}

TEST(Merge, KeepsWhatEitherSideDid) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"a b c", "a x b c", "a b c y", "a x b c y"},
        {"a b c d", "b c d", "a b c", "b c"},
        {"a b", "a x b", "a y b", "a x y b"},
        {"a b", "a x b", "a p x q b", "a p x q b"},
        {"", "x y", "x z", "x y z"},
        {"a12 b12", "a52 b12", "a12 b15", "a52 b15"},
        {"a12 b12 c12", "a52 b12 c12", "a15 b12 c12", "a55 b12 c12"},
        {"a12 b c d", "b c a12 d", "a15 b c d", "b c a15 d"},
        {"a b c d", "b c a d", "b c d a", "b c a d"},
        {"a b c d", "a d c b", "a x b c d y", "a x d c b y"},
        {"a12 b", "b", "a12 b", "b"},
        {"a12 b12", "a52 b12", "a72 b12", "<<<<<<<_O a52 ======= a72 >>>>>>>_T b12"},
        {"a12 b", "a52 b", "b", "<<<<<<<_O a52 ======= >>>>>>>_T b"},
        {"a12 b c", "b c", "b c a12", "b c <<<<<<<_O ======= a12 >>>>>>>_T"},
        // Ours moved a behind b, and edited b: it is not gone, and not new.
        {"a b12 c d", "b52 a c d", "a b15 c d", "b55 a c d"},
        {"a b12 c d", "a c b52 d", "a b15 c d", "a c b55 d"},
        {"a b12 c d", "b52 a c d", "a c d b12", "a c d b52"},
        {"a b12 c12 d", "b52 c52 a d", "a b15 c15 d", "b55 c55 a d"},
        {"a b12 c d", "b52 a c d", "b15 a c d", "b55 a c d"},
        {"a b c d", "a c d", "a c b d", "a c d"},
        {"a b12 c d", "x99 a c d", "a b15 c d", "x99 a <<<<<<<_O ======= b15 >>>>>>>_T c d"},
    };
    for (const auto& [base, ours, theirs, expected] : rows) {
        std::string wanted = expected;
        std::ranges::replace(wanted, '_', ' ');
        EXPECT_EQ(merged(base, ours, theirs), wanted) << base << " | " << ours << " | " << theirs;
    }
}

// Sealed texts of others are merged without their key, each with its flag.
TEST(Merge, TakesFieldsThatBelongTogetherAsOne) {
    const auto mergedOf = [](const Bytes& base, const Bytes& ours, const Bytes& theirs) {
        const Script scripts[] = {
            {{storeRecord(base)}}, {{storeRecord(ours)}}, {{storeRecord(theirs)}}};
        return mergeScripts({scripts[0], HostType::UTS}, {scripts[1], HostType::UTS},
                            {scripts[2], HostType::UTS});
    };
    const Bytes clear = joined({{15}, counted("a"), {0}});
    const Bytes sealed = hiddenTypeRecord("Secret", "somebody else");
    EXPECT_EQ(mergedOf(clear, clear, sealed).script.entries[0], storeRecord(sealed));
    EXPECT_EQ(mergedOf(clear, joined({{15}, counted("b"), {0}}), sealed).conflicts, 1U);
    EXPECT_EQ(mergedOf({14, 1, 1}, {14, 2, 1}, {14, 1, 2}).conflicts, 1U) << "a position";
    // One switches the time-out off, the other one changes an action that then is no more.
    const Bytes timed = {17, 1, 'a', 1, 1, 0, 1, 1, 9, 10, 1, 'l', 0};
    const Bytes endless = {17, 1, 'a', 1, 1, 0, 1, 0};
    const Bytes other = {17, 1, 'a', 1, 1, 0, 1, 1, 9, 10, 1, 'm', 0};
    const Bytes longer = {17, 1, 'a', 1, 1, 0, 1, 1, 8, 10, 1, 'l', 0};
    EXPECT_EQ(mergedOf(timed, endless, other).conflicts, 1U);
    EXPECT_EQ(mergedOf(timed, endless, longer).conflicts, 1U);
    EXPECT_EQ(mergedOf(endless, timed, endless).script.entries[0], storeRecord(timed));
    EXPECT_EQ(mergedOf(timed, other, longer).script.entries[0],
              storeRecord(Bytes{17, 1, 'a', 1, 1, 0, 1, 1, 8, 10, 1, 'm', 0}));
}

TEST(Merge, RefusesWhatNoScriptCouldHold) {
    const Script none;
    const Script a = scriptOf("a");
    EXPECT_EQ(mergeScripts({a, HostType::UTS}, {none, HostType::VT}, {a, HostType::ICL}).refusal,
              MergeRefusal::HostTypes);
    const MergeResult taken =
        mergeScripts({a, HostType::UTS}, {a, HostType::VT}, {a, HostType::UTS});
    EXPECT_EQ(taken.hostType, HostType::VT);
    const Script transfer = {{storeRecord(menuRecord(213))}};
    EXPECT_EQ(mergeScripts({none, HostType::UTS}, {none, HostType::VT}, {transfer, HostType::UTS})
                  .refusal,
              MergeRefusal::NotInHostType);
    Script many;
    for (std::size_t i = 0; i < 2500; ++i)
        many.entries.push_back(entryOf("m" + std::to_string(i)));
    Script others;
    for (std::size_t i = 0; i < 2500; ++i)
        others.entries.push_back(entryOf("t" + std::to_string(i)));
    EXPECT_EQ(
        mergeScripts({none, HostType::UTS}, {many, HostType::UTS}, {others, HostType::UTS}).refusal,
        MergeRefusal::TooManyEntries);
}

}  // namespace
}  // namespace quendra::test
