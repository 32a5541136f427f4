// What there is to say about a change: its fields, and what taking it over would do.
#pragma once

#include "review/review_model.h"

#include <QString>

namespace quendra {

/// The change of a row, line by line: the fields of a changed entry with both values, of any other
/// what became of it and its line. Hidden texts are told as such and not deciphered.
[[nodiscard]] QString changeText(const ReviewModel& model, int row, LanguageLibrary& language);

/// What the right script would become if the change of this row were taken over from the left.
[[nodiscard]] QString takeOverText(const AlignedRow& row, LanguageLibrary& language);

}  // namespace quendra
