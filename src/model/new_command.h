// What a new step or action starts with, before anybody has typed anything.
#pragma once

#include "model/script_entry.h"

namespace quendra {

/// A step as its dialog first shows it when it is inserted. Beside what the command itself starts
/// with it has what an action that will share its fields would: 3 seconds and a text of any length.
[[nodiscard]] ScriptEntry newCommand(CommandCode code);

/// Gives the command of a slot what a new one of its kind starts with, in the fields that this
/// command uses, and leaves all others alone.
void startCommand(ScriptEntry& entry, Slot slot);

}  // namespace quendra
