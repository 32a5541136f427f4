#include "session/commands.h"

#include "hosts/host_type.h"

#include <array>

namespace quendra {

namespace {

using namespace command;

constexpr CommandInfo table[] = {
    {newScript, 10001, 12715, 13682, "Ctrl+N"},
    {open, 10002, 11709, 13683, "Ctrl+O"},
    {save, 10003, 13619, 13684, "Ctrl+S"},
    {saveAs, 10004, 11710, 13685, "Ctrl+Shift+S"},
    {command::exit, 10017, 11720, 13686, "Ctrl+Q"},
    {cut, 11190, 13673, 13687, "Ctrl+X"},
    {copy, 11191, 12655, 13688, "Ctrl+C"},
    {paste, 11192, 10516, 13689, "Ctrl+V"},
    {insertScriptEvent, 11194, 13674, 13690, ""},
    {insertLuFunction, 11195, 13675, 13691, ""},
    {insertMenuCommand, 11196, 13676, 13692, ""},
    {editEntry, 11197, 13677, 13693, ""},
    {deleteEntries, 11198, 12159, 13694, "Del"},
    {313, 0, 13678, 13695, ""},
    {314, 0, 13679, 13696, ""},
    {315, 0, 13680, 13697, ""},
    {316, 0, 14201, 14204, ""},
    {317, 0, 14202, 14205, ""},
    {318, 0, 14203, 14206, ""},
    {help, 11201, 13681, 13698, "F1"},
    {about, 11202, 11206, 13699, ""},
    {undo, 15301, 15305, 15309, "Ctrl+Z"},
    {redo, 15303, 15307, 15310, "Ctrl+Shift+Z; Ctrl+Y"},
    {find, 15326, 15327, 15328, "Ctrl+F"},
    {copyAsText, 15319, 15320, 15321, "Ctrl+Shift+C"},
    {insertScript, 15322, 15323, 15324, "Ctrl+Shift+O"},
    {helpOnSelection, 15340, 15341, 15342, "Shift+F1"},
};

constexpr int fileItems[] = {newScript, open, save, saveAs, separator, command::exit};
constexpr int editItems[] = {undo, redo, separator, cut, copy, copyAsText, paste, separator, find};
constexpr int entryItems[] = {
    insertScriptEvent, insertLuFunction, insertMenuCommand, command::insertScript,
    separator,         editEntry,        separator,         deleteEntries};
constexpr int modeItems[] = {313, 314, 315, 316, 317, 318};
constexpr int helpItems[] = {help, helpOnSelection, separator, about};

constexpr MenuInfo menuTable[] = {
    {10000, "fileMenu", fileItems},   {10018, "editMenu", editItems},
    {11193, "entryMenu", entryItems}, {10935, "modeMenu", modeItems},
    {10070, "helpMenu", helpItems},
};

constexpr int toolbarItems[] = {
    open,
    save,
    separator,
    cut,
    copy,
    paste,
    separator,
    undo,
    redo,
    separator,
    insertScriptEvent,
    insertLuFunction,
    insertMenuCommand,
    separator,
    editEntry,
    separator,
    deleteEntries,
    separator,
    313,
    314,
    315,
    316,
    317,
    318,
    separator,
    help,
    about,
};

}  // namespace

std::span<const CommandInfo> commands() {
    return table;
}

const CommandInfo& commandInfo(int id) {
    return table[id - newScript];
}

std::string commandMenuText(const CommandInfo& info, LanguageLibrary& language) {
    const auto host = hostTypeOfModeCommand(info.id);
    if (!host) return language.loadText(info.menuTextId);
    const HostTypeInfo& hostInfo = hostTypeInfo(*host);
    return hostInfo.menuTextId != 0 ? language.loadText(hostInfo.menuTextId)
                                    : std::string(hostInfo.menuTextLiteral);
}

std::span<const MenuInfo> menus() {
    return menuTable;
}

std::span<const int> toolbarCommands() {
    return toolbarItems;
}

}  // namespace quendra
