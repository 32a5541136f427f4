// A file descriptor that is closed when its owner goes.
#pragma once

#include <unistd.h>
#include <utility>

namespace quendra {

/// Owns one descriptor, or none. Where the result of closing matters, close() is called before.
class Descriptor {
  public:
    explicit Descriptor(int descriptor = -1) : descriptor_(descriptor) {}
    Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other && descriptor_ >= 0) ::close(descriptor_);
        descriptor_ = std::exchange(other.descriptor_, -1);
        return *this;
    }
    ~Descriptor() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }
    /// Gives the descriptor away.
    [[nodiscard]] int release() { return std::exchange(descriptor_, -1); }
    [[nodiscard]] bool close() { return ::close(std::exchange(descriptor_, -1)) == 0; }

  private:
    int descriptor_;
};

}  // namespace quendra
