// What a script would lose in a file of another host type.
#pragma once

#include "cli/environment.h"

namespace quendra::cli {

/// Reports every entry that a file of host type `target` cannot store, with its line in the names
/// of host type `source`. True when there is one.
[[nodiscard]] bool reportLoss(Environment& environment, const std::string& file,
                              const Script& script, HostType source, HostType target);

}  // namespace quendra::cli
