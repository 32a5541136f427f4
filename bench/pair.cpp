#include "pair.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace quendra::bench {

namespace {

double secondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double>& values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

}  // namespace

void comparePair(benchmark::State& state, const std::function<void()>& limit,
                 const std::function<void()>& ours, const std::function<void()>& reset) {
    std::vector<double> limits;
    std::vector<double> times;
    for ([[maybe_unused]] auto round : state) {
        reset();
        limits.push_back(secondsOf(limit));
        reset();
        times.push_back(secondsOf(ours));
        state.SetIterationTime(times.back());
    }
    const double limitMedian = median(limits);
    const double ourMedian = median(times);
    state.counters["limit_us"] = limitMedian * 1e6;
    state.counters["ours_us"] = ourMedian * 1e6;
    state.counters["ratio"] = ourMedian / limitMedian;
}

}  // namespace quendra::bench
