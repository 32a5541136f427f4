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

const TextSource numbers = [](StringId id) { return std::to_string(id); };

const LuCatalogues& catalogues() {
    static const LuCatalogues built = buildLuCatalogues(numbers);
    return built;
}

ActionChoice event(CommandCode code) {
    ScriptEntry entry;
    entry.thenCode = code;
    return choiceOf(slotFields(entry, Slot::Then), {});
}

ActionChoice menuCommand(std::uint32_t commandId) {
    return {ActionList::MenuCommands, static_cast<int>(commandId - 201)};
}

std::vector<CommandCode> allEvents() {
    std::vector<CommandCode> codes;
    for (const ScriptEventInfo& info : scriptEvents()) {
        codes.push_back(info.code);
    }
    return codes;
}

struct Place {
    const char* name;
    ActionPlace place;
};
constexpr Place places[] = {
    {"Found", {CommandCode::WaitFor, Slot::Then}},
    {"Not Found", {CommandCode::WaitFor, Slot::Else}},
    {"Equal", {CommandCode::IfInputIs, Slot::Then}},
    {"Not Equal", {CommandCode::IfInputIs, Slot::Else}},
    {"watched", {CommandCode::WatchFor, Slot::Then}},
};

// What an event needs, as what is set by `fill` in the fields of a slot.
struct Need {
    const char* name;
    std::vector<CommandCode> events;
    void (*fill)(const SlotFields&);
};
const Need needs[] = {
    {"a text",
     {CommandCode::Comment, CommandCode::Goto, CommandCode::Input, CommandCode::Label,
      CommandCode::Message, CommandCode::ExpressLogon, CommandCode::Run, CommandCode::SetCursor,
      CommandCode::Type, CommandCode::WaitFor},
     [](const SlotFields& f) { setText(f, "x"); }},
    {"a number",
     {CommandCode::Wait, CommandCode::WaitReady},
     [](const SlotFields& f) { f.number = 1; }},
    {"a day", {CommandCode::WaitUntil}, [](const SlotFields& f) { f.waitUntil.day = 1; }},
    {"an area",
     {CommandCode::Copy, CommandCode::Paste},
     [](const SlotFields& f) {
         f.area = packArea({0, 0, 0, 80});
     }},
};

TEST(ParameterRuleTest, OneFieldOfTheActionDecidesAndNoOtherSlots) {
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        for (const CommandCode code : allEvents()) {
            for (const Need& need : needs) {
                SCOPED_TRACE(std::string(commandKeyword(code)) + " with " + need.name +
                             (slot == Slot::Then ? " as then action" : " as else action"));
                const bool needed = std::ranges::count(need.events, code) != 0;
                ScriptEntry entry;
                slotFields(entry, slot).code = code;
                const bool lackedBefore = lacksParameters(slotFields(entry, slot));
                need.fill(slotFields(entry, slot));
                EXPECT_EQ(lackedBefore && !lacksParameters(slotFields(entry, slot)), needed);
            }
        }
    }
}

TEST(ParameterRuleTest, OnlyEventsWithoutADialogNeverLackAnything) {
    for (const CommandCode code : allEvents()) {
        ScriptEntry entry;
        entry.elseCode = code;
        const bool never = code == CommandCode::Beep || code == CommandCode::ClearWatch ||
                           code == CommandCode::Return || code == CommandCode::IfInputIs ||
                           code == CommandCode::WatchFor;
        EXPECT_EQ(lacksParameters(slotFields(entry, Slot::Else)), !never) << commandKeyword(code);
    }
}

TEST(ParameterRuleTest, AnActionTakesTheFieldsOfItsOwnSlot) {
    // Each row fills one field of an entry and says which slots of that command it serves.
    const struct {
        const char* name;
        CommandCode code;
        void (*fill)(ScriptEntry&);
        bool servesThen;
        bool servesElse;
    } rows[] = {
        {"the entry's number", CommandCode::Wait, [](ScriptEntry& e) { e.number = 3; }, true,
         false},
        {"the else number", CommandCode::Wait, [](ScriptEntry& e) { e.elseNumber = 3; }, false,
         true},
        {"the entry's text", CommandCode::Goto,
         [](ScriptEntry& e) { setText(slotFields(e, Slot::Entry), "x"); }, false, false},
        {"the entry's date", CommandCode::WaitUntil, [](ScriptEntry& e) { e.waitUntil.day = 3; },
         false, false},
        {"the then date", CommandCode::WaitUntil, [](ScriptEntry& e) { e.thenWaitUntil.day = 3; },
         true, false},
        {"the entry's menu command", CommandCode::Copy, [](ScriptEntry& e) { e.commandId = 257; },
         true, false},
        {"the else menu command", CommandCode::Copy, [](ScriptEntry& e) { e.elseCommandId = 257; },
         false, false},
        {"the second menu word", CommandCode::Paste, [](ScriptEntry& e) { e.commandData = 257; },
         false, false},
    };
    for (const auto& row : rows) {
        ScriptEntry entry;
        entry.thenCode = entry.elseCode = row.code;
        row.fill(entry);
        EXPECT_EQ(!lacksParameters(slotFields(entry, Slot::Then)), row.servesThen) << row.name;
        EXPECT_EQ(!lacksParameters(slotFields(entry, Slot::Else)), row.servesElse) << row.name;
    }
}

TEST(ParameterRuleTest, MenuCommandsLackFileNamesAndTransferFiles) {
    for (std::uint32_t id = 201; id <= 268; ++id) {
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = CommandCode::MenuCommand;
        action.commandId = id;
        const bool file = id == 202 || id == 204 || id == 219 || id == 254 || id == 257;
        const bool transfer = id == 236 || id == 237;
        EXPECT_EQ(lacksParameters(action), file || transfer) << id;
        setText(action, "a.qmd");
        EXPECT_EQ(lacksParameters(action), transfer) << id;
        setTransferText(action.transferSettings, transfer::pcFileName, "a");
        EXPECT_EQ(lacksParameters(action), transfer) << id << " with the PC's file only";
        setTransferText(action.transferSettings, transfer::hostFileName, "a");
        EXPECT_FALSE(lacksParameters(action)) << id;
    }
}

TEST(ParameterRuleTest, AHiddenTextThatTheKeyDoesNotOpenIsNotLacking) {
    ScriptEntry entry;
    entry.thenCode = CommandCode::Type;
    entry.hidden = 1;
    entry.thenKept = {1, 2, 3};
    const SlotFields action = slotFields(entry, Slot::Then);
    EXPECT_FALSE(lacksParameters(action));
    applyChoice(entry, Slot::Then, event(CommandCode::Type), {});
    EXPECT_TRUE(entry.thenKept) << "choosing the same command again replaces nothing";
    applyChoice(entry, Slot::Then, event(CommandCode::Goto), {});
    EXPECT_FALSE(entry.thenKept);
    EXPECT_TRUE(lacksParameters(action));
}

TEST(ActionChoiceTest, EveryActionIsFoundWhereItIsListed) {
    const struct {
        const char* name;
        CommandCode code;
        LuKey key;
        std::uint32_t commandId;
        HostType hostType;
        ActionChoice found;
    } rows[] = {
        {"no action yet", CommandCode::None, {4, 1}, 205, {}, {ActionList::ScriptEvents, -1}},
        {"an event out of code order", CommandCode::Copy, {}, 0, {}, {ActionList::ScriptEvents, 3}},
        {"an event that cannot be one",
         CommandCode::WatchFor,
         {},
         0,
         {},
         {ActionList::ScriptEvents, 19}},
        {"a key", CommandCode::LuFunction, {4, 1}, 0, HostType::VT, {ActionList::LuFunctions, 0}},
        {"a key of two rows",
         CommandCode::LuFunction,
         {0, 29},
         0,
         HostType::T27,
         {ActionList::LuFunctions, 58}},
        {"a key of another host type",
         CommandCode::LuFunction,
         {9, 200},
         0,
         HostType::Mainframe,
         {ActionList::LuFunctions, -1}},
        {"the first menu command",
         CommandCode::MenuCommand,
         {},
         201,
         {},
         {ActionList::MenuCommands, 0}},
        {"the last menu command",
         CommandCode::MenuCommand,
         {},
         268,
         {},
         {ActionList::MenuCommands, 67}},
        {"a menu command below the list",
         CommandCode::MenuCommand,
         {},
         200,
         {},
         {ActionList::MenuCommands, -1}},
        {"a menu command above the list",
         CommandCode::MenuCommand,
         {},
         269,
         {},
         {ActionList::MenuCommands, -1}},
    };
    for (const auto& row : rows) {
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = row.code;
        action.row = row.key.group;
        action.column = row.key.number;
        action.commandId = row.commandId;
        EXPECT_EQ(choiceOf(action, catalogues().of(row.hostType)), row.found) << row.name;
    }
}

TEST(ActionChoiceTest, WhatWasChosenIsFoundAgain) {
    for (const Slot slot : {Slot::Then, Slot::Else}) {
        for (const ActionChoice& choice :
             {event(CommandCode::Paste), ActionChoice{ActionList::LuFunctions, 17},
              menuCommand(254), event(CommandCode::Beep)}) {
            ScriptEntry entry;
            const LuCatalogue& keys = catalogues().of(HostType::Mainframe);
            applyChoice(entry, slot, choice, keys);
            EXPECT_EQ(choiceOf(slotFields(entry, slot), keys), choice);
            const Slot other = slot == Slot::Then ? Slot::Else : Slot::Then;
            EXPECT_EQ(slotFields(entry, other).code, CommandCode::None);
        }
    }
}

TEST(ActionChoiceTest, AHiddenTextIsNotHandedOnToACommandThatShowsIt) {
    for (const ActionChoice& choice :
         {event(CommandCode::Message), ActionChoice{ActionList::LuFunctions, 0},
          menuCommand(202)}) {
        ScriptEntry entry;
        const SlotFields action = slotFields(entry, Slot::Else);
        action.code = CommandCode::Type;
        action.hidden = 1;
        setText(action, "secret");
        applyChoice(entry, Slot::Else, choice, catalogues().of(HostType::Mainframe));
        EXPECT_EQ(textOf(action), "");
        EXPECT_EQ(action.text, TextField{});
        EXPECT_EQ(action.hidden, 0);
    }
    ScriptEntry open;
    const SlotFields action = slotFields(open, Slot::Else);
    action.code = CommandCode::Type;
    setText(action, "hello");
    applyChoice(open, Slot::Else, event(CommandCode::Message), {});
    EXPECT_EQ(textOf(action), "hello");
}

TEST(ActionChoiceTest, AWaitForThatTakesOverATextSearchesFromTheFirstPlace) {
    ScriptEntry entry;
    entry.commandCode = CommandCode::WatchFor;
    entry.thenCode = CommandCode::Goto;
    setText(slotFields(entry, Slot::Then), "END");
    applyChoice(entry, Slot::Then, event(CommandCode::WaitFor), {});
    EXPECT_FALSE(lacksParameters(slotFields(entry, Slot::Then)));
    EXPECT_EQ(entry.searchRow, 1);
    EXPECT_EQ(entry.searchColumn, 1);
    EXPECT_EQ(entry.caseSensitive, 1);
    // What a file holds stays when the same command is chosen again.
    entry.searchRow = entry.searchColumn = entry.caseSensitive = 0;
    const ScriptEntry before = entry;
    applyChoice(entry, Slot::Then, event(CommandCode::WaitFor), {});
    EXPECT_EQ(entry, before);
}

TEST(ActionRefusalTest, EveryPlaceRefusesItsCommandsInItsWords) {
    const std::string invalid =
        "If_Input_Is, Wait_For and Watch_For events are not valid for this operation.";
    const struct {
        std::string caption;
        std::string nothingText;
        std::string nothingTitle;
        bool takesWaitFor;
    } rows[] = {
        {"Wait_For Found Action",
         "Select an action to perform when the search string or <Lu Function> is found.",
         "Script Info", false},
        {"Wait_For Not Found Action",
         "Select an action to perform when the search string or <Lu Function> is not found.",
         "Script Info", false},
        {"If_Input_Is Equal Action",
         "Select an action to perform when the compare string and/or variable(s) are equal.",
         "Script Info", false},
        {"If_Input_Is Not Equal Action",
         "Select an action to perform when the compare string and/or variable(s) are not equal.",
         "Script Info", false},
        {"", "13758", "13757", true},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const ActionPlace& place = places[i].place;
        SCOPED_TRACE(places[i].name);
        const bool watched = place.owner == CommandCode::WatchFor;
        EXPECT_EQ(actionCaption(place), rows[i].caption);

        const auto check = [&](const ActionChoice& choice, const std::string& text,
                               const std::string& title) {
            const auto refusal = refusalOf(choice, place.owner, HostType::VT);
            ASSERT_TRUE(refusal);
            const Message message = refusalMessage(*refusal, place, numbers);
            EXPECT_EQ(message.text, text);
            EXPECT_EQ(message.title, title);
            EXPECT_EQ(message.icon, MessageIcon::Information);
            EXPECT_EQ(message.buttons, MessageButtons::Ok);
        };
        check({ActionList::MenuCommands, -1}, rows[i].nothingText, rows[i].nothingTitle);
        check(event(CommandCode::IfInputIs), watched ? "13759" : invalid,
              watched ? "13757" : "Script Info");
        check(event(CommandCode::WatchFor), watched ? "13759" : invalid,
              watched ? "13757" : "Script Info");
        check(menuCommand(213),
              watched ? "13732" : "Menu Command is not compatible with Script Mode.",
              watched ? "13733" : "Script Edit Info");
        EXPECT_EQ(!refusalOf(event(CommandCode::WaitFor), place.owner, HostType::VT),
                  rows[i].takesWaitFor);
    }
}

TEST(ActionRefusalTest, EverythingElseMayBeAnAction) {
    for (const auto& [name, place] : places) {
        for (const CommandCode code : allEvents()) {
            if (ownsActions(code)) continue;
            EXPECT_FALSE(refusalOf(event(code), place.owner, HostType::VT))
                << name << " " << commandKeyword(code);
        }
        EXPECT_FALSE(refusalOf({ActionList::LuFunctions, 12}, place.owner, HostType::VT)) << name;
        EXPECT_FALSE(refusalOf(menuCommand(212), place.owner, HostType::VT)) << name;
        EXPECT_FALSE(refusalOf(menuCommand(213), place.owner, HostType::Mainframe)) << name;
    }
}

TEST(DoubleClickTest, OpensOnlyWhatHasParameters) {
    EXPECT_EQ(doubleClickAct(event(CommandCode::Beep)), DoubleClickAct::ChooseAndEdit);
    EXPECT_EQ(doubleClickAct({ActionList::LuFunctions, 35}), DoubleClickAct::Nothing);
    for (std::uint32_t id = 201; id <= 268; ++id) {
        const bool file = id == 202 || id == 204 || id == 219 || id == 254 || id == 257;
        const bool transfer = id == 236 || id == 237;
        EXPECT_EQ(doubleClickAct(menuCommand(id)), transfer ? DoubleClickAct::EditTransfer
                                                   : file   ? DoubleClickAct::ChooseAndEdit
                                                            : DoubleClickAct::Nothing)
            << id;
    }
}

TEST(CompareOperandTest, ANameIsAVariableInAnyCaseAndAllElseALiteral) {
    const struct {
        const char* typed;
        CompareOperand operand;
    } rows[] = {
        {"InputStr", {"", 0}},
        {"varuserid", {"", 2}},
        {"VARUSERPROMPT", {"", 5}},
        {"VarScreenText", {"", 3}},
        {"VarUserIds", {"VarUserIds", 0}},
        {"VarUser", {"VarUser", 0}},
        {" InputStr", {" InputStr", 0}},
        {"\xCCnputStr", {"\xCCnputStr", 0}},
        {"yes", {"yes", 0}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(parseOperand(row.typed), row.operand) << row.typed;
    }
}

TEST(CompareOperandTest, ReplacesTheOldOperandWholly) {
    ScriptEntry entry;
    entry.row = 7;
    entry.column = 8;
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
    EXPECT_EQ(entry.row, 7) << "the Equal action's key";
    EXPECT_EQ(entry.column, 8);
    setFirstOperand(entry, {"", 0});
    EXPECT_EQ(firstOperandShown(entry), "") << "a new entry has chosen nothing yet";
    entry.secondOperandKind = 9;
    EXPECT_EQ(secondOperandShown(entry), "") << "a kind of a damaged file";
}

}  // namespace
}  // namespace quendra
