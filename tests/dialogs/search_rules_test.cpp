// The rules behind the choice of an action and the operands of a comparison, on plain values.
#include "dialogs/action_rules.h"
#include "dialogs/compare_operand.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quendra {

void PrintTo(const ActionChoice& choice, std::ostream* out) {
    *out << "list " << static_cast<int>(choice.list) << " row " << choice.row;
}

void PrintTo(const CompareOperand& operand, std::ostream* out) {
    *out << '"' << operand.literal << "\" kind " << static_cast<int>(operand.kind);
}

namespace {

using Code = CommandCode;
using enum ActionList;

const LuCatalogues& catalogues() {
    static const LuCatalogues built =
        buildLuCatalogues([](StringId id) { return std::to_string(id); });
    return built;
}

ActionChoice event(Code code) {
    ScriptEntry entry;
    entry.thenCode = code;
    return choiceOf(slotFields(entry, Slot::Then), {});
}

ActionChoice menuCommand(std::uint32_t commandId) {
    return {MenuCommands, static_cast<int>(commandId - 201)};
}

bool takesFile(std::uint32_t id) {
    return id == 202 || id == 204 || id == 219 || id == 254 || id == 257;
}

bool transfers(std::uint32_t id) {
    return id == 236 || id == 237;
}

struct Need {
    const char* name;
    std::vector<Code> events;
    void (*fill)(const SlotFields&);
};
const Need needs[] = {
    {"text",
     {Code::Comment, Code::Goto, Code::Input, Code::Label, Code::Message, Code::ExpressLogon,
      Code::Run, Code::SetCursor, Code::Type, Code::WaitFor},
     [](const SlotFields& f) { setText(f, "x"); }},
    {"number", {Code::Wait, Code::WaitReady}, [](const SlotFields& f) { f.number = 1; }},
    {"day", {Code::WaitUntil}, [](const SlotFields& f) { f.waitUntil.day = 1; }},
    {"area", {Code::Copy, Code::Paste}, [](const SlotFields& f) { f.area = 0x50000000; }},
};

TEST(ParameterRuleTest, OneFieldDecidesWhetherAnActionLacksItsParameters) {
    for (const ScriptEventInfo& info : scriptEvents()) {
        bool needsAny = false;
        for (const Need& need : needs) {
            const bool needed = std::ranges::count(need.events, info.code) != 0;
            needsAny = needsAny || needed;
            for (const Slot slot : {Slot::Then, Slot::Else}) {
                ScriptEntry entry;
                const SlotFields action = slotFields(entry, slot);
                action.code = info.code;
                const bool lackedBefore = lacksParameters(action);
                need.fill(action);
                EXPECT_EQ(lackedBefore && !lacksParameters(action), needed)
                    << commandKeyword(info.code) << " with a " << need.name;
            }
        }
        ScriptEntry entry;
        entry.elseCode = info.code;
        EXPECT_EQ(lacksParameters(slotFields(entry, Slot::Else)), needsAny)
            << commandKeyword(info.code);
    }
}

TEST(ParameterRuleTest, MenuCommandsLackFileNamesAndTransferFiles) {
    for (std::uint32_t id = 201; id <= 268; ++id) {
        SCOPED_TRACE(id);
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = Code::MenuCommand;
        action.commandId = id;
        EXPECT_EQ(lacksParameters(action), takesFile(id) || transfers(id));
        setText(action, "a.qmd");
        EXPECT_EQ(lacksParameters(action), transfers(id));
        setTransferText(action.transferSettings, transfer::pcFileName, "a");
        EXPECT_EQ(lacksParameters(action), transfers(id)) << "with the PC's file only";
        setTransferText(action.transferSettings, transfer::hostFileName, "a");
        EXPECT_FALSE(lacksParameters(action));
        EXPECT_EQ(doubleClickAct(menuCommand(id)), transfers(id)   ? DoubleClickAct::EditTransfer
                                                   : takesFile(id) ? DoubleClickAct::ChooseAndEdit
                                                                   : DoubleClickAct::Nothing);
    }
}

TEST(ParameterRuleTest, AHiddenTextThatTheKeyDoesNotOpenIsNotLacking) {
    ScriptEntry entry;
    entry.thenCode = Code::Type;
    entry.hidden = 1;
    entry.thenKept = {1, 2, 3};
    const SlotFields action = slotFields(entry, Slot::Then);
    EXPECT_FALSE(lacksParameters(action));
    applyChoice(entry, Slot::Then, event(Code::Type), {});
    EXPECT_TRUE(entry.thenKept) << "choosing the same command again replaces nothing";
    applyChoice(entry, Slot::Then, event(Code::Goto), {});
    EXPECT_FALSE(entry.thenKept);
    EXPECT_TRUE(lacksParameters(action));
}

TEST(ActionChoiceTest, EveryActionIsFoundWhereItIsListed) {
    using enum HostType;
    const struct {
        const char* name;
        Code code;
        LuKey key;
        std::uint32_t commandId;
        HostType hostType;
        int list;
        int row;
    } rows[] = {
        {"no action yet", Code::None, {4, 1}, 205, Mainframe, 0, -1},
        {"an event out of code order", Code::Copy, {}, 0, Mainframe, 0, 3},
        {"an event that cannot be one", Code::WatchFor, {}, 0, Mainframe, 0, 19},
        {"a key", Code::LuFunction, {4, 1}, 0, VT, 1, 0},
        {"a key of two rows", Code::LuFunction, {0, 29}, 0, T27, 1, 58},
        {"a key of another host type", Code::LuFunction, {9, 200}, 0, Mainframe, 1, -1},
        {"the first menu command", Code::MenuCommand, {}, 201, Mainframe, 2, 0},
        {"the last menu command", Code::MenuCommand, {}, 268, Mainframe, 2, 67},
        {"a menu command below the list", Code::MenuCommand, {}, 200, Mainframe, 2, -1},
        {"a menu command above the list", Code::MenuCommand, {}, 269, Mainframe, 2, -1},
    };
    for (const auto& row : rows) {
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = row.code;
        action.row = row.key.group;
        action.column = row.key.number;
        action.commandId = row.commandId;
        const ActionChoice expected = {static_cast<ActionList>(row.list), row.row};
        EXPECT_EQ(choiceOf(action, catalogues().of(row.hostType)), expected) << row.name;
    }
}

TEST(ActionChoiceTest, AHiddenTextIsNotHandedOnToACommandThatShowsIt) {
    for (const bool hidden : {true, false}) {
        for (const ActionChoice& choice :
             {event(Code::Message), ActionChoice{LuFunctions, 0}, menuCommand(202)}) {
            ScriptEntry entry;
            const SlotFields action = slotFields(entry, Slot::Else);
            action.code = Code::Type;
            action.hidden = hidden ? 1 : 0;
            setText(action, "secret");
            applyChoice(entry, Slot::Else, choice, catalogues().of(HostType::Mainframe));
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
    EXPECT_FALSE(lacksParameters(slotFields(entry, Slot::Then)));
    EXPECT_EQ(entry.searchRow, 1);
    EXPECT_EQ(entry.searchColumn, 1);
    EXPECT_EQ(entry.caseSensitive, 1);
    // What a file holds stays when the same command is chosen again.
    entry.searchRow = entry.searchColumn = entry.caseSensitive = 0;
    const ScriptEntry before = entry;
    applyChoice(entry, Slot::Then, event(Code::WaitFor), {});
    EXPECT_EQ(entry, before);
}

TEST(ActionRefusalTest, AllButCommandsWithActionsAndOneOfVtMayBeAnAction) {
    for (const Code owner : {Code::WaitFor, Code::IfInputIs, Code::WatchFor}) {
        for (const ScriptEventInfo& info : scriptEvents()) {
            const bool watched = owner == Code::WatchFor && info.code == Code::WaitFor;
            EXPECT_EQ(!refusalOf(event(info.code), owner, HostType::VT),
                      watched || !ownsActions(info.code))
                << commandKeyword(info.code) << " in " << commandKeyword(owner);
        }
        EXPECT_FALSE(refusalOf({LuFunctions, 12}, owner, HostType::VT));
        EXPECT_FALSE(refusalOf(menuCommand(212), owner, HostType::VT));
        EXPECT_TRUE(refusalOf(menuCommand(213), owner, HostType::VT));
        EXPECT_FALSE(refusalOf(menuCommand(213), owner, HostType::Mainframe));
    }
}

TEST(CompareOperandTest, ANameIsAVariableInAnyCaseAndAllElseALiteral) {
    const std::pair<const char*, CompareOperand> rows[] = {
        {"InputStr", {"", 0}},
        {"varuserid", {"", 2}},
        {"VARUSERPROMPT", {"", 5}},
        {"VarUserIds", {"VarUserIds", 0}},
        {"VarUser", {"VarUser", 0}},
        {" InputStr", {" InputStr", 0}},
        {"\xCCnputStr", {"\xCCnputStr", 0}},
    };
    for (const auto& [typed, operand] : rows) {
        EXPECT_EQ(parseOperand(typed), operand) << typed;
    }
}

TEST(CompareOperandTest, ReplacesTheOldOperandWholly) {
    ScriptEntry entry;
    setFirstOperand(entry, {"literal", 0});
    setSecondOperand(entry, {"other", 0});
    EXPECT_EQ(firstOperandShown(entry), "literal");
    EXPECT_EQ(secondOperandShown(entry), "other");
    setFirstOperand(entry, {"", 4});
    setSecondOperand(entry, {"", 0});
    EXPECT_EQ(firstOperand(entry), (CompareOperand{"", 4}));
    EXPECT_EQ(firstOperandShown(entry), "VarStaticText");
    EXPECT_EQ(secondOperandShown(entry), "InputStr");
    EXPECT_EQ(entry.compareTextLength, 0);
    setFirstOperand(entry, {"", 0});
    EXPECT_EQ(firstOperandShown(entry), "") << "a new entry has chosen nothing yet";
    entry.secondOperandKind = 9;
    EXPECT_EQ(secondOperandShown(entry), "") << "a kind of a damaged file";
}

}  // namespace
}  // namespace quendra
