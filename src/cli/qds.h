// The commands of qds.
#pragma once

#include "cli/command_line.h"
#include "cli/environment.h"

#include <string>
#include <vector>

namespace quendra::cli {

/// Runs qds with its arguments (without the program's name) and gives the exit status. What was
/// written to `out` may still be buffered.
[[nodiscard]] int runQds(const std::vector<std::string>& arguments, Environment& environment);

[[nodiscard]] int showScripts(const ShowRequest& request, Environment& environment);
[[nodiscard]] int convertScripts(const ConvertRequest& request, Environment& environment);
[[nodiscard]] int buildScript(const BuildRequest& request, Environment& environment);
[[nodiscard]] int checkScripts(const CheckRequest& request, Environment& environment);
[[nodiscard]] int searchScripts(const GrepRequest& request, Environment& environment);
[[nodiscard]] int replaceInScripts(const ReplaceRequest& request, Environment& environment);
[[nodiscard]] int renameLabelInScripts(const RenameLabelRequest& request, Environment& environment);
[[nodiscard]] int diffOfScripts(const DiffRequest& request, Environment& environment);
[[nodiscard]] int mergeOfScripts(const MergeRequest& request, Environment& environment);
[[nodiscard]] int printTexts(Environment& environment);

}  // namespace quendra::cli
