#include "dialogs/secret_text.h"

#include "model/script_entry.h"
#include "platform/secret_memory.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quendra {

SecretText::SecretText() : bytes_(static_cast<char*>(allocateSecretMemory(maxTextLength))) {}

SecretText::SecretText(std::string_view bytes) : SecretText() {
    replace(0, 0, bytes);
}

SecretText::SecretText(SecretText&& other) noexcept
    : bytes_(std::exchange(other.bytes_, nullptr)), size_(std::exchange(other.size_, 0)) {}

SecretText& SecretText::operator=(SecretText&& other) noexcept {
    std::swap(bytes_, other.bytes_);
    std::swap(size_, other.size_);
    return *this;
}

SecretText::~SecretText() {
    if (bytes_ == nullptr) return;
    wipeMemory(bytes_, maxTextLength);
    freeSecretMemory(bytes_, maxTextLength);
}

void SecretText::replace(std::size_t at, std::size_t removed, std::string_view bytes) {
    const std::size_t kept = size_ - removed;
    const std::size_t added = std::min(bytes.size(), maxTextLength - kept);
    std::memmove(bytes_ + at + added, bytes_ + at + removed, kept - at);
    std::copy_n(bytes.begin(), added, bytes_ + at);
    const std::size_t size = kept + added;
    if (size < size_) wipeMemory(bytes_ + size, size_ - size);
    size_ = size;
}

}  // namespace quendra
