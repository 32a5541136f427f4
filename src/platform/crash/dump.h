// The memory of a process that crashed, as a file for debuggers.
#pragma once

#include "platform/crash/record.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quendra {

/// Writes a full memory dump of the process that `record` tells of, as an ELF core file: the
/// registers of every thread, of the faulting one as they were at its fault, and all memory that
/// can be read, with holes where it is zero. Memory of MADV_DONTDUMP and of devices is left out,
/// and what bears a secret mark or lies below the end of a stack is zero. The process stands still
/// meanwhile and runs on after.
///
/// `path` is made anew with mode 0600 in the place of whatever file or link bears that name. Gives
/// none, or the reason why there is no dump; then nothing bears the name.
[[nodiscard]] std::optional<std::string> writeCrashDump(const CrashRecord& record,
                                                        const std::filesystem::path& path);

}  // namespace quendra
