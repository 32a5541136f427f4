// Known answers of the key derivation and of the cipher.
#include "scriptfile/hidden_text.h"

#include "platform/cipher.h"
#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <QByteArray>

#include <gtest/gtest.h>
#include <openssl/crypto.h>
#include <openssl/provider.h>

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

TEST(HiddenText, asksForAMissingIdentityAtEachUseAndThenReadsBothAndStoresUnderIt) {
    std::string identity;
    const HiddenTextCipher cipher([&identity] { return identity; });
    EXPECT_TRUE(cipher.onlyObscures());
    const auto obscured = cipher.encipher("secret").value();
    EXPECT_EQ(obscured, HiddenTextCipher("").encipher("secret"));
    Script script;
    script.entries.push_back(storeRecord(hiddenTypeRecord("secret", "")));
    script.entries.push_back(storeRecord(hiddenTypeRecord("theirs", "{ANOTHER}")));
    EXPECT_EQ(encipheredAnew(script, cipher), script) << "there is nothing better";

    identity = "mine";
    EXPECT_FALSE(cipher.onlyObscures());
    EXPECT_EQ(cipher.decipher(obscured).value().text(), "secret");
    EXPECT_EQ(cipher.encipher("new"), HiddenTextCipher("mine").encipher("new"));
    Script anew = script;
    anew.entries[0] = storeRecord(hiddenTypeRecord("secret", "mine"));
    EXPECT_EQ(encipheredAnew(script, cipher), anew);
    identity = "yours";
    EXPECT_EQ(cipher.encipher("new"), HiddenTextCipher("mine").encipher("new")) << "it stays";
    const HiddenTextCipher from([&identity] { return identity; });
    EXPECT_FALSE(from.decipher(obscured)) << "obscured by somebody else, some other time";
}

// A system whose rules allow neither SHA-1 nor Triple DES.
class WithoutAlgorithms {
  public:
    WithoutAlgorithms() : none_(OSSL_PROVIDER_load(context_, "null")) {
        before_ = OSSL_LIB_CTX_set0_default(context_);
    }
    ~WithoutAlgorithms() {
        OSSL_LIB_CTX_set0_default(before_);
        OSSL_PROVIDER_unload(none_);
        OSSL_LIB_CTX_free(context_);
    }
    WithoutAlgorithms(const WithoutAlgorithms&) = delete;
    WithoutAlgorithms& operator=(const WithoutAlgorithms&) = delete;

  private:
    OSSL_LIB_CTX* context_ = OSSL_LIB_CTX_new();
    OSSL_PROVIDER* none_;
    OSSL_LIB_CTX* before_ = nullptr;
};

TEST(HiddenText, tellsOnceOfEachStepThatFailsAndNeverOfBadData) {
    std::vector<std::string> told;
    const auto listen = [&told](HiddenTextCipher& cipher) {
        cipher.reportTo([&told](const CipherFailure& failure) {
            told.push_back(cipherFailureTitle(failure.step) + ' ' + failure.reason);
        });
    };
    HiddenTextCipher mine("mine");
    listen(mine);
    const auto theirs = HiddenTextCipher("theirs").encipher("password").value();
    for (const auto& data : {theirs, Bytes(8, 0), Bytes(7, 1)})
        EXPECT_FALSE(mine.decipher(data));
    EXPECT_EQ(told, std::vector<std::string>());

    const auto key = deriveTripleDesKey("mine").value();
    const WithoutAlgorithms system;
    HiddenTextCipher failing("mine");
    listen(failing);
    for (int text = 0; text < 2; ++text) {
        EXPECT_FALSE(failing.encipher("x"));
        EXPECT_FALSE(failing.decipher(theirs));
    }
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].find("Error during CryptCreateHash. unsupported"), 0U) << told[0];
    CipherStep failed = CipherStep::CreateHash;
    const TripleDesCbc bare(key, [&](const CipherFailure& failure) { failed = failure.step; });
    EXPECT_EQ(failed, CipherStep::DeriveKey);
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
