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
    return at == std::string::npos ? std::string() : library.substr(at + 1);
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
