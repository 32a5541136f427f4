// When each command can be chosen and what its tool tip says.
#include "app/command_states.h"

#include "app/commands.h"
#include "app/editor_fixture.h"
#include "scriptfile/entry_codec.h"

#include <set>

namespace quendra::test {
namespace {

struct StateRow {
    const char* name;
    CommandFacts facts;
    std::set<int> enabled;
};

CommandFacts withEvent(CommandFacts facts) {
    facts.selectedEvent = "Beep";
    return facts;
}

CommandFacts withLuFunction(CommandFacts facts) {
    facts.selectedLuFunction = "Enter";
    return facts;
}

CommandFacts withMenuCommand(CommandFacts facts) {
    facts.selectedMenuCommand = "Zoom In";
    return facts;
}

CommandFacts focusedOn(EditSource source) {
    CommandFacts facts;
    facts.entryCount = 3;
    facts.editSource = source;
    facts.focusedLine = "the line";
    return facts;
}

TEST(CommandStatesTest, ConditionalCommandsFollowScriptAndSelections) {
    const StateRow rows[] = {
        {"empty", {}, {}},
        {"entries", {.entryCount = 1}, {302, 303, 323}},
        {"selected entries",
         {.entryCount = 3, .selectedCount = 2},
         {302, 303, 323, 305, 306, 312, 324}},
        {"clipboard", {.clipboardCount = 1}, {307}},
        {"event chosen", withEvent({}), {308}},
        {"LU function chosen", withLuFunction({}), {309}},
        {"menu command chosen", withMenuCommand({}), {310}},
        {"entry with dialog", focusedOn(EditSource::Dialog), {302, 303, 323, 311}},
        {"plain event alone", focusedOn(EditSource::ScriptEvents), {302, 303, 323}},
        {"plain event, event chosen",
         withEvent(focusedOn(EditSource::ScriptEvents)),
         {302, 303, 323, 308, 311}},
        {"plain event, wrong palette",
         withLuFunction(focusedOn(EditSource::ScriptEvents)),
         {302, 303, 323, 309}},
        {"LU function alone", focusedOn(EditSource::LuFunctions), {302, 303, 323}},
        {"LU function, LU function chosen",
         withLuFunction(focusedOn(EditSource::LuFunctions)),
         {302, 303, 323, 309, 311}},
        {"menu command, wrong palette",
         withEvent(focusedOn(EditSource::MenuCommands)),
         {302, 303, 323, 308}},
        {"menu command, menu command chosen",
         withMenuCommand(focusedOn(EditSource::MenuCommands)),
         {302, 303, 323, 310, 311}},
        {"step to undo", {.undoStep = "Cut 1 entry"}, {321}},
        {"step to redo", {.redoStep = "Cut 1 entry"}, {322}},
    };
    const std::set<int> conditional = {302, 303, 305, 306, 307, 308, 309,
                                       310, 311, 312, 321, 322, 323, 324};
    for (const StateRow& row : rows) {
        for (const CommandInfo& info : commands()) {
            const bool expected = row.enabled.contains(info.id) || !conditional.contains(info.id);
            EXPECT_EQ(isCommandEnabled(info.id, row.facts), expected) << row.name << ' ' << info.id;
        }
    }
}

TEST(CommandStatesTest, EditTakesItsContentFromTheRightPlace) {
    const HiddenTextCipher cipher("");
    const auto sourceOf = [&cipher](CommandCode code, std::uint32_t commandId = 0) {
        ScriptEntry entry;
        entry.commandCode = code;
        entry.commandId = commandId;
        return editSource(packEntry(entry, cipher).entry, cipher);
    };
    const std::set<CommandCode> plain = {CommandCode::Beep, CommandCode::ClearWatch,
                                         CommandCode::Return};
    for (const ScriptEventInfo& event : scriptEvents()) {
        EXPECT_EQ(sourceOf(event.code),
                  plain.contains(event.code) ? EditSource::ScriptEvents : EditSource::Dialog)
            << event.keyword;
    }
    EXPECT_EQ(sourceOf(CommandCode::LuFunction), EditSource::LuFunctions);
    const std::set<std::uint32_t> withParameters = {202, 204, 219, 236, 237, 254, 257};
    for (std::uint32_t id = 201; id <= 268; ++id) {
        EXPECT_EQ(sourceOf(CommandCode::MenuCommand, id),
                  withParameters.contains(id) ? EditSource::Dialog : EditSource::MenuCommands)
            << id;
    }
}

TEST(CommandStatesTest, ToolTipsNameWhatIsChosen) {
    EditorState editor;
    LanguageLibrary& language = editor.state.language;
    struct Row {
        int command;
        CommandFacts facts;
        const char* text;
    };
    const Row rows[] = {
        {308, {}, "Insert Script Event"},
        {308, withEvent({}), "Insert Script Event Beep"},
        {309, withLuFunction({}), "Insert LU Function Enter"},
        {310, withMenuCommand({}), "Insert Menu Command Zoom In"},
        {310, withEvent({}), "Insert Menu Command"},
        {311, {}, "Edit/Replace Entry"},
        {311, focusedOn(EditSource::Dialog), "Edit the line"},
        {311, focusedOn(EditSource::LuFunctions), "Replace the line"},
        {311, focusedOn(EditSource::MenuCommands), "Replace the line"},
        {311, focusedOn(EditSource::ScriptEvents), "Replace the line"},
        {312, {}, "Delete"},
        {312, {.selectedCount = 1}, "Delete 1 entry"},
        {312, {.selectedCount = 12}, "Delete 12 entries"},
        {321, {.undoStep = "Cut 1 entry"}, "Undo Cut 1 entry"},
        {322, {}, "Redo"},
        {301, {}, "Open"},
        {317, {}, "T27 Mode"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(commandToolTip(row.command, row.facts, language), row.text) << row.command;
    }
}

TEST(CommandTableTest, EveryCommandHasTextsAndAPlaceInAMenu) {
    EditorState editor;
    std::multiset<int> inMenus;
    for (const MenuInfo& menu : menus())
        inMenus.insert(menu.items.begin(), menu.items.end());
    int expected = 300;
    for (const CommandInfo& info : commands()) {
        EXPECT_EQ(info.id, expected++);
        EXPECT_EQ(&commandInfo(info.id), &info);
        EXPECT_EQ(inMenus.count(info.id), 1U) << info.id;
        EXPECT_NE(commandMenuText(info, editor.state.language), "") << info.id;
        EXPECT_NE(editor.state.language.loadText(info.toolTipId), "") << info.id;
        EXPECT_NE(editor.state.language.loadText(info.statusTextId), "") << info.id;
    }
    EXPECT_EQ(expected, 326);
}

TEST(CommandTableTest, ModeCommandsHaveTheirHostTypesTexts) {
    EditorState editor;
    EXPECT_EQ(commandMenuText(commandInfo(313), editor.state.language),
              editor.state.language.loadText(11199));
    EXPECT_EQ(commandMenuText(commandInfo(315), editor.state.language),
              editor.state.language.loadText(10010));
    EXPECT_EQ(commandMenuText(commandInfo(318), editor.state.language), "  IC&L");
}

}  // namespace
}  // namespace quendra::test
