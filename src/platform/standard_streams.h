// The standard streams of a command line program: made safe at its start, and written with the
// reason at hand when that fails.
#pragma once

#include "platform/files.h"

#include <array>
#include <optional>
#include <streambuf>

namespace quendra {

/// For the beginning of main(). Started with a standard descriptor closed, the next file opened
/// would take its place, and messages would be written into a script: what is opened here instead
/// refuses to be written. A reader that goes away is a failed write from now on, no signal; so is a
/// limit on the size of files.
void prepareStandardStreams();

/// Writes to a pipe or a device that is there, which stays what it is. None when all was taken.
[[nodiscard]] std::optional<FileFailure> writeToStream(const std::filesystem::path& path,
                                                       std::span<const std::uint8_t> bytes);

/// True when somebody reads what is written to the descriptor from a screen.
[[nodiscard]] bool isTerminal(int descriptor);

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

}  // namespace quendra
