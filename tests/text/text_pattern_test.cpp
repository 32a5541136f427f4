// Searches in windows-1252 and UTF-8: case, words, expressions, and those that never end.
#include "text/text_pattern.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

TextPattern patternOf(std::string_view text, const PatternOptions& options = {}) {
    return std::get<TextPattern>(TextPattern::of(text, options));
}

TEST(TextPattern, FindsByCaseWordAndExpression) {
    constexpr PatternOptions anyCase = {.ignoreCase = true};
    constexpr PatternOptions words = {.wholeWords = true};
    constexpr PatternOptions expression = {.isExpression = true};
    constexpr PatternOptions wordExpression = {.wholeWords = true, .isExpression = true};
    const std::tuple<const char*, PatternOptions, const char*, std::vector<TextMatch>> rows[] = {
        {"aa", {}, "aaaaa", {{0, 2}, {2, 2}}},
        {"a.", {}, "ab", {}},
        {"\u00dcber",
         anyCase,
         "\xfc"
         "ber \xdc"
         "BER",
         {{0, 4}, {5, 4}}},
        {"\u0178", anyCase, "\xff", {{0, 1}}},
        {"U\u0308", {}, "\xdc", {{0, 1}}},
        {"cat", words, "concat cat cat_ cat", {{7, 3}, {16, 3}}},
        {"$x", words, "a$x $x1", {{1, 2}}},
        {"a|bc", expression, "abc", {{0, 1}, {1, 2}}},
        {"x*", expression, "ax", {{0, 0}, {1, 1}, {2, 0}}},
        {"a|ab", wordExpression, "ab a", {{0, 2}, {3, 1}}},
        {"\\Qa+", wordExpression, "ba+ a+", {{4, 2}}},
        {"(?x) a b # one", wordExpression, "abc ab", {{4, 2}}},
        {"(*UCP)(*ANYCRLF)ab", wordExpression, "abc ab", {{4, 2}}},
    };
    for (const auto& [text, options, bytes, matches] : rows) {
        const TextPattern pattern = patternOf(text, options);
        EXPECT_EQ(pattern.matches(bytes), matches) << text;
        EXPECT_FALSE(pattern.takeGaveUp()) << text;
        EXPECT_EQ(patternOf(text, options).isInWindows1252(bytes), !matches.empty()) << text;
    }
    EXPECT_TRUE(patternOf("\u0141", anyCase).isInUtf8("\u0142\u00f3d\u017a")) << "beyond the bytes";
    EXPECT_EQ(replaced("a-b", {{0, 1}, {2, 1}}, "\\0"), "\\0-\\0");
}

TEST(TextPattern, RefusesBadExpressionsAndGivesUpEndlessOnes) {
    const auto bad = TextPattern::of("a)(", {.isExpression = true});
    EXPECT_EQ(std::get<PatternFault>(bad).position, 1U);
    const TextPattern endless = patternOf("(a+)+$", {.isExpression = true});
    EXPECT_FALSE(endless.gaveUp());
    EXPECT_FALSE(endless.isInWindows1252(std::string(200, 'a') + "!"));
    EXPECT_TRUE(endless.takeGaveUp());
    EXPECT_FALSE(endless.gaveUp()) << "told once";
    EXPECT_TRUE(endless.matches(std::string(200, 'a') + "!").empty());
    EXPECT_TRUE(endless.gaveUp());
}

}  // namespace
}  // namespace quendra::test
