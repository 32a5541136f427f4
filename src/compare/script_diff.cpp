#include "compare/script_diff.h"

#include "compare/common_parts.h"
#include "model/command_names.h"
#include "model/entry_fields.h"
#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace quendra {

namespace {

using Number = std::uint32_t;

std::string_view viewOf(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// One number for each different record of both scripts.
class RecordNumbers {
  public:
    std::vector<Number> of(const Script& script) {
        std::vector<Number> numbers;
        numbers.reserve(script.entryCount());
        for (const EntryHandle& entry : script.entries) {
            const auto next = static_cast<Number>(known_.size());
            numbers.push_back(known_.try_emplace(viewOf(entry.record()), next).first->second);
        }
        return numbers;
    }

  private:
    std::unordered_map<std::string_view, Number> known_;
};

// The fields of an entry as one hash each, sorted: what two of them share counts their equal
// fields.
using FieldHashes = std::vector<std::uint64_t>;

std::uint64_t mixed(std::uint64_t seed, std::uint64_t value) {
    return (seed ^ value) * 0x9E3779B97F4A7C15U + (seed >> 29);
}

std::uint64_t hashOf(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

std::uint64_t hashOf(const FieldValue& value) {
    const auto* number = std::get_if<std::uint32_t>(&value);
    return number ? mixed(7, *number) : hashOf(std::get<std::string_view>(value));
}

FieldHashes fieldHashes(const ScriptEntry& entry) {
    FieldHashes hashes;
    for (const Slot slot : slotsOf(entry)) {
        const Step& step = slotFields(entry, slot);
        const std::uint64_t command =
            mixed(static_cast<std::uint64_t>(slot) + 1, static_cast<std::uint64_t>(step.code));
        if (slot != Slot::Entry) hashes.push_back(command);
        if (step.kept) hashes.push_back(mixed(command, hashOf(viewOf(*step.kept))));
        for (const EntryField& field : fieldsOf(entry, slot)) {
            hashes.push_back(
                mixed(mixed(command, hashOf(field.name)), hashOf(fieldValue(entry, slot, field))));
        }
    }
    std::ranges::sort(hashes);
    return hashes;
}

std::size_t countShared(const FieldHashes& left, const FieldHashes& right) {
    std::size_t count = 0;
    for (std::size_t i = 0, j = 0; i < left.size() && j < right.size();) {
        if (left[i] == right[j]) {
            ++count;
            ++i;
            ++j;
        } else if (left[i] < right[j]) {
            ++i;
        } else {
            ++j;
        }
    }
    return count;
}

// The steps of one side that are left between two steps of the common part.
struct Rest {
    std::vector<std::size_t> steps;
    std::vector<FieldHashes> hashes;
    std::vector<std::string> texts;
};

class DiffMaker {
    using Worth = std::uint64_t;

  public:
    DiffMaker(const Script& left, const Script& right) : left_(left), right_(right) {
        diff_.left.resize(left.entryCount());
        diff_.right.resize(right.entryCount());
    }

    ScriptDiff make() {
        RecordNumbers records;
        const std::vector<Number> leftNumbers = records.of(left_);
        const std::vector<Number> rightNumbers = records.of(right_);
        common_ = longestCommonPart(leftNumbers, rightNumbers);
        for (const CommonPlace& place : common_) {
            pair(StepChange::Same, place.left, place.right);
        }
        pairMoved(leftNumbers, rightNumbers);
        pairChanged();
        return std::move(diff_);
    }

  private:
    void pair(StepChange change, std::size_t left, std::size_t right) {
        diff_.left[left] = {change, right};
        diff_.right[right] = {change, left};
    }

    void pairMoved(const std::vector<Number>& leftNumbers,
                   const std::vector<Number>& rightNumbers) {
        std::unordered_map<Number, std::deque<std::size_t>> gone;
        for (std::size_t i = 0; i < leftNumbers.size(); ++i) {
            if (diff_.left[i].change == StepChange::Single) gone[leftNumbers[i]].push_back(i);
        }
        for (std::size_t j = 0; j < rightNumbers.size(); ++j) {
            if (diff_.right[j].change != StepChange::Single) continue;
            const auto places = gone.find(rightNumbers[j]);
            if (places == gone.end() || places->second.empty()) continue;
            pair(StepChange::Moved, places->second.front(), j);
            places->second.pop_front();
        }
    }

    void pairChanged() {
        CommonPlace from = {0, 0};
        for (const CommonPlace& place : common_) {
            pairBetween(from, place);
            from = {place.left + 1, place.right + 1};
        }
        pairBetween(from, {left_.entryCount(), right_.entryCount()});
    }

    void pairBetween(const CommonPlace& from, const CommonPlace& to) {
        if (from.left == to.left || from.right == to.right) return;
        const Rest left = restOf(left_, diff_.left, from.left, to.left);
        const Rest right = restOf(right_, diff_.right, from.right, to.right);
        if (left.steps.empty() || right.steps.empty()) return;
        if (left.steps.size() * right.steps.size() > mostPairsCompared) {
            pairByCommand(left, right);
        } else {
            pairByFields(left, right);
        }
    }

    Rest restOf(const Script& script, const std::vector<StepFate>& fates, std::size_t from,
                std::size_t to) {
        Rest rest;
        for (std::size_t step = from; step < to; ++step) {
            if (fates[step].change == StepChange::Single) rest.steps.push_back(step);
        }
        for (const std::size_t step : rest.steps) {
            const ScriptEntry& entry = unpacker_.unpack(script.entries[step]);
            rest.hashes.push_back(fieldHashes(entry));
            rest.texts.emplace_back(tellingText(entry));
        }
        return rest;
    }

    // In order, with the greatest sum of equal fields; between equal sums those with the texts most
    // alike, and the most pairs.
    void pairByFields(const Rest& left, const Rest& right) {
        const std::size_t width = right.steps.size() + 1;
        std::vector<Worth> best((left.steps.size() + 1) * width, 0);
        for (std::size_t i = left.steps.size(); i-- > 0;) {
            for (std::size_t j = right.steps.size(); j-- > 0;) {
                const Worth apart = std::max(best[(i + 1) * width + j], best[i * width + j + 1]);
                const Worth worth = worthOf(left, i, right, j);
                const Worth together = worth == 0 ? 0 : worth + best[(i + 1) * width + j + 1];
                best[i * width + j] = std::max(apart, together);
            }
        }
        for (std::size_t i = 0, j = 0; i < left.steps.size() && j < right.steps.size();) {
            const Worth here = best[i * width + j];
            const Worth worth = worthOf(left, i, right, j);
            if (worth != 0 && here == worth + best[(i + 1) * width + j + 1]) {
                pair(StepChange::Changed, left.steps[i++], right.steps[j++]);
            } else if (here == best[(i + 1) * width + j]) {
                ++i;
            } else {
                ++j;
            }
        }
    }

    // What two steps are worth as a pair; nothing when their commands differ.
    [[nodiscard]] Worth worthOf(const Rest& left, std::size_t i, const Rest& right,
                                std::size_t j) const {
        const CommandCode code = left_.entries[left.steps[i]].code();
        if (code != right_.entries[right.steps[j]].code()) return 0;
        // More than all texts of as many pairs as there can be.
        constexpr Worth perField = Worth{1} << 32;
        return 1 + countAlike(left.texts[i], right.texts[j]) +
               perField * countShared(left.hashes[i], right.hashes[j]);
    }

    // Where there are too many to compare each with each.
    void pairByCommand(const Rest& left, const Rest& right) {
        const auto codesOf = [](const Script& script, const Rest& rest) {
            std::vector<Number> codes;
            for (const std::size_t step : rest.steps) {
                codes.push_back(static_cast<Number>(script.entries[step].code()));
            }
            return codes;
        };
        for (const CommonPlace& place :
             longestCommonPart(codesOf(left_, left), codesOf(right_, right))) {
            pair(StepChange::Changed, left.steps[place.left], right.steps[place.right]);
        }
    }

    /// Some milliseconds' worth.
    static constexpr std::size_t mostPairsCompared = 256 * 256;

    const Script& left_;
    const Script& right_;
    ScriptDiff diff_;
    std::vector<CommonPlace> common_;
    SealedEntryUnpacker unpacker_;
};

// The fields of a slot by name, of an unused slot none.
class SlotSide {
  public:
    SlotSide(const ScriptEntry& entry, Slot slot) : entry_(entry), slot_(slot) {
        const auto slots = slotsOf(entry);
        isUsed_ = std::ranges::find(slots, slot) != slots.end();
    }

    [[nodiscard]] bool isUsed() const { return isUsed_; }
    [[nodiscard]] const Step& step() const { return slotFields(entry_, slot_); }
    [[nodiscard]] std::span<const EntryField> fields() const {
        return isUsed_ ? fieldsOf(entry_, slot_) : std::span<const EntryField>();
    }
    [[nodiscard]] const EntryField* find(const EntryField& wanted) const {
        const auto all = fields();
        const auto found = std::ranges::find_if(all, [&](const EntryField& field) {
            return field.name == wanted.name && field.group == wanted.group &&
                   field.place == wanted.place;
        });
        return found == all.end() ? nullptr : &*found;
    }
    [[nodiscard]] ComparedValue value(const EntryField& wanted) const {
        using enum ComparedValue::Kind;
        const EntryField* field = find(wanted);
        if (field == nullptr) return {};
        if (isSecret(entry_, slot_, *field)) return {Sealed};
        const FieldValue value = fieldValue(entry_, slot_, *field);
        if (const auto* number = std::get_if<std::uint32_t>(&value)) {
            return {Number, std::to_string(*number)};
        }
        return {Text, std::string(std::get<std::string_view>(value))};
    }
    [[nodiscard]] ComparedValue command() const {
        if (!isUsed_) return {};
        return {ComparedValue::Kind::Text, std::string(commandName(step().code))};
    }
    [[nodiscard]] const ScriptEntry& entry() const { return entry_; }

  private:
    const ScriptEntry& entry_;
    Slot slot_;
    bool isUsed_ = false;
};

void addSlotDifferences(Slot slot, const SlotSide& left, const SlotSide& right,
                        std::vector<FieldDifference>& differences) {
    const auto add = [&](const EntryField& field) {
        differences.push_back({fieldPath(slot, field), left.value(field), right.value(field)});
    };
    if (slot != Slot::Entry && left.command() != right.command()) {
        differences.push_back(
            {std::string(slotName(slot)) + ".command", left.command(), right.command()});
    }
    for (const EntryField& field : left.fields()) {
        const EntryField* other = right.find(field);
        if (other == nullptr || !sameField(left.entry(), slot, right.entry(), slot, field)) {
            add(field);
        }
    }
    for (const EntryField& field : right.fields()) {
        if (left.find(field) == nullptr) add(field);
    }
    // What is carried of a foreign action; of a hidden text its field tells.
    const bool areCarried = left.isUsed() && right.isUsed() && left.command() == right.command() &&
                            left.step().code != CommandCode::Type;
    if (areCarried && left.step().kept != right.step().kept) {
        const ComparedValue sealed = {ComparedValue::Kind::Sealed};
        differences.push_back({std::string(slotName(slot)) + ".record", sealed, sealed});
    }
}

}  // namespace

bool ScriptDiff::isSame() const {
    const auto isSameStep = [](const StepFate& fate) { return fate.change == StepChange::Same; };
    return std::ranges::all_of(left, isSameStep) && std::ranges::all_of(right, isSameStep);
}

ScriptDiff diffScripts(const Script& left, const Script& right) {
    return DiffMaker(left, right).make();
}

std::vector<DiffLine> diffLines(const ScriptDiff& diff) {
    std::vector<DiffLine> lines;
    std::size_t i = 0;
    const auto addGoneBefore = [&](std::size_t end) {
        for (; i < end; ++i) {
            if (diff.left[i].change == StepChange::Single) {
                lines.push_back({StepChange::Single, i, std::nullopt});
            }
        }
    };
    for (std::size_t j = 0; j < diff.right.size(); ++j) {
        const StepFate& fate = diff.right[j];
        switch (fate.change) {
            case StepChange::Same: addGoneBefore(fate.other); break;
            case StepChange::Changed:
                addGoneBefore(fate.other);
                lines.push_back({StepChange::Changed, fate.other, j});
                break;
            case StepChange::Moved: lines.push_back({StepChange::Moved, fate.other, j}); break;
            case StepChange::Single: lines.push_back({StepChange::Single, std::nullopt, j}); break;
        }
    }
    addGoneBefore(diff.left.size());
    return lines;
}

std::vector<FieldDifference> fieldDifferences(const ScriptEntry& left, const ScriptEntry& right) {
    std::vector<FieldDifference> differences;
    for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
        addSlotDifferences(slot, SlotSide(left, slot), SlotSide(right, slot), differences);
    }
    return differences;
}

std::string_view tellingText(const ScriptEntry& entry) {
    if (entry.code == CommandCode::MenuCommand && isFileTransfer(entry.commandId)) {
        return transferText(entry.transferSettings, transfer::hostFileName);
    }
    return textOf(entry);
}

}  // namespace quendra
