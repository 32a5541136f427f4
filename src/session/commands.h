// The editor's commands in one table: menus, toolbar, tool tips, status-bar help and
// shortcuts are all built from it.
#pragma once

#include "text/language_library.h"

#include <cstddef>
#include <span>
#include <string>

namespace quendra {

namespace command {
inline constexpr int newScript = 300;
inline constexpr int open = 301;
inline constexpr int save = 302;
inline constexpr int saveAs = 303;
inline constexpr int exit = 304;
inline constexpr int cut = 305;
inline constexpr int copy = 306;
inline constexpr int paste = 307;
inline constexpr int insertScriptEvent = 308;
inline constexpr int insertLuFunction = 309;
inline constexpr int insertMenuCommand = 310;
inline constexpr int editEntry = 311;
inline constexpr int deleteEntries = 312;
inline constexpr int help = 319;
inline constexpr int about = 320;
inline constexpr int undo = 321;
inline constexpr int redo = 322;
inline constexpr int find = 323;
inline constexpr int copyAsText = 324;
inline constexpr int insertScript = 325;
inline constexpr int helpOnSelection = 326;
/// Stands for a separator in menus and toolbar.
inline constexpr int separator = 0;
}  // namespace command

struct CommandInfo {
    int id;
    /// 0 for the Mode commands, whose texts belong to the host types.
    StringId menuTextId;
    StringId toolTipId;
    StringId statusTextId;
    /// In Qt's portable notation, several with "; " between them; empty for none.
    const char* shortcut;
};

/// All commands in ascending order without gaps.
[[nodiscard]] std::span<const CommandInfo> commands();

/// The row of a command, which is one of commands().
[[nodiscard]] const CommandInfo& commandInfo(int id);

/// The menu text in UTF-8, with its "&" and with a shortcut behind a tab where the language has one
/// there.
[[nodiscard]] std::string commandMenuText(const CommandInfo& info, LanguageLibrary& language);

struct MenuInfo {
    StringId titleId;
    /// Names the menu for tests and style sheets.
    const char* objectName;
    std::span<const int> items;
};

/// The menus of the menu bar in their order.
[[nodiscard]] std::span<const MenuInfo> menus();

/// The toolbar's commands in their order, separators among them.
[[nodiscard]] std::span<const int> toolbarCommands();

}  // namespace quendra
