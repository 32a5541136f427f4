// What the states of the commands go by, gathered from the running editor.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/application_state.h"
#include "session/command_rules.h"

namespace quendra {

[[nodiscard]] CommandFacts commandFacts(const ApplicationState& state, const EditorPane& pane);

/// The command of what is selected in the list that has the focus, of an entry or of a palette's
/// row; none without a selection.
[[nodiscard]] std::optional<CommandCode> selectedCommand(const ApplicationState& state,
                                                         const EditorPane& pane);

}  // namespace quendra
