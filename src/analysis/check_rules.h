// The rules that checks know, in one table: what each is called and how bad it is.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quendra {

/// In the order of the table.
enum class Rule : std::uint8_t {
    LabelMissing,
    LabelDuplicate,
    ParameterMissing,
    ValueRange,
    KeyUnknown,
    MenuCommandUnknown,
    NotInHostType,
    TransferIncomplete,
    TransferCut,
    MergeConflict,
    LabelUnused,
    LabelAsAction,
    Unreachable,
    BusyLoop,
    VariableUnset,
    PasswordInClear,
    SealedText,
    TimeoutZero,
    WaitForever,
    WatchKept,
    HiddenWithoutKey,
};

enum class Severity : std::uint8_t {
    /// The script does not do what it says.
    Error,
    /// It may well do something else than was meant.
    Warning,
    /// Worth knowing, and shown on demand only.
    Note,
};

struct RuleInfo {
    Rule rule;
    /// What the command line, Comments and the manual call it.
    std::string_view id;
    Severity severity;
};

inline constexpr std::array checkRules = std::to_array<RuleInfo>({
    {Rule::LabelMissing, "label-missing", Severity::Error},
    {Rule::LabelDuplicate, "label-duplicate", Severity::Error},
    {Rule::ParameterMissing, "parameter-missing", Severity::Error},
    {Rule::ValueRange, "value-range", Severity::Error},
    {Rule::KeyUnknown, "key-unknown", Severity::Error},
    {Rule::MenuCommandUnknown, "menu-command-unknown", Severity::Error},
    {Rule::NotInHostType, "not-in-host-type", Severity::Error},
    {Rule::TransferIncomplete, "transfer-incomplete", Severity::Error},
    {Rule::TransferCut, "transfer-cut", Severity::Error},
    {Rule::MergeConflict, "merge-conflict", Severity::Error},
    {Rule::LabelUnused, "label-unused", Severity::Warning},
    {Rule::LabelAsAction, "label-as-action", Severity::Warning},
    {Rule::Unreachable, "unreachable", Severity::Warning},
    {Rule::BusyLoop, "busy-loop", Severity::Warning},
    {Rule::VariableUnset, "variable-unset", Severity::Warning},
    {Rule::PasswordInClear, "password-in-clear", Severity::Warning},
    {Rule::SealedText, "sealed-text", Severity::Warning},
    {Rule::TimeoutZero, "timeout-zero", Severity::Warning},
    {Rule::WaitForever, "wait-forever", Severity::Note},
    {Rule::WatchKept, "watch-kept", Severity::Note},
    {Rule::HiddenWithoutKey, "hidden-without-key", Severity::Note},
});

[[nodiscard]] constexpr const RuleInfo& ruleInfo(Rule rule) {
    return checkRules[static_cast<std::size_t>(rule)];
}

/// The rule of an id, compared with regard to case; none when there is none.
[[nodiscard]] constexpr std::optional<Rule> ruleOfId(std::string_view id) {
    for (const RuleInfo& info : checkRules) {
        if (info.id == id) return info.rule;
    }
    return std::nullopt;
}

/// "error", "warning", "note".
[[nodiscard]] std::string_view severityName(Severity severity);

/// A set of rules.
class RuleSet {
  public:
    void add(Rule rule) { bits_ |= bit(rule); }
    [[nodiscard]] bool has(Rule rule) const { return (bits_ & bit(rule)) != 0; }
    [[nodiscard]] bool isEmpty() const { return bits_ == 0; }

  private:
    static_assert(checkRules.size() <= 32);
    static std::uint32_t bit(Rule rule) { return std::uint32_t{1} << static_cast<unsigned>(rule); }

    std::uint32_t bits_ = 0;
};

static_assert([] {
    for (std::size_t i = 0; i < checkRules.size(); ++i) {
        if (checkRules[i].rule != static_cast<Rule>(i)) return false;
    }
    return checkRules.back().rule == Rule::HiddenWithoutKey;
}());

}  // namespace quendra
