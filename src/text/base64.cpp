#include "text/base64.h"

#include <QByteArray>

namespace quendra {

std::string base64Of(std::span<const std::uint8_t> bytes) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                   static_cast<qsizetype>(bytes.size()))
        .toBase64()
        .toStdString();
}

std::optional<std::vector<std::uint8_t>> bytesOfBase64(std::string_view text) {
    const auto encoded = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
    const QByteArray decoded = QByteArray::fromBase64(encoded);
    std::vector<std::uint8_t> bytes(decoded.begin(), decoded.end());
    // The toolkit passes over other characters, missing padding and bits left over.
    if (base64Of(bytes) != text) return std::nullopt;
    return bytes;
}

}  // namespace quendra
