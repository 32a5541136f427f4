#include "app/toolkit_language.h"

#include "app/ui_text.h"
#include "platform/language_library.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace quendra {

void useToolkitLanguage(const std::filesystem::path& configDir) {
    const QString library = qtText(languageBaseName(configDir));
    const qsizetype at = library.indexOf(QLatin1Char('_'));
    if (at < 0) return;
    auto texts = std::make_unique<QTranslator>(QCoreApplication::instance());
    const QString name = QLatin1String("qtbase") + library.mid(at);
    if (!texts->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
    QCoreApplication::installTranslator(texts.release());
}

}  // namespace quendra
