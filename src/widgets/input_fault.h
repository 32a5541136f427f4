// Why a field did not take what was typed or pasted. The fields say what, the dialog says it in
// words.
#pragma once

#include <QString>

#include <cstdint>

namespace quendra {

struct InputFault {
    enum class Kind : std::uint8_t {
        /// The file's encoding lacks a character.
        Character,
        /// The text would be too long.
        Length,
        /// The text would be too long to be enciphered.
        HiddenLength,
        /// Several lines; the first was taken.
        FurtherLines,
        /// Not a number, or one with too many digits.
        Number,
    };
    Kind kind = Kind::Character;
    /// The character that is lacking.
    QString character = {};
    /// The greatest length.
    std::size_t limit = 0;
};

/// The text as it can be stored: what is written as a letter and a mark is one character where
/// there is one. A text that windows-1252 has is left as it is.
[[nodiscard]] QString composedText(const QString& text);

/// The first character that windows-1252 lacks; empty when there is none.
[[nodiscard]] QString firstForeignCharacter(QStringView text);

}  // namespace quendra
