#include "compare/aligned_rows.h"

#include "compare/script_diff.h"

#include <algorithm>

namespace quendra {

namespace {

class Aligner {
  public:
    explicit Aligner(const ScriptDiff& diff) : diff_(diff) {}

    AlignedScripts align() {
        std::size_t left = 0;
        // The first of the steps that stand on the right only since the last pair.
        std::size_t alone = 0;
        for (std::size_t right = 0; right < diff_.right.size(); ++right) {
            const StepFate& fate = diff_.right[right];
            if (fate.change != StepChange::Same && fate.change != StepChange::Changed) continue;
            addLeft(left, fate.other);
            addRight(alone, right + 1);
            left = fate.other + 1;
            alone = right + 1;
        }
        addLeft(left, diff_.left.size());
        addRight(alone, diff_.right.size());
        numberChanges();
        return std::move(result_);
    }

  private:
    // The steps that stand on the left only.
    void addLeft(std::size_t from, std::size_t end) {
        for (std::size_t step = from; step < end; ++step) {
            const StepFate& fate = diff_.left[step];
            const bool isMoved = fate.change == StepChange::Moved;
            AlignedRow row;
            row.kind = isMoved ? RowKind::MovedAway : RowKind::Gone;
            row.left = step;
            if (isMoved) row.counterpart = fate.other;
            result_.rows.push_back(row);
        }
    }

    void addRight(std::size_t from, std::size_t end) {
        for (std::size_t step = from; step < end; ++step)
            addRight(step, diff_.right[step]);
    }

    void addRight(std::size_t step, const StepFate& fate) {
        AlignedRow row;
        row.right = step;
        switch (fate.change) {
            case StepChange::Same: row.left = fate.other; break;
            case StepChange::Changed:
                row.kind = RowKind::Changed;
                row.left = fate.other;
                break;
            case StepChange::Moved:
                row.kind = RowKind::MovedHere;
                row.counterpart = fate.other;
                break;
            case StepChange::Single: row.kind = RowKind::New; break;
        }
        result_.rows.push_back(row);
    }

    void numberChanges() {
        std::vector<std::size_t> changeOfRight(diff_.right.size());
        for (std::size_t i = 0; i < result_.rows.size(); ++i) {
            AlignedRow& row = result_.rows[i];
            if (row.kind == RowKind::Same || row.kind == RowKind::MovedAway) continue;
            row.change = result_.changes.size();
            if (row.right) changeOfRight[*row.right] = *row.change;
            result_.changes.push_back(i);
        }
        for (AlignedRow& row : result_.rows) {
            if (row.kind == RowKind::MovedAway) row.change = changeOfRight[row.counterpart];
        }
    }

    const ScriptDiff& diff_;
    AlignedScripts result_;
};

// The step of a side that is the nth from its first one; none behind its last.
std::optional<std::size_t> nth(std::size_t first, std::size_t n, std::size_t end) {
    if (first + n >= end) return std::nullopt;
    return first + n;
}

// The step that the right side has in a row once it has taken the row's change over, or has not.
const EntryHandle* stepAfter(const AlignedRow& row, bool isTaken, const Script& left,
                             const Script& right) {
    if (isTaken) return row.left ? &left.entries[*row.left] : nullptr;
    return row.right ? &right.entries[*row.right] : nullptr;
}

}  // namespace

AlignedScripts alignScripts(const Script& left, const Script& right) {
    return Aligner(diffScripts(left, right)).align();
}

AlignedScripts alignConflicts(const Script& script, std::span<const MergeConflict> conflicts) {
    AlignedScripts result;
    std::size_t step = 0;
    const auto addSame = [&](std::size_t end) {
        for (; step < end; ++step)
            result.rows.push_back({RowKind::Same, step, step, {}});
    };
    for (const MergeConflict& conflict : conflicts) {
        addSame(conflict.start);
        const std::size_t ours = conflict.middle - conflict.start - 1;
        const std::size_t theirs = conflict.end - conflict.middle - 1;
        const std::size_t change = result.changes.size();
        result.changes.push_back(result.rows.size());
        for (std::size_t n = 0; n < std::max({ours, theirs, std::size_t{1}}); ++n) {
            result.rows.push_back({.kind = RowKind::Conflict,
                                   .left = nth(conflict.start + 1, n, conflict.middle),
                                   .right = nth(conflict.middle + 1, n, conflict.end),
                                   .change = change});
        }
        step = conflict.end + 1;
    }
    addSame(script.entryCount());
    return result;
}

TakenOver takeOverChanges(const AlignedScripts& aligned, const Script& left, const Script& right,
                          std::span<const std::size_t> changes) {
    TakenOver result;
    const std::optional<std::size_t> first =
        changes.empty() ? std::nullopt : std::optional(changes.front());
    bool isFound = false;
    for (const AlignedRow& row : aligned.rows) {
        const bool isTaken = row.change && std::ranges::binary_search(changes, *row.change);
        const EntryHandle* step = stepAfter(row, isTaken, left, right);
        // A moved step lies where it is put, not where it was.
        const bool isHere = isTaken && row.change == first && row.kind != RowKind::MovedHere;
        if (isHere && !isFound) {
            isFound = true;
            result.at = result.script.entryCount();
        }
        if (step != nullptr) result.script.entries.push_back(*step);
    }
    return result;
}

}  // namespace quendra
