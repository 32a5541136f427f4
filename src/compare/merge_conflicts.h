// The conflicts that a merge has left in a script, and the choice between their sides.
#pragma once

#include "model/script.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quendra {

/// The steps of the three marks; our steps lie before the middle, theirs behind it.
struct MergeConflict {
    std::size_t start;
    std::size_t middle;
    std::size_t end;

    bool operator==(const MergeConflict&) const = default;
};

struct ConflictSearch {
    /// In the order of the script.
    std::vector<MergeConflict> conflicts;
    /// Marks, ascending, that make up no conflict: one lacks its counterparts, or conflicts lie
    /// within each other. A middle outside of all others is a Comment like any other.
    std::vector<std::size_t> strayMarks;
};
[[nodiscard]] ConflictSearch findConflicts(const Script& script);

/// Whether findConflicts() would find anything, at the cost of a look at each Comment.
[[nodiscard]] bool hasConflictMarks(const Script& script);

/// The name that the mark in this step gives to its side, in UTF-8; empty for none.
[[nodiscard]] std::string conflictSideName(const Script& script, std::size_t mark);

enum class ConflictChoice : std::uint8_t { Ours, Theirs, Both };

/// Removes the marks and the side that is not kept; of both, ours stays first.
void resolveConflict(Script& script, const MergeConflict& conflict, ConflictChoice choice);

}  // namespace quendra
