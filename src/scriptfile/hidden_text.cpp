#include "scriptfile/hidden_text.h"

#include "platform/secret_memory.h"

#include <algorithm>

namespace quendra {

namespace {

constexpr std::size_t maxKeyMaterial = 63;

}  // namespace

DecipheredText::~DecipheredText() {
    wipeMemory(text.data(), text.size());
}

HiddenTextCipher::HiddenTextCipher(std::string_view keyMaterial) {
    auto key = deriveTripleDesKey(keyMaterial.substr(0, maxKeyMaterial));
    if (!key) return;
    cipher_.emplace(*key);
    wipeMemory(key->data(), key->size());
}

std::optional<std::vector<std::uint8_t>> HiddenTextCipher::encipher(std::string_view text) const {
    if (!cipher_) return std::nullopt;
    std::vector<std::uint8_t> plain(text.size() + 1);
    std::ranges::copy(text, plain.begin());
    auto enciphered = cipher_->encipher(plain);
    wipeMemory(plain.data(), plain.size());
    return enciphered;
}

std::optional<DecipheredText> HiddenTextCipher::decipher(
    std::span<const std::uint8_t> enciphered) const {
    if (!cipher_) return std::nullopt;
    auto plain = cipher_->decipher(enciphered);
    if (!plain) return std::nullopt;
    const auto end = std::ranges::find(*plain, std::uint8_t{0});
    DecipheredText result;
    result.text.assign(plain->begin(), end);
    result.exact = end != plain->end() && end + 1 == plain->end();
    wipeMemory(plain->data(), plain->size());
    return result;
}

}  // namespace quendra
