#include "session/drop_rules.h"

#include <algorithm>
#include <numeric>

namespace quendra {

std::optional<int> dropTarget(const DropPoint& point, int entryCount) {
    const int last = entryCount - 1;
    if (point.y < 0) return 0;
    if (point.y >= point.clientHeight) return last;
    if (point.x < 0 || point.x >= point.clientWidth) return std::nullopt;
    if (point.entry >= 0) return point.entry;
    switch (point.heading) {
        case Heading::Up: return 0;
        case Heading::Down: return last;
        case Heading::Level: break;
    }
    return std::nullopt;
}

MovePlan planMove(std::span<const std::size_t> selected, int focused, int target, bool up,
                  int entryCount) {
    const auto count = static_cast<std::ptrdiff_t>(selected.size());
    const auto at = [&](std::ptrdiff_t k) {
        return static_cast<int>(selected[static_cast<std::size_t>(k)]);
    };
    MovePlan plan;
    plan.selected.resize(selected.size());
    plan.focused = focused;
    const std::ptrdiff_t begin = up ? 0 : count - 1;
    const std::ptrdiff_t end = up ? count : -1;
    const std::ptrdiff_t step = up ? 1 : -1;
    // The end of the block that leads the way is held inside the script; the rest follows it.
    if (focused >= 0) {
        const int lead = target + at(begin) - focused;
        target = up ? std::max(lead, 0) : std::min(lead, entryCount - 1);
    }
    for (std::ptrdiff_t k = begin; k != end; k += step) {
        if (k != begin) target += at(k) - at(k - step);
        plan.steps.push_back({at(k), target});
        if (at(k) == plan.focused) plan.focused = target;
        plan.selected[static_cast<std::size_t>(k)] = target;
        plan.current = target;
    }
    return plan;
}

namespace {

// No step moves an entry that another one has moved or will move: each goes the same way as the one
// before it and stays on the same side of it.
bool isOneSweep(std::span<const MoveStep> steps, int entryCount) {
    const bool up = !steps.empty() && steps.front().to <= steps.front().from;
    for (std::size_t k = 0; k < steps.size(); ++k) {
        const auto [from, to] = steps[k];
        if (to < 0 || to >= entryCount || (up ? to > from : to < from)) return false;
        if (k == 0) continue;
        const auto [fromBefore, toBefore] = steps[k - 1];
        const bool behind =
            up ? from > fromBefore && to > toBefore : from < fromBefore && to < toBefore;
        if (!behind) return false;
    }
    return true;
}

// The order after one sweep: the moved entries stand where they were moved to, and the others fill
// the places between them. In one pass, while a step at a time costs the distance of each.
std::vector<std::size_t> orderAfterSweep(std::span<const MoveStep> steps, int entryCount) {
    constexpr auto unused = static_cast<std::size_t>(-1);
    std::vector<std::size_t> order(static_cast<std::size_t>(entryCount), unused);
    std::vector<bool> moved(order.size());
    for (const MoveStep& step : steps) {
        order[static_cast<std::size_t>(step.to)] = static_cast<std::size_t>(step.from);
        moved[static_cast<std::size_t>(step.from)] = true;
    }
    std::size_t next = 0;
    for (std::size_t& place : order) {
        if (place != unused) continue;
        while (moved[next]) {
            ++next;
        }
        place = next++;
    }
    return order;
}

}  // namespace

std::vector<std::size_t> orderAfter(std::span<const MoveStep> steps, int entryCount) {
    if (isOneSweep(steps, entryCount)) return orderAfterSweep(steps, entryCount);
    std::vector<std::size_t> order(static_cast<std::size_t>(entryCount));
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (const MoveStep& step : steps) {
        const int to = std::clamp(step.to, 0, entryCount - 1);
        const auto from = order.begin() + step.from;
        const auto place = order.begin() + to;
        if (from < place) {
            std::rotate(from, from + 1, place + 1);
        } else {
            std::rotate(place, from, from + 1);
        }
    }
    return order;
}

std::vector<EntryMove> movesOf(std::span<const std::size_t> order) {
    std::vector<EntryMove> moves;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (order[i] != i) moves.push_back({order[i], i});
    }
    return moves;
}

std::vector<int> landingRows(std::span<const std::size_t> order,
                             std::span<const std::size_t> selected) {
    if (std::is_sorted(order.begin(), order.end())) return {};
    std::vector<bool> moved(order.size());
    for (const std::size_t entry : selected) {
        moved[entry] = true;
    }
    std::vector<int> rows;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (!moved[order[i]]) continue;
        while (i + 1 < order.size() && moved[order[i + 1]]) {
            ++i;
        }
        rows.push_back(static_cast<int>(i + 1 < order.size() ? order[i + 1] : order.size()));
    }
    return rows;
}

}  // namespace quendra
