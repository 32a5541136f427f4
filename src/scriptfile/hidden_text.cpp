#include "scriptfile/hidden_text.h"

#include <algorithm>
#include <utility>

namespace quendra {

DecipheredText::DecipheredText(std::span<const std::uint8_t> plain) {
    const auto end = std::ranges::find(plain, std::uint8_t{0});
    const auto length = static_cast<std::size_t>(end - plain.begin());
    size_ = std::min(length, bytes_.size());
    std::copy_n(plain.begin(), size_, bytes_.begin());
    exact_ = end != plain.end() && size_ + 1 == plain.size();
}

DecipheredText::~DecipheredText() {
    wipeMemory(bytes_.data(), bytes_.size());
}

HiddenTextCipher::KeyMaterial::KeyMaterial(std::string_view material)
    : size(std::min(material.size(), bytes.size())) {
    std::copy_n(material.begin(), size, bytes.begin());
}

HiddenTextCipher::KeyMaterial::~KeyMaterial() {
    wipeMemory(bytes.data(), bytes.size());
}

HiddenTextCipher::HiddenTextCipher(std::string_view keyMaterial) : material_(keyMaterial) {}

const TripleDesCbc* HiddenTextCipher::cipher() const {
    if (!std::exchange(isDerived_, true)) {
        if (auto key = deriveTripleDesKey({material_.bytes.data(), material_.size})) {
            cipher_.emplace(*key);
            wipeMemory(key->data(), key->size());
        }
    }
    return cipher_ ? &*cipher_ : nullptr;
}

std::optional<std::vector<std::uint8_t>> HiddenTextCipher::encipher(std::string_view text) const {
    const TripleDesCbc* const cipher = this->cipher();
    if (!cipher) return std::nullopt;
    std::vector<std::uint8_t> plain(text.size() + 1);
    const SecretMark mark(plain.data(), plain.size());
    std::ranges::copy(text, plain.begin());
    auto enciphered = cipher->encipher(plain);
    wipeMemory(plain.data(), plain.size());
    return enciphered;
}

std::optional<DecipheredText> HiddenTextCipher::decipher(
    std::span<const std::uint8_t> enciphered) const {
    const TripleDesCbc* const cipher = this->cipher();
    if (!cipher) return std::nullopt;
    auto plain = cipher->decipher(enciphered);
    if (!plain) return std::nullopt;
    const SecretMark mark(plain->data(), plain->size());
    std::optional<DecipheredText> result(std::in_place, *plain);
    wipeMemory(plain->data(), plain->size());
    return result;
}

}  // namespace quendra
