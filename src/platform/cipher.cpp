#include "platform/cipher.h"

#include "platform/secret_memory.h"

#include <algorithm>
#include <openssl/evp.h>

namespace quendra {

namespace {

using Sha1Hash = std::array<std::uint8_t, 20>;

std::optional<Sha1Hash> sha1(std::span<const std::uint8_t> data) {
    Sha1Hash hash{};
    unsigned int length = 0;
    const bool done =
        EVP_Digest(data.data(), data.size(), hash.data(), &length, EVP_sha1(), nullptr) == 1;
    if (!done || length != hash.size()) return std::nullopt;
    return hash;
}

std::optional<Sha1Hash> paddedHash(const Sha1Hash& hash, std::uint8_t filler) {
    std::array<std::uint8_t, 64> block{};
    block.fill(filler);
    for (std::size_t i = 0; i < hash.size(); ++i) {
        block[i] = static_cast<std::uint8_t>(block[i] ^ hash[i]);
    }
    const auto padded = sha1(block);
    wipeMemory(block.data(), block.size());
    return padded;
}

struct FreeContext {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};
using Context = std::unique_ptr<EVP_CIPHER_CTX, FreeContext>;

constexpr std::array<std::uint8_t, 8> zeroVector = {};

Context makeContext(const TripleDesKey& key, bool forEncipher) {
    Context context(EVP_CIPHER_CTX_new());
    if (!context || EVP_CipherInit_ex(context.get(), EVP_des_ede3_cbc(), nullptr, key.data(),
                                      zeroVector.data(), forEncipher ? 1 : 0) != 1) {
        return nullptr;
    }
    return context;
}

std::optional<std::vector<std::uint8_t>> runCipher(EVP_CIPHER_CTX* context,
                                                   std::span<const std::uint8_t> input) {
    if (!context) return std::nullopt;
    // A null cipher and key keep the key schedule; only the chaining starts anew.
    if (EVP_CipherInit_ex(context, nullptr, nullptr, nullptr, zeroVector.data(), -1) != 1) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> output(input.size() + 8);
    const SecretMark mark(output.data(), output.size());
    int written = 0;
    int last = 0;
    const bool done = EVP_CipherUpdate(context, output.data(), &written, input.data(),
                                       static_cast<int>(input.size())) == 1 &&
                      EVP_CipherFinal_ex(context, output.data() + written, &last) == 1;
    if (!done) {
        wipeMemory(output.data(), output.size());
        return std::nullopt;
    }
    output.resize(static_cast<std::size_t>(written) + static_cast<std::size_t>(last));
    return output;
}

}  // namespace

std::optional<TripleDesKey> deriveTripleDesKey(std::string_view material) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(material.data());
    auto hash = sha1({bytes, material.size()});
    if (!hash) return std::nullopt;
    auto first = paddedHash(*hash, 0x36);
    auto second = paddedHash(*hash, 0x5C);
    wipeMemory(hash->data(), hash->size());
    if (!first || !second) return std::nullopt;
    TripleDesKey key{};
    auto* end = std::ranges::copy(*first, key.begin()).out;
    std::copy_n(second->begin(), key.size() - first->size(), end);
    wipeMemory(first->data(), first->size());
    wipeMemory(second->data(), second->size());
    return key;
}

struct TripleDesCbc::Contexts {
    Context encipher;
    Context decipher;
};

TripleDesCbc::TripleDesCbc(const TripleDesKey& key)
    : contexts_(
          std::make_unique<Contexts>(Contexts{makeContext(key, true), makeContext(key, false)})) {}
TripleDesCbc::~TripleDesCbc() = default;
TripleDesCbc::TripleDesCbc(TripleDesCbc&&) noexcept = default;
TripleDesCbc& TripleDesCbc::operator=(TripleDesCbc&&) noexcept = default;

std::optional<std::vector<std::uint8_t>> TripleDesCbc::encipher(
    std::span<const std::uint8_t> plain) const {
    return runCipher(contexts_->encipher.get(), plain);
}

std::optional<std::vector<std::uint8_t>> TripleDesCbc::decipher(
    std::span<const std::uint8_t> enciphered) const {
    if (enciphered.empty() || enciphered.size() % 8 != 0) return std::nullopt;
    return runCipher(contexts_->decipher.get(), enciphered);
}

}  // namespace quendra
