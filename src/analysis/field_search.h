// Looking into every field of the steps that can be read as a text or a number: no flag, no choice,
// no name of a key, and never a hidden text.
#pragma once

#include "analysis/script_outline.h"
#include "hosts/host_type.h"
#include "model/entry_fields.h"
#include "text/text_pattern.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// Which fields are meant: "text" is that of a step and of its actions, "then.text" of that action
/// only, "transferSettings.hostFileName" a part of a field. Without names all of them. Fields that
/// a script of the host type does not store are none.
class FieldFilter {
  public:
    FieldFilter() = default;
    explicit FieldFilter(std::vector<std::string> names, HostType hostType = HostType::Mainframe)
        : names_(std::move(names)), hostType_(hostType) {}

    [[nodiscard]] bool takes(Slot slot, const EntryField& field) const;

  private:
    std::vector<std::string> names_;
    HostType hostType_ = HostType::Mainframe;
};

/// The names that a filter knows, apart from those that begin with a slot, in the order of the
/// field table.
[[nodiscard]] std::span<const std::string> searchableFieldNames();
/// True for one of these, also with a slot before it.
[[nodiscard]] bool isSearchableFieldName(std::string_view name);

/// Calls `function(slot, field, value)` for the fields of an entry that can be searched and that
/// the filter takes; `value` in windows-1252, a number in decimal, valid during the call.
void forEachSearchableField(
    const ScriptEntry& entry, const FieldFilter& filter,
    const std::function<void(Slot, const EntryField&, std::string_view)>& function);

/// A field that holds what was looked for.
struct FieldHit {
    StepPlace place;
    /// Its whole name, "then.text".
    std::string path;
    /// In UTF-8, with any control characters that it holds.
    std::string value;
};

/// All fields of the script with a match, in the order of steps, slots and fields. Needs no key.
[[nodiscard]] std::vector<FieldHit> searchFields(const Script& script, const TextPattern& pattern,
                                                 const FieldFilter& filter);
/// Whether there is one.
[[nodiscard]] bool holdsMatch(const Script& script, const TextPattern& pattern,
                              const FieldFilter& filter);

}  // namespace quendra
