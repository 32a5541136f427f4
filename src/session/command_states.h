// Which commands can be chosen, and what their tool tips say, from the state of the script and the
// selections.
#pragma once

#include "session/application_state.h"

#include <optional>
#include <string>

namespace quendra {

/// Everything that the commands' states depend on. Texts are UTF-8.
struct CommandFacts {
    std::size_t entryCount = 0;
    std::size_t selectedCount = 0;
    std::size_t clipboardCount = 0;
    EditSource editSource = EditSource::None;
    std::string focusedLine = {};
    std::optional<std::string> selectedEvent = {};
    std::optional<std::string> selectedLuFunction = {};
    std::optional<std::string> selectedMenuCommand = {};
    /// The steps that Undo and Redo would take.
    std::optional<std::string> undoStep = {};
    std::optional<std::string> redoStep = {};
};

/// True for every command that has no condition.
[[nodiscard]] bool isCommandEnabled(int id, const CommandFacts& facts);

[[nodiscard]] std::string commandToolTip(int id, const CommandFacts& facts,
                                         LanguageLibrary& language);

/// The menu text of a command whose text says what it would do: of Undo and Redo; none for others.
[[nodiscard]] std::optional<std::string> commandMenuText(int id, const CommandFacts& facts,
                                                         LanguageLibrary& language);

/// "Delete 3 entries": tool tip, and with a question mark the confirmation.
[[nodiscard]] std::string deleteText(LanguageLibrary& language, std::size_t count);

}  // namespace quendra
