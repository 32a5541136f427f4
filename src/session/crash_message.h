// What a report of a crash says, and under which name its dump lies.
#pragma once

#include "platform/crash/fault.h"

#include <ctime>
#include <filesystem>
#include <optional>
#include <string>

namespace quendra {

/// PROGRAM.VERSION.MMDDhhmm.dmp in `folder`; `program` is the program file's name without its
/// folder.
[[nodiscard]] std::filesystem::path crashDumpPath(const std::filesystem::path& folder,
                                                  const std::string& program,
                                                  const std::tm& localTime);

/// In UTF-8, its lines ended by "\r\n"; `noDump` is why there is no file by the name of the dump.
/// These texts are not translated: whoever gets them by mail searches for them.
[[nodiscard]] std::string crashMessage(const std::string& program, const Fault& fault,
                                       const std::filesystem::path& dump,
                                       const std::optional<std::string>& noDump);

}  // namespace quendra
