// Hidden texts: what a Type record holds in place of a text that must not be readable in the file.
#pragma once

#include "platform/cipher.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// A deciphered text. `exact` is false when enciphering it again would not give the same bytes, as
/// with another user's key that passes the padding check by chance: then the enciphered bytes have
/// to be kept.
struct DecipheredText {
    std::string text;
    bool exact = false;

    ~DecipheredText();
};

/// Enciphers and deciphers under the key of one user identity; the key is derived once, when it is
/// made.
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
    std::optional<TripleDesCbc> cipher_;
};

}  // namespace quendra
