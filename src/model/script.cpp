#include "model/script.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quendra {

std::size_t insertEntries(Script& script, std::size_t at, std::span<const EntryHandle> added) {
    const std::size_t count = std::min(added.size(), maxEntries - script.entries.size());
    script.entries.insert(script.entries.begin() + static_cast<std::ptrdiff_t>(at), added.begin(),
                          added.begin() + static_cast<std::ptrdiff_t>(count));
    return count;
}

void removeEntries(Script& script, std::span<const std::size_t> indexes) {
    if (indexes.empty()) return;
    auto next = indexes.begin();
    std::size_t kept = *next;
    for (std::size_t i = kept; i < script.entries.size(); ++i) {
        if (next != indexes.end() && *next == i) {
            ++next;
        } else {
            script.entries[kept++] = std::move(script.entries[i]);
        }
    }
    script.entries.resize(kept);
}

void replaceEntry(Script& script, std::size_t index, EntryHandle entry) {
    script.entries[index] = std::move(entry);
}

void moveEntries(Script& script, std::span<const EntryMove> moves) {
    std::vector<EntryHandle> result(script.entries.size());
    std::vector<bool> taken(script.entries.size());
    for (const EntryMove& move : moves) {
        result[move.to] = std::move(script.entries[move.from]);
        taken[move.from] = true;
    }
    std::vector<bool> filled(script.entries.size());
    for (const EntryMove& move : moves) {
        filled[move.to] = true;
    }
    std::size_t place = 0;
    for (std::size_t i = 0; i < script.entries.size(); ++i) {
        if (taken[i]) continue;
        while (filled[place]) {
            ++place;
        }
        result[place++] = std::move(script.entries[i]);
    }
    script.entries = std::move(result);
}

}  // namespace quendra
