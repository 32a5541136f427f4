// Where the steps of a script stand after others have come or gone in one place.
#pragma once

#include "model/entry_handle.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>

namespace quendra {

/// From `first`, counted from 0, `gone` steps have become `come` others.
struct StepShift {
    std::size_t first = 0;
    std::size_t gone = 0;
    std::size_t come = 0;

    /// None for a step that is gone.
    [[nodiscard]] std::optional<std::size_t> moved(std::size_t step) const {
        if (step < first) return step;
        if (step < first + gone) return std::nullopt;
        return step - gone + come;
    }
};

/// The least part of `before` that was replaced when it became `after`.
[[nodiscard]] inline StepShift shiftBetween(std::span<const EntryHandle> before,
                                            std::span<const EntryHandle> after) {
    const auto first = static_cast<std::size_t>(
        std::distance(before.begin(), std::ranges::mismatch(before, after).in1));
    const std::size_t most = std::min(before.size(), after.size()) - first;
    std::size_t same = 0;
    while (same < most && before[before.size() - 1 - same] == after[after.size() - 1 - same])
        ++same;
    return {first, before.size() - first - same, after.size() - first - same};
}

}  // namespace quendra
