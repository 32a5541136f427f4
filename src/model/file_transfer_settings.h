// The settings of one IND$FILE transfer: a block of 933 bytes, the same in memory and in the script
// file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quendra {

inline constexpr std::size_t transferSettingsSize = 933;

/// The block byte for byte. Its fields are read and written by their place in the table below,
/// since numbers lie unaligned and every byte, those behind a text's NUL too, has to survive a
/// save.
struct FileTransferSettings {
    std::array<std::uint8_t, transferSettingsSize> bytes = {};

    bool operator==(const FileTransferSettings&) const = default;
};

/// What a field holds: a NUL-ended windows-1252 text, one byte (a flag or an index), or an unsigned
/// 32-bit number.
enum class TransferFieldKind : std::uint8_t { Text, Byte, Number };

struct TransferField {
    std::string_view name;
    std::uint16_t offset;
    std::uint16_t size;
    TransferFieldKind kind;
    /// Of a number the largest that the pages offer; 1 is that of a flag.
    std::uint32_t largest = 0;
};

namespace transfer {
using enum TransferFieldKind;
inline constexpr std::uint32_t largestSevenDigits = 9'999'999;

inline constexpr TransferField hostFileName = {"hostFileName", 0, 256, Text};
inline constexpr TransferField member = {"member", 256, 32, Text};
inline constexpr TransferField fileType = {"fileType", 288, 32, Text};
inline constexpr TransferField fileMode = {"fileMode", 320, 32, Text};
inline constexpr TransferField pcFileName = {"pcFileName", 352, 256, Text};
inline constexpr TransferField binary = {"binary", 608, 1, Byte, 1};
inline constexpr TransferField crlf = {"crlf", 609, 1, Byte, 1};
inline constexpr TransferField append = {"append", 610, 1, Byte, 1};
inline constexpr TransferField packetSizeEnabled = {"packetSizeEnabled", 611, 1, Byte, 1};
inline constexpr TransferField packetSizeIndex = {"packetSizeIndex", 612, 1, Byte, 4};
inline constexpr TransferField recordFormat = {"recordFormat", 613, 1, Byte, 3};
inline constexpr TransferField recordLength = {"recordLength", 614, 4, Number, largestSevenDigits};
inline constexpr TransferField blockSize = {"blockSize", 618, 4, Number, largestSevenDigits};
inline constexpr TransferField spaceUnit = {"spaceUnit", 622, 1, Byte, 3};
inline constexpr TransferField averageBlock = {"averageBlock", 623, 4, Number, largestSevenDigits};
inline constexpr TransferField primarySpace = {"primarySpace", 627, 4, Number, largestSevenDigits};
inline constexpr TransferField secondarySpace = {"secondarySpace", 631, 4, Number,
                                                 largestSevenDigits};
inline constexpr TransferField hostFilePassword = {"hostFilePassword", 635, 32, Text};
inline constexpr TransferField transferProgramName = {"transferProgramName", 667, 128, Text};
inline constexpr TransferField includeLeftParenthesis = {"includeLeftParenthesis", 795, 1, Byte, 1};
inline constexpr TransferField includeRightParenthesis = {"includeRightParenthesis", 796, 1, Byte,
                                                          1};
inline constexpr TransferField additionalParameters = {"additionalParameters", 797, 128, Text};
inline constexpr TransferField autoEraseInput = {"autoEraseInput", 925, 1, Byte, 1};
inline constexpr TransferField useLocalTranslateTables = {"useLocalTranslateTables", 926, 1, Byte,
                                                          1};
inline constexpr TransferField showSettingsBeforeTransfer = {"showSettingsBeforeTransfer", 927, 1,
                                                             Byte, 1};
inline constexpr TransferField arabicProcessing = {"arabicProcessing", 928, 1, Byte, 1};
inline constexpr TransferField pcCodePageIndex = {"pcCodePageIndex", 929, 4, Number, 2};

inline constexpr std::array allFields = {
    hostFileName,
    member,
    fileType,
    fileMode,
    pcFileName,
    binary,
    crlf,
    append,
    packetSizeEnabled,
    packetSizeIndex,
    recordFormat,
    recordLength,
    blockSize,
    spaceUnit,
    averageBlock,
    primarySpace,
    secondarySpace,
    hostFilePassword,
    transferProgramName,
    includeLeftParenthesis,
    includeRightParenthesis,
    additionalParameters,
    autoEraseInput,
    useLocalTranslateTables,
    showSettingsBeforeTransfer,
    arabicProcessing,
    pcCodePageIndex,
};
}  // namespace transfer

/// All fields in the order of the block; together they cover it without gaps.
[[nodiscard]] constexpr std::span<const TransferField> transferFields() {
    return transfer::allFields;
}

/// The text of a Text field up to its NUL, or the whole field when a foreign file left none. Valid
/// as long as `settings`.
[[nodiscard]] std::string_view transferText(const FileTransferSettings& settings,
                                            const TransferField& field);
/// The value of a Byte or Number field.
[[nodiscard]] std::uint32_t transferNumber(const FileTransferSettings& settings,
                                           const TransferField& field);

/// Stores the bytes of `text` that fit before the closing NUL, and zeros behind.
void setTransferText(FileTransferSettings& settings, const TransferField& field,
                     std::string_view text);
/// Stores a Byte (its low 8 bits) or a Number.
void setTransferNumber(FileTransferSettings& settings, const TransferField& field,
                       std::uint32_t value);

/// The settings that a new transfer starts from: program IND$FILE, CR/LF, packet size selectable,
/// left parenthesis, local translate tables; all else empty or 0.
[[nodiscard]] const FileTransferSettings& defaultTransferSettings();

/// The host systems of `transferHost`.
inline constexpr std::uint8_t transferHostVmCms = 0;
inline constexpr std::uint8_t transferHostTso = 1;
inline constexpr std::uint8_t transferHostCics = 2;

}  // namespace quendra
