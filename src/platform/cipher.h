// The cipher service: Triple DES in CBC mode, and the key that the file format derives from a text.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

using TripleDesKey = std::array<std::uint8_t, 24>;

/// A step of the work of enciphering, in their order.
enum class CipherStep : std::uint8_t { CreateHash, HashData, DeriveKey, Encrypt, Decrypt };

/// What the system refused, and its words for why.
struct CipherFailure {
    CipherStep step = CipherStep::CreateHash;
    std::string reason;
};

/// The name under which the failure of a step is told: "Error during CryptCreateHash.".
[[nodiscard]] std::string cipherFailureTitle(CipherStep step);

/// Is told of every failure but bad data; an empty one is not.
using CipherReport = std::function<void(const CipherFailure&)>;

/// The key derived from `material` (its bytes without a NUL): SHA-1, then the extension of a hash
/// that is shorter than the key (the hash XORed into 64 bytes of 36 and of 5C, both hashed again,
/// the first 24 bytes taken). None when the system offers no SHA-1. Parity bits are left as they
/// come; the cipher ignores them.
[[nodiscard]] std::optional<TripleDesKey> deriveTripleDesKey(std::string_view material,
                                                             const CipherReport& report = {});

/// Triple DES, CBC, zero initialisation vector, PKCS#5 padding, with one key schedule for any
/// number of texts. Invalid (and every operation none) when the system refuses the cipher.
class TripleDesCbc {
  public:
    explicit TripleDesCbc(const TripleDesKey& key, const CipherReport& report = {});
    ~TripleDesCbc();
    TripleDesCbc(TripleDesCbc&&) noexcept;
    TripleDesCbc& operator=(TripleDesCbc&&) noexcept;

    /// The enciphered form, 8 * (size / 8 + 1) bytes; none when the cipher fails.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> encipher(
        std::span<const std::uint8_t> plain, const CipherReport& report = {}) const;

    /// The plain bytes; none when the length is no multiple of 8, the padding is wrong (another key
    /// nearly always: both are bad data) or the cipher fails. The caller wipes the result.
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> decipher(
        std::span<const std::uint8_t> enciphered, const CipherReport& report = {}) const;

  private:
    struct Contexts;
    std::unique_ptr<Contexts> contexts_;
};

}  // namespace quendra
