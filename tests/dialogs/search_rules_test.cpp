// The rules behind the choice of an action and the operands of a comparison, on plain values.
#include "dialogs/action_rules.h"
#include "dialogs/compare_operand.h"
#include "hosts/menu_catalogue.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

using Code = CommandCode;
using enum ActionList;

ActionChoice event(Code code) {
    ScriptEntry entry;
    entry.thenCode = code;
    return choiceOf(slotFields(entry, Slot::Then), {});
}

ActionChoice menuCommand(std::uint32_t commandId) {
    return {MenuCommands, static_cast<int>(commandId - firstMenuCommand)};
}

/// The fields that decide whether an action lacks its parameters.
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
        case Code::WatchFor: return "";
        default: return "text";
    }
}

TEST(ParameterRuleTest, OneFieldDecidesWhetherAnActionLacksItsParameters) {
    for (const ScriptEventInfo& info : scriptEvents()) {
        for (const char* filled : {"text", "number", "day", "area"}) {
            SCOPED_TRACE(std::string(commandKeyword(info.code)) + " with a " + filled);
            for (const Slot slot : {Slot::Then, Slot::Else}) {
                ScriptEntry entry;
                const SlotFields action = slotFields(entry, slot);
                action.code = info.code;
                EXPECT_EQ(lacksParameters(action), !needs(info.code).empty());
                if (*filled == 't') setText(action, "x");
                if (*filled == 'n') action.number = 1;
                if (*filled == 'd') action.waitUntil.day = 1;
                if (*filled == 'a') action.area = 0x50000000;
                EXPECT_EQ(lacksParameters(action),
                          !needs(info.code).empty() && needs(info.code) != filled);
            }
        }
    }
}

TEST(ParameterRuleTest, MenuCommandsLackFileNamesAndTransferFiles) {
    for (std::uint32_t id = 201; id <= 268; ++id) {
        SCOPED_TRACE(id);
        const bool takesFile = id == 202 || id == 204 || id == 219 || id == 254 || id == 257;
        const bool transfers = id == 236 || id == 237;
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = Code::MenuCommand;
        action.commandId = id;
        EXPECT_EQ(lacksParameters(action), takesFile || transfers);
        setText(action, "a.qmd");
        EXPECT_EQ(lacksParameters(action), transfers);
        setTransferText(action.transferSettings, transfer::pcFileName, "a");
        EXPECT_EQ(lacksParameters(action), transfers) << "with the PC's file only";
        setTransferText(action.transferSettings, transfer::hostFileName, "a");
        EXPECT_FALSE(lacksParameters(action));
        EXPECT_EQ(doubleClickAct(menuCommand(id)), transfers   ? DoubleClickAct::EditTransfer
                                                   : takesFile ? DoubleClickAct::ChooseAndEdit
                                                               : DoubleClickAct::Nothing);
    }
}

TEST(ActionChoiceTest, EveryActionIsFoundWhereItIsListed) {
    const LuCatalogues catalogues = buildLuCatalogues([](StringId) { return std::string(); });
    const struct {
        const char* name;
        Code code;
        LuKey key;
        std::uint32_t commandId;
        ActionChoice choice;
    } rows[] = {
        {"no action yet", Code::None, {4, 1}, 205, {ScriptEvents, -1}},
        {"an event out of code order", Code::Copy, {}, 0, {ScriptEvents, 3}},
        {"a key of two rows", Code::LuFunction, {0, 29}, 0, {LuFunctions, 58}},
        {"a key of another host type", Code::LuFunction, {9, 200}, 0, {LuFunctions, -1}},
        {"the first menu command", Code::MenuCommand, {}, 201, {MenuCommands, 0}},
        {"the last menu command", Code::MenuCommand, {}, 268, {MenuCommands, 67}},
        {"a menu command below the list", Code::MenuCommand, {}, 200, {MenuCommands, -1}},
        {"a menu command above the list", Code::MenuCommand, {}, 269, {MenuCommands, -1}},
    };
    for (const auto& row : rows) {
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = row.code;
        action.row = row.key.group;
        action.column = row.key.number;
        action.commandId = row.commandId;
        EXPECT_TRUE(choiceOf(action, catalogues.of(HostType::T27)) == row.choice) << row.name;
    }
}

TEST(ActionChoiceTest, AHiddenTextIsNotHandedOnToACommandThatShowsIt) {
    const LuCatalogues catalogues = buildLuCatalogues([](StringId) { return std::string(); });
    for (const bool hidden : {true, false}) {
        for (const ActionChoice& choice :
             {event(Code::Message), ActionChoice{LuFunctions, 0}, menuCommand(202)}) {
            ScriptEntry entry;
            const SlotFields action = slotFields(entry, Slot::Else);
            action.code = Code::Type;
            action.hidden = hidden ? 1 : 0;
            setText(action, "secret");
            entry.elseKept = {1, 2, 3};
            applyChoice(entry, Slot::Else, event(Code::Type), {});
            EXPECT_TRUE(entry.elseKept) << "choosing the same command again replaces nothing";
            applyChoice(entry, Slot::Else, choice, catalogues.of(HostType::Mainframe));
            EXPECT_FALSE(entry.elseKept);
            EXPECT_EQ(textOf(action), hidden ? "" : "secret");
            EXPECT_EQ(action.text == TextField{}, hidden);
            EXPECT_EQ(action.hidden, 0);
        }
    }
}

TEST(ActionChoiceTest, AWaitForThatTakesOverATextSearchesFromTheFirstPlace) {
    ScriptEntry entry;
    entry.commandCode = Code::WatchFor;
    entry.thenCode = Code::Goto;
    setText(slotFields(entry, Slot::Then), "END");
    applyChoice(entry, Slot::Then, event(Code::WaitFor), {});
    EXPECT_EQ(entry.searchRow, 1);
    EXPECT_EQ(entry.searchColumn, 1);
    EXPECT_EQ(entry.caseSensitive, 1);
    // What a file holds stays when the same command is chosen again.
    entry.searchRow = entry.searchColumn = entry.caseSensitive = 0;
    const ScriptEntry before = entry;
    applyChoice(entry, Slot::Then, event(Code::WaitFor), {});
    EXPECT_EQ(entry, before);
}

TEST(CompareOperandTest, ANameIsAVariableInAnyCaseAndAllElseALiteral) {
    const std::pair<const char*, int> variables[] = {
        {"InputStr", 0}, {"varuserid", 2}, {"VARUSERPROMPT", 5}};
    for (const auto& [typed, kind] : variables) {
        EXPECT_EQ(parseOperand(typed).kind, kind) << typed;
        EXPECT_EQ(parseOperand(typed).literal, "") << typed;
    }
    for (const char* typed : {"VarUserIds", "VarUser", " InputStr", "\xCCnputStr"}) {
        EXPECT_EQ(parseOperand(typed).kind, 0) << typed;
        EXPECT_EQ(parseOperand(typed).literal, typed);
    }
}

}  // namespace
}  // namespace quendra
