// A piece of our work beside the limit that it is measured against.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>

namespace quendra::bench {

/// The most that we allow ourselves; 0 for no such limit.
struct Goal {
    double ratio = 0;
    double microseconds = 0;
};

/// Runs the limit and our work in turn, so that both see the same machine, and reports the medians
/// in microseconds and their ratio, beside the goal; and those of the processor time, started
/// programs included, which say more while others use the machine. The benchmark's own time is that
/// of our work; use UseManualTime(). `reset` runs untimed before each.
void comparePair(
    benchmark::State& state, const std::function<void()>& limit, const std::function<void()>& ours,
    const std::function<void()>& reset = [] {}, Goal goal = {});

}  // namespace quendra::bench
