#include "hosts/lu_catalogue.h"

#include <algorithm>
#include <bitset>

namespace quendra {

namespace {

// One bit for each value that the two bytes can have.
using KeySet = std::bitset<std::size_t{1} << 16>;

std::size_t bitOf(LuKey key) {
    return std::size_t{key.group} << 8 | key.number;
}

std::vector<KeySet> keysByHostType() {
    std::vector<KeySet> keys(allHostTypes.size());
    for (const HostType type : allHostTypes) {
        for (const LuRow& row : luRows(type)) {
            keys[static_cast<std::size_t>(type)].set(bitOf(row.key));
        }
    }
    return keys;
}

}  // namespace

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

bool hasLuKey(HostType type, LuKey key) {
    static const std::vector<KeySet> keys = keysByHostType();
    return keys[static_cast<std::size_t>(type)].test(bitOf(key));
}

}  // namespace quendra
