#include "compare/edited_neighbours.h"

#include "compare/common_parts.h"
#include "compare/entry_merge.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <optional>

namespace quendra {

namespace {

using Fates = std::vector<StepFate>;

bool isKept(const StepFate& fate) {
    return fate.change == StepChange::Same || fate.change == StepChange::Changed;
}

// The nearest steps that stayed, before a step and behind it.
std::optional<std::size_t> keptBefore(const Fates& fates, std::size_t step) {
    while (step > 0) {
        if (isKept(fates[--step])) return step;
    }
    return std::nullopt;
}

std::optional<std::size_t> keptBehind(const Fates& fates, std::size_t step) {
    while (++step < fates.size()) {
        if (isKept(fates[step])) return step;
    }
    return std::nullopt;
}

// Another action with all its fields is one change.
std::size_t countChanges(const std::vector<FieldDifference>& differences) {
    std::string_view action;
    return static_cast<std::size_t>(
        std::ranges::count_if(differences, [&](const FieldDifference& difference) {
            const std::string_view name = difference.name;
            if (!action.empty() && name.starts_with(action)) return false;
            constexpr std::string_view command = "command";
            if (name.ends_with(command)) action = name.substr(0, name.size() - command.size());
            return true;
        }));
}

// One field was changed, and if that is what tells the step, not altogether: a new step of the same
// command would differ in more.
bool looksEdited(const ScriptEntry& before, const ScriptEntry& after) {
    if (countChanges(fieldDifferences(before, after)) != 1) return false;
    const std::string_view old = tellingText(before);
    const std::string_view now = tellingText(after);
    if (old == now) return !old.empty();
    return 2 * countAlike(old, now) >= std::max(old.size(), now.size());
}

// What a step that is gone became: the place on the side, and the step of the base that was moved
// across it.
struct Reading {
    std::size_t place;
    std::optional<std::size_t> moved;
};

class NeighbourReader {
  public:
    NeighbourReader(const Script& base, ComparedSide& ours, ComparedSide& theirs)
        : base_(base), ours_(ours), theirs_(theirs) {}

    // One reading makes room for the next.
    void run() {
        constexpr int mostRounds = 8;
        for (int round = 0; round < mostRounds; ++round) {
            isChanged_ = false;
            for (std::size_t step = 0; step < base_.entryCount(); ++step)
                readStep(step);
            if (!isChanged_) break;
        }
    }

  private:
    void readStep(std::size_t step) {
        const bool isGoneFromOurs = isGone(ours_, step);
        const bool isGoneFromTheirs = isGone(theirs_, step);
        if (isGoneFromOurs && isGoneFromTheirs) {
            readBoth(step);
        } else if (isGoneFromOurs) {
            readGone(ours_, theirs_, step);
        } else if (isGoneFromTheirs) {
            readGone(theirs_, ours_, step);
        }
    }

    static bool isGone(const ComparedSide& side, std::size_t step) {
        return side.diff.left[step].change == StepChange::Single;
    }

    // Each side edited it beside a step that it moved.
    void readBoth(std::size_t step) {
        const auto ours = findReading(ours_, theirs_, step, base_.entries[step]);
        if (!ours) return;
        const EntryHandle& edited = ours_.script.entries[ours->place];
        const auto theirs = findReading(theirs_, ours_, step, edited);
        if (!theirs) return;
        read(ours_, step, *ours);
        read(theirs_, step, *theirs);
    }

    void readGone(ComparedSide& side, ComparedSide& other, std::size_t step) {
        const StepFate fate = other.diff.left[step];
        const EntryHandle& others = other.script.entries[fate.other];
        if (const auto reading = findReading(side, other, step, others)) {
            // What the other side left alone is gone and new without any harm.
            if (reading->moved && fate.change == StepChange::Same) return;
            read(side, step, *reading);
        } else if (fate.change == StepChange::Moved) {
            readMovedNeighbour(other, side, step);
        }
    }

    // Between the steps that stayed around it, or beyond one of these, which was moved then.
    std::optional<Reading> findReading(const ComparedSide& side, const ComparedSide& other,
                                       std::size_t step, const EntryHandle& others) {
        const Fates& left = side.diff.left;
        const Fates& right = side.diff.right;
        const auto before = keptBefore(left, step);
        const auto behind = keptBehind(left, step);
        const std::size_t from = before ? left[*before].other + 1 : 0;
        const std::size_t to = behind ? left[*behind].other : right.size();
        if (const auto place = findEdited(side, step, others, from, to)) {
            return Reading{*place, std::nullopt};
        }
        // Were it gone from the other side, its being moved would be the next conflict.
        if (before && !isGone(other, *before)) {
            const std::size_t end = left[*before].other;
            const auto last = keptBefore(right, end);
            const auto place = findEdited(side, step, others, last ? *last + 1 : 0, end);
            if (place) return Reading{*place, before};
        }
        if (behind && !isGone(other, *behind)) {
            const std::size_t start = left[*behind].other + 1;
            const auto next = keptBehind(right, start - 1);
            const auto place = findEdited(side, step, others, start, next.value_or(right.size()));
            if (place) return Reading{*place, behind};
        }
        return std::nullopt;
    }

    // The new step of the side that merges with the other's state of a step of the base.
    std::optional<std::size_t> findEdited(const ComparedSide& side, std::size_t step,
                                          const EntryHandle& others, std::size_t from,
                                          std::size_t to) {
        const EntryHandle& base = base_.entries[step];
        for (std::size_t place = from; place < to; ++place) {
            const EntryHandle& edited = side.script.entries[place];
            if (side.diff.right[place].change != StepChange::Single) continue;
            if (base.code() != edited.code() || comparisonsLeft_ == 0) continue;
            --comparisonsLeft_;
            const ScriptEntry before = unpackSealedEntry(base);
            const ScriptEntry after = unpackSealedEntry(edited);
            if (looksEdited(before, after) &&
                mergeEntries(before, after, unpackSealedEntry(others))) {
                return place;
            }
        }
        return std::nullopt;
    }

    void read(ComparedSide& side, std::size_t step, const Reading& reading) {
        if (reading.moved) setChange(side, *reading.moved, StepChange::Moved);
        side.diff.left[step].other = reading.place;
        side.diff.right[reading.place].other = step;
        setChange(side, step, StepChange::Changed);
    }

    // The side moved it across a single step that stayed: then it stayed itself, and that one was
    // moved across it.
    void readMovedNeighbour(ComparedSide& side, const ComparedSide& other, std::size_t step) {
        const Fates& left = side.diff.left;
        const std::size_t place = left[step].other;
        const auto isBetween = [&](std::optional<std::size_t> neighbour, auto next) {
            if (!neighbour || isGone(other, *neighbour)) return false;
            const auto beyond = next(left, *neighbour);
            const std::size_t here = left[*neighbour].other;
            if (next == &keptBehind) {
                return place > here && (!beyond || place < left[*beyond].other);
            }
            return place < here && (!beyond || place > left[*beyond].other);
        };
        for (const auto next : {&keptBefore, &keptBehind}) {
            const auto neighbour = next(left, step);
            if (!isBetween(neighbour, next)) continue;
            setChange(side, *neighbour, StepChange::Moved);
            return setChange(side, step, StepChange::Same);
        }
    }

    void setChange(ComparedSide& side, std::size_t step, StepChange change) {
        StepFate& fate = side.diff.left[step];
        fate.change = change;
        side.diff.right[fate.other].change = change;
        isChanged_ = true;
    }

    const Script& base_;
    ComparedSide& ours_;
    ComparedSide& theirs_;
    bool isChanged_ = false;
    /// So that scripts of nothing but differences take no seconds.
    std::size_t comparisonsLeft_ = 20'000;
};

}  // namespace

void readNeighboursForMerge(const Script& base, ComparedSide& ours, ComparedSide& theirs) {
    NeighbourReader(base, ours, theirs).run();
}

}  // namespace quendra
