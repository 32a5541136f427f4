// The part of a core file that tells of threads and files rather than memory.
#pragma once

#include "platform/crash/mappings.h"
#include "platform/crash/process.h"
#include "platform/crash/record.h"

#include <string>
#include <vector>

namespace quendra {

/// The notes for a dump of `process`, those of the faulting thread first, as debuggers expect. They
/// tell no floating-point and vector registers, through which strings and keys pass.
[[nodiscard]] std::string crashNotes(const CrashRecord& record, const StoppedProcess& process,
                                     const std::vector<Mapping>& mappings);

}  // namespace quendra
