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

void formatBoth(const Script& left, const Script& right, const DisplayNames& names) {
    for (const Script* script : {&left, &right}) {
        forEachEntry(*script, cipher(), [&](const ScriptEntry& entry) {
            benchmark::DoNotOptimize(formatEntryLine(entry, names).data());
        });
    }
}

void diff(benchmark::State& state, std::size_t each, Goal goal) {
    const Script left = typicalScript(cipher());
    const Script right = changedScript(left, 0, each, "changed ");
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
    const Script ours = changedScript(base, 0, 20, "ours ");
    const Script theirs = changedScript(base, 10, 20, "theirs ");
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
