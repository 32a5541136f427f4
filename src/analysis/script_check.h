// What is wrong with a script, or looks wrong: every rule over every step.
#pragma once

#include "analysis/check_rules.h"
#include "analysis/script_outline.h"
#include "hosts/host_type.h"
#include "model/script.h"
#include "scriptfile/hidden_text.h"
#include "text/language_library.h"

#include <string>
#include <vector>

namespace quendra {

/// A place where a rule is broken. Holds no hidden text and no password.
struct Finding {
    Rule rule;
    StepPlace place;
    /// Which of the library's texts tells it, and what stands in its places, in UTF-8, of any
    /// length and with any control characters that the script's texts hold.
    StringId text = 0;
    std::vector<std::string> arguments;
    /// Other steps that have to do with it, from 0, ascending.
    std::vector<std::size_t> related;

    bool operator==(const Finding&) const = default;
};

struct CheckOptions {
    HostType hostType = HostType::Mainframe;
    /// False: the user has no identity, and hidden texts are only obscured.
    bool hasKey = true;
    bool withNotes = false;
    RuleSet disabled;

    [[nodiscard]] bool wants(Rule rule) const {
        return !disabled.has(rule) && (withNotes || ruleInfo(rule).severity != Severity::Note);
    }
};

/// What a check gives: its findings by step, slot and rule, and the outline that it made on the
/// way.
struct CheckResult {
    std::vector<Finding> findings;
    ScriptOutline outline;
};

/// Looks at the whole script. A step is silent about a rule that a Comment "check: allow RULE"
/// right before it names; several such Comments may follow each other.
[[nodiscard]] CheckResult checkScript(const Script& script, const HiddenTextCipher& cipher,
                                      const CheckOptions& options);

/// The finding in words, in UTF-8 on one line; long texts of the script are shortened. Of a label
/// that is missing it names the nearest one, which takes a while in a script of thousands.
[[nodiscard]] std::string findingMessage(const Finding& finding, const ScriptOutline& outline,
                                         const TextSource& texts);

}  // namespace quendra
