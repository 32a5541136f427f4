// Changes over a whole script: replacing texts, renaming labels. They are made on copies of the
// records, so that whoever asked can look at them before anything is changed.
#pragma once

#include "analysis/field_search.h"
#include "model/script.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// Why a field cannot become what it would become.
enum class ChangeFault : std::uint8_t {
    None,
    /// Nothing would be left of it.
    Empty,
    /// Longer than the field holds.
    TooLong,
    /// The replacement has a character that a script cannot store.
    CannotBeStored,
    /// No number, or one outside the field's range.
    OutOfRange,
};

/// One field, before and after; texts in windows-1252, numbers in decimal.
struct FieldChange {
    StepPlace place;
    std::string path;
    std::string before;
    std::string after;
    ChangeFault fault = ChangeFault::None;
};

/// A step's new record.
struct ChangedStep {
    std::size_t step = 0;
    EntryHandle entry;
};

struct ScriptChanges {
    /// All of them in the order of steps, slots and fields, those that cannot be made included.
    std::vector<FieldChange> fields;
    /// The steps with all changes that can be made, ascending.
    std::vector<ChangedStep> steps;

    [[nodiscard]] bool canAllBeMade() const;
};

/// Puts the new records into the script, which is the one that the changes were made for.
void applyChanges(Script& script, const ScriptChanges& changes);

/// What becomes of all matches in the fields that the filter takes when they are replaced by the
/// text (UTF-8), which is taken literally. Fields that stay as they are do not count. Needs no key,
/// and hidden texts stay as they are.
[[nodiscard]] ScriptChanges replaceInFields(const Script& script, const TextPattern& pattern,
                                            std::string_view replacement,
                                            const FieldFilter& filter);

/// The same for one field, whose whole name is `path`, and nothing else.
[[nodiscard]] ScriptChanges replaceInField(const Script& script, std::size_t step,
                                           std::string_view path, const TextPattern& pattern,
                                           std::string_view replacement);

/// What becomes of all Labels and Gotos with this name, as steps and as actions, when they get the
/// new one; both in UTF-8. Each has the fault that the name has.
[[nodiscard]] ScriptChanges renameLabel(const Script& script, std::string_view before,
                                        std::string_view after);

/// The step that defines the label (UTF-8) first; none when none does.
[[nodiscard]] std::optional<std::size_t> definitionOfLabel(const Script& script,
                                                           std::string_view name);

}  // namespace quendra
