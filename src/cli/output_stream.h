// A stream buffer over a descriptor that remembers why writing failed.
#pragma once

#include "platform/files.h"

#include <array>
#include <optional>
#include <streambuf>

namespace quendra::cli {

/// Buffers what a stream writes to a descriptor, which stays open. After a failure (a full disk, a
/// pipe without a reader) everything further is refused, so the stream turns bad.
class DescriptorBuffer : public std::streambuf {
  public:
    explicit DescriptorBuffer(int descriptor);
    DescriptorBuffer(const DescriptorBuffer&) = delete;
    DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;
    ~DescriptorBuffer() override = default;

    [[nodiscard]] const std::optional<FileFailure>& failure() const { return failure_; }

  protected:
    int_type overflow(int_type character) override;
    int sync() override;

  private:
    int descriptor_;
    std::optional<FileFailure> failure_;
    std::array<char, 65536> buffer_ = {};
};

}  // namespace quendra::cli
