// From the bytes of a script file to a script.
#pragma once

#include "model/script.h"
#include "platform/secret_memory.h"
#include "scriptfile/format_version.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quendra {

/// Why nothing at all was read.
enum class ReadRefusal : std::uint8_t { TooShort, UnknownSignature };

/// Why reading stopped before the end of the file.
enum class ReadStop : std::uint8_t {
    /// It did not: the file was read whole.
    None,
    EndInsideRecord,
    UnknownCode,
    PromptTooLong,
    NestedTooDeep,
    TooManyEntries,
    /// More bytes than any script of 4096 entries has.
    FileTooLong,
};

/// What came out of a file. The script holds the entries before the one that stopped the reading,
/// never a part of one.
struct ReadResult {
    std::optional<ReadRefusal> refusal;
    Signature signature;
    Script script;
    ReadStop stop = ReadStop::None;
    /// Byte offset in the file of what stopped the reading.
    std::size_t stopOffset = 0;

    [[nodiscard]] bool isWhole() const { return !refusal && stop == ReadStop::None; }
    [[nodiscard]] bool isOlderVersion() const { return signature.version != currentVersion; }
};

/// Bytes of a file that are worth reading: the largest script has 13 million.
inline constexpr std::size_t maxScriptFileSize = std::size_t{16} * 1024 * 1024;

/// Reads a script file of any version from its bytes; of more than maxScriptFileSize only so many
/// are looked at. The bytes are copied as a whole, once. Needs no key: hidden texts stay
/// enciphered. Any bytes at all are fine; it takes time in proportion to their number.
[[nodiscard]] ReadResult readScript(std::span<const std::uint8_t> bytes);

/// The same for the `size` bytes of a file that was read into pages of its own, which nobody may
/// write to any more: the entries of a current script lie there and share them.
[[nodiscard]] ReadResult readScript(std::shared_ptr<const SecretPages> pages, std::size_t size);

}  // namespace quendra
