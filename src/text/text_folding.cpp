#include "text/text_folding.h"

#include <QString>

namespace quendra {

std::u16string foldedText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))
        .toCaseFolded()
        .toStdU16String();
}

}  // namespace quendra
