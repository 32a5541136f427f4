#include "model/file_transfer_settings.h"

#include <algorithm>

namespace quendra {

namespace {

using namespace transfer;

constexpr bool coverTheBlock() {
    std::size_t end = 0;
    for (const TransferField& field : allFields) {
        if (field.offset != end) return false;
        end += field.size;
    }
    return end == transferSettingsSize;
}
static_assert(coverTheBlock());

FileTransferSettings makeDefaults() {
    FileTransferSettings settings;
    setTransferText(settings, transferProgramName, "IND$FILE");
    for (const TransferField& field :
         {crlf, packetSizeEnabled, includeLeftParenthesis, useLocalTranslateTables}) {
        setTransferNumber(settings, field, 1);
    }
    return settings;
}

}  // namespace

std::string_view transferText(const FileTransferSettings& settings, const TransferField& field) {
    const auto* start = reinterpret_cast<const char*>(settings.bytes.data()) + field.offset;
    return {start, static_cast<std::size_t>(std::find(start, start + field.size, '\0') - start)};
}

std::uint32_t transferNumber(const FileTransferSettings& settings, const TransferField& field) {
    std::uint32_t value = 0;
    for (std::size_t i = field.size; i-- > 0;) {
        value = value << 8 | settings.bytes[field.offset + i];
    }
    return value;
}

void setTransferText(FileTransferSettings& settings, const TransferField& field,
                     std::string_view text) {
    auto* place = settings.bytes.begin() + field.offset;
    auto* end = std::ranges::copy(text.substr(0, field.size - 1u), place).out;
    std::fill(end, place + field.size, std::uint8_t{0});
}

void setTransferNumber(FileTransferSettings& settings, const TransferField& field,
                       std::uint32_t value) {
    for (std::size_t i = 0; i < field.size; ++i) {
        settings.bytes[field.offset + i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

const FileTransferSettings& defaultTransferSettings() {
    static const FileTransferSettings defaults = makeDefaults();
    return defaults;
}

}  // namespace quendra
