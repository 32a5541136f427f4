// The operands of If_Input_Is as they are typed: the name of a variable, or a literal.
#pragma once

#include "model/script_entry.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quendra {

struct CompareOperand {
    /// Windows-1252 bytes; empty for a variable.
    std::string literal;
    /// The variable's kind; 0 for a literal.
    std::uint8_t kind = 0;

    bool operator==(const CompareOperand&) const = default;
};

/// What `typed` (windows-1252 bytes) means: the variable of that name, compared without regard to
/// case, or else the text itself.
[[nodiscard]] CompareOperand parseOperand(std::string_view typed);

[[nodiscard]] CompareOperand firstOperand(const ScriptEntry& entry);
[[nodiscard]] CompareOperand secondOperand(const ScriptEntry& entry);
void setFirstOperand(ScriptEntry& entry, const CompareOperand& operand);
void setSecondOperand(ScriptEntry& entry, const CompareOperand& operand);

/// What the box of an operand shows at the start: the literal or the variable's name. The first box
/// stays empty for kind 0, which a new entry has before anything was chosen.
[[nodiscard]] std::string firstOperandShown(const ScriptEntry& entry);
[[nodiscard]] std::string secondOperandShown(const ScriptEntry& entry);

}  // namespace quendra
