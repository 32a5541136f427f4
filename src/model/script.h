// The script: at most 4096 entries in order, and the only functions that change the list.
//
// Every function takes a whole range or selection and passes over the list once: with one memmove
// per entry, deleting a full script costs hundreds of times as much.
#pragma once

#include "model/entry_handle.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quendra {

inline constexpr std::size_t maxEntries = 4096;

/// The document's steps. Two scripts are equal when a file would store them alike.
struct Script {
    std::vector<EntryHandle> entries;

    [[nodiscard]] std::size_t entryCount() const { return entries.size(); }
    [[nodiscard]] bool isFull() const { return entries.size() >= maxEntries; }
    bool operator==(const Script&) const = default;
};

/// Inserts handles before index `at` (0 to the entry count) in their order, as many as the limit
/// leaves room for; gives the number inserted. The new entries share their records with the given
/// handles.
std::size_t insertEntries(Script& script, std::size_t at, std::span<const EntryHandle> added);

/// Removes the entries at these indexes, which are ascending, distinct and in range.
void removeEntries(Script& script, std::span<const std::size_t> indexes);

/// Puts a new record in the place of the entry at `index`, which is in range.
void replaceEntry(Script& script, std::size_t index, EntryHandle entry);

/// One entry of a move: where it is now and where it ends.
struct EntryMove {
    std::size_t from;
    std::size_t to;
};

/// Moves entries so that each ends at its `to`; all others keep their order and fill the places
/// between. Both the `from` and the `to` of all moves are distinct and in range, in any order.
void moveEntries(Script& script, std::span<const EntryMove> moves);

}  // namespace quendra
