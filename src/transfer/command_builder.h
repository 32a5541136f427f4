// The IND$FILE command line: what the host side of a file transfer is started with.
#pragma once

#include "model/script_entry.h"

#include <cstdint>
#include <string>

namespace quendra {

enum class TransferDirection : std::uint8_t { Send, Receive };

/// What a command line is built from.
struct TransferInputs {
    FileTransferSettings settings;
    std::uint8_t host = transferHostVmCms;
    TransferDirection direction = TransferDirection::Send;
};

/// Which way a menu command transfers, which is one of a file transfer.
[[nodiscard]] TransferDirection transferDirection(std::uint32_t commandId);

/// The transfer of a slot that holds one.
[[nodiscard]] TransferInputs transferInputs(const Step& fields);

inline constexpr std::size_t maxTransferCommandLength = 255;

/// The command line in windows-1252, of any length; the emulator takes maxTransferCommandLength
/// bytes of it.
[[nodiscard]] std::string wholeTransferCommand(const FileTransferSettings& settings,
                                               std::uint8_t host, TransferDirection direction);
[[nodiscard]] inline std::string wholeTransferCommand(const TransferInputs& inputs) {
    return wholeTransferCommand(inputs.settings, inputs.host, inputs.direction);
}

/// The command line in windows-1252, at most 255 bytes; what would be longer is cut. It ends in a
/// blank when there are no additional parameters. Never fails: a host above 2, which only a foreign
/// file holds, gives program, direction and host file; a record format or space unit outside its
/// range is as if left at its default.
[[nodiscard]] std::string buildTransferCommand(const FileTransferSettings& settings,
                                               std::uint8_t host, TransferDirection direction);
[[nodiscard]] inline std::string buildTransferCommand(const TransferInputs& inputs) {
    return buildTransferCommand(inputs.settings, inputs.host, inputs.direction);
}

}  // namespace quendra
