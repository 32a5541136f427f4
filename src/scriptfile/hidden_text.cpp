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

HiddenTextCipher::HiddenTextCipher(std::string_view identity) : material_(identity) {}

HiddenTextCipher::HiddenTextCipher(IdentitySource source)
    : source_(std::move(source)), material_("") {}

void HiddenTextCipher::reportTo(CipherReport report) {
    report_ = std::move(report);
}

void HiddenTextCipher::tell(const CipherFailure& failure) const {
    if (!report_ || std::ranges::find(told_, failure.step) != told_.end()) return;
    told_.push_back(failure.step);
    report_(failure);
}

void HiddenTextCipher::findIdentity() const {
    if (material_.size > 0 || !source_) return;
    std::string identity = source_();
    if (identity.empty()) return;
    material_ = KeyMaterial(identity);
    wipeMemory(identity.data(), identity.size());
    obscuring_ = std::exchange(cipher_, std::nullopt);
    isDerived_ = false;
}

bool HiddenTextCipher::onlyObscures() const {
    findIdentity();
    return material_.size == 0;
}

bool HiddenTextCipher::hasObscuredTexts() const {
    findIdentity();
    return obscuring_.has_value();
}

const TripleDesCbc* HiddenTextCipher::cipher() const {
    findIdentity();
    if (!std::exchange(isDerived_, true)) {
        const CipherReport report = [this](const CipherFailure& failure) { tell(failure); };
        if (auto key = deriveTripleDesKey({material_.bytes.data(), material_.size}, report)) {
            cipher_.emplace(*key, report);
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
    auto enciphered =
        cipher->encipher(plain, [this](const CipherFailure& failure) { tell(failure); });
    wipeMemory(plain.data(), plain.size());
    return enciphered;
}

std::optional<DecipheredText> HiddenTextCipher::decipherWith(
    const TripleDesCbc& cipher, std::span<const std::uint8_t> enciphered) const {
    auto plain =
        cipher.decipher(enciphered, [this](const CipherFailure& failure) { tell(failure); });
    if (!plain) return std::nullopt;
    const SecretMark mark(plain->data(), plain->size());
    std::optional<DecipheredText> result(std::in_place, *plain);
    wipeMemory(plain->data(), plain->size());
    return result;
}

std::optional<DecipheredText> HiddenTextCipher::decipher(
    std::span<const std::uint8_t> enciphered) const {
    const TripleDesCbc* const cipher = this->cipher();
    if (!cipher) return std::nullopt;
    auto text = decipherWith(*cipher, enciphered);
    if (!obscuring_ || (text && text->exact())) return text;
    auto obscured = decipherWith(*obscuring_, enciphered);
    return obscured && obscured->exact() ? obscured : text;
}

}  // namespace quendra
