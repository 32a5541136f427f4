// The rules behind the choice of an action and the operands of a comparison, on plain values.
#include "dialogs/action_rules.h"
#include "dialogs/compare_operand.h"
#include "model/menu_commands.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

using Code = CommandCode;

PaletteChoice choiceOfCode(Code code, std::uint32_t commandId = 0) {
    ScriptEntry entry;
    entry.thenAction.code = code;
    entry.thenAction.commandId = commandId;
    return choiceOf(slotFields(entry, Slot::Then), {});
}

/// The field that decides whether an action lacks its parameters.
std::string needs(Code code) {
    switch (code) {
        case Code::Wait:
        case Code::WaitReady: return "number";
        case Code::WaitUntil: return "day";
        case Code::Copy:
        case Code::Paste: return "area";
        case Code::Beep:
        case Code::ClearWatch:
        case Code::Return:
        case Code::IfInputIs:
        case Code::WatchFor: return "nothing";
        default: return "text";
    }
}

TEST(ActionRules, OneFieldDecidesWhetherAnActionLacksItsParameters) {
    for (const ScriptEventInfo& info : scriptEvents()) {
        for (const char* filled : {"text", "number", "day", "area", ""}) {
            ScriptEntry entry;
            entry.elseAction.code = info.code;
            Step& action = slotFields(entry, Slot::Else);
            if (*filled == 't') setText(action, "x");
            action.number = *filled == 'n' ? 1 : 0;
            action.waitUntil.day = *filled == 'd' ? 1 : 0;
            action.area = *filled == 'a' ? 0x50000000 : 0;
            EXPECT_EQ(!lacksParameters(action),
                      needs(info.code) == "nothing" || needs(info.code) == filled)
                << commandKeyword(info.code) << " with a " << filled;
        }
    }
}

TEST(ActionRules, MenuCommandsLackFileNamesAndTransferFiles) {
    for (std::uint32_t id = 201; id <= 268; ++id) {
        SCOPED_TRACE(id);
        const bool takesFile = id == 202 || id == 204 || id == 219 || id == 254 || id == 257;
        const bool transfers = id == 236 || id == 237;
        ScriptEntry entry;
        Step& action = slotFields(entry, Slot::Else);
        action.code = Code::MenuCommand;
        action.commandId = id;
        EXPECT_EQ(lacksParameters(action), takesFile || transfers);
        setText(action, "a.qmd");
        EXPECT_EQ(lacksParameters(action), transfers);
        setTransferText(action.transferSettings, transfer::pcFileName, "a");
        EXPECT_EQ(lacksParameters(action), transfers) << "with the PC's file only";
        setTransferText(action.transferSettings, transfer::hostFileName, "a");
        EXPECT_FALSE(lacksParameters(action));
        EXPECT_EQ(choiceOfCode(Code::MenuCommand, id).row, static_cast<int>(id - 201));
    }
    EXPECT_EQ(choiceOfCode(Code::MenuCommand, 200).row, -1);
    EXPECT_EQ(choiceOfCode(Code::MenuCommand, 269).row, -1);
}

TEST(ActionRules, AHiddenTextIsNotHandedOnToACommandThatShowsIt) {
    const LuCatalogues catalogues = buildLuCatalogues([](StringId) { return std::string(); });
    for (const bool hidden : {true, false}) {
        for (const PaletteChoice& choice :
             {choiceOfCode(Code::Message), PaletteChoice{Palette::LuFunctions, 0},
              choiceOfCode(Code::MenuCommand, 202)}) {
            ScriptEntry entry;
            Step& action = slotFields(entry, Slot::Else);
            action.code = Code::Type;
            action.hidden = hidden ? 1 : 0;
            setText(action, "secret");
            entry.elseAction.kept = {1, 2, 3};
            applyChoice(entry, Slot::Else, choiceOfCode(Code::Type), {});
            EXPECT_TRUE(entry.elseAction.kept)
                << "choosing the same command again replaces nothing";
            applyChoice(entry, Slot::Else, choice, catalogues.of(HostType::Mainframe));
            EXPECT_FALSE(entry.elseAction.kept);
            EXPECT_EQ(textOf(action), hidden ? "" : "secret");
            EXPECT_EQ(action.text == TextField{}, hidden);
            EXPECT_EQ(action.hidden, 0);
        }
    }
}

TEST(ActionRules, WhatMeansSomethingElseIsNotHandedOn) {
    const struct {
        Code before;
        Code after;
        const char* text;
        std::uint32_t number;
    } rows[] = {{Code::Input, Code::Type, "", 0},     {Code::Input, Code::Wait, "", 0},
                {Code::Wait, Code::Input, "text", 0}, {Code::Wait, Code::Copy, "text", 0},
                {Code::Copy, Code::Wait, "text", 0},  {Code::Copy, Code::Paste, "text", 5},
                {Code::Wait, Code::Goto, "text", 5},  {Code::Goto, Code::WaitReady, "text", 5}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        ScriptEntry entry;
        Step& action = slotFields(entry, Slot::Then);
        action.code = row.before;
        setText(action, "text");
        if (row.before == Code::Input) {
            setPrompt(action, "Name:");
            action.hidden = 1;
        }
        action.number = 5;
        applyChoice(entry, Slot::Then, choiceOfCode(row.after), {});
        EXPECT_EQ(textOf(action), row.text);
        EXPECT_EQ(action.number, row.number);
        EXPECT_EQ(action.hidden, 0);
        EXPECT_EQ(action.prompt, PromptField{});
    }
}

TEST(ActionRules, AWaitForThatTakesOverATextSearchesFromTheFirstPlace) {
    ScriptEntry entry;
    entry.code = Code::WatchFor;
    entry.thenAction.code = Code::Goto;
    applyChoice(entry, Slot::Then, choiceOfCode(Code::WaitFor), {});
    EXPECT_TRUE(entry.searchRow == 1 && entry.searchColumn == 1 && entry.caseSensitive == 1);
    // What a file holds stays when the same command is chosen again.
    entry.searchRow = entry.searchColumn = entry.caseSensitive = 0;
    const ScriptEntry before = entry;
    applyChoice(entry, Slot::Then, choiceOfCode(Code::WaitFor), {});
    EXPECT_EQ(entry, before);
}

TEST(CompareOperand, ANameIsAVariableInAnyCaseAndAllElseALiteral) {
    for (const auto& [typed, kind] :
         {std::pair{"InputStr", 0}, {"varuserid", 2}, {"VARUSERPROMPT", 5}})
        EXPECT_TRUE((parseOperand(typed) == CompareOperand{"", static_cast<std::uint8_t>(kind)}));
    for (const char* typed : {"VarUserIds", "VarUser", " InputStr", "\xCCnputStr"})
        EXPECT_TRUE((parseOperand(typed) == CompareOperand{typed, 0})) << typed;
}

}  // namespace
}  // namespace quendra
