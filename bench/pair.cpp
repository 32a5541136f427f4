#include "pair.h"

#include <algorithm>
#include <chrono>
#include <sys/resource.h>
#include <vector>

namespace quendra::bench {

namespace {

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Of this process and of those that it has started and waited for.
double processorSeconds() {
    double sum = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        sum += seconds(usage.ru_utime) + seconds(usage.ru_stime);
    }
    return sum;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

struct Times {
    std::vector<double> clock;
    std::vector<double> processor;

    void add(const std::function<void()>& work) {
        const double processorStart = processorSeconds();
        const auto start = std::chrono::steady_clock::now();
        work();
        const auto end = std::chrono::steady_clock::now();
        clock.push_back(std::chrono::duration<double>(end - start).count());
        processor.push_back(processorSeconds() - processorStart);
    }
};

}  // namespace

void comparePair(benchmark::State& state, const std::function<void()>& limit,
                 const std::function<void()>& ours, const std::function<void()>& reset, Goal goal) {
    Times limits;
    Times times;
    for ([[maybe_unused]] auto round : state) {
        reset();
        limits.add(limit);
        reset();
        times.add(ours);
        state.SetIterationTime(times.clock.back());
    }
    const double limitMedian = median(limits.clock);
    const double ourMedian = median(times.clock);
    state.counters["limit_us"] = limitMedian * 1e6;
    state.counters["ours_us"] = ourMedian * 1e6;
    state.counters["ratio"] = ourMedian / limitMedian;
    state.counters["ours_cpu_us"] = median(times.processor) * 1e6;
    state.counters["cpu_ratio"] = median(times.processor) / median(limits.processor);
    if (goal.ratio > 0) state.counters["ratio_at_most"] = goal.ratio;
    if (goal.microseconds > 0) state.counters["us_at_most"] = goal.microseconds;
}

}  // namespace quendra::bench
