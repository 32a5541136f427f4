// When each command can be chosen and what its tool tip says.
#include "app/command_states.h"

#include "app/commands.h"
#include "app/editor_fixture.h"

#include <set>

namespace quendra::test {
namespace {

const CommandFacts event = {.selectedEvent = "Beep"};
const CommandFacts luFunction = {.selectedLuFunction = "Enter"};
const CommandFacts menuCommand = {.selectedMenuCommand = "Zoom In"};

CommandFacts focusedOn(EditSource source, CommandFacts facts = {}) {
    facts.entryCount = 3;
    facts.editSource = source;
    facts.focusedLine = "the line";
    return facts;
}

TEST(CommandStatesTest, ConditionalCommandsFollowScriptAndSelections) {
    using enum EditSource;
    const std::pair<CommandFacts, std::set<int>> rows[] = {
        {{}, {}},
        {{.selectedCount = 2}, {305, 306, 312, 324}},
        {{.clipboardCount = 1}, {307}},
        {menuCommand, {310}},
        {focusedOn(Dialog), {302, 303, 323, 311}},
        {focusedOn(ScriptEvents), {302, 303, 323}},
        {focusedOn(ScriptEvents, event), {302, 303, 323, 308, 311}},
        {focusedOn(ScriptEvents, luFunction), {302, 303, 323, 309}},
        {focusedOn(LuFunctions, luFunction), {302, 303, 323, 309, 311}},
        {focusedOn(MenuCommands, event), {302, 303, 323, 308}},
        {focusedOn(MenuCommands, menuCommand), {302, 303, 323, 310, 311}},
        {{.undoStep = "Cut 1 Entry"}, {321}},
        {{.redoStep = "Cut 1 Entry"}, {322}},
    };
    const std::set<int> always = {300, 301, 304, 313, 314, 315, 316, 317, 318, 319, 320, 325, 326};
    for (const auto& [facts, enabled] : rows) {
        for (const CommandInfo& info : commands()) {
            EXPECT_EQ(isCommandEnabled(info.id, facts),
                      enabled.contains(info.id) || always.contains(info.id))
                << testing::PrintToString(enabled) << ' ' << info.id;
        }
    }
}

TEST(CommandStatesTest, ToolTipsNameWhatIsChosen) {
    EditorState editor;
    const std::tuple<int, CommandFacts, const char*> rows[] = {
        {308, {}, "Insert Script Event"},
        {308, event, "Insert Script Event Beep"},
        {309, luFunction, "Insert LU Function Enter"},
        {310, menuCommand, "Insert Menu Command Zoom In"},
        {311, {}, "Edit/Replace Entry"},
        {311, focusedOn(EditSource::Dialog), "Edit the line"},
        {311, focusedOn(EditSource::LuFunctions), "Replace the line"},
        {312, {}, "Delete"},
        {312, {.selectedCount = 1}, "Delete 1 entry"},
        {321, {.undoStep = "Cut 1 Entry"}, "Undo Cut 1 Entry"},
        {322, {.redoStep = "Cut 1 Entry"}, "Redo Cut 1 Entry"},
        {317, {}, "T27 Mode"},
    };
    for (const auto& [command, facts, text] : rows)
        EXPECT_EQ(commandToolTip(command, facts, editor.state.language), text);
}

TEST(CommandTableTest, EveryCommandHasItsPlaceInTheTableAndInOneMenu) {
    std::multiset<int> inMenus;
    for (const MenuInfo& menu : menus())
        inMenus.insert(menu.items.begin(), menu.items.end());
    for (const CommandInfo& info : commands()) {
        EXPECT_EQ(&commandInfo(info.id), &info) << info.id;
        EXPECT_EQ(inMenus.count(info.id), 1U) << info.id;
    }
}

}  // namespace
}  // namespace quendra::test
