// What a script says as a whole: its labels, its variables, and what each step does to the way
// through it. One pass over the entries; checks, jumps, and the renaming of labels start here.
#pragma once

#include "model/script.h"
#include "model/script_entry.h"

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quendra {

/// A slot of a step, which is counted from 0. In the order of reading.
struct StepPlace {
    std::size_t step = 0;
    Slot slot = Slot::Entry;

    auto operator<=>(const StepPlace&) const = default;
};

/// A name that Labels define and Gotos use, as steps or as actions; compared byte for byte.
struct LabelOutline {
    /// windows-1252. Never empty: a Label or Goto without a name is none.
    std::string name;
    /// Ascending. The first definition is the one that jumps go to.
    std::vector<StepPlace> definitions;
    std::vector<StepPlace> uses;
};

/// Where a variable of inputVariableNames is stored by an Input, and where it is typed or compared.
struct VariableOutline {
    std::vector<StepPlace> stores;
    std::vector<StepPlace> reads;
};

/// Index of a label in ScriptOutline::labels.
using LabelIndex = std::uint32_t;
inline constexpr LabelIndex noLabel = std::numeric_limits<LabelIndex>::max();

/// What a slot does to the way through a script; an unused slot has no code.
struct SlotOutline {
    CommandCode code = CommandCode::None;
    /// It waits, asks or transfers, so that a loop through it does not keep the emulator busy.
    bool waits = false;
    /// Of a Label or a Goto.
    LabelIndex label = noLabel;
};
/// The slots of a step, by Slot.
using StepOutline = std::array<SlotOutline, 3>;

[[nodiscard]] inline const SlotOutline& slotOutline(const StepOutline& step, Slot slot) {
    return step[static_cast<std::size_t>(slot)];
}

struct ScriptOutline {
    std::vector<StepOutline> steps;
    /// In the order in which their names first come up.
    std::vector<LabelOutline> labels;
    std::array<VariableOutline, inputVariableNames.size()> variables;

    /// The step that a slot jumps to: that of the first definition, which for a Label that is an
    /// action is the owner's. None for a slot that is no Goto, and for a Goto that leads nowhere.
    [[nodiscard]] std::optional<std::size_t> jumpTarget(const SlotOutline& slot) const;
};

/// Makes an outline of entries given in their order, for whoever looks at each of them anyway.
class OutlineMaker {
  public:
    explicit OutlineMaker(std::size_t entryCount) { outline_.steps.reserve(entryCount); }

    void add(const ScriptEntry& entry);
    [[nodiscard]] ScriptOutline take() { return std::move(outline_); }

  private:
    void addSlot(const ScriptEntry& entry, StepPlace place);
    void addOperands(const ScriptEntry& entry, StepPlace place);
    LabelIndex labelOf(std::string_view name);

    // Found by the name itself: a script has few names, and many steps that bear them.
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const {
            return std::hash<std::string_view>()(name);
        }
    };

    ScriptOutline outline_;
    std::unordered_map<std::string, LabelIndex, NameHash, std::equal_to<>> labelsByName_;
};

/// A slot that names a label, and the name.
struct LabelName {
    Slot slot = Slot::Entry;
    CommandCode code = CommandCode::None;
    /// windows-1252, never empty, valid as long as the entry.
    std::string_view name;
};
/// Those of an entry, in the order of its slots.
[[nodiscard]] std::vector<LabelName> labelNamesOf(const ScriptEntry& entry);

/// Needs no key: hidden texts have no part in it.
[[nodiscard]] ScriptOutline outlineOf(const Script& script);

/// The kind of the variable that a Type of this text (windows-1252) types; none for any other text.
[[nodiscard]] std::optional<std::uint8_t> variableOfText(std::string_view text);

/// The label with a definition whose name is most like this one (both windows-1252); null when none
/// is like it.
[[nodiscard]] const LabelOutline* nearestLabel(const ScriptOutline& outline, std::string_view name);

}  // namespace quendra
