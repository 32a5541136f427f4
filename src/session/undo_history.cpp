#include "session/undo_history.h"

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

std::vector<EntryHandle> part(const std::vector<EntryHandle>& entries, std::size_t from,
                              std::size_t to) {
    return {entries.begin() + static_cast<std::ptrdiff_t>(from),
            entries.begin() + static_cast<std::ptrdiff_t>(to)};
}

// Puts `added` in the place of `count` entries from `at`, moving what lies behind them once.
void splice(Script& script, std::size_t at, std::size_t count,
            const std::vector<EntryHandle>& added) {
    auto& entries = script.entries;
    const std::size_t replaced = std::min(count, added.size());
    const auto place = entries.begin() + static_cast<std::ptrdiff_t>(at);
    const auto rest = std::copy_n(added.begin(), replaced, place);
    if (count > replaced) {
        entries.erase(rest, rest + static_cast<std::ptrdiff_t>(count - replaced));
    } else {
        entries.insert(rest, added.begin() + static_cast<std::ptrdiff_t>(replaced), added.end());
    }
}

}  // namespace

bool UndoHistory::record(const ScriptView& before, const ScriptView& after, std::string name) {
    const auto& old = before.script.entries;
    const auto& now = after.script.entries;
    const auto difference = std::ranges::mismatch(old, now);
    if (difference.in1 == old.end() && difference.in2 == now.end()) return false;
    const auto start = static_cast<std::size_t>(difference.in1 - old.begin());
    std::size_t oldEnd = old.size();
    std::size_t newEnd = now.size();
    while (oldEnd > start && newEnd > start && old[oldEnd - 1] == now[newEnd - 1]) {
        --oldEnd;
        --newEnd;
    }
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    steps_.push_back({std::move(name), start, part(old, start, oldEnd), part(now, start, newEnd),
                      before.selection, after.selection});
    done_ = steps_.size();
    return true;
}

bool UndoHistory::extend(const ScriptView& before, const ScriptView& after) {
    std::string name = undoName();
    ScriptView start = before;
    if (auto selection = undo(start.script)) start.selection = *std::move(selection);
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    return record(start, after, std::move(name));
}

std::string UndoHistory::undoName() const {
    return canUndo() ? steps_[done_ - 1].name : "";
}
std::string UndoHistory::redoName() const {
    return canRedo() ? steps_[done_].name : "";
}

std::optional<EntrySelection> UndoHistory::undo(Script& script) {
    if (!canUndo()) return std::nullopt;
    const Step& step = steps_[--done_];
    splice(script, step.at, step.inserted.size(), step.removed);
    return step.before;
}

std::optional<EntrySelection> UndoHistory::redo(Script& script) {
    if (!canRedo()) return std::nullopt;
    const Step& step = steps_[done_++];
    splice(script, step.at, step.removed.size(), step.inserted);
    return step.after;
}

void UndoHistory::clear() {
    steps_.clear();
    done_ = 0;
}

}  // namespace quendra
