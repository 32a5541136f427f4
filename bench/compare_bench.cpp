// Difference and merge of full scripts. A difference stands beside making the lines of both
// scripts, a merge beside a difference.
#include "analysis/entry_display.h"
#include "compare/script_diff.h"
#include "compare/script_merge.h"
#include "pair.h"
#include "sample_scripts.h"
#include "scriptfile/entry_codec.h"

#include <benchmark/benchmark.h>
#include <stdexcept>
#include <string>

namespace quendra::bench {

namespace {

const HiddenTextCipher& cipher() {
    static const HiddenTextCipher made("{01234567-89AB-CDEF-0123-456789ABCDEF}");
    return made;
}

// The script with every `each`th step changed from the `first` on: a text becomes another one.
Script changed(const Script& script, std::size_t first, std::size_t each, std::string_view mark) {
    Script result = script;
    for (std::size_t step = first; step < script.entryCount(); step += each) {
        ScriptEntry entry = unpackSealedEntry(script.entries[step]);
        setText(entry, std::string(mark) + std::to_string(step));
        if (isHiddenText(entry)) entry.hidden = 0;
        if (entry.textLength == 0 || entry.code == CommandCode::LuFunction) {
            entry.code = CommandCode::Comment;
        }
        replaceEntry(result, step, packSealedEntry(entry).entry);
    }
    return result;
}

void formatBoth(const Script& left, const Script& right, const DisplayNames& names) {
    for (const Script* script : {&left, &right}) {
        forEachEntry(*script, cipher(), [&](const ScriptEntry& entry) {
            benchmark::DoNotOptimize(formatEntryLine(entry, names).data());
        });
    }
}

void diff(benchmark::State& state, std::size_t each, Goal goal) {
    const Script left = typicalScript(cipher());
    const Script right = changed(left, 0, each, "changed ");
    const TextSource texts = [](StringId id) { return "Command " + std::to_string(id); };
    const LuCatalogues luFunctions = buildLuCatalogues(texts);
    const MenuCommandCatalogue menuCommands = buildMenuCommandCatalogue(texts);
    const DisplayNames names{luFunctions.of(HostType::Mainframe), menuCommands};
    comparePair(
        state, [&] { formatBoth(left, right, names); },
        [&] { benchmark::DoNotOptimize(diffScripts(left, right).left.data()); }, [] {}, goal);
}

void merge(benchmark::State& state, Goal goal) {
    const Script base = typicalScript(cipher());
    const Script ours = changed(base, 0, 20, "ours ");
    const Script theirs = changed(base, 10, 20, "theirs ");
    comparePair(
        state, [&] { benchmark::DoNotOptimize(diffScripts(base, ours).left.data()); },
        [&] {
            const MergeResult merged =
                mergeScripts({base, HostType::UTS}, {ours, HostType::UTS}, {theirs, HostType::UTS});
            if (merged.conflicts != 0) throw std::runtime_error("disjoint changes conflict");
        },
        [] {}, goal);
}

}  // namespace

BENCHMARK_CAPTURE(diff, a_tenth_changed, 10, Goal{0, 20000})->UseManualTime();
BENCHMARK_CAPTURE(diff, all_changed, 1, Goal{0, 100000})->UseManualTime();
BENCHMARK_CAPTURE(merge, two_twentieths, Goal{3, 0})->UseManualTime();

}  // namespace quendra::bench
