#include "hosts/palettes.h"

#include "model/menu_commands.h"
#include "text/text_ids.h"

#include <algorithm>

namespace quendra {

namespace {

constexpr std::array infos = std::to_array<PaletteInfo>({
    {Palette::ScriptEvents, "scriptEvents", textid::scriptEventsLabel,
     textid::insertNamedScriptEvent},
    {Palette::LuFunctions, "luFunctions", textid::luFunctionsLabel, textid::insertNamedLuFunction},
    {Palette::MenuCommands, "menuCommands", textid::menuCommandsLabel,
     textid::insertNamedMenuCommand},
});
static_assert(std::ranges::equal(infos, allPalettes, {}, &PaletteInfo::palette));

int rowOfEvent(CommandCode code) {
    const auto events = scriptEvents();
    const auto found = std::ranges::find(events, code, &ScriptEventInfo::code);
    return found == events.end() ? -1 : static_cast<int>(found - events.begin());
}

int rowOfMenuCommand(std::uint32_t commandId) {
    return findMenuCommand(commandId) != nullptr ? static_cast<int>(commandId - firstMenuCommand)
                                                 : -1;
}

}  // namespace

const PaletteInfo& paletteInfo(Palette palette) {
    return infos[static_cast<std::size_t>(palette)];
}

CommandCode commandOf(const PaletteChoice& choice) {
    switch (choice.palette) {
        case Palette::ScriptEvents: break;
        case Palette::LuFunctions: return CommandCode::LuFunction;
        case Palette::MenuCommands: return CommandCode::MenuCommand;
    }
    return scriptEvents()[static_cast<std::size_t>(choice.row)].code;
}

std::uint32_t menuCommandOf(const PaletteChoice& choice) {
    return firstMenuCommand + static_cast<std::uint32_t>(choice.row);
}

bool isRefused(const PaletteChoice& choice, HostType hostType) {
    return choice.palette == Palette::MenuCommands && choice.row >= 0 &&
           refusesMenuCommand(hostType, menuCommandOf(choice));
}

void takeCommand(Step& fields, const PaletteChoice& choice, const LuCatalogue& luFunctions) {
    setCode(fields, commandOf(choice));
    switch (choice.palette) {
        case Palette::ScriptEvents: break;
        case Palette::LuFunctions: {
            const LuKey key = luFunctions.rows[static_cast<std::size_t>(choice.row)].key;
            fields.row = key.group;
            fields.column = key.number;
            break;
        }
        case Palette::MenuCommands: fields.commandId = menuCommandOf(choice); break;
    }
}

PaletteChoice choiceOf(const Step& fields, const LuCatalogue& luFunctions) {
    if (fields.code == CommandCode::LuFunction) {
        const auto row = luFunctions.rowOf({fields.row, fields.column});
        return {Palette::LuFunctions, row ? static_cast<int>(*row) : -1};
    }
    if (fields.code == CommandCode::MenuCommand) {
        return {Palette::MenuCommands, rowOfMenuCommand(fields.commandId)};
    }
    return {Palette::ScriptEvents, rowOfEvent(fields.code)};
}

}  // namespace quendra
