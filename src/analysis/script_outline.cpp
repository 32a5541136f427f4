#include "analysis/script_outline.h"

#include "model/entry_fields.h"
#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <numeric>

namespace quendra {

namespace {

bool waitsOrAsks(const Step& step) {
    switch (step.code) {
        case CommandCode::Wait:
        case CommandCode::WaitFor:
        case CommandCode::WaitReady:
        case CommandCode::WaitUntil:
        case CommandCode::Input:
        case CommandCode::Message: return true;
        case CommandCode::MenuCommand: return isFileTransfer(step.commandId);
        case CommandCode::None:
        case CommandCode::LuFunction:
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::IfInputIs:
        case CommandCode::Label:
        case CommandCode::Return:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Type:
        case CommandCode::WatchFor:
        case CommandCode::ExpressLogon:
        case CommandCode::Copy:
        case CommandCode::Paste: break;
    }
    return false;
}

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Letters to insert, delete, change or swap with their neighbour to make one name of the other;
// case counts for nothing. More than `most` is all the same.
class NameDistance {
  public:
    std::size_t of(std::string_view left, std::string_view right, std::size_t most) {
        const auto [shorter, longer] = std::minmax({left.size(), right.size()});
        if (longer - shorter > most) return most + 1;
        before_.assign(right.size() + 1, 0);
        last_.resize(right.size() + 1);
        std::iota(last_.begin(), last_.end(), std::size_t{0});
        for (std::size_t i = 1; i <= left.size(); ++i) {
            if (addRow(left, right, i) > most) return most + 1;
        }
        return last_.back();
    }

  private:
    // Gives the smallest number of the row: no later one is below it by more than a swap.
    std::size_t addRow(std::string_view left, std::string_view right, std::size_t i) {
        row_.assign(right.size() + 1, i);
        const auto same = [&](std::size_t l, std::size_t r) {
            return lowerCase(left[l]) == lowerCase(right[r]);
        };
        std::size_t smallest = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t changed = last_[j - 1] + (same(i - 1, j - 1) ? 0 : 1);
            row_[j] = std::min({last_[j] + 1, row_[j - 1] + 1, changed});
            if (i > 1 && j > 1 && same(i - 1, j - 2) && same(i - 2, j - 1)) {
                row_[j] = std::min(row_[j], before_[j - 2] + 1);
            }
            smallest = std::min(smallest, row_[j]);
        }
        before_.swap(last_);
        last_.swap(row_);
        return smallest;
    }

    std::vector<std::size_t> before_;
    std::vector<std::size_t> last_;
    std::vector<std::size_t> row_;
};

}  // namespace

std::optional<std::size_t> ScriptOutline::jumpTarget(const SlotOutline& slot) const {
    if (slot.code != CommandCode::Goto || slot.label == noLabel) return std::nullopt;
    const auto& definitions = labels[slot.label].definitions;
    if (definitions.empty()) return std::nullopt;
    return definitions.front().step;
}

void OutlineMaker::add(const ScriptEntry& entry) {
    const std::size_t step = outline_.steps.size();
    outline_.steps.emplace_back();
    for (const Slot slot : slotsOf(entry)) {
        addSlot(entry, {step, slot});
    }
}

void OutlineMaker::addSlot(const ScriptEntry& entry, StepPlace place) {
    const Step& step = slotFields(entry, place.slot);
    SlotOutline& slot = outline_.steps[place.step][static_cast<std::size_t>(place.slot)];
    slot.code = step.code;
    slot.waits = waitsOrAsks(step);
    if (step.code == CommandCode::Label || step.code == CommandCode::Goto) {
        slot.label = labelOf(textOf(step));
        if (slot.label == noLabel) return;
        LabelOutline& label = outline_.labels[slot.label];
        (step.code == CommandCode::Label ? label.definitions : label.uses).push_back(place);
    } else if (step.code == CommandCode::Input) {
        if (step.inputVariable < outline_.variables.size()) {
            outline_.variables[step.inputVariable].stores.push_back(place);
        }
    } else if (step.code == CommandCode::Type && !isHiddenText(step)) {
        const auto variable = variableOfText(textOf(step));
        if (variable) outline_.variables[*variable].reads.push_back(place);
    } else if (step.code == CommandCode::IfInputIs && place.slot == Slot::Entry) {
        addOperands(entry, place);
    }
}

void OutlineMaker::addOperands(const ScriptEntry& entry, StepPlace place) {
    const auto read = [&](std::uint8_t kind) {
        if (kind >= outline_.variables.size()) return;
        auto& reads = outline_.variables[kind].reads;
        if (reads.empty() || reads.back() != place) reads.push_back(place);
    };
    if (entry.textLength == 0) read(entry.firstOperandKind);
    if (entry.compareTextLength == 0) read(entry.secondOperandKind);
}

LabelIndex OutlineMaker::labelOf(std::string_view name) {
    if (name.empty()) return noLabel;
    if (const auto known = labelsByName_.find(name); known != labelsByName_.end()) {
        return known->second;
    }
    const auto index = static_cast<LabelIndex>(outline_.labels.size());
    outline_.labels.push_back({std::string(name), {}, {}});
    labelsByName_.emplace(name, index);
    return index;
}

std::vector<LabelName> labelNamesOf(const ScriptEntry& entry) {
    std::vector<LabelName> names;
    for (const Slot slot : slotsOf(entry)) {
        const Step& step = slotFields(entry, slot);
        const bool isNamed = step.code == CommandCode::Label || step.code == CommandCode::Goto;
        if (isNamed && !textOf(step).empty()) names.push_back({slot, step.code, textOf(step)});
    }
    return names;
}

ScriptOutline outlineOf(const Script& script) {
    OutlineMaker maker(script.entryCount());
    forEachSealedEntry(script, [&](const ScriptEntry& entry) { maker.add(entry); });
    return maker.take();
}

std::optional<std::uint8_t> variableOfText(std::string_view text) {
    const auto name = std::ranges::find(inputVariableNames, text);
    if (name == inputVariableNames.end()) return std::nullopt;
    return static_cast<std::uint8_t>(name - inputVariableNames.begin());
}

const LabelOutline* nearestLabel(const ScriptOutline& outline, std::string_view name) {
    const LabelOutline* nearest = nullptr;
    std::size_t most = (name.size() + 2) / 3;
    NameDistance distance;
    for (const LabelOutline& label : outline.labels) {
        if (label.definitions.empty() || label.name == name) continue;
        const std::size_t apart = distance.of(name, label.name, most);
        if (apart > most) continue;
        nearest = &label;
        if (apart == 0) break;
        // From here on only a nearer one is better.
        most = apart - 1;
    }
    return nearest;
}

}  // namespace quendra
