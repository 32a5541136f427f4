// What the user is told about a field while typing: its range, and why it did not take something.
#pragma once

#include "text/language_library.h"
#include "widgets/input_fault.h"
#include "widgets/number_edit.h"

namespace quendra {

/// "A number from 0 to 255".
[[nodiscard]] QString rangeNote(LanguageLibrary& language, const NumberRange& range);

/// Why a text did not fit. Empty for a number: its range says it.
[[nodiscard]] QString faultNote(LanguageLibrary& language, const InputFault& fault);

}  // namespace quendra
