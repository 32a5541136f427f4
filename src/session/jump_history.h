// Where the user was before going to labels, so that there is a way back.
#pragma once

#include "model/script.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quendra {

/// The last places, the newest one first to be gone back to. They are known by their records, so
/// that a place is found where it went when the script was edited meanwhile; where its record is
/// gone, the place of the same number will do.
class JumpHistory {
  public:
    static constexpr std::size_t mostPlaces = 64;

    /// The user leaves the entry at this index, which is in range.
    void leave(const Script& script, std::size_t index);

    [[nodiscard]] bool canGoBack() const { return !places_.empty(); }

    /// Gives the index of the last place in the script as it is now, and forgets the place; none
    /// when there is none, or the script is empty.
    std::optional<std::size_t> goBack(const Script& script);

    /// Forgets all places; records that only they held are wiped.
    void clear() { places_.clear(); }

  private:
    struct Place {
        EntryHandle entry;
        std::size_t index;
    };

    std::vector<Place> places_;
};

}  // namespace quendra
