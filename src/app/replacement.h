// Which of the changes that were asked for are to be made: what cannot be is told by name.
#pragma once

#include "analysis/script_changes.h"
#include "session/application_state.h"

class QWidget;

namespace quendra {

/// True when the changes, which are those of the state's script, are to be made as far as they can.
/// Where a field cannot take its change, the user is told which and why, and asked whether the
/// others are to change; without others, only told.
[[nodiscard]] bool agreedToChanges(ApplicationState& state, QWidget* window,
                                   const ScriptChanges& changes);

/// How many fields change when they are made.
[[nodiscard]] std::size_t changedFields(const ScriptChanges& changes);

}  // namespace quendra
