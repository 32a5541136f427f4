// The search over everything that can be inserted: which rows of the palettes fit what is typed,
// and in which order they are offered.
#pragma once

#include "hosts/host_type.h"
#include "hosts/palettes.h"
#include "model/menu_commands.h"
#include "settings/user_state.h"
#include "text/name_match.h"

#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// A row of a palette by a name that stays the same in every language, and apart from those of
/// other host types: "LuFunctions Mainframe 4/3".
[[nodiscard]] std::string insertionId(const PaletteChoice& choice, HostType hostType,
                                      const LuCatalogue& luFunctions);

/// How often what was inserted, as far as it is remembered.
class InsertionCounts {
  public:
    InsertionCounts() = default;
    [[nodiscard]] static InsertionCounts readFrom(const UserState& state);
    void writeTo(UserState& state) const;

    void add(const std::string& id);
    /// 0 for what was inserted most, and last among equals; what never was has the place behind all
    /// others.
    [[nodiscard]] std::size_t placeOf(std::string_view id) const;

  private:
    struct Count {
        std::string id;
        int times = 1;
    };
    /// In the order of their places.
    std::vector<Count> counts_;
};

/// What is offered, in the order of the palettes.
class InsertSearch {
  public:
    struct Offer {
        PaletteChoice choice;
        std::string id;
        QString name;
    };
    InsertSearch(std::vector<Offer> offers, const InsertionCounts& counts);

    /// The numbers of the offers that fit, best first: those called just so, then those whose words
    /// begin with what is typed, then all others; among these those inserted most. An empty text
    /// fits all.
    [[nodiscard]] std::vector<std::size_t> find(const QString& typed) const;
    [[nodiscard]] const Offer& offer(std::size_t number) const { return rows_[number].offer; }

  private:
    struct Row {
        Offer offer;
        NameMatcher matcher;
        std::size_t place = 0;
    };
    std::vector<Row> rows_;
};

}  // namespace quendra
