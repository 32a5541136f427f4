// Renaming a label in the whole script.
#pragma once

#include "analysis/script_outline.h"
#include "text/language_library.h"

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace quendra {

/// A label's name and its new one, in windows-1252.
struct LabelRenaming {
    std::string before;
    std::string after;
};

/// Asks for a new name of one of `names` (at least one, in windows-1252, each once), which are
/// labels of the outline, and tells how many entries change. None after Cancel, and when the name
/// stays as it was. The new name can be stored, is not empty, and no Label of the script has it.
[[nodiscard]] std::optional<LabelRenaming> askForLabelName(LanguageLibrary& language,
                                                           QWidget* window,
                                                           const ScriptOutline& outline,
                                                           const std::vector<std::string>& names);

}  // namespace quendra
