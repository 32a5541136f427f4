// What a drop on the script list means: which entry it aims at, and how a move rearranges the
// script. Plain values only, so that every rule can be tried without a window.
#pragma once

#include "model/script.h"

#include <optional>
#include <span>
#include <vector>

namespace quendra {

/// The pointer on the screen, compared with where the drag began.
enum class Heading { Up, Level, Down };

/// The point of a drop, in the coordinates of the script list's client area.
struct DropPoint {
    int x = 0;
    int y = 0;
    int clientWidth = 0;
    int clientHeight = 0;
    /// The entry under the point, -1 for none.
    int entry = -1;
    Heading heading = Heading::Level;
};

/// The entry that a drop aims at: the one under the point, the first when the point is above the
/// list, the last when it is below, and beyond the last row the first or the last by the heading.
/// -1 stands for the last entry of an empty script. None when the drop does nothing.
[[nodiscard]] std::optional<int> dropTarget(const DropPoint& point, int entryCount);

/// Takes the entry at `from` out of the script and puts it back so that it ends at `to`, which is
/// held inside the script.
struct MoveStep {
    int from;
    int to;

    bool operator==(const MoveStep&) const = default;
};

/// A move of the selected entries, step by step, and what is selected and focused after it.
struct MovePlan {
    std::vector<MoveStep> steps;
    /// Where the selected entries end; an index outside the script stands for none.
    std::vector<int> selected;
    /// The focused entry after the move, -1 for none.
    int focused = -1;
    /// The target of the last step.
    int current = -1;
};

/// Moves the selected entries (ascending, at least one) so that the focused one ends at `target`;
/// the others keep their distances to it, and the whole block is held inside the script. `focused`
/// need not be selected; without it (-1) the first entry that moves goes to `target`. `up` is the
/// direction of the gesture and says which end of the block moves first.
[[nodiscard]] MovePlan planMove(std::span<const std::size_t> selected, int focused, int target,
                                bool up, int entryCount);

/// The script after the steps: element i is the present index of the entry that ends at i.
[[nodiscard]] std::vector<std::size_t> orderAfter(std::span<const MoveStep> steps, int entryCount);

/// The entries that change their place in such an order.
[[nodiscard]] std::vector<EntryMove> movesOf(std::span<const std::size_t> order);

/// Where the moved entries come to lie among the ones that stay, for a mark in the list as it is
/// now: ascending rows before which a run of moved entries lands; the entry count stands for the
/// end of the list. Empty when the order changes nothing.
[[nodiscard]] std::vector<int> landingRows(std::span<const std::size_t> order,
                                           std::span<const std::size_t> selected);

}  // namespace quendra
