// What the user is told about a field while typing: its range, and why it did not take something.
#pragma once

#include "dialogs/input_fault.h"
#include "dialogs/number_edit.h"
#include "platform/language_library.h"

namespace quendra {

/// "A number from 0 to 255".
[[nodiscard]] QString rangeNote(LanguageLibrary& language, const NumberRange& range);

/// Why a text did not fit. Empty for a number: its range says it.
[[nodiscard]] QString faultNote(LanguageLibrary& language, const InputFault& fault);

}  // namespace quendra
