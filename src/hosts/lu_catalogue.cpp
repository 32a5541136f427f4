#include "hosts/lu_catalogue.h"

#include <algorithm>

namespace quendra {

std::optional<std::size_t> LuCatalogue::rowOf(LuKey key) const {
    const auto row = std::ranges::find(rows, key, &LuFunction::key);
    if (row == rows.end()) return std::nullopt;
    return static_cast<std::size_t>(row - rows.begin());
}

LuCatalogues buildLuCatalogues(const TextSource& texts) {
    LuCatalogues catalogues;
    for (const HostType type : allHostTypes) {
        auto& rows = catalogues.byHostType[static_cast<std::size_t>(type)].rows;
        for (const LuRow& row : luRows(type)) {
            rows.push_back({row.nameId ? texts(row.nameId) : std::string(row.literal), row.key});
        }
    }
    return catalogues;
}

std::optional<std::string_view> findLuFunction(const LuCatalogue& catalogue, LuKey key) {
    const auto row = catalogue.rowOf(key);
    if (!row) return std::nullopt;
    return catalogue.rows[*row].name;
}

}  // namespace quendra
