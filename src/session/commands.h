// The editor's commands, one row of a table each: menus, toolbar, shortcuts, texts and states are
// all made from it. What a command runs is attached by the window's program.
#pragma once

#include "hosts/host_type.h"
#include "hosts/palettes.h"
#include "text/language_library.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

struct CommandFacts;

/// The numbers also name actions and toolbar buttons, and are those of the icons. 313 to 318 are
/// the Mode commands, which come from the table of the host types: see modeCommand().
enum class EditorCommand : int {
    NewScript = 300,
    Open = 301,
    Save = 302,
    SaveAs = 303,
    Exit = 304,
    Cut = 305,
    Copy = 306,
    Paste = 307,
    InsertScriptEvent = 308,
    InsertLuFunction = 309,
    InsertMenuCommand = 310,
    EditEntry = 311,
    DeleteEntries = 312,
    Help = 319,
    About = 320,
    Undo = 321,
    Redo = 322,
    Find = 323,
    CopyAsText = 324,
    InsertScript = 325,
    HelpOnSelection = 326,
    Duplicate = 327,
    MoveUp = 328,
    MoveDown = 329,
    ShowProblems = 330,
    NextProblem = 331,
    PreviousProblem = 332,
    ApplyQuickFix = 333,
    ShowGutter = 334,
    GoToStep = 335,
    FindNext = 340,
    FindPrevious = 341,
    Replace = 342,
    RenameLabel = 343,
    GoToLabel = 344,
    GoBack = 345,
    FindUses = 346,
    CompareWithFile = 350,
    CompareWithSaved = 351,
    ResolveConflicts = 352,
    InsertByName = 360,
    NextList = 361,
    PreviousList = 362,
    Reload = 370,
};

/// In the order of the menu bar.
enum class EditorMenu : std::uint8_t { File, Edit, View, Entry, Mode, Help };

struct CommandTexts {
    /// 0 where the menu text is the literal.
    StringId menu = 0;
    StringId toolTip = 0;
    StringId status = 0;
    std::string_view menuLiteral = {};
};

struct CommandInfo {
    EditorCommand id = {};
    CommandTexts texts;
    /// In Qt's portable notation, several with "; " between them; empty for none.
    const char* shortcut = "";
    /// Keys that the script list takes itself, while it has the focus: menus only tell them.
    bool isKeyOfList = false;
    /// A menu has its commands in the order of the table, with a separator between two groups.
    EditorMenu menu = {};
    int menuGroup = 1;
    /// The toolbar's groups stand in the order of their numbers; 0 for a command that is not there.
    int toolbarGroup = 0;
    /// None for a command that can always be chosen.
    bool (*isEnabled)(const CommandFacts&) = nullptr;
    /// Of a command that switches something on and off.
    bool (*isChecked)(const CommandFacts&) = nullptr;
    /// Tool tip and menu text where they say what the command would do; none, or no text, for those
    /// of `texts`.
    std::optional<std::string> (*toolTip)(const CommandFacts&, LanguageLibrary&) = nullptr;
    std::optional<std::string> (*menuText)(const CommandFacts&, LanguageLibrary&) = nullptr;
    /// A full script refuses it.
    bool addsEntries = false;
    /// It puts the keyboard focus where it is wanted; after any other the pane has it.
    bool movesFocus = false;
    /// The palette whose selected row the command inserts: without one it cannot be chosen, and its
    /// tool tip names it.
    std::optional<Palette> inserts = {};
    /// What a Mode command makes the current host type, and is checked for.
    std::optional<HostType> hostType = {};
};

/// All commands, those of one menu in its order.
[[nodiscard]] std::span<const CommandInfo> commands();

/// The row of a command.
[[nodiscard]] const CommandInfo& commandInfo(EditorCommand id);

/// The Mode command of a host type.
[[nodiscard]] EditorCommand modeCommand(HostType type);

/// The command that inserts the selected row of a palette.
[[nodiscard]] EditorCommand insertCommand(Palette palette);

[[nodiscard]] constexpr int commandNumber(EditorCommand id) {
    return static_cast<int>(id);
}

[[nodiscard]] bool isCommandEnabled(const CommandInfo& info, const CommandFacts& facts);
/// Whether a command can be checked at all, and whether it is.
[[nodiscard]] bool isCheckable(const CommandInfo& info);
[[nodiscard]] bool isCommandChecked(const CommandInfo& info, const CommandFacts& facts);
[[nodiscard]] std::string commandToolTip(const CommandInfo& info, const CommandFacts& facts,
                                         LanguageLibrary& language);

/// The menu text in UTF-8, with its "&" and with a shortcut behind a tab where the language has one
/// there.
[[nodiscard]] std::string commandMenuText(const CommandInfo& info, LanguageLibrary& language);
/// The present menu text of a command whose text changes; none for others.
[[nodiscard]] std::optional<std::string> commandMenuText(const CommandInfo& info,
                                                         const CommandFacts& facts,
                                                         LanguageLibrary& language);

struct MenuInfo {
    EditorMenu menu;
    StringId titleId;
    /// Names the menu for tests and style sheets.
    const char* objectName;
};

/// The menus of the menu bar in their order.
[[nodiscard]] std::span<const MenuInfo> menus();

/// Commands in their order; none stands for a separator.
using CommandItems = std::vector<std::optional<EditorCommand>>;
[[nodiscard]] CommandItems menuItems(EditorMenu menu);
[[nodiscard]] CommandItems toolbarItems();
/// What a right click offers in the script list, and in a palette.
[[nodiscard]] CommandItems scriptListItems();
[[nodiscard]] CommandItems paletteItems(Palette palette);

}  // namespace quendra
