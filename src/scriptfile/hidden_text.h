// Hidden texts: what a Type record holds in place of a text that must not be readable in the file.
#pragma once

#include "platform/cipher.h"
#include "platform/secret_memory.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// A deciphered text of at most 255 bytes, wiped when it goes. `exact` is false when enciphering it
/// again would not give the same bytes, as with another user's key that passes the padding check by
/// chance: then the enciphered bytes have to be kept.
class DecipheredText {
  public:
    /// Takes what deciphering gave: the text, its closing NUL, and nothing else when it is exact.
    explicit DecipheredText(std::span<const std::uint8_t> plain);
    DecipheredText(const DecipheredText&) = default;
    DecipheredText& operator=(const DecipheredText&) = default;
    ~DecipheredText();

    [[nodiscard]] std::string_view text() const { return {bytes_.data(), size_}; }
    [[nodiscard]] bool exact() const { return exact_; }

  private:
    std::array<char, 255> bytes_ = {};
    std::size_t size_ = 0;
    bool exact_ = false;
    SecretMark mark_{this, sizeof(DecipheredText)};
};

/// Gives the text of the user's identity, or an empty one while there is none.
using IdentitySource = std::function<std::string()>;

/// Enciphers and deciphers under the key of one user identity. The key is derived at the first
/// text: most scripts hide none, and setting up the cipher would hold up every start of the editor.
/// For one thread.
///
/// Without an identity texts are only obscured, under the key that every machine without one
/// shares. As long as there is none it is asked for again at each use. Once there is one it stays,
/// and what was obscured until then is still read: encipheredAnew() brings it under the new key.
class HiddenTextCipher {
  public:
    /// Of the identity's text the first 63 bytes count.
    explicit HiddenTextCipher(std::string_view identity);
    explicit HiddenTextCipher(IdentitySource source);

    /// From now on `report` is told of the steps of the cipher that fail, of each once: a failing
    /// cipher fails for every text.
    void reportTo(CipherReport report);

    /// The enciphered form of a text with its closing NUL; none when no key could be made or the
    /// cipher fails. Fits a record when the text is at most 246 bytes.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> encipher(std::string_view text) const;

    /// The text up to its first NUL, or none when the bytes were not enciphered under this key.
    [[nodiscard]] std::optional<DecipheredText> decipher(
        std::span<const std::uint8_t> enciphered) const;

    /// There is no identity: a text enciphered now is only obscured.
    [[nodiscard]] bool onlyObscures() const;

    /// There was no identity at first, and texts may have been obscured or read then.
    [[nodiscard]] bool hasObscuredTexts() const;

  private:
    /// Null when no key could be made.
    [[nodiscard]] const TripleDesCbc* cipher() const;
    [[nodiscard]] std::optional<DecipheredText> decipherWith(
        const TripleDesCbc& cipher, std::span<const std::uint8_t> enciphered) const;
    /// Asks for the identity where there is none yet.
    void findIdentity() const;
    void tell(const CipherFailure& failure) const;

    struct KeyMaterial {
        explicit KeyMaterial(std::string_view material);
        KeyMaterial(const KeyMaterial&) = default;
        KeyMaterial& operator=(const KeyMaterial&) = default;
        ~KeyMaterial();

        std::array<char, 63> bytes{};
        std::size_t size = 0;
        SecretMark mark{this, sizeof(KeyMaterial)};
    };

    IdentitySource source_;
    CipherReport report_;
    mutable KeyMaterial material_;
    mutable bool isDerived_ = false;
    mutable std::optional<TripleDesCbc> cipher_;
    /// That of the time without an identity, once it is over.
    mutable std::optional<TripleDesCbc> obscuring_;
    mutable std::vector<CipherStep> told_;
};

}  // namespace quendra
