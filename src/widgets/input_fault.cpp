#include "widgets/input_fault.h"

#include "text/text_encoding.h"

namespace quendra {

QString composedText(const QString& text) {
    if (firstForeignCharacter(text).isEmpty()) return text;
    return text.normalized(QString::NormalizationForm_C);
}

QString firstForeignCharacter(QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (windows1252FromCharacter(text[i].unicode())) continue;
        return text.mid(i, text[i].isHighSurrogate() ? 2 : 1).toString();
    }
    return {};
}

}  // namespace quendra
