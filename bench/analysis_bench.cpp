// Looking at a whole script, beside making its display lines: both unpack every entry.
#include "analysis/entry_display.h"
#include "analysis/field_search.h"
#include "analysis/script_check.h"
#include "pair.h"
#include "sample_scripts.h"
#include "scriptfile/entry_codec.h"

#include <benchmark/benchmark.h>

namespace quendra::bench {

namespace {

using MakeScript = Script (*)(const HiddenTextCipher&);

const HiddenTextCipher& cipher() {
    static const HiddenTextCipher made("{01234567-89AB-CDEF-0123-456789ABCDEF}");
    return made;
}

void formatLines(const Script& script, const DisplayNames& names) {
    forEachEntry(script, cipher(), [&](const ScriptEntry& entry) {
        benchmark::DoNotOptimize(formatEntryLine(entry, names).data());
    });
}

void besideLines(benchmark::State& state, MakeScript make, Goal goal,
                 const std::function<void(const Script&)>& ours) {
    const Script script = make(cipher());
    const TextSource texts = [](StringId id) { return "Command " + std::to_string(id); };
    const LuCatalogues luFunctions = buildLuCatalogues(texts);
    const MenuCommandCatalogue menuCommands = buildMenuCommandCatalogue(texts);
    const DisplayNames names{luFunctions.of(HostType::Mainframe), menuCommands};
    comparePair(
        state, [&] { formatLines(script, names); }, [&] { ours(script); }, [] {}, goal);
}

// Every rule over every step.
void check(benchmark::State& state, MakeScript make, Goal goal) {
    CheckOptions options;
    options.withNotes = true;
    besideLines(state, make, goal, [&](const Script& script) {
        benchmark::DoNotOptimize(checkScript(script, cipher(), options).findings.data());
    });
}

// A text that is found nowhere, in every field.
void search(benchmark::State& state, MakeScript make, const PatternOptions& pattern, Goal goal) {
    const TextPattern wanted = std::get<TextPattern>(TextPattern::of("nowhere", pattern));
    besideLines(state, make, goal, [&](const Script& script) {
        benchmark::DoNotOptimize(searchFields(script, wanted, {}).data());
    });
}

}  // namespace

BENCHMARK_CAPTURE(check, typical, typicalScript, Goal{0, 3000})->UseManualTime();
BENCHMARK_CAPTURE(check, largest, largestScript, Goal{0, 10000})->UseManualTime();
BENCHMARK_CAPTURE(search, typical, typicalScript, PatternOptions{.ignoreCase = true}, Goal{0, 5000})
    ->UseManualTime();
BENCHMARK_CAPTURE(search, expression, typicalScript,
                  PatternOptions{.ignoreCase = true, .isExpression = true}, Goal{})
    ->UseManualTime();
BENCHMARK_CAPTURE(search, largest, largestScript, PatternOptions{.ignoreCase = true}, Goal{})
    ->UseManualTime();

}  // namespace quendra::bench
