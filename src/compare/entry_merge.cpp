#include "compare/entry_merge.h"

#include "model/entry_fields.h"
#include "model/menu_commands.h"

#include <algorithm>
#include <vector>

namespace quendra {

namespace {

enum class Side : std::uint8_t { Ours, Theirs };

// Which side's state of something counts; none when both changed it differently.
template <class Same>
std::optional<Side> chosenSide(const Same& same, const ScriptEntry& base, const ScriptEntry& ours,
                               const ScriptEntry& theirs) {
    if (same(base, theirs) || same(ours, theirs)) return Side::Ours;
    if (same(base, ours)) return Side::Theirs;
    return std::nullopt;
}

bool isUsed(const ScriptEntry& entry, Slot slot) {
    const auto slots = slotsOf(entry);
    return std::ranges::find(slots, slot) != slots.end();
}

// Two slots whose fields can be held against each other: of the same command, with the same kind of
// parameters.
bool areAlike(const ScriptEntry& left, const ScriptEntry& right, Slot slot) {
    if (!isUsed(left, slot) || !isUsed(right, slot)) return false;
    const Step& leftStep = slotFields(left, slot);
    const Step& rightStep = slotFields(right, slot);
    if (leftStep.code != rightStep.code || isForeignAction(left, slot)) return false;
    // What a foreign file has of a watched Wait_For goes with it as a whole.
    if (leftStep.code == CommandCode::WaitFor && (leftStep.kept || rightStep.kept)) return false;
    return leftStep.code != CommandCode::MenuCommand ||
           menuParameters(leftStep.commandId) == menuParameters(rightStep.commandId);
}

bool isSameSlot(const ScriptEntry& left, const ScriptEntry& right, Slot slot) {
    if (!isUsed(left, slot) || !isUsed(right, slot))
        return isUsed(left, slot) == isUsed(right, slot);
    const Step& leftStep = slotFields(left, slot);
    const Step& rightStep = slotFields(right, slot);
    if (leftStep.code != rightStep.code || leftStep.kept != rightStep.kept) return false;
    const auto fields = fieldsOf(left, slot);
    return fields.size() == fieldsOf(right, slot).size() &&
           std::ranges::all_of(fields, [&](const EntryField& field) {
               return sameField(left, slot, right, slot, field);
           });
}

// Fields that mean something together only: the two numbers of a key or a position, a typed text
// and whether it is hidden.
bool belongTogether(const Step& step, const EntryField& left, const EntryField& right) {
    if (left.name == right.name && left.group == right.group) return true;
    if (step.code == CommandCode::Type) return true;
    return left.kind == right.kind &&
           (left.kind == FieldKind::KeyPart || left.kind == FieldKind::Position);
}

class EntryMerger {
  public:
    EntryMerger(const ScriptEntry& base, const ScriptEntry& ours, const ScriptEntry& theirs)
        : base_(base), ours_(ours), theirs_(theirs), merged_(ours) {}

    std::optional<ScriptEntry> merge() {
        for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
            if (!mergeSlot(slot)) return std::nullopt;
        }
        return merged_;
    }

  private:
    bool mergeSlot(Slot slot) {
        if (areAlike(base_, ours_, slot) && areAlike(base_, theirs_, slot)) {
            return mergeFields(slot);
        }
        const auto side = choose([slot](const ScriptEntry& left, const ScriptEntry& right) {
            return isSameSlot(left, right, slot);
        });
        if (side == Side::Theirs) takeSlot(slot);
        return side.has_value();
    }

    // A Wait_For has its time-out only with its flag, so a side may lack a field.
    bool mergeFields(Slot slot) {
        std::vector<const EntryField*> all;
        for (const ScriptEntry* entry : {&base_, &ours_, &theirs_}) {
            const auto fields = fieldsOf(*entry, slot);
            if (fields.size() <= all.size()) continue;
            all.clear();
            for (const EntryField& field : fields)
                all.push_back(&field);
        }
        while (!all.empty()) {
            const EntryField& first = *all.front();
            std::vector<const EntryField*> unit;
            std::erase_if(all, [&](const EntryField* field) {
                if (!belongTogether(slotFields(base_, slot), first, *field)) return false;
                unit.push_back(field);
                return true;
            });
            if (!mergeUnit(slot, unit)) return false;
        }
        return true;
    }

    bool mergeUnit(Slot slot, const std::vector<const EntryField*>& unit) {
        const auto isSame = [&](const ScriptEntry& left, const ScriptEntry& right) {
            return std::ranges::all_of(unit, [&](const EntryField* field) {
                const bool isInLeft = has(left, slot, *field);
                if (isInLeft != has(right, slot, *field)) return false;
                return !isInLeft || sameField(left, slot, right, slot, *field);
            });
        };
        const auto side = choose(isSame);
        if (side == Side::Theirs) {
            for (const EntryField* field : unit) {
                if (has(theirs_, slot, *field)) copyField(theirs_, merged_, slot, *field);
            }
        }
        return side.has_value();
    }

    static bool has(const ScriptEntry& entry, Slot slot, const EntryField& wanted) {
        return std::ranges::any_of(fieldsOf(entry, slot), [&](const EntryField& field) {
            return field.name == wanted.name && field.group == wanted.group;
        });
    }

    void takeSlot(Slot slot) {
        if (slot == Slot::Entry) {
            static_cast<Step&>(merged_) = theirs_;
            return;
        }
        slotFields(merged_, slot) = slotFields(theirs_, slot);
        // A watched Wait_For has its search options in its owner.
        if (merged_.code == CommandCode::WatchFor) {
            static_cast<EntryOptions&>(merged_) = theirs_;
        }
    }

    template <class Same>
    std::optional<Side> choose(const Same& same) const {
        return chosenSide(same, base_, ours_, theirs_);
    }

    const ScriptEntry& base_;
    const ScriptEntry& ours_;
    const ScriptEntry& theirs_;
    ScriptEntry merged_;
};

}  // namespace

std::optional<ScriptEntry> mergeEntries(const ScriptEntry& base, const ScriptEntry& ours,
                                        const ScriptEntry& theirs) {
    return EntryMerger(base, ours, theirs).merge();
}

}  // namespace quendra
