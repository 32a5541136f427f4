#include "widgets/input_note.h"

#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <array>
#include <utility>

namespace quendra {

namespace {

// Those that come with texts from web pages and word processors.
constexpr std::array<std::pair<char32_t, StringId>, 10> unseenCharacters = {{
    {0x2009, textid::thinSpace},
    {0x200B, textid::zeroWidthSpace},
    {0x200C, textid::zeroWidthNonJoiner},
    {0x200D, textid::zeroWidthJoiner},
    {0x200E, textid::leftToRightMark},
    {0x200F, textid::rightToLeftMark},
    {0x202F, textid::narrowNoBreakSpace},
    {0x2060, textid::wordJoiner},
    {0xFE0F, textid::variationSelector},
    {0xFEFF, textid::byteOrderMark},
}};

// The name of a character that cannot be seen, or not by itself; 0 for one that can.
StringId nameOf(char32_t character) {
    for (const auto& [unseen, name] : unseenCharacters) {
        if (unseen == character) return name;
    }
    if (QChar::isMark(character)) return textid::combiningMark;
    if (QChar::isSpace(character) && character >= U' ') return textid::spaceCharacter;
    if (QChar::isPrint(character)) return 0;
    return textid::unseenCharacter;
}

char32_t codePoint(const QString& character) {
    const QList<uint> points = character.toUcs4();
    return points.isEmpty() ? 0 : points.front();
}

// "Ж (U+0416)", "U+200B (zero width space)"
QString shownCharacter(LanguageLibrary& language, const QString& character) {
    const char32_t point = codePoint(character);
    const QString code =
        QStringLiteral("U+%1").arg(static_cast<uint>(point), 4, 16, QLatin1Char('0')).toUpper();
    const StringId name = nameOf(point);
    return QStringLiteral("%1 (%2)").arg(name == 0 ? character : code,
                                         name == 0 ? code : qtText(libraryText(language, name)));
}

}  // namespace

QString rangeNote(LanguageLibrary& language, const NumberRange& range) {
    return qtText(libraryText(language, textid::numberRange,
                              {std::to_string(range.smallest), std::to_string(range.largest)}));
}

QString faultNote(LanguageLibrary& language, const InputFault& fault) {
    const std::string limit = std::to_string(fault.limit);
    switch (fault.kind) {
        case InputFault::Kind::Character:
            return qtText(libraryText(language, textid::characterCannotBeStored,
                                      {shownCharacter(language, fault.character).toStdString()}));
        case InputFault::Kind::Length:
            return qtText(libraryText(language, textid::atMostCharacters, {limit}));
        case InputFault::Kind::HiddenLength:
            return qtText(libraryText(language, textid::hiddenTextTooLong, {limit}));
        case InputFault::Kind::FurtherLines:
            return qtText(libraryText(language, textid::firstLineTaken));
        case InputFault::Kind::Number: break;
    }
    return {};
}

}  // namespace quendra
