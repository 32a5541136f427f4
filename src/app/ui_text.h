// Between the engine's UTF-8 texts and file paths and Qt's strings.
#pragma once

#include "platform/language_library.h"

#include <QFile>
#include <QString>

#include <filesystem>
#include <initializer_list>
#include <string>

namespace quendra {

[[nodiscard]] inline QString qtText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A path as it is shown. File names that are not valid text show replacement characters: keep the
/// path itself for opening the file.
[[nodiscard]] inline std::string pathText(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str()).toStdString();
}

[[nodiscard]] inline std::filesystem::path pathFromQt(const QString& path) {
    return {QFile::encodeName(path).toStdString()};
}

/// A text of the language library with its places filled.
[[nodiscard]] inline std::string libraryText(LanguageLibrary& language, StringId id,
                                             std::initializer_list<std::string> args = {}) {
    const std::string text = language.loadText(id);
    return args.size() == 0 ? text : formatText(text, args);
}

}  // namespace quendra
