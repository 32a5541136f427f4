#include "widgets/secret_text.h"

#include "model/script_entry.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quendra {

SecretText::SecretText() : pages_(maxTextLength) {}

SecretText::SecretText(std::string_view bytes) : SecretText() {
    replace(0, 0, bytes);
}

SecretText::SecretText(SecretText&& other) noexcept
    : pages_(std::move(other.pages_)), size_(std::exchange(other.size_, 0)) {}

SecretText& SecretText::operator=(SecretText&& other) noexcept {
    std::swap(pages_, other.pages_);
    std::swap(size_, other.size_);
    return *this;
}

SecretText::~SecretText() {
    if (pages_.data()) wipeMemory(pages_.data(), maxTextLength);
}

void SecretText::replace(std::size_t at, std::size_t removed, std::string_view bytes) {
    const std::size_t kept = size_ - removed;
    const std::size_t added = std::min(bytes.size(), maxTextLength - kept);
    std::uint8_t* const start = pages_.data();
    std::memmove(start + at + added, start + at + removed, kept - at);
    std::copy_n(bytes.begin(), added, start + at);
    const std::size_t size = kept + added;
    if (size < size_) wipeMemory(start + size, size_ - size);
    size_ = size;
}

}  // namespace quendra
