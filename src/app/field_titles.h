// What a field of an entry is called where the user reads of it: as its dialog calls it.
#pragma once

#include "analysis/script_outline.h"
#include "model/entry_fields.h"
#include "text/language_library.h"

#include <QString>

namespace quendra {

/// "Prompt", "Text (Not Found)", "PC File: File Name".
[[nodiscard]] QString fieldTitle(LanguageLibrary& language, const ScriptEntry& entry, Slot slot,
                                 const EntryField& field);
/// The same by the field's whole name, which the entry has.
[[nodiscard]] QString fieldTitle(LanguageLibrary& language, const ScriptEntry& entry, Slot slot,
                                 std::string_view path);

}  // namespace quendra
