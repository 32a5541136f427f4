// Steps that a difference takes for a deletion and an insertion, and a merge for what they were.
#pragma once

#include "compare/script_diff.h"
#include "model/script.h"

namespace quendra {

/// One side of a merge.
struct ComparedSide {
    const Script& script;
    /// From the base to this side.
    ScriptDiff diff;
};

/// Two neighbours of the base, A and B, that a side has as B, A: was A moved behind B, or B before
/// A? Both readings keep as much. With the wrong one a B that was edited is gone, and something new
/// is before A, so that whatever the other side did to B would be a conflict; and so would its
/// deleting A. Reads such places anew where only then both sides can be had.
void readNeighboursForMerge(const Script& base, ComparedSide& ours, ComparedSide& theirs);

}  // namespace quendra
