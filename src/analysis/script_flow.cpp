#include "analysis/script_flow.h"

#include <algorithm>

namespace quendra {

namespace {

// How the actions of an If_Input_Is, or of a Wait_For with a timeout, lead on to the next step:
// one of the two is run, or nothing where a slot is empty.
struct Fall {
    bool falls = false;
    bool waits = true;

    void add(const SlotOutline& action) {
        if (action.code == CommandCode::Goto || action.code == CommandCode::Return) return;
        falls = true;
        waits = waits && action.waits;
    }
};

class ExitFinder {
  public:
    ExitFinder(const ScriptOutline& outline, std::size_t step)
        : outline_(outline), step_(step), slots_(outline.steps[step]) {}

    StepExits find() {
        const SlotOutline& own = slots_.front();
        switch (own.code) {
            case CommandCode::Return: break;
            case CommandCode::Goto: jump(own, false); break;
            case CommandCode::WatchFor:
                goOn(false);
                jump(slotOutline(slots_, Slot::Then), true);
                break;
            case CommandCode::IfInputIs:
            case CommandCode::WaitFor: branch(); break;
            case CommandCode::None:
            case CommandCode::LuFunction:
            case CommandCode::MenuCommand:
            case CommandCode::Beep:
            case CommandCode::ClearWatch:
            case CommandCode::Comment:
            case CommandCode::Input:
            case CommandCode::Label:
            case CommandCode::Message:
            case CommandCode::Run:
            case CommandCode::SetCursor:
            case CommandCode::Type:
            case CommandCode::Wait:
            case CommandCode::WaitReady:
            case CommandCode::WaitUntil:
            case CommandCode::ExpressLogon:
            case CommandCode::Copy:
            case CommandCode::Paste: goOn(own.waits); break;
        }
        return exits_;
    }

  private:
    void goOn(bool waits) {
        if (step_ + 1 < outline_.steps.size()) exits_.add({step_ + 1, waits, false});
    }

    void jump(const SlotOutline& slot, bool isWatch) {
        const auto target = outline_.jumpTarget(slot);
        if (target) exits_.add({*target, slots_.front().waits, isWatch});
    }

    void branch() {
        Fall fall;
        for (const Slot slot : {Slot::Then, Slot::Else}) {
            const SlotOutline& action = slotOutline(slots_, slot);
            fall.add(action);
            jump(action, false);
        }
        if (fall.falls) goOn(slots_.front().waits || fall.waits);
    }

    const ScriptOutline& outline_;
    std::size_t step_;
    const StepOutline& slots_;
    StepExits exits_;
};

// Strongly connected components by Tarjan's way, with a stack of its own: a script has 4096 steps
// in a row, and every one would be a call in the next.
class CircleFinder {
  public:
    explicit CircleFinder(const ScriptOutline& outline)
        : outline_(outline), nodes_(outline.steps.size()) {}

    std::vector<std::vector<std::size_t>> find() {
        for (std::size_t step = 0; step < nodes_.size(); ++step) {
            if (nodes_[step].order == unseen) visitFrom(step);
        }
        std::ranges::sort(circles_);
        return std::move(circles_);
    }

  private:
    static constexpr std::size_t unseen = 0;

    struct Node {
        std::size_t order = unseen;
        std::size_t lowest = 0;
        bool isOpen = false;
        bool leadsToItself = false;
    };
    struct Visit {
        std::size_t step;
        StepExits exits;
        std::size_t followed = 0;
    };

    void visitFrom(std::size_t first) {
        enter(first);
        while (!visits_.empty()) {
            const std::size_t step = visits_.back().step;
            if (const auto to = nextBusyExit()) {
                follow(step, *to);
            } else {
                leave(step);
            }
        }
    }

    void enter(std::size_t step) {
        nodes_[step] = {++count_, count_, true, false};
        open_.push_back(step);
        visits_.push_back({step, exitsOf(outline_, step)});
    }

    std::optional<std::size_t> nextBusyExit() {
        Visit& visit = visits_.back();
        while (visit.followed < visit.exits.count()) {
            const StepExit& exit = visit.exits.begin()[visit.followed++];
            if (!exit.waits && !exit.isWatch) return exit.to;
        }
        return std::nullopt;
    }

    void follow(std::size_t step, std::size_t to) {
        if (to == step) nodes_[step].leadsToItself = true;
        if (nodes_[to].order == unseen) return enter(to);
        if (nodes_[to].isOpen) {
            nodes_[step].lowest = std::min(nodes_[step].lowest, nodes_[to].order);
        }
    }

    void leave(std::size_t step) {
        visits_.pop_back();
        if (!visits_.empty()) {
            Node& caller = nodes_[visits_.back().step];
            caller.lowest = std::min(caller.lowest, nodes_[step].lowest);
        }
        if (nodes_[step].lowest == nodes_[step].order) close(step);
    }

    void close(std::size_t step) {
        std::vector<std::size_t> circle;
        do {
            circle.push_back(open_.back());
            nodes_[open_.back()].isOpen = false;
            open_.pop_back();
        } while (circle.back() != step);
        if (circle.size() < 2 && !nodes_[step].leadsToItself) return;
        std::ranges::sort(circle);
        circles_.push_back(std::move(circle));
    }

    const ScriptOutline& outline_;
    std::vector<Node> nodes_;
    std::vector<Visit> visits_;
    std::vector<std::size_t> open_;
    std::size_t count_ = 0;
    std::vector<std::vector<std::size_t>> circles_;
};

}  // namespace

StepExits exitsOf(const ScriptOutline& outline, std::size_t step) {
    return ExitFinder(outline, step).find();
}

std::vector<bool> reachableSteps(const ScriptOutline& outline) {
    std::vector<bool> isReachable(outline.steps.size());
    std::vector<std::size_t> waiting;
    const auto reach = [&](std::size_t step) {
        if (isReachable[step]) return;
        isReachable[step] = true;
        waiting.push_back(step);
    };
    if (!outline.steps.empty()) reach(0);
    while (!waiting.empty()) {
        const std::size_t step = waiting.back();
        waiting.pop_back();
        for (const StepExit& exit : exitsOf(outline, step)) {
            reach(exit.to);
        }
    }
    return isReachable;
}

std::vector<bool> stepsBeforeClearWatch(const ScriptOutline& outline) {
    const std::size_t count = outline.steps.size();
    std::vector<std::vector<std::size_t>> comesFrom(count);
    std::vector<bool> isBefore(count);
    std::vector<std::size_t> waiting;
    for (std::size_t step = 0; step < count; ++step) {
        for (const StepExit& exit : exitsOf(outline, step)) {
            comesFrom[exit.to].push_back(step);
        }
        isBefore[step] = std::ranges::any_of(outline.steps[step], [](const SlotOutline& slot) {
            return slot.code == CommandCode::ClearWatch;
        });
        if (isBefore[step]) waiting.push_back(step);
    }
    while (!waiting.empty()) {
        const std::size_t step = waiting.back();
        waiting.pop_back();
        for (const std::size_t from : comesFrom[step]) {
            if (isBefore[from]) continue;
            isBefore[from] = true;
            waiting.push_back(from);
        }
    }
    return isBefore;
}

std::vector<std::vector<std::size_t>> busyCircles(const ScriptOutline& outline) {
    return CircleFinder(outline).find();
}

}  // namespace quendra
