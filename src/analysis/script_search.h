// Finding in one script again and again, as somebody types what to find: what the fields and lines
// of its steps say is made once and kept, so that each search only compares.
#pragma once

#include "analysis/entry_display.h"
#include "analysis/field_search.h"
#include "model/script.h"
#include "text/text_pattern.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quendra {

/// A field that holds what was looked for; or the line of a step as the list shows it, where that
/// holds it and no field does.
struct SearchHit {
    StepPlace place;
    /// Of the field table; null for the line.
    const EntryField* field = nullptr;
    /// The place of the field among those of its step, from 0.
    std::uint32_t order = 0;

    /// In the order of reading.
    [[nodiscard]] friend bool operator<(const SearchHit& left, const SearchHit& right) {
        return left.place.step != right.place.step ? left.place.step < right.place.step
                                                   : left.order < right.order;
    }
    bool operator==(const SearchHit&) const = default;
};

/// What can be found in a script. No hidden text and no password gets here; of a hidden text there
/// are the asterisks that its line shows.
class ScriptSearch {
  public:
    /// Follows the script: only entries whose records are not known yet, or all after a change of
    /// the names, are looked at. The records stay in memory until the next update or clear().
    void update(const Script& script, const HiddenTextCipher& cipher, const DisplayNames& names);
    void clear();

    /// The hits in the order of reading. Once the pattern has given up in a text, the search goes
    /// on for moments only.
    [[nodiscard]] std::vector<SearchHit> find(const TextPattern& pattern) const;

  private:
    struct FieldText {
        Slot slot;
        const EntryField* field;
        /// windows-1252.
        std::string text;
    };
    struct Step {
        EntryHandle entry;
        /// UTF-8.
        std::string line;
        std::vector<FieldText> fields;
    };

    [[nodiscard]] static Step stepOf(const EntryHandle& handle, const ScriptEntry& entry,
                                     const DisplayNames& names);
    static void addHits(const TextPattern& pattern, const Step& step, std::size_t index,
                        std::vector<SearchHit>& hits);

    std::vector<Step> steps_;
    const LuCatalogue* luFunctions_ = nullptr;
};

}  // namespace quendra
