#include "text/name_match.h"

#include <QStringList>

#include <algorithm>

namespace quendra {

namespace {

// Letters and digits are words of their own, so that "3" finds PF3 before PF13.
bool beginsWord(const QString& text, qsizetype at) {
    const QChar here = text.at(at);
    if (!here.isLetterOrNumber()) return false;
    if (at == 0) return true;
    const QChar before = text.at(at - 1);
    return !before.isLetterOrNumber() || before.isDigit() != here.isDigit();
}

}  // namespace

QString foldedName(const QString& text) {
    QString folded;
    const QString parts = text.trimmed().toCaseFolded().normalized(QString::NormalizationForm_KD);
    for (const QChar c : parts) {
        if (c == u'\u00df') {
            folded += QLatin1String("ss");
        } else if (!c.isMark()) {
            folded += c;
        }
    }
    return folded;
}

NameMatcher::NameMatcher(const QString& name) : name_(foldedName(name)) {
    for (qsizetype at = 0; at < name_.size(); ++at) {
        if (name_.at(at).isLetterOrNumber()) letters_ += name_.at(at);
        if (beginsWord(name_, at)) initials_ += name_.at(at);
    }
}

bool NameMatcher::hasWordAt(qsizetype place) const {
    return place >= 0 && beginsWord(name_, place);
}

NameFit NameMatcher::fitOfWord(const QString& word) const {
    qsizetype at = name_.indexOf(word);
    if (at < 0) return NameFit::No;
    for (; at >= 0; at = name_.indexOf(word, at + 1))
        if (hasWordAt(at)) return NameFit::Words;
    return NameFit::Anywhere;
}

NameFit NameMatcher::fit(const QString& typed) const {
    if (typed == name_ || (!typed.isEmpty() && typed == letters_)) return NameFit::Whole;
    if (name_.startsWith(typed) || letters_.startsWith(typed)) return NameFit::Beginning;
    if (typed.size() > 1 && initials_.startsWith(typed)) return NameFit::Initials;
    NameFit worst = NameFit::Words;
    for (const QString& word : typed.split(u' ', Qt::SkipEmptyParts))
        worst = std::max(worst, fitOfWord(word));
    return worst;
}

}  // namespace quendra
