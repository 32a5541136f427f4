#include "analysis/script_check.h"

#include "analysis/conflict_marks.h"
#include "analysis/script_flow.h"
#include "analysis/step_rules.h"
#include "model/menu_commands.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr std::string_view allowPrefix = "check: allow ";
constexpr std::size_t longestShown = 60;

// The rule that a step is to be silent about, when this one is the Comment that says so.
std::optional<Rule> allowedRule(const ScriptEntry& entry) {
    if (entry.code != CommandCode::Comment) return std::nullopt;
    std::string_view text = textOf(entry);
    if (!text.starts_with(allowPrefix)) return std::nullopt;
    text.remove_prefix(allowPrefix.size());
    text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
    return ruleOfId(text);
}

std::string utf8Name(const LabelOutline& label) {
    return utf8FromWindows1252(label.name);
}

std::string stepNumber(std::size_t step) {
    return std::to_string(step + 1);
}

class ScriptChecker {
  public:
    ScriptChecker(const Script& script, const HiddenTextCipher& cipher, const CheckOptions& options)
        : script_(script), cipher_(cipher), options_(options), allowed_(script.entryCount()) {}

    CheckResult check() {
        passOver();
        checkLabels();
        checkFlow();
        checkVariables();
        if (options_.hostType == HostType::VT) checkHostType();
        dropAllowed();
        std::ranges::stable_sort(result_.findings, {}, [](const Finding& finding) {
            return std::pair(finding.place, finding.rule);
        });
        return std::move(result_);
    }

  private:
    void passOver() {
        OutlineMaker outline(script_.entryCount());
        StepRules rules(options_, result_.findings);
        RuleSet pending;
        std::size_t step = 0;
        forEachEntry(script_, cipher_, [&](const ScriptEntry& entry) {
            outline.add(entry);
            rules.check(entry);
            if (entry.code == CommandCode::Comment) checkConflict(entry, step);
            if (const auto rule = allowedRule(entry)) {
                pending.add(*rule);
                hasAllowed_ = true;
            } else {
                allowed_[step] = std::exchange(pending, {});
            }
            ++step;
        });
        result_.outline = outline.take();
    }

    void checkConflict(const ScriptEntry& comment, std::size_t step) {
        const std::string_view text = textOf(comment);
        if (isConflictMark(text, conflictStart)) {
            conflict_.reset();
            if (report(Rule::MergeConflict, {step}, textid::checkMergeConflict,
                       {utf8FromWindows1252(conflictSide(text))})) {
                conflict_ = result_.findings.size() - 1;
            }
        } else if (conflict_ &&
                   (isConflictMark(text, conflictMiddle) || isConflictMark(text, conflictEnd))) {
            result_.findings[*conflict_].related.push_back(step);
            if (isConflictMark(text, conflictEnd)) conflict_.reset();
        }
    }

    void checkLabels() {
        for (const LabelOutline& label : result_.outline.labels) {
            if (label.definitions.empty()) {
                for (const StepPlace& use : label.uses)
                    report(Rule::LabelMissing, use, textid::checkLabelMissing, {utf8Name(label)});
                continue;
            }
            checkDefinitions(label);
        }
    }

    void checkDefinitions(const LabelOutline& label) {
        const StepPlace first = label.definitions.front();
        for (const StepPlace& definition : label.definitions) {
            if (definition.slot != Slot::Entry) {
                report(Rule::LabelAsAction, definition, textid::checkLabelAsAction,
                       {utf8Name(label)});
            }
            if (definition == first) continue;
            report(Rule::LabelDuplicate, definition, textid::checkLabelDuplicate,
                   {utf8Name(label), stepNumber(first.step)}, {first.step});
        }
        if (label.uses.empty()) {
            report(Rule::LabelUnused, first, textid::checkLabelUnused, {utf8Name(label)});
        }
    }

    void checkFlow() {
        const ScriptOutline& outline = result_.outline;
        checkReachable(reachableSteps(outline));
        for (const auto& circle : busyCircles(outline)) {
            report(Rule::BusyLoop, {circle.front()}, textid::checkBusyLoop,
                   {stepNumber(circle.front()), stepNumber(circle.back())},
                   {circle.begin() + 1, circle.end()});
        }
        if (options_.wants(Rule::WatchKept)) checkWatches();
    }

    void checkReachable(const std::vector<bool>& isReachable) {
        bool isTold = false;
        for (std::size_t step = 0; step < isReachable.size(); ++step) {
            if (isReachable[step]) {
                isTold = false;
            } else if (!isTold && codeOf(step) != CommandCode::Comment) {
                isTold = true;
                report(Rule::Unreachable, {step}, textid::checkUnreachable);
            }
        }
    }

    void checkWatches() {
        const auto isWatch = [](const StepOutline& step) {
            return step.front().code == CommandCode::WatchFor;
        };
        const auto& steps = result_.outline.steps;
        if (std::ranges::none_of(steps, isWatch)) return;
        const std::vector<bool> isCleared = stepsBeforeClearWatch(result_.outline);
        for (std::size_t step = 0; step < steps.size(); ++step) {
            if (isWatch(steps[step]) && !isCleared[step]) {
                report(Rule::WatchKept, {step}, textid::checkWatchKept);
            }
        }
    }

    void checkVariables() {
        const auto& variables = result_.outline.variables;
        for (std::size_t kind = 0; kind < variables.size(); ++kind) {
            if (!variables[kind].stores.empty()) continue;
            for (const StepPlace& read : variables[kind].reads) {
                report(Rule::VariableUnset, read, textid::checkVariableUnset,
                       {std::string(inputVariableNames[kind])});
            }
        }
    }

    void checkHostType() {
        if (!options_.wants(Rule::NotInHostType)) return;
        const std::string name(hostTypeInfo(options_.hostType).name);
        for (const std::size_t step : unstorableEntries(script_, options_.hostType)) {
            const ScriptEntry entry = unpackEntry(script_.entries[step], cipher_);
            for (const Slot slot : slotsOf(entry)) {
                const Step& fields = slotFields(entry, slot);
                if (fields.code != CommandCode::MenuCommand) continue;
                const bool isLost = isRefusedInVt(fields.commandId) ||
                                    (isFileTransfer(fields.commandId) && holdsTransfer(fields));
                if (isLost)
                    report(Rule::NotInHostType, {step, slot}, textid::checkNotInHostType, {name});
            }
        }
    }

    static bool holdsTransfer(const Step& fields) {
        return fields.transferHost != 0 || fields.transferSettings != FileTransferSettings{};
    }

    void dropAllowed() {
        if (!hasAllowed_) return;
        std::erase_if(result_.findings, [&](const Finding& finding) {
            return allowed_[finding.place.step].has(finding.rule);
        });
    }

    [[nodiscard]] CommandCode codeOf(std::size_t step) const {
        return result_.outline.steps[step].front().code;
    }

    bool report(Rule rule, StepPlace place, StringId text, std::vector<std::string> arguments = {},
                std::vector<std::size_t> related = {}) {
        if (!options_.wants(rule)) return false;
        result_.findings.push_back({rule, place, text, std::move(arguments), std::move(related)});
        return true;
    }

    const Script& script_;
    const HiddenTextCipher& cipher_;
    const CheckOptions& options_;
    std::vector<RuleSet> allowed_;
    bool hasAllowed_ = false;
    /// The finding of the conflict whose end has not come yet.
    std::optional<std::size_t> conflict_;
    CheckResult result_;
};

std::string shown(std::string_view utf8) {
    return shortened(escapeControlCharacters(utf8), longestShown);
}

// The text with what stands in its places; a message has at most four.
std::string filled(const std::string& text, const std::vector<std::string>& arguments) {
    const auto argument = [&](std::size_t index) {
        return index < arguments.size() ? shown(arguments[index]) : std::string();
    };
    return formatText(text, {argument(0), argument(1), argument(2), argument(3)});
}

}  // namespace

CheckResult checkScript(const Script& script, const HiddenTextCipher& cipher,
                        const CheckOptions& options) {
    return ScriptChecker(script, cipher, options).check();
}

std::string findingMessage(const Finding& finding, const ScriptOutline& outline,
                           const TextSource& texts) {
    const std::string message = filled(texts(finding.text), finding.arguments);
    if (finding.rule != Rule::LabelMissing) return message;
    const SlotOutline& slot = slotOutline(outline.steps[finding.place.step], finding.place.slot);
    const LabelOutline* nearest = nearestLabel(outline, outline.labels[slot.label].name);
    if (nearest == nullptr) return message;
    return message + filled(texts(textid::checkNearestLabel),
                            {utf8Name(*nearest), stepNumber(nearest->definitions.front().step)});
}

}  // namespace quendra
