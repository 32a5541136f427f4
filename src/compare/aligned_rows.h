// Two scripts side by side: which step stands beside which, row by row, and what becomes of the one
// script when it takes changes over from the other.
#pragma once

#include "compare/merge_conflicts.h"
#include "model/script.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quendra {

enum class RowKind : std::uint8_t {
    Same,
    Changed,
    /// On the left only.
    Gone,
    /// On the right only.
    New,
    /// The old place, on the left, of a step that stands elsewhere on the right.
    MovedAway,
    /// Its new place, on the right.
    MovedHere,
    /// Part of a conflict of a merge: ours on the left, theirs on the right.
    Conflict,
};

/// The steps of both sides that stand beside each other.
struct AlignedRow {
    RowKind kind = RowKind::Same;
    std::optional<std::size_t> left;
    std::optional<std::size_t> right;
    /// The number of the change that the row belongs to, from 0; none for the same on both sides.
    /// The two places of a moved step are one change, and so are all rows of a conflict.
    std::optional<std::size_t> change;
    /// Of a moved step: the step on the other side.
    std::size_t counterpart = 0;

    bool operator==(const AlignedRow&) const = default;
};

struct AlignedScripts {
    /// Each step of either side once, in the order of its script.
    std::vector<AlignedRow> rows;
    /// Of each change the row where it is told: that of a moved step is its new place, of a
    /// conflict its first.
    std::vector<std::size_t> changes;
};

/// As diffScripts() compares them; what is gone stands before what came in its place.
[[nodiscard]] AlignedScripts alignScripts(const Script& left, const Script& right);

/// The script with both sides of its conflicts beside each other, without their marks; left and
/// right are steps of this one script.
[[nodiscard]] AlignedScripts alignConflicts(const Script& script,
                                            std::span<const MergeConflict> conflicts);

struct TakenOver {
    /// What becomes of the right script. May hold more steps than a script can.
    Script script;
    /// Where in it the first of the changes lies; the step count for one behind the end.
    std::size_t at = 0;
};
/// Makes these changes (ascending) of the right script undone, so that it is there as the left one
/// is: a changed step as the left one has it, one that is gone put in, a new one left out, a moved
/// one back in its old place.
[[nodiscard]] TakenOver takeOverChanges(const AlignedScripts& aligned, const Script& left,
                                        const Script& right, std::span<const std::size_t> changes);

}  // namespace quendra
