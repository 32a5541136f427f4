#include "analysis/script_changes.h"

#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quendra {

namespace {

std::optional<std::uint32_t> numberOf(std::string_view digits) {
    std::uint32_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

ChangeFault faultOfText(const EntryField& field, std::string_view text) {
    if (text.empty()) return ChangeFault::Empty;
    return text.size() > field.range.largest ? ChangeFault::TooLong : ChangeFault::None;
}

ChangeFault faultOfNumber(const EntryField& field, std::string_view text) {
    if (text.empty()) return ChangeFault::Empty;
    const auto number = numberOf(text);
    return number && isInRange(field, *number) ? ChangeFault::None : ChangeFault::OutOfRange;
}

ChangeFault faultOf(const EntryField& field, std::string_view after) {
    return isText(field.kind) ? faultOfText(field, after) : faultOfNumber(field, after);
}

FieldValue valueOf(const EntryField& field, std::string_view text) {
    if (isText(field.kind)) return text;
    return numberOf(text).value_or(0);
}

// Goes over a script and makes the changes of one step after the other on a copy of it.
class ChangeMaker {
  public:
    explicit ChangeMaker(const Script& script) : script_(script) {}

    /// `changeStep(entry)` calls change() for the fields of the entry.
    template <class ChangeStep>
    ScriptChanges make(const ChangeStep& changeStep) {
        for (step_ = 0; step_ < script_.entryCount(); ++step_) {
            changed_.reset();
            entry_ = &unpacker_.unpack(script_.entries[step_]);
            changeStep(*entry_);
            if (changed_) changes_.steps.push_back({step_, packSealedEntry(*changed_).entry});
        }
        return std::move(changes_);
    }

    void change(Slot slot, const EntryField& field, std::string_view before, std::string after,
                ChangeFault fault) {
        if (fault == ChangeFault::None && !isText(field.kind)) {
            if (const auto number = numberOf(after)) after = std::to_string(*number);
        }
        if (before == after && fault == ChangeFault::None) return;
        if (fault == ChangeFault::None) fault = faultOf(field, after);
        changes_.fields.push_back(
            {{step_, slot}, fieldPath(slot, field), std::string(before), std::move(after), fault});
        if (fault != ChangeFault::None) return;
        if (!changed_) changed_ = *entry_;
        const std::string_view value = changes_.fields.back().after;
        if (setField(*changed_, slot, field, valueOf(field, value)) == FieldRefusal::None) return;
        // A NUL, in a text that would end there.
        changes_.fields.back().fault = ChangeFault::CannotBeStored;
    }

  private:
    const Script& script_;
    SealedEntryUnpacker unpacker_;
    std::size_t step_ = 0;
    /// The step as it is, and as it becomes once a field of it changes.
    const ScriptEntry* entry_ = nullptr;
    std::optional<ScriptEntry> changed_;
    ScriptChanges changes_;
};

bool namesLabel(const Step& step) {
    return step.code == CommandCode::Label || step.code == CommandCode::Goto;
}

}  // namespace

bool ScriptChanges::canAllBeMade() const {
    return std::ranges::all_of(
        fields, [](const FieldChange& change) { return change.fault == ChangeFault::None; });
}

void applyChanges(Script& script, const ScriptChanges& changes) {
    for (const ChangedStep& changed : changes.steps) {
        replaceEntry(script, changed.step, changed.entry);
    }
}

ScriptChanges replaceInFields(const Script& script, const TextPattern& pattern,
                              std::string_view replacement, const FieldFilter& filter) {
    const auto stored = windows1252FromUtf8(replacement);
    const ChangeFault fault = stored ? ChangeFault::None : ChangeFault::CannotBeStored;
    ChangeMaker maker(script);
    return maker.make([&](const ScriptEntry& entry) {
        forEachSearchableField(
            entry, filter, [&](Slot slot, const EntryField& field, std::string_view value) {
                const auto matches = pattern.matches(value);
                if (matches.empty()) return;
                maker.change(slot, field, value, replaced(value, matches, stored.value_or("")),
                             fault);
            });
    });
}

ScriptChanges renameLabel(const Script& script, std::string_view before, std::string_view after) {
    const auto storedBefore = windows1252FromUtf8(before);
    const auto storedAfter = windows1252FromUtf8(after);
    if (!storedBefore || storedBefore->empty()) return {};
    const ChangeFault fault = storedAfter ? ChangeFault::None : ChangeFault::CannotBeStored;
    ChangeMaker maker(script);
    return maker.make([&](const ScriptEntry& entry) {
        for (const Slot slot : slotsOf(entry)) {
            const Step& step = slotFields(entry, slot);
            if (!namesLabel(step) || textOf(step) != *storedBefore) continue;
            maker.change(slot, fieldsOf(entry, slot).front(), *storedBefore,
                         storedAfter.value_or(""), fault);
        }
    });
}

std::optional<std::size_t> definitionOfLabel(const Script& script, std::string_view name) {
    const auto stored = windows1252FromUtf8(name);
    if (!stored) return std::nullopt;
    std::optional<std::size_t> found;
    SealedEntryUnpacker unpacker;
    for (std::size_t step = 0; step < script.entryCount() && !found; ++step) {
        const ScriptEntry& entry = unpacker.unpack(script.entries[step]);
        for (const Slot slot : slotsOf(entry)) {
            const Step& fields = slotFields(entry, slot);
            if (fields.code == CommandCode::Label && textOf(fields) == *stored) found = step;
        }
    }
    return found;
}

}  // namespace quendra
