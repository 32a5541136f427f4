// A short text that may be a secret.
#pragma once

#include "platform/secret_memory.h"

#include <cstddef>
#include <string_view>

namespace quendra {

/// At most 255 windows-1252 bytes in memory of their own: left out of crash dumps, and wiped when
/// the text goes or shrinks.
class SecretText {
  public:
    SecretText();
    explicit SecretText(std::string_view bytes);
    SecretText(SecretText&& other) noexcept;
    SecretText& operator=(SecretText&& other) noexcept;
    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;
    ~SecretText();

    /// Valid until the text is changed.
    [[nodiscard]] std::string_view view() const {
        return {reinterpret_cast<const char*>(pages_.data()), size_};
    }
    [[nodiscard]] std::size_t size() const { return size_; }

    /// Puts `bytes` in the place of `removed` bytes at `at`, both within the text. What does not
    /// fit is cut from the end of `bytes`.
    void replace(std::size_t at, std::size_t removed, std::string_view bytes);

  private:
    SecretPages pages_;
    std::size_t size_ = 0;
};

}  // namespace quendra
