// Two changes of one entry in one.
#pragma once

#include "model/script_entry.h"

#include <optional>

namespace quendra {

/// The entry with the changes of both sides, field by field; none when they changed the same field
/// differently, or one of them a field that the other's no longer has. All three have the same
/// command and were unpacked without a key.
[[nodiscard]] std::optional<ScriptEntry> mergeEntries(const ScriptEntry& base,
                                                      const ScriptEntry& ours,
                                                      const ScriptEntry& theirs);

}  // namespace quendra
