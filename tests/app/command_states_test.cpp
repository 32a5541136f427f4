// When each command can be chosen and what its tool tip says.
#include "app/command_states.h"

#include "app/commands.h"

#include <gtest/gtest.h>
#include <set>

namespace quendra::test {
namespace {

const CommandFacts event = {.selectedEvent = "Beep"};
const CommandFacts luFunction = {.selectedLuFunction = "Enter"};
const CommandFacts menuCommand = {.selectedMenuCommand = "Zoom In"};

CommandFacts focusedOn(EditSource source, CommandFacts facts = {}) {
    facts.entryCount = 3;
    facts.editSource = source;
    return facts;
}

TEST(CommandStates, ConditionalCommandsFollowScriptAndSelections) {
    using enum EditSource;
    const std::pair<CommandFacts, std::set<int>> rows[] = {
        {{}, {}},
        {{.selectedCount = 2}, {305, 306, 312, 324}},
        {{.clipboardCount = 1}, {307}},
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
    for (const auto& [facts, enabled] : rows)
        for (const CommandInfo& info : commands())
            EXPECT_EQ(isCommandEnabled(info.id, facts),
                      enabled.contains(info.id) || always.contains(info.id))
                << testing::PrintToString(enabled) << ' ' << info.id;
}

}  // namespace
}  // namespace quendra::test
