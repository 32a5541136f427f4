#include "platform/cipher.h"

#include "platform/secret_memory.h"

#include <algorithm>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/proverr.h>
#include <utility>

namespace quendra {

namespace {

using Sha1Hash = std::array<std::uint8_t, 20>;

// Gives nothing, after telling in the system's words what failed last. Takes all failures off its
// list, which would grow.
std::nullopt_t fail(CipherStep step, const CipherReport& report) {
    const char* details = nullptr;
    int flags = 0;
    const auto error = ERR_peek_last_error_all(nullptr, nullptr, nullptr, &details, &flags);
    const char* const words = ERR_reason_error_string(error);
    std::string reason = words ? words : "unknown error";
    if (details && *details && (flags & ERR_TXT_STRING) != 0)
        reason += std::string(" (") + details + ")";
    ERR_clear_error();
    if (report) report({step, std::move(reason)});
    return std::nullopt;
}

struct FreeDigest {
    void operator()(EVP_MD* digest) const { EVP_MD_free(digest); }
};
using Digest = std::unique_ptr<EVP_MD, FreeDigest>;

std::optional<Sha1Hash> sha1(const EVP_MD* digest, std::span<const std::uint8_t> data) {
    Sha1Hash hash{};
    unsigned int length = 0;
    const bool done =
        EVP_Digest(data.data(), data.size(), hash.data(), &length, digest, nullptr) == 1;
    if (!done || length != hash.size()) return std::nullopt;
    return hash;
}

std::optional<Sha1Hash> paddedHash(const EVP_MD* digest, const Sha1Hash& hash,
                                   std::uint8_t filler) {
    std::array<std::uint8_t, 64> block{};
    block.fill(filler);
    for (std::size_t i = 0; i < hash.size(); ++i) {
        block[i] = static_cast<std::uint8_t>(block[i] ^ hash[i]);
    }
    const auto padded = sha1(digest, block);
    wipeMemory(block.data(), block.size());
    return padded;
}

struct FreeContext {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};

using Context = std::unique_ptr<EVP_CIPHER_CTX, FreeContext>;

constexpr std::array<std::uint8_t, 8> zeroVector = {};

// Both are made with the key at hand, and fail alike: one of them tells.
Context makeContext(const TripleDesKey& key, CipherStep step, const CipherReport& report) {
    Context context(EVP_CIPHER_CTX_new());
    const bool encrypts = step == CipherStep::Encrypt;
    if (context && EVP_CipherInit_ex(context.get(), EVP_des_ede3_cbc(), nullptr, key.data(),
                                     zeroVector.data(), encrypts ? 1 : 0) == 1) {
        return context;
    }
    static_cast<void>(fail(CipherStep::DeriveKey, encrypts ? report : CipherReport()));
    return nullptr;
}

// Whether the last failure says no more than that the bytes were not enciphered under this key.
bool isBadData() {
    const auto error = ERR_peek_last_error();
    const int reason = ERR_GET_REASON(error);
    switch (ERR_GET_LIB(error)) {
        case ERR_LIB_PROV:
            return reason == PROV_R_BAD_DECRYPT || reason == PROV_R_WRONG_FINAL_BLOCK_LENGTH;
        case ERR_LIB_EVP:
            return reason == EVP_R_BAD_DECRYPT || reason == EVP_R_WRONG_FINAL_BLOCK_LENGTH;
        default: return false;
    }
}

using Bytes = std::optional<std::vector<std::uint8_t>>;

Bytes failRun(CipherStep step, const CipherReport& report) {
    const bool isSilent = step == CipherStep::Decrypt && isBadData();
    return fail(step, isSilent ? CipherReport() : report);
}

Bytes runCipher(EVP_CIPHER_CTX* context, std::span<const std::uint8_t> input, CipherStep step,
                const CipherReport& report) {
    if (!context) return std::nullopt;
    // A null cipher and key keep the key schedule; only the chaining starts anew.
    if (EVP_CipherInit_ex(context, nullptr, nullptr, nullptr, zeroVector.data(), -1) != 1) {
        return failRun(step, report);
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
        return failRun(step, report);
    }
    output.resize(static_cast<std::size_t>(written) + static_cast<std::size_t>(last));
    return output;
}

}  // namespace

std::string cipherFailureTitle(CipherStep step) {
    switch (step) {
        case CipherStep::CreateHash: return "Error during CryptCreateHash.";
        case CipherStep::HashData: return "Error during CryptHashData.";
        case CipherStep::DeriveKey: return "Error during CryptDeriveKey.";
        case CipherStep::Encrypt: return "Error during CryptEncrypt.";
        case CipherStep::Decrypt: break;
    }
    return "Error during CryptDecrypt.";
}

std::optional<TripleDesKey> deriveTripleDesKey(std::string_view material,
                                               const CipherReport& report) {
    const Digest digest(EVP_MD_fetch(nullptr, "SHA1", nullptr));
    if (!digest) return fail(CipherStep::CreateHash, report);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(material.data());
    auto hash = sha1(digest.get(), {bytes, material.size()});
    if (!hash) return fail(CipherStep::HashData, report);
    auto first = paddedHash(digest.get(), *hash, 0x36);
    auto second = paddedHash(digest.get(), *hash, 0x5C);
    wipeMemory(hash->data(), hash->size());
    if (!first || !second) return fail(CipherStep::DeriveKey, report);
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

TripleDesCbc::TripleDesCbc(const TripleDesKey& key, const CipherReport& report)
    : contexts_(
          std::make_unique<Contexts>(Contexts{makeContext(key, CipherStep::Encrypt, report),
                                              makeContext(key, CipherStep::Decrypt, report)})) {}
TripleDesCbc::~TripleDesCbc() = default;
TripleDesCbc::TripleDesCbc(TripleDesCbc&&) noexcept = default;
TripleDesCbc& TripleDesCbc::operator=(TripleDesCbc&&) noexcept = default;

std::optional<std::vector<std::uint8_t>> TripleDesCbc::encipher(std::span<const std::uint8_t> plain,
                                                                const CipherReport& report) const {
    return runCipher(contexts_->encipher.get(), plain, CipherStep::Encrypt, report);
}

std::optional<std::vector<std::uint8_t>> TripleDesCbc::decipher(
    std::span<const std::uint8_t> enciphered, const CipherReport& report) const {
    if (enciphered.empty() || enciphered.size() % 8 != 0) return std::nullopt;
    return runCipher(contexts_->decipher.get(), enciphered, CipherStep::Decrypt, report);
}

}  // namespace quendra
