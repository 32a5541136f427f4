#include "compare/script_merge.h"

#include "compare/common_parts.h"
#include "compare/edited_neighbours.h"
#include "compare/entry_merge.h"
#include "compare/script_diff.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quendra {

namespace {

// A step that came to a place: a new one, or one of the base that was moved.
struct Arrival {
    EntryHandle entry;
    std::optional<std::size_t> movedFrom;

    bool operator==(const Arrival&) const = default;
};

// What a side made of the base.
struct SideChanges : ComparedSide {
    /// What came behind each of the base's steps that stayed; first what came before all of them.
    std::vector<std::vector<Arrival>> arrivals;

    SideChanges(const Script& base, const Script& side)
        : ComparedSide{side, diffScripts(base, side)}, arrivals(base.entryCount() + 1) {}

    void collectArrivals() {
        std::size_t place = 0;
        for (std::size_t step = 0; step < script.entryCount(); ++step) {
            const StepFate& fate = diff.right[step];
            switch (fate.change) {
                case StepChange::Same:
                case StepChange::Changed: place = fate.other + 1; break;
                case StepChange::Moved:
                    arrivals[place].push_back({script.entries[step], fate.other});
                    break;
                case StepChange::Single:
                    arrivals[place].push_back({script.entries[step], std::nullopt});
                    break;
            }
        }
    }

    [[nodiscard]] StepChange fateOf(std::size_t baseStep) const {
        return diff.left[baseStep].change;
    }
    /// The side's state of a step that it did not remove.
    [[nodiscard]] const EntryHandle& stateOf(std::size_t baseStep) const {
        return script.entries[diff.left[baseStep].other];
    }
};

EntryHandle commentOf(std::string_view marker, std::string_view name) {
    std::string text(marker);
    if (!name.empty()) {
        // What a script cannot store of a name counts for nothing.
        text += ' ';
        text += windows1252FromUtf8(name).value_or("?");
    }
    ScriptEntry comment;
    comment.code = CommandCode::Comment;
    setText(comment, text);
    return packSealedEntry(comment).entry;
}

class Merger {
  public:
    Merger(const Script& base, const MergeSide& ours, const MergeSide& theirs)
        : base_(base),
          ours_(base, ours.script),
          theirs_(base, theirs.script),
          marks_{commentOf("<<<<<<<", ours.name), commentOf("=======", {}),
                 commentOf(">>>>>>>", theirs.name)} {}

    MergeResult merge() {
        readNeighboursForMerge(base_, ours_, theirs_);
        ours_.collectArrivals();
        theirs_.collectArrivals();
        addArrivals(0);
        for (std::size_t step = 0; step < base_.entryCount(); ++step) {
            const bool isMoved = ours_.fateOf(step) == StepChange::Moved ||
                                 theirs_.fateOf(step) == StepChange::Moved;
            if (!isMoved) addStep(step);
            addArrivals(step + 1);
        }
        return std::move(result_);
    }

  private:
    // Those of both sides at one place: equal ones once, otherwise ours first.
    void addArrivals(std::size_t place) {
        const auto& ours = ours_.arrivals[place];
        std::vector<Arrival> theirs = theirs_.arrivals[place];
        // Moved by both: where we put it.
        std::erase_if(theirs, [&](const Arrival& arrival) {
            return arrival.movedFrom && ours_.fateOf(*arrival.movedFrom) == StepChange::Moved;
        });
        std::size_t i = 0;
        std::size_t j = 0;
        for (const CommonPlace& same : sameArrivals(ours, theirs)) {
            while (i < same.left)
                addArrival(ours[i++]);
            while (j < same.right)
                addArrival(theirs[j++]);
            addArrival(ours[i++]);
            ++j;
        }
        while (i < ours.size())
            addArrival(ours[i++]);
        while (j < theirs.size())
            addArrival(theirs[j++]);
    }

    static std::vector<CommonPlace> sameArrivals(const std::vector<Arrival>& ours,
                                                 const std::vector<Arrival>& theirs) {
        if (ours.empty() || theirs.empty()) return {};
        Script left;
        Script right;
        // Moved steps have their place already, on one side only.
        std::vector<std::size_t> leftPlaces;
        std::vector<std::size_t> rightPlaces;
        const auto collect = [](const std::vector<Arrival>& arrivals, Script& script,
                                std::vector<std::size_t>& places) {
            for (std::size_t i = 0; i < arrivals.size(); ++i) {
                if (arrivals[i].movedFrom) continue;
                script.entries.push_back(arrivals[i].entry);
                places.push_back(i);
            }
        };
        collect(ours, left, leftPlaces);
        collect(theirs, right, rightPlaces);
        std::vector<CommonPlace> same;
        const ScriptDiff diff = diffScripts(left, right);
        for (std::size_t i = 0; i < diff.left.size(); ++i) {
            if (diff.left[i].change != StepChange::Same) continue;
            same.push_back({leftPlaces[i], rightPlaces[diff.left[i].other]});
        }
        return same;
    }

    void addArrival(const Arrival& arrival) {
        if (arrival.movedFrom) {
            addStep(*arrival.movedFrom);
        } else {
            add(arrival.entry);
        }
    }

    // What became of a step of the base.
    void addStep(std::size_t step) {
        const bool isGoneFromOurs = ours_.fateOf(step) == StepChange::Single;
        const bool isGoneFromTheirs = theirs_.fateOf(step) == StepChange::Single;
        if (isGoneFromOurs && isGoneFromTheirs) return;
        if (isGoneFromOurs) {
            if (theirs_.fateOf(step) != StepChange::Same) addConflict({}, theirs_.stateOf(step));
            return;
        }
        if (isGoneFromTheirs) {
            if (ours_.fateOf(step) != StepChange::Same) addConflict(ours_.stateOf(step), {});
            return;
        }
        addMerged(base_.entries[step], ours_.stateOf(step), theirs_.stateOf(step));
    }

    void addMerged(const EntryHandle& base, const EntryHandle& ours, const EntryHandle& theirs) {
        if (base == theirs || ours == theirs) return add(ours);
        if (base == ours) return add(theirs);
        const auto merged = mergeEntries(unpackSealedEntry(base), unpackSealedEntry(ours),
                                         unpackSealedEntry(theirs));
        if (merged) {
            add(packSealedEntry(*merged).entry);
        } else {
            addConflict(ours, theirs);
        }
    }

    void addConflict(const EntryHandle& ours, const EntryHandle& theirs) {
        ++result_.conflicts;
        add(marks_[0]);
        if (!ours.record().empty()) add(ours);
        add(marks_[1]);
        if (!theirs.record().empty()) add(theirs);
        add(marks_[2]);
    }

    void add(const EntryHandle& entry) { result_.script.entries.push_back(entry); }

    const Script& base_;
    SideChanges ours_;
    SideChanges theirs_;
    std::array<EntryHandle, 3> marks_;
    MergeResult result_;
};

std::optional<HostType> mergedHostType(HostType base, HostType ours, HostType theirs) {
    if (base == theirs || ours == theirs) return ours;
    if (base == ours) return theirs;
    return std::nullopt;
}

}  // namespace

MergeResult mergeScripts(const MergeSide& base, const MergeSide& ours, const MergeSide& theirs) {
    MergeResult result;
    const auto hostType = mergedHostType(base.hostType, ours.hostType, theirs.hostType);
    if (!hostType) {
        result.refusal = MergeRefusal::HostTypes;
        return result;
    }
    result = Merger(base.script, ours, theirs).merge();
    result.hostType = *hostType;
    if (result.script.entryCount() > maxEntries) {
        result.refusal = MergeRefusal::TooManyEntries;
    } else if (!unstorableEntries(result.script, *hostType).empty()) {
        result.refusal = MergeRefusal::NotInHostType;
    }
    return result;
}

}  // namespace quendra
