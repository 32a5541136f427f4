// The scripts that a command is given: files, and folders for every script below them.
#pragma once

#include "cli/environment.h"

#include <functional>
#include <string>
#include <vector>

namespace quendra::cli {

/// Calls `function(file)` for each of the paths in turn, of a folder for every file below it whose
/// name ends in ".qds", by name; links to folders are not followed. A folder that cannot be read is
/// reported, and the result false. Ends early when the output is broken.
[[nodiscard]] bool forEachScriptFile(Environment& environment,
                                     const std::vector<std::string>& paths,
                                     const std::function<void(const std::string&)>& function);

}  // namespace quendra::cli
