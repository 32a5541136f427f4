#include "session/commands.h"

#include "hosts/host_type.h"
#include "text/text_ids.h"

#include <array>

namespace quendra {

namespace {

using namespace command;

constexpr CommandInfo table[] = {
    {newScript, textid::newMenuText, textid::newToolTip, textid::newStatusText, "Ctrl+N"},
    {open, textid::openMenuText, textid::openToolTip, textid::openStatusText, "Ctrl+O"},
    {save, textid::saveMenuText, textid::saveToolTip, textid::saveStatusText, "Ctrl+S"},
    {saveAs, textid::saveAsMenuText, textid::saveAsToolTip, textid::saveAsStatusText,
     "Ctrl+Shift+S"},
    {command::exit, textid::exitMenuText, textid::exitToolTip, textid::exitStatusText, "Ctrl+Q"},
    {cut, textid::cutMenuText, textid::cutToolTip, textid::cutStatusText, "Ctrl+X"},
    {copy, textid::copyMenuText, textid::copyToolTip, textid::copyStatusText, "Ctrl+C"},
    {paste, textid::pasteMenuText, textid::pasteToolTip, textid::pasteStatusText, "Ctrl+V"},
    {insertScriptEvent, textid::insertScriptEventMenuText, textid::insertScriptEventToolTip,
     textid::insertScriptEventStatusText, ""},
    {insertLuFunction, textid::insertLuFunctionMenuText, textid::insertLuFunctionToolTip,
     textid::insertLuFunctionStatusText, ""},
    {insertMenuCommand, textid::insertMenuCommandMenuText, textid::insertMenuCommandToolTip,
     textid::insertMenuCommandStatusText, ""},
    {editEntry, textid::editEntryMenuText, textid::editEntryToolTip, textid::editEntryStatusText,
     ""},
    {deleteEntries, textid::deleteEntriesMenuText, textid::luDelete,
     textid::deleteEntriesStatusText, "Del"},
    {313, 0, textid::mainframeModeToolTip, textid::mainframeModeStatusText, ""},
    {314, 0, textid::iSeriesModeToolTip, textid::iSeriesModeStatusText, ""},
    {315, 0, textid::vtModeToolTip, textid::vtModeStatusText, ""},
    {316, 0, textid::utsModeToolTip, textid::utsModeStatusText, ""},
    {317, 0, textid::t27ModeToolTip, textid::t27ModeStatusText, ""},
    {318, 0, textid::iclModeToolTip, textid::iclModeStatusText, ""},
    {help, textid::helpMenuText, textid::helpToolTip, textid::helpStatusText, "F1"},
    {about, textid::aboutMenuText, textid::aboutToolTip, textid::aboutStatusText, ""},
    {undo, textid::undoMenuText, textid::undoToolTip, textid::undoStatusText, "Ctrl+Z"},
    {redo, textid::redoMenuText, textid::redoToolTip, textid::redoStatusText,
     "Ctrl+Shift+Z; Ctrl+Y"},
    {find, textid::findMenuText, textid::findToolTip, textid::findStatusText, "Ctrl+F"},
    {copyAsText, textid::copyAsTextMenuText, textid::copyAsTextToolTip,
     textid::copyAsTextStatusText, "Ctrl+Shift+C"},
    {insertScript, textid::insertScriptMenuText, textid::insertScriptToolTip,
     textid::insertScriptStatusText, "Ctrl+Shift+O"},
    {helpOnSelection, textid::helpOnSelectionMenuText, textid::helpOnSelectionToolTip,
     textid::helpOnSelectionStatusText, "Shift+F1"},
};

constexpr int fileItems[] = {newScript, open, save, saveAs, separator, command::exit};
constexpr int editItems[] = {undo, redo, separator, cut, copy, copyAsText, paste, separator, find};
constexpr int entryItems[] = {
    insertScriptEvent, insertLuFunction, insertMenuCommand, command::insertScript,
    separator,         editEntry,        separator,         deleteEntries};
constexpr int modeItems[] = {313, 314, 315, 316, 317, 318};
constexpr int helpItems[] = {help, helpOnSelection, separator, about};

constexpr MenuInfo menuTable[] = {
    {textid::fileMenu, "fileMenu", fileItems},    {textid::editMenu, "editMenu", editItems},
    {textid::entryMenu, "entryMenu", entryItems}, {textid::modeMenu, "modeMenu", modeItems},
    {textid::helpMenu, "helpMenu", helpItems},
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
