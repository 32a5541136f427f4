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
        /// Not a number, or one outside the field's range.
        Number,
    };
    Kind kind = Kind::Character;
    /// The character that is lacking.
    QString character = {};
    /// The greatest length.
    std::size_t limit = 0;
};

/// The first character that windows-1252 lacks; empty when there is none.
[[nodiscard]] QString firstForeignCharacter(QStringView text);

}  // namespace quendra
