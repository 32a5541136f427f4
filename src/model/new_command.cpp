#include "model/new_command.h"

#include "model/entry_fields.h"

namespace quendra {

namespace {

constexpr std::uint8_t newMaxLength = 255;
constexpr std::uint32_t newWaitSeconds = 3;

}  // namespace

void startCommand(ScriptEntry& entry, Slot slot) {
    // Asked again each time: some fields tell which others there are.
    for (std::size_t i = 0; i < fieldsOf(entry, slot).size(); ++i) {
        const EntryField& field = fieldsOf(entry, slot)[i];
        if (!isText(field.kind)) setInitialField(entry, slot, field);
    }
}

ScriptEntry newCommand(CommandCode code) {
    ScriptEntry entry;
    entry.code = code;
    for (Step* step : {static_cast<Step*>(&entry), &entry.thenAction}) {
        step->maxLength = newMaxLength;
        step->number = newWaitSeconds;
    }
    startCommand(entry, Slot::Entry);
    return entry;
}

}  // namespace quendra
