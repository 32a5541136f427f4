// Signatures and versions of the script file: which exist, how their layouts differ, and how the
// numbers of older versions become today's.
#pragma once

#include "hosts/host_type.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace quendra {

inline constexpr std::size_t signatureSize = 8;
inline constexpr char currentVersion = '=';

/// Host type and version character ('2' to '=', in ASCII order) of a script file.
struct Signature {
    HostType hostType = HostType::Mainframe;
    char version = currentVersion;

    bool operator==(const Signature&) const = default;
};

/// The signature that eight bytes are, letters without regard to case; none for all but the 50
/// known ones.
[[nodiscard]] std::optional<Signature> recogniseSignature(std::span<const std::uint8_t> bytes);

/// The eight bytes of a signature.
[[nodiscard]] std::array<std::uint8_t, signatureSize> signatureBytes(const Signature& signature);

/// How records are laid out and numbered: by the version, and for VT files by their own menu
/// numbering. The record form in memory is the current version of a host type other than VT.
struct RecordFormat {
    bool vt = false;
    char version = currentVersion;

    [[nodiscard]] bool isMemoryForm() const { return !vt && version == currentVersion; }
    /// Wait_For carries its search options, and its actions when it has a timeout.
    [[nodiscard]] bool hasSearchOptions() const { return version >= '9'; }
    /// Input names its variable; If_Input_Is has two operands and an else action.
    [[nodiscard]] bool hasVariables() const { return version >= '='; }
    /// Bytes of the transfer settings that the file stores, from the front; the rest reads as zero.
    [[nodiscard]] std::size_t storedTransferSettings() const;
};
[[nodiscard]] RecordFormat recordFormat(const Signature& signature);
inline constexpr RecordFormat memoryForm = {};

/// Today's number of a stored command code byte. Gives values above 23 for bytes that no version
/// defines.
[[nodiscard]] std::uint32_t oldCommandCode(std::uint8_t stored, const RecordFormat& format);
[[nodiscard]] inline std::uint32_t commandCodeFromFile(std::uint8_t stored,
                                                       const RecordFormat& format) {
    return format.version < ':' ? oldCommandCode(stored, format) : stored;
}

/// Menu command numbers: stored to memory (with the renumbering of older versions first) and back
/// for a current file. One to one but for what VT cannot store; see vtStoresMenuCommand.
[[nodiscard]] std::uint32_t menuCommandFromFile(std::uint32_t stored, const RecordFormat& format);
[[nodiscard]] std::uint32_t menuCommandToFile(std::uint32_t commandId, const RecordFormat& format);

/// False for a number that a VT file would give back as another one (213 above all).
[[nodiscard]] bool vtStoresMenuCommand(std::uint32_t commandId);

/// Today's number byte of a stored LU key.
[[nodiscard]] std::uint8_t luNumberFromFile(std::uint8_t stored, const RecordFormat& format);

}  // namespace quendra
