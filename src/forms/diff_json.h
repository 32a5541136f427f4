// The difference of two scripts as JSON for programs.
#pragma once

#include "compare/script_diff.h"
#include "hosts/host_type.h"

#include <iosfwd>

namespace quendra {

/// Prints {"changes": [...]} with the entries counted from 1; where the host types differ, these
/// first. A hidden text is "sealed", and "aHidden" or "bHidden" is true beside it.
void printDiff(std::ostream& out, const Script& left, HostType leftType, const Script& right,
               HostType rightType);

}  // namespace quendra
