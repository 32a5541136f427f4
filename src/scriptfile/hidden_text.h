// Hidden texts: what a Type record holds in place of a text that must not be readable in the file.
#pragma once

#include "platform/cipher.h"
#include "platform/secret_memory.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
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

/// Enciphers and deciphers under the key of one user identity. The key is derived once, at the
/// first text: most scripts hide none, and setting up the cipher would hold up every start of the
/// editor. For one thread.
class HiddenTextCipher {
  public:
    /// `keyMaterial` is the identity's text, of which the first 63 bytes count; empty material
    /// gives the key that every machine without an identity shares, which only obscures.
    explicit HiddenTextCipher(std::string_view keyMaterial);

    /// The enciphered form of a text with its closing NUL; none when no key could be made or the
    /// cipher fails. Fits a record when the text is at most 246 bytes.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> encipher(std::string_view text) const;

    /// The text up to its first NUL, or none when the bytes were not enciphered under this key.
    [[nodiscard]] std::optional<DecipheredText> decipher(
        std::span<const std::uint8_t> enciphered) const;

  private:
    /// Null when no key could be made.
    [[nodiscard]] const TripleDesCbc* cipher() const;

    struct KeyMaterial {
        explicit KeyMaterial(std::string_view material);
        KeyMaterial(const KeyMaterial&) = default;
        KeyMaterial& operator=(const KeyMaterial&) = default;
        ~KeyMaterial();

        std::array<char, 63> bytes{};
        std::size_t size = 0;
        SecretMark mark{this, sizeof(KeyMaterial)};
    };

    KeyMaterial material_;
    mutable bool isDerived_ = false;
    mutable std::optional<TripleDesCbc> cipher_;
};

}  // namespace quendra
