#include "session/jump_lanes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

namespace quendra {

namespace {

constexpr int noLane = -1;

std::uint8_t laneBit(int lane) {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(lane));
}

// What of a lane is taken; no two parts share a step.
class TakenLane {
  public:
    bool take(std::size_t first, std::size_t last) {
        const auto behind = parts_.upper_bound(last);
        if (behind != parts_.begin() && std::prev(behind)->second >= first) return false;
        parts_.emplace_hint(behind, first, last);
        return true;
    }

  private:
    /// First and last steps.
    std::map<std::size_t, std::size_t> parts_;
};

// How many lines of each lane begin and end at a step: added up from above, they tell where there
// is any, whatever their number and length.
using LaneEnds = std::array<std::int32_t, mostJumpLanes>;

}  // namespace

JumpLanes::JumpLanes(const ScriptOutline& outline) : lines_(outline.labels.size()) {
    std::vector<std::size_t> order;
    for (std::size_t label = 0; label < lines_.size(); ++label) {
        const LabelOutline& name = outline.labels[label];
        Line& line = lines_[label];
        line.lane = noLane;
        if (name.definitions.empty() || name.uses.empty()) continue;
        line.target = name.definitions.front().step;
        line.first = std::min(line.target, name.uses.front().step);
        line.last = std::max(line.target, name.uses.back().step);
        order.push_back(label);
    }
    assignLanes(std::move(order));
    draw(outline);
}

void JumpLanes::follow(const StepShift& shift) {
    const auto first = steps_.begin() + static_cast<std::ptrdiff_t>(shift.first);
    const auto behind = steps_.erase(first, first + static_cast<std::ptrdiff_t>(shift.gone));
    StepJumps passed;
    if (behind != steps_.end()) passed.above = passed.below = behind->above;
    steps_.insert(behind, shift.come, passed);
    for (Line& line : lines_) {
        for (std::size_t* end : {&line.first, &line.last, &line.target})
            *end = shift.moved(*end).value_or(shift.first);
    }
}

void JumpLanes::assignLanes(std::vector<std::size_t> order) {
    std::ranges::stable_sort(
        order, {}, [this](std::size_t label) { return lines_[label].last - lines_[label].first; });
    std::array<TakenLane, mostJumpLanes> taken;
    for (const std::size_t label : order) {
        Line& line = lines_[label];
        line.lane = 0;
        while (line.lane + 1 < mostJumpLanes &&
               !taken[static_cast<std::size_t>(line.lane)].take(line.first, line.last)) {
            ++line.lane;
        }
        laneCount_ = std::max(laneCount_, line.lane + 1);
    }
}

void JumpLanes::draw(const ScriptOutline& outline) {
    steps_.resize(outline.steps.size());
    std::vector<LaneEnds> ends(steps_.size() + 1);
    for (std::size_t label = 0; label < lines_.size(); ++label) {
        const Line& line = lines_[label];
        const LabelOutline& name = outline.labels[label];
        const auto lane = static_cast<std::size_t>(line.lane);
        for (std::size_t i = 0; i < name.definitions.size(); ++i)
            steps_[name.definitions[i].step].isUnused |= i > 0 || name.uses.empty();
        for (const StepPlace& use : name.uses) {
            if (name.definitions.empty()) {
                steps_[use.step].isLost = true;
            } else {
                steps_[use.step].leaves |= laneBit(line.lane);
            }
        }
        if (line.lane == noLane) continue;
        steps_[line.target].arrives |= laneBit(line.lane);
        ++ends[line.first][lane];
        --ends[line.last][lane];
    }
    LaneEnds open{};
    for (std::size_t step = 0; step < steps_.size(); ++step) {
        for (std::size_t lane = 0; lane < open.size(); ++lane) {
            const std::uint8_t bit = laneBit(static_cast<int>(lane));
            if (open[lane] > 0) steps_[step].above |= bit;
            open[lane] += ends[step][lane];
            if (open[lane] > 0) steps_[step].below |= bit;
        }
    }
}

void JumpLanes::addJump(StepJumps& drawn, const Line& line, std::size_t from,
                        std::size_t at) const {
    const auto [first, last] = std::minmax(from, line.target);
    const std::uint8_t bit = laneBit(line.lane);
    if (at < first || at > last) return;
    if (at > first) drawn.above |= bit;
    if (at < last) drawn.below |= bit;
    if (at == from) drawn.leaves |= bit;
    if (at == line.target) drawn.arrives |= bit;
}

StepJumps JumpLanes::ofStep(const ScriptOutline& outline, std::size_t step, std::size_t at) const {
    StepJumps drawn;
    if (step >= outline.steps.size() || at >= steps_.size()) return drawn;
    for (const SlotOutline& slot : outline.steps[step]) {
        if (slot.label == noLabel || slot.label >= lines_.size()) continue;
        const Line& line = lines_[slot.label];
        if (line.lane == noLane) continue;
        if (slot.code == CommandCode::Goto) {
            addJump(drawn, line, step, at);
        } else if (line.target == step && at >= line.first && at <= line.last) {
            // All that lead here: their ends are those of the line.
            addJump(drawn, line, line.first, at);
            addJump(drawn, line, line.last, at);
            drawn.leaves &= static_cast<std::uint8_t>(~laneBit(line.lane));
            const auto& uses = outline.labels[slot.label].uses;
            const auto use = std::ranges::lower_bound(uses, at, {}, &StepPlace::step);
            if (use != uses.end() && use->step == at) drawn.leaves |= laneBit(line.lane);
        }
    }
    return drawn;
}

}  // namespace quendra
