#include "widgets/toolkit_language.h"

#include "widgets/ui_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace quendra {

void useToolkitLanguage(const std::string& language) {
    if (language.empty()) return;
    auto texts = std::make_unique<QTranslator>(QCoreApplication::instance());
    const QString name = QLatin1String("qtbase_") + qtText(language);
    if (!texts->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
    QCoreApplication::installTranslator(texts.release());
}

}  // namespace quendra
