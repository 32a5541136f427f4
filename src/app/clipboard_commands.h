// Cut, Copy, Paste and Delete: the editing commands that need no dialog of their own.
#pragma once

#include "app/editing_commands.h"

namespace quendra {

struct ApplicationState;
class MainWindow;

/// Fills in the four commands. They keep references to `state` and `window`.
void addClipboardCommands(EditingCommands& commands, ApplicationState& state, MainWindow& window);

}  // namespace quendra
