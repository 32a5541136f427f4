#include "session/live_check.h"

#include "compare/merge_conflicts.h"
#include "session/step_shift.h"
#include "text/text_ids.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <utility>

namespace quendra {

namespace {

std::size_t stepOf(const Finding& finding) {
    return finding.place.step;
}

bool haveSameMarks(const std::vector<Finding>& left, const std::vector<Finding>& right) {
    return std::ranges::equal(left, right, [](const Finding& one, const Finding& other) {
        return one.place.step == other.place.step &&
               ruleInfo(one.rule).severity == ruleInfo(other.rule).severity;
    });
}

bool isAt(std::span<const Finding> findings, std::optional<std::size_t> current, int step) {
    return current && *current < findings.size() && step >= 0 &&
           findings[*current].place.step == static_cast<std::size_t>(step);
}

StringId toldText(Severity severity) {
    switch (severity) {
        case Severity::Error: return textid::errorMessage;
        case Severity::Warning: return textid::warningMessage;
        case Severity::Note: break;
    }
    return textid::noteMessage;
}

// Where a step of before is now; none when it is gone.
using MovedStep = std::function<std::optional<std::size_t>(std::size_t)>;

// Between scripts of one length steps have changed their places or their contents; a step that was
// moved still has its record.
MovedStep movedWithin(const StepShift& shift, std::span<const EntryHandle> before,
                      std::span<const EntryHandle> after) {
    std::unordered_map<const std::uint8_t*, std::size_t> places;
    for (std::size_t step = shift.first; step < shift.first + shift.come; ++step)
        places[after[step].record().data()] = step;
    return [places = std::move(places), shift, before](std::size_t step) {
        if (step < shift.first || step >= shift.first + shift.gone) return step;
        const auto place = places.find(before[step].record().data());
        return place == places.end() ? step : place->second;
    };
}

// `stepOf` gives the step of an element to be read and written.
template <typename Element, typename StepOf>
void movePlaces(std::vector<Element>& elements, const MovedStep& moved, StepOf stepOf) {
    std::erase_if(elements, [&](Element& element) {
        const auto step = moved(stepOf(element));
        if (step) stepOf(element) = *step;
        return !step;
    });
    std::ranges::stable_sort(elements, {}, stepOf);
}

void moveOutline(ScriptOutline& outline, std::size_t stepCount, const MovedStep& moved) {
    std::vector<StepOutline> steps(stepCount);
    for (std::size_t step = 0; step < outline.steps.size(); ++step) {
        const auto place = moved(step);
        if (place && *place < stepCount) steps[*place] = outline.steps[step];
    }
    outline.steps = std::move(steps);
    const auto move = [&moved](std::vector<StepPlace>& places) {
        movePlaces(places, moved, [](auto& place) -> decltype(auto) { return (place.step); });
    };
    for (LabelOutline& label : outline.labels) {
        move(label.definitions);
        move(label.uses);
    }
    for (VariableOutline& variable : outline.variables) {
        move(variable.stores);
        move(variable.reads);
    }
}

}  // namespace

LiveCheck::Change LiveCheck::update() {
    if (!isDue_ && hostType_ == state_.currentHostType && script_ == state_.script) {
        return Change::None;
    }
    isDue_ = false;
    script_ = state_.script;
    hostType_ = state_.currentHostType;
    CheckOptions options;
    options.hostType = hostType_;
    options.hasKey = !state_.cipher.onlyObscures();
    CheckResult result = checkScript(script_, state_.cipher, options);
    JumpLanes lanes(result.outline);
    const bool isSame = haveSameMarks(result.findings, result_.findings) && lanes == lanes_;
    result_ = std::move(result);
    lanes_ = std::move(lanes);
    hasConflicts_ = hasConflictMarks(script_);
    return isSame ? Change::Texts : Change::Marks;
}

bool LiveCheck::follow() {
    const std::vector<EntryHandle>& before = script_.entries;
    const std::vector<EntryHandle>& after = state_.script.entries;
    if (before == after) return false;
    isDue_ = true;
    const StepShift shift = shiftBetween(before, after);
    const bool isAsLong = before.size() == after.size();
    const bool moves = !isAsLong || shift.gone > 1;
    if (moves) {
        MovedStep moved = [&shift](std::size_t step) { return shift.moved(step); };
        if (isAsLong) moved = movedWithin(shift, before, after);
        movePlaces(result_.findings, moved,
                   [](auto& f) -> decltype(auto) { return (f.place.step); });
        for (Finding& finding : result_.findings)
            movePlaces(finding.related, moved, std::identity());
        moveOutline(result_.outline, after.size(), moved);
        if (!isAsLong) lanes_.follow(shift);
    }
    script_ = state_.script;
    return moves;
}

std::span<const Finding> LiveCheck::findingsOf(std::size_t step) const {
    return std::ranges::equal_range(result_.findings, step, {}, stepOf);
}

std::optional<Severity> LiveCheck::worstOf(std::size_t step) const {
    std::optional<Severity> worst;
    for (const Finding& finding : findingsOf(step)) {
        const Severity severity = ruleInfo(finding.rule).severity;
        worst = std::min(worst.value_or(severity), severity);
    }
    return worst;
}

std::size_t LiveCheck::count(Severity severity) const {
    return static_cast<std::size_t>(
        std::ranges::count(result_.findings, severity,
                           [](const Finding& finding) { return ruleInfo(finding.rule).severity; }));
}

std::string LiveCheck::message(const Finding& finding) const {
    return findingMessage(finding, result_.outline, state_.language.textSource());
}

std::string LiveCheck::line(const Finding& finding) const {
    return libraryText(state_.language, textid::problemLine,
                       {std::to_string(finding.place.step + 1), message(finding),
                        std::string(ruleInfo(finding.rule).id)});
}

std::string LiveCheck::told(const Finding& finding) const {
    const RuleInfo& rule = ruleInfo(finding.rule);
    return libraryText(state_.language, toldText(rule.severity),
                       {message(finding), std::string(rule.id)});
}

std::string LiveCheck::toldOf(std::size_t step) const {
    std::string all;
    for (const Finding& finding : findingsOf(step))
        all += (all.empty() ? "" : "\n") + told(finding);
    return all;
}

std::string LiveCheck::counts() const {
    std::string all;
    const auto add = [&](Severity severity, StringId one, StringId many) {
        const std::size_t found = count(severity);
        if (found == 0) return;
        if (!all.empty()) all += ", ";
        all += found == 1 ? state_.language.loadText(one)
                          : libraryText(state_.language, many, {std::to_string(found)});
    };
    add(Severity::Error, textid::oneError, textid::errorCount);
    add(Severity::Warning, textid::oneWarning, textid::warningCount);
    return all;
}

std::optional<std::size_t> nextFinding(std::span<const Finding> findings, int step,
                                       std::optional<std::size_t> current) {
    if (findings.empty()) return std::nullopt;
    if (isAt(findings, current, step)) return (*current + 1) % findings.size();
    const auto behind = static_cast<std::size_t>(step + 1);
    const auto next = std::ranges::lower_bound(findings, behind, {}, stepOf);
    return next == findings.end() ? 0 : static_cast<std::size_t>(next - findings.begin());
}

std::optional<std::size_t> previousFinding(std::span<const Finding> findings, int step,
                                           std::optional<std::size_t> current) {
    if (findings.empty()) return std::nullopt;
    std::size_t behind = findings.size();
    if (isAt(findings, current, step)) {
        behind = *current;
    } else if (step >= 0) {
        const auto here =
            std::ranges::lower_bound(findings, static_cast<std::size_t>(step), {}, stepOf);
        behind = static_cast<std::size_t>(here - findings.begin());
    }
    return (behind + findings.size() - 1) % findings.size();
}

}  // namespace quendra
