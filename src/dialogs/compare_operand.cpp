#include "dialogs/compare_operand.h"

#include <algorithm>

namespace quendra {

namespace {

// The names are ASCII; other bytes are their own lower case.
char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isName(std::string_view typed, std::string_view name) {
    return std::ranges::equal(typed, name, {}, lowerCase, lowerCase);
}

}  // namespace

CompareOperand parseOperand(std::string_view typed) {
    for (std::size_t kind = 0; kind < inputVariableNames.size(); ++kind) {
        if (isName(typed, inputVariableNames[kind])) return {{}, static_cast<std::uint8_t>(kind)};
    }
    return {std::string(typed), 0};
}

CompareOperand firstOperand(const ScriptEntry& entry) {
    return {std::string(textOf(slotFields(entry, Slot::Entry))), entry.firstOperandKind};
}

CompareOperand secondOperand(const ScriptEntry& entry) {
    return {std::string(compareTextOf(entry)), entry.secondOperandKind};
}

void setFirstOperand(ScriptEntry& entry, const CompareOperand& operand) {
    setText(slotFields(entry, Slot::Entry), operand.literal);
    entry.firstOperandKind = operand.kind;
}

void setSecondOperand(ScriptEntry& entry, const CompareOperand& operand) {
    setCompareText(entry, operand.literal);
    entry.secondOperandKind = operand.kind;
}

std::string firstOperandShown(const ScriptEntry& entry) {
    const CompareOperand operand = firstOperand(entry);
    if (!operand.literal.empty()) return operand.literal;
    return operand.kind == 0 ? std::string() : std::string(inputVariableName(operand.kind));
}

std::string secondOperandShown(const ScriptEntry& entry) {
    const CompareOperand operand = secondOperand(entry);
    return operand.literal.empty() ? std::string(inputVariableName(operand.kind)) : operand.literal;
}

}  // namespace quendra
