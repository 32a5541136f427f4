// Known answers of the key derivation and of the cipher.
#include "scriptfile/hidden_text.h"

#include "platform/cipher.h"
#include "support/fixtures.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

std::string hex(std::span<const std::uint8_t> bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes))
        .toHex()
        .toStdString();
}

TEST(HiddenText, givesTheKnownAnswers) {
    const char* const rows[][4] = {
        {"", "", "d67c99ba25d88b618d638842271fde098812e8e544bc9da4", "98a5439878b91dfb"},
        {"", "secret", "d67c99ba25d88b618d638842271fde098812e8e544bc9da4", "2fc5b369a23fdc12"},
        {"{01234567-89AB-CDEF-0123-456789ABCDEF}", "secret7",
         "283547bcdcc4ff9bb25926a3b6552c8ff5f24ac4c6c785af", "6e81383ba9c29c0b05cd08b28b5dae68"},
    };
    for (const auto& [identity, text, key, enciphered] : rows) {
        EXPECT_EQ(hex(deriveTripleDesKey(identity).value()), key);
        EXPECT_EQ(hex(HiddenTextCipher(identity).encipher(text).value()), enciphered);
    }
}

TEST(HiddenText, readsBackEveryLengthAndCountsOnlySixtyThreeBytesOfTheIdentity) {
    const HiddenTextCipher cipher(std::string(63, 'i'));
    const HiddenTextCipher longer(std::string(63, 'i') + "more");
    for (std::size_t length = 0; length <= 255; ++length) {
        const std::string text(length, 'x');
        const auto enciphered = cipher.encipher(text).value();
        EXPECT_EQ(enciphered.size(), 8 * ((length + 1) / 8 + 1));
        const auto plain = longer.decipher(enciphered);
        ASSERT_TRUE(plain && plain->exact());
        EXPECT_EQ(plain->text(), text);
    }
}

TEST(HiddenText, refusesAnotherKeyAndDamagedBytesAndTellsInexactTextsApart) {
    const HiddenTextCipher mine("mine");
    const auto enciphered = mine.encipher("password").value();
    const auto foreign = HiddenTextCipher("theirs").decipher(enciphered);
    // One key in 256 passes the padding check; even then the text is known not to be exact.
    EXPECT_TRUE(!foreign || !foreign->exact());
    for (const std::size_t size : {0UL, 7UL, 8UL})
        EXPECT_FALSE(mine.decipher(std::span(enciphered).first(size))) << size;
    const TripleDesCbc bare(deriveTripleDesKey("mine").value());
    for (const std::string& content : {std::string("ab\0cd\0", 6), std::string("ab")}) {
        const auto text = mine.decipher(bare.encipher(bytesOf(content)).value());
        ASSERT_TRUE(text);
        EXPECT_EQ(text->text(), "ab");
        EXPECT_FALSE(text->exact());
    }
}

}  // namespace
}  // namespace quendra::test
