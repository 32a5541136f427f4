#include "analysis/script_search.h"

#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace quendra {

namespace {

// How long a search may go on whose pattern has given up: each text that it gives up in takes
// milliseconds, and a script can have thousands of them.
constexpr std::chrono::milliseconds patience{200};

const std::uint8_t* identityOf(const EntryHandle& entry) {
    return entry.record().data();
}

}  // namespace

void ScriptSearch::clear() {
    steps_.clear();
    luFunctions_ = nullptr;
}

void ScriptSearch::update(const Script& script, const HiddenTextCipher& cipher,
                          const DisplayNames& names) {
    if (luFunctions_ != &names.luFunctions) clear();
    luFunctions_ = &names.luFunctions;
    const auto isKept = [](const Step& step, const EntryHandle& entry) {
        return identityOf(step.entry) == identityOf(entry);
    };
    // Mostly all but a few stand where they stood, counted from the start or from the end.
    const auto& entries = script.entries;
    const auto first =
        std::mismatch(steps_.begin(), steps_.end(), entries.begin(), entries.end(), isKept);
    const auto last =
        std::mismatch(steps_.rbegin(), std::make_reverse_iterator(first.first), entries.rbegin(),
                      std::make_reverse_iterator(first.second), isKept);
    std::unordered_map<const std::uint8_t*, Step> known;
    for (auto step = first.first; step != last.first.base(); ++step) {
        const auto* identity = identityOf(step->entry);
        known.emplace(identity, std::move(*step));
    }
    std::vector<Step> changed;
    EntryUnpacker unpacker(cipher);
    for (auto entry = first.second; entry != last.second.base(); ++entry) {
        // A record can stand in the script several times.
        auto found = known.find(identityOf(*entry));
        if (found == known.end()) {
            changed.push_back(stepOf(*entry, unpacker.unpack(*entry), names));
        } else {
            changed.push_back(std::move(found->second));
            known.erase(found);
        }
    }
    const auto at = steps_.erase(first.first, last.first.base());
    steps_.insert(at, std::make_move_iterator(changed.begin()),
                  std::make_move_iterator(changed.end()));
}

ScriptSearch::Step ScriptSearch::stepOf(const EntryHandle& handle, const ScriptEntry& entry,
                                        const DisplayNames& names) {
    Step step = {handle, formatEntryLine(entry, names), {}};
    forEachSearchableField(entry, {},
                           [&](Slot slot, const EntryField& field, std::string_view text) {
                               step.fields.push_back({slot, &field, std::string(text)});
                           });
    return step;
}

void ScriptSearch::addHits(const TextPattern& pattern, const Step& step, std::size_t index,
                           std::vector<SearchHit>& hits) {
    const std::size_t before = hits.size();
    std::uint32_t order = 0;
    for (const FieldText& field : step.fields) {
        if (pattern.isInWindows1252(field.text)) {
            hits.push_back({{index, field.slot}, field.field, order});
        }
        ++order;
    }
    if (hits.size() == before && pattern.isInUtf8(step.line)) {
        hits.push_back({{index, Slot::Entry}});
    }
}

std::vector<SearchHit> ScriptSearch::find(const TextPattern& pattern) const {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + patience;
    std::vector<SearchHit> hits;
    for (std::size_t index = 0; index < steps_.size(); ++index) {
        addHits(pattern, steps_[index], index, hits);
        if (pattern.gaveUp() && Clock::now() > end) break;
    }
    return hits;
}

}  // namespace quendra
