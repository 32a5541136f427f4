// A piece of our work beside the limit that it is measured against.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>

namespace quendra::bench {

/// Runs the limit and our work in turn, so that both see the same machine, and reports the medians
/// in microseconds and their ratio. The benchmark's own time is that of our work; use
/// UseManualTime(). `reset` runs untimed before each.
void comparePair(
    benchmark::State& state, const std::function<void()>& limit, const std::function<void()>& ours,
    const std::function<void()>& reset = [] {});

}  // namespace quendra::bench
