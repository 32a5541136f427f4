// What a new step or action starts with, before anybody has typed anything.
#pragma once

#include "model/script_entry.h"

namespace quendra {

/// A step as its dialog first shows it when it is inserted. Its first action starts with 3 seconds
/// and a text of any length too: a Wait that is chosen for it needs no dialog.
[[nodiscard]] ScriptEntry newCommand(CommandCode code);

/// Gives the numbers that the command of a slot uses what a new one starts with, and leaves texts
/// and all other fields alone.
void startCommand(ScriptEntry& entry, Slot slot);

}  // namespace quendra
