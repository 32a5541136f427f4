// The difference of two scripts: which steps are the same, changed, moved, gone and new.
#pragma once

#include "model/script.h"
#include "model/script_entry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

enum class StepChange : std::uint8_t {
    /// On both sides, in the same order with the others of its kind.
    Same,
    /// In the place of the other, of the same command, with other fields.
    Changed,
    /// On both sides, in another place.
    Moved,
    /// On this side only.
    Single,
};

/// What became of a step on the other side.
struct StepFate {
    StepChange change = StepChange::Single;
    /// The step on the other side; nothing for a single one.
    std::size_t other = 0;
};

/// For each step of both sides its fate. Steps that are the same or changed stand in the same order
/// on both.
struct ScriptDiff {
    std::vector<StepFate> left;
    std::vector<StepFate> right;

    [[nodiscard]] bool isSame() const;
};

/// Compares steps as they are stored: first the longest common part, then equal steps elsewhere as
/// moved, and of the rest between two steps of the common part those of the same command with the
/// most equal fields as changed. Needs no key.
[[nodiscard]] ScriptDiff diffScripts(const Script& left, const Script& right);

/// One difference, as it is told.
struct DiffLine {
    /// A moved step is told where it is now.
    StepChange change = StepChange::Single;
    std::optional<std::size_t> left;
    std::optional<std::size_t> right;
};
/// All differences in the order of the right side, with what is gone before what came in its place.
[[nodiscard]] std::vector<DiffLine> diffLines(const ScriptDiff& diff);

/// What one side has in a field.
struct ComparedValue {
    enum class Kind : std::uint8_t {
        /// That side has no such field.
        None,
        Number,
        Text,
        /// A hidden text or a password, which is not told.
        Sealed,
    };
    Kind kind = Kind::None;
    /// A number in decimal, a text in windows-1252; empty for the others.
    std::string text = {};

    bool operator==(const ComparedValue&) const = default;
};

/// A field that differs.
struct FieldDifference {
    std::string name;
    ComparedValue left;
    ComparedValue right;
};
/// The fields in which two entries of the same command differ, both unpacked without a key; the
/// command of an action is a field of its own, "then.command".
[[nodiscard]] std::vector<FieldDifference> fieldDifferences(const ScriptEntry& left,
                                                            const ScriptEntry& right);

/// The text by which a reader knows an entry from others of its command: its own, or the host file
/// of a transfer; empty where there is none or it is hidden.
[[nodiscard]] std::string_view tellingText(const ScriptEntry& entry);

}  // namespace quendra
