#include "analysis/field_search.h"

#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quendra {

namespace {

// An entry of each kind that has fields of its own.
std::vector<ScriptEntry> entriesOfAllKinds() {
    std::vector<ScriptEntry> entries;
    const auto add = [&](CommandCode code, std::uint32_t commandId) {
        ScriptEntry& entry = entries.emplace_back();
        entry.code = code;
        entry.commandId = commandId;
        entry.hasTimeout = 1;
    };
    for (std::uint32_t code = 0; code <= 0xFF; ++code) {
        if (isCommandCode(code)) add(static_cast<CommandCode>(code), 0);
    }
    for (const MenuCommandInfo& command : menuCommandTable) {
        if (command.parameters != MenuParameters::None) add(CommandCode::MenuCommand, command.code);
    }
    return entries;
}

std::vector<std::string> makeSearchableFieldNames() {
    std::vector<std::string> names;
    for (const ScriptEntry& entry : entriesOfAllKinds()) {
        for (const EntryField& field : fieldsOf(entry, Slot::Entry)) {
            std::string name = fieldPath(Slot::Entry, field);
            if (isSearchable(field.kind) && std::ranges::find(names, name) == names.end()) {
                names.push_back(std::move(name));
            }
        }
    }
    return names;
}

}  // namespace

bool FieldFilter::takes(Slot slot, const EntryField& field) const {
    if (hostType_ == HostType::VT && !field.inVt) return false;
    if (names_.empty()) return true;
    return std::ranges::any_of(names_, [&](const std::string& name) {
        return name == fieldPath(Slot::Entry, field) || name == fieldPath(slot, field);
    });
}

std::span<const std::string> searchableFieldNames() {
    static const std::vector<std::string> names = makeSearchableFieldNames();
    return names;
}

bool isSearchableFieldName(std::string_view name) {
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        const std::string prefix = std::string(slotName(slot)) + ".";
        if (!name.starts_with(prefix)) continue;
        name.remove_prefix(prefix.size());
        break;
    }
    const auto names = searchableFieldNames();
    return std::ranges::find(names, name) != names.end();
}

void forEachSearchableField(
    const ScriptEntry& entry, const FieldFilter& filter,
    const std::function<void(Slot, const EntryField&, std::string_view)>& function) {
    for (const Slot slot : slotsOf(entry)) {
        for (const EntryField& field : fieldsOf(entry, slot)) {
            if (!isSearchable(field.kind) || isSecret(entry, slot, field)) continue;
            if (!filter.takes(slot, field)) continue;
            const FieldValue value = fieldValue(entry, slot, field);
            if (const auto* number = std::get_if<std::uint32_t>(&value)) {
                char digits[std::numeric_limits<std::uint32_t>::digits10 + 1];
                const char* end = std::to_chars(std::begin(digits), std::end(digits), *number).ptr;
                function(slot, field, {std::begin(digits), end});
            } else {
                function(slot, field, std::get<std::string_view>(value));
            }
        }
    }
}

std::vector<FieldHit> searchFields(const Script& script, const TextPattern& pattern,
                                   const FieldFilter& filter) {
    std::vector<FieldHit> hits;
    std::size_t step = 0;
    forEachSealedEntry(script, [&](const ScriptEntry& entry) {
        forEachSearchableField(
            entry, filter, [&](Slot slot, const EntryField& field, std::string_view value) {
                if (!pattern.isInWindows1252(value)) return;
                hits.push_back({{step, slot}, fieldPath(slot, field), utf8FromWindows1252(value)});
            });
        ++step;
    });
    return hits;
}

bool holdsMatch(const Script& script, const TextPattern& pattern, const FieldFilter& filter) {
    SealedEntryUnpacker unpacker;
    return std::ranges::any_of(script.entries, [&](const EntryHandle& handle) {
        bool isFound = false;
        forEachSearchableField(unpacker.unpack(handle), filter,
                               [&](Slot, const EntryField&, std::string_view value) {
                                   isFound = isFound || pattern.isInWindows1252(value);
                               });
        return isFound;
    });
}

}  // namespace quendra
