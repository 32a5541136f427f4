#include "text/digest.h"

#include <QCryptographicHash>

namespace quendra {

std::string sha256Digits(std::span<const std::uint8_t> bytes, std::size_t digits) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return hash.result().toHex().toStdString().substr(0, digits);
}

}  // namespace quendra
