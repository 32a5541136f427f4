#include "session/jump_history.h"

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

bool isSameRecord(const EntryHandle& left, const EntryHandle& right) {
    return left.record().data() == right.record().data();
}

std::size_t stepsApart(std::size_t left, std::size_t right) {
    return left > right ? left - right : right - left;
}

// A pasted copy shares the record: the nearest one is meant.
std::optional<std::size_t> nearestOf(const Script& script, const EntryHandle& entry,
                                     std::size_t index) {
    std::optional<std::size_t> nearest;
    for (std::size_t i = 0; i < script.entryCount(); ++i) {
        if (!isSameRecord(script.entries[i], entry)) continue;
        if (!nearest || stepsApart(i, index) < stepsApart(*nearest, index)) nearest = i;
    }
    return nearest;
}

}  // namespace

void JumpHistory::leave(const Script& script, std::size_t index) {
    if (places_.size() == mostPlaces) places_.erase(places_.begin());
    places_.push_back({script.entries[index], index});
}

std::optional<std::size_t> JumpHistory::goBack(const Script& script) {
    if (places_.empty()) return std::nullopt;
    const Place place = std::move(places_.back());
    places_.pop_back();
    if (script.entryCount() == 0) return std::nullopt;
    const std::size_t last = script.entryCount() - 1;
    return nearestOf(script, place.entry, place.index).value_or(std::min(place.index, last));
}

}  // namespace quendra
