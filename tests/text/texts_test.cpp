// windows-1252 and UTF-8, what a terminal may see, and texts of translators, who make mistakes.
#include "text/format_text.h"
#include "text/text_encoding.h"

#include <gtest/gtest.h>

namespace quendra {

TEST(TextEncoding, keepsEveryByteAndRefusesWhatTheEncodingLacksAndWhatIsNoUtf8) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(windows1252FromUtf8(utf8FromWindows1252(all)), all);
    EXPECT_EQ(utf8FromWindows1252("\x80\x81\xE4\xFF"), "\u20AC\u0081\u00E4\u00FF");
    for (const char* text : {"\u0100", "\u0080", "\U0001F600", "\xC0\x80", "\xED\xA0\x80",
                             "\xE2\x82", "\xFF", "a\x80"})
        EXPECT_FALSE(windows1252FromUtf8(text)) << text;
}

TEST(TextEncoding, escapesControlCharactersOnly) {
    EXPECT_EQ(escapeControlCharacters("a\tb\x1b[0m\x7f\\x41"), "a\\x09b\\x1b[0m\\x7f\\x41");
    EXPECT_EQ(escapeControlCharacters("\u0081\u00A0\u20AC"), "\\x81\u00A0\u20AC");
    EXPECT_EQ(escapeControlCharacters(std::string("\0", 1)), "\\x00");
}

TEST(FormatText, fillsThePlacesFromLeftToRightAndLeavesTheRestAsItStands) {
    EXPECT_EQ(formatText("%s %d of %u? %n 5% %", {"Delete", "3", "4"}), "Delete 3 of 4? %n 5% %");
    EXPECT_EQ(formatText("%s and %s", {"one"}), "one and %s");
    EXPECT_EQ(formatText("%%s is %s, %s", {"50%s", "b"}), "%s is 50%s, b");
}

}  // namespace quendra
