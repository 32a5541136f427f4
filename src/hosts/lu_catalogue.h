// The keys of each host terminal's keyboard (LU functions) that a script can press.
#pragma once

#include "hosts/host_type.h"
#include "text/language_library.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// The two bytes that a script stores for a key.
struct LuKey {
    std::uint8_t group = 0;
    std::uint8_t number = 0;

    bool operator==(const LuKey&) const = default;
};

struct LuFunction {
    std::string name;
    LuKey key;
};

/// The rows of one host type; a row's index is its place in the palette.
struct LuCatalogue {
    std::vector<LuFunction> rows;

    /// The row of a key: the first one, since a key may stand in several rows. None when no row has
    /// it.
    [[nodiscard]] std::optional<std::size_t> rowOf(LuKey key) const;
};

/// The catalogues of all host types, in host type order, with their names in the language of
/// `texts`.
struct LuCatalogues {
    std::array<LuCatalogue, allHostTypes.size()> byHostType;

    [[nodiscard]] const LuCatalogue& of(HostType type) const {
        return byHostType[static_cast<std::size_t>(type)];
    }
};
[[nodiscard]] LuCatalogues buildLuCatalogues(const TextSource& texts);

/// The name (UTF-8) of the first row that has the key, or none when the host type has no such key.
[[nodiscard]] std::optional<std::string_view> findLuFunction(const LuCatalogue& catalogue,
                                                             LuKey key);

/// One row as the tables hold it: named by a library text, or by the literal when the id is 0.
struct LuRow {
    StringId nameId;
    std::string_view literal;
    LuKey key;
};
[[nodiscard]] std::span<const LuRow> luRows(HostType type);

/// True for a key that the host type's keyboard has. Quick, for all steps of many scripts.
[[nodiscard]] bool hasLuKey(HostType type, LuKey key);

}  // namespace quendra
