#include "widgets/input_note.h"

#include "text/text_ids.h"
#include "widgets/ui_text.h"

namespace quendra {

QString rangeNote(LanguageLibrary& language, const NumberRange& range) {
    return qtText(libraryText(language, textid::numberRange,
                              {std::to_string(range.smallest), std::to_string(range.largest)}));
}

QString faultNote(LanguageLibrary& language, const InputFault& fault) {
    const std::string limit = std::to_string(fault.limit);
    switch (fault.kind) {
        case InputFault::Kind::Character:
            return qtText(libraryText(language, textid::characterCannotBeStored,
                                      {fault.character.toStdString()}));
        case InputFault::Kind::Length:
            return qtText(libraryText(language, textid::atMostCharacters, {limit}));
        case InputFault::Kind::HiddenLength:
            return qtText(libraryText(language, textid::hiddenTextTooLong, {limit}));
        case InputFault::Kind::Number: break;
    }
    return {};
}

}  // namespace quendra
