#include "text/path_text.h"

#include <QFile>

namespace quendra {

std::string pathText(const std::filesystem::path& path) {
    return QFile::decodeName(path.c_str()).toStdString();
}

}  // namespace quendra
