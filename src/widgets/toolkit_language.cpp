#include "widgets/toolkit_language.h"

#include "text/language_library.h"
#include "widgets/ui_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace quendra {

std::string interfaceLanguage(const std::filesystem::path& configDir) {
    const std::string library = languageBaseName(configDir);
    const std::size_t at = library.find('_');
    // It becomes a part of names of files, and must not lead to other folders.
    const bool isName = at != std::string::npos && library.find('/', at) == std::string::npos;
    return isName ? library.substr(at + 1) : std::string();
}

void useToolkitLanguage(const std::filesystem::path& configDir) {
    const std::string language = interfaceLanguage(configDir);
    if (language.empty()) return;
    auto texts = std::make_unique<QTranslator>(QCoreApplication::instance());
    const QString name = QLatin1String("qtbase_") + qtText(language);
    if (!texts->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
    QCoreApplication::installTranslator(texts.release());
}

}  // namespace quendra
