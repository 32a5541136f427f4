// Tells the user of a crash: the process that crashed starts its program once more, and that one
// writes the dump and shows the message.
#pragma once

#include <filesystem>
#include <optional>

namespace quendra {

/// Has crashes of this process reported from now on, with dumps in `dumpFolder`. Called once, when
/// the toolkit runs: where its windows appear on no screen, the message goes to standard error.
void installCrashReporter(const std::filesystem::path& programFile,
                          const std::filesystem::path& dumpFolder);

/// The other end: when this process was started as a reporter, reports and gives the exit status.
/// For the beginning of main(), before anything else looks at the arguments.
[[nodiscard]] std::optional<int> reportCrash(int& argc, char** argv);

}  // namespace quendra
