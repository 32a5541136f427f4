// Between the engine's UTF-8 texts and file paths and the toolkit's strings.
#pragma once

#include "text/language_library.h"
#include "text/path_text.h"

#include <QFile>
#include <QString>

#include <filesystem>
#include <string>

namespace quendra {

[[nodiscard]] inline QString qtText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Of a file name that the toolkit gives.
[[nodiscard]] inline std::filesystem::path pathFromQt(const QString& path) {
    return {QFile::encodeName(path).toStdString()};
}

}  // namespace quendra
