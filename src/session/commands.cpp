#include "session/commands.h"

#include "hosts/host_type.h"
#include "session/command_rules.h"
#include "text/text_ids.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace quendra {

namespace {

using enum EditorCommand;

// Those of one menu in its order. The Mode commands follow from the host types.
constexpr CommandInfo rows[] = {
    {.id = NewScript,
     .texts = {textid::newMenuText, textid::newToolTip, textid::newStatusText},
     .shortcut = "Ctrl+N",
     .menu = EditorMenu::File},
    {.id = Open,
     .texts = {textid::openMenuText, textid::openToolTip, textid::openStatusText},
     .shortcut = "Ctrl+O",
     .menu = EditorMenu::File,
     .toolbarGroup = 1},
    {.id = Save,
     .texts = {textid::saveMenuText, textid::saveToolTip, textid::saveStatusText},
     .shortcut = "Ctrl+S",
     .menu = EditorMenu::File,
     .toolbarGroup = 1,
     .isEnabled = hasEntries},
    {.id = SaveAs,
     .texts = {textid::saveAsMenuText, textid::saveAsToolTip, textid::saveAsStatusText},
     .shortcut = "Ctrl+Shift+S",
     .menu = EditorMenu::File,
     .isEnabled = hasEntries},
    {.id = Reload,
     .texts = {textid::reloadMenuText, textid::reloadToolTip, textid::reloadStatusText},
     .shortcut = "F5",
     .menu = EditorMenu::File,
     .isEnabled = hasFile},
    {.id = CompareWithFile,
     .texts = {textid::compareFileMenuText, textid::compareFileToolTip,
               textid::compareFileStatusText},
     .menu = EditorMenu::File,
     .menuGroup = 2,
     .movesFocus = true},
    {.id = CompareWithSaved,
     .texts = {textid::compareSavedMenuText, textid::compareSavedToolTip,
               textid::compareSavedStatusText},
     .menu = EditorMenu::File,
     .menuGroup = 2,
     .isEnabled = hasSavedForm,
     .movesFocus = true},
    {.id = ResolveConflicts,
     .texts = {textid::resolveConflictsMenuText, textid::resolveConflictsToolTip,
               textid::resolveConflictsStatusText},
     .menu = EditorMenu::File,
     .menuGroup = 2,
     .isEnabled = hasConflicts,
     .movesFocus = true},
    {.id = Exit,
     .texts = {textid::exitMenuText, textid::exitToolTip, textid::exitStatusText},
     .shortcut = "Ctrl+Q",
     .menu = EditorMenu::File,
     .menuGroup = 3},
    {.id = Undo,
     .texts = {textid::undoMenuText, textid::undoToolTip, textid::undoStatusText},
     .shortcut = "Ctrl+Z",
     .menu = EditorMenu::Edit,
     .toolbarGroup = 3,
     .isEnabled = canUndo,
     .toolTip = undoTip,
     .menuText = undoItem},
    {.id = Redo,
     .texts = {textid::redoMenuText, textid::redoToolTip, textid::redoStatusText},
     .shortcut = "Ctrl+Shift+Z; Ctrl+Y",
     .menu = EditorMenu::Edit,
     .toolbarGroup = 3,
     .isEnabled = canRedo,
     .toolTip = redoTip,
     .menuText = redoItem},
    {.id = Cut,
     .texts = {textid::cutMenuText, textid::cutToolTip, textid::cutStatusText},
     .shortcut = "Ctrl+X",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasSelection},
    {.id = Copy,
     .texts = {textid::copyMenuText, textid::copyToolTip, textid::copyStatusText},
     .shortcut = "Ctrl+C",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasSelection},
    {.id = CopyAsText,
     .texts = {textid::copyAsTextMenuText, textid::copyAsTextToolTip, textid::copyAsTextStatusText},
     .shortcut = "Ctrl+Shift+C",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .isEnabled = hasSelection},
    {.id = Paste,
     .texts = {textid::pasteMenuText, textid::pasteToolTip, textid::pasteStatusText},
     .shortcut = "Ctrl+V",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasClipboard,
     .addsEntries = true},
    {.id = Find,
     .texts = {textid::findMenuText, textid::findToolTip, textid::findStatusText},
     .shortcut = "Ctrl+F",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = FindNext,
     .texts = {textid::findNextMenuText, textid::findNext, textid::findNextStatusText},
     .shortcut = "F3",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = FindPrevious,
     .texts = {textid::findPreviousMenuText, textid::findPrevious, textid::findPreviousStatusText},
     .shortcut = "Shift+F3",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = Replace,
     .texts = {textid::replaceMenuText, textid::replaceToolTip, textid::replaceStatusText},
     .shortcut = "Ctrl+H",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = GoToStep,
     .texts = {textid::goToStepMenuText, textid::goToStepToolTip, textid::goToStepStatusText},
     .shortcut = "Ctrl+G",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = InsertByName,
     .texts = {textid::insertByNameMenuText, textid::insertByNameToolTip,
               textid::insertByNameStatusText},
     .shortcut = "Ctrl+K",
     .menu = EditorMenu::Edit,
     .menuGroup = 4,
     .addsEntries = true,
     .movesFocus = true},
    {.id = ApplyQuickFix,
     .texts = {textid::quickFixMenuText, textid::quickFixToolTip, textid::quickFixStatusText},
     .shortcut = "Ctrl+.",
     .menu = EditorMenu::Edit,
     .menuGroup = 5,
     .isEnabled = hasQuickFix,
     .toolTip = quickFixTip,
     .menuText = quickFixItem},
    {.id = ShowProblems,
     .texts = {textid::problemsMenuText, textid::problemsToolTip, textid::problemsStatusText},
     .shortcut = "Ctrl+Shift+M",
     .menu = EditorMenu::View,
     .isChecked = showsProblems,
     .movesFocus = true},
    {.id = ShowGutter,
     .texts = {textid::gutterMenuText, textid::gutterToolTip, textid::gutterStatusText},
     .menu = EditorMenu::View,
     .isChecked = showsGutter},
    {.id = NextProblem,
     .texts = {textid::nextProblemMenuText, textid::nextProblemToolTip,
               textid::nextProblemStatusText},
     .shortcut = "F8",
     .menu = EditorMenu::View,
     .menuGroup = 2,
     .isEnabled = hasEntries},
    {.id = PreviousProblem,
     .texts = {textid::previousProblemMenuText, textid::previousProblemToolTip,
               textid::previousProblemStatusText},
     .shortcut = "Shift+F8",
     .menu = EditorMenu::View,
     .menuGroup = 2,
     .isEnabled = hasEntries},
    {.id = NextList,
     .texts = {textid::nextListMenuText, textid::nextListToolTip, textid::nextListStatusText},
     .shortcut = "F6",
     .menu = EditorMenu::View,
     .menuGroup = 3,
     .movesFocus = true},
    {.id = PreviousList,
     .texts = {textid::previousListMenuText, textid::previousListToolTip,
               textid::previousListStatusText},
     .shortcut = "Shift+F6",
     .menu = EditorMenu::View,
     .menuGroup = 3,
     .movesFocus = true},
    {.id = InsertScriptEvent,
     .texts = {textid::insertScriptEventMenuText, textid::insertScriptEventToolTip,
               textid::insertScriptEventStatusText},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .addsEntries = true,
     .inserts = Palette::ScriptEvents},
    {.id = InsertLuFunction,
     .texts = {textid::insertLuFunctionMenuText, textid::insertLuFunctionToolTip,
               textid::insertLuFunctionStatusText},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .addsEntries = true,
     .inserts = Palette::LuFunctions},
    {.id = InsertMenuCommand,
     .texts = {textid::insertMenuCommandMenuText, textid::insertMenuCommandToolTip,
               textid::insertMenuCommandStatusText},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .addsEntries = true,
     .inserts = Palette::MenuCommands},
    {.id = InsertScript,
     .texts = {textid::insertScriptMenuText, textid::insertScriptToolTip,
               textid::insertScriptStatusText},
     .shortcut = "Ctrl+Shift+O",
     .menu = EditorMenu::Entry,
     .addsEntries = true},
    {.id = EditEntry,
     .texts = {textid::editEntryMenuText, textid::editEntryToolTip, textid::editEntryStatusText},
     .menu = EditorMenu::Entry,
     .menuGroup = 2,
     .toolbarGroup = 5,
     .isEnabled = canEdit,
     .toolTip = editTip},
    {.id = DeleteEntries,
     .texts = {textid::deleteEntriesMenuText, textid::luDelete, textid::deleteEntriesStatusText},
     .shortcut = "Del",
     .menu = EditorMenu::Entry,
     .menuGroup = 3,
     .toolbarGroup = 6,
     .isEnabled = hasSelection,
     .toolTip = deleteTip},
    {.id = Duplicate,
     .texts = {textid::duplicateMenuText, textid::duplicateToolTip, textid::duplicateStatusText},
     .shortcut = "Ctrl+D",
     .menu = EditorMenu::Entry,
     .menuGroup = 3,
     .isEnabled = hasSelection,
     .addsEntries = true},
    {.id = MoveUp,
     .texts = {textid::moveUpMenuText, textid::moveUpToolTip, textid::moveUpStatusText},
     .shortcut = "Ctrl+Up",
     .isKeyOfList = true,
     .menu = EditorMenu::Entry,
     .menuGroup = 3,
     .isEnabled = hasSelection},
    {.id = MoveDown,
     .texts = {textid::moveDownMenuText, textid::moveDownToolTip, textid::moveDownStatusText},
     .shortcut = "Ctrl+Down",
     .isKeyOfList = true,
     .menu = EditorMenu::Entry,
     .menuGroup = 3,
     .isEnabled = hasSelection},
    {.id = RenameLabel,
     .texts = {textid::renameLabelMenuText, textid::renameLabelToolTip,
               textid::renameLabelStatusText},
     .shortcut = "F2",
     .menu = EditorMenu::Entry,
     .menuGroup = 4,
     .isEnabled = namesLabel},
    {.id = GoToLabel,
     .texts = {textid::goToLabelMenuText, textid::goToLabelToolTip, textid::goToLabelStatusText},
     .shortcut = "F12",
     .menu = EditorMenu::Entry,
     .menuGroup = 4,
     .isEnabled = hasGoto},
    {.id = GoBack,
     .texts = {textid::goBackMenuText, textid::goBackToolTip, textid::goBackStatusText},
     .shortcut = "Alt+Left",
     .menu = EditorMenu::Entry,
     .menuGroup = 4,
     .isEnabled = canGoBack},
    {.id = FindUses,
     .texts = {textid::findUsesMenuText, textid::findUsesToolTip, textid::findUsesStatusText},
     .shortcut = "Shift+F12",
     .menu = EditorMenu::Entry,
     .menuGroup = 4,
     .isEnabled = namesLabel},
    {.id = Help,
     .texts = {textid::helpMenuText, textid::helpToolTip, textid::helpStatusText},
     .shortcut = "F1",
     .menu = EditorMenu::Help,
     .toolbarGroup = 8},
    {.id = HelpOnSelection,
     .texts = {textid::helpOnSelectionMenuText, textid::helpOnSelectionToolTip,
               textid::helpOnSelectionStatusText},
     .shortcut = "Shift+F1",
     .menu = EditorMenu::Help},
    {.id = About,
     .texts = {textid::aboutMenuText, textid::aboutToolTip, textid::aboutStatusText},
     .menu = EditorMenu::Help,
     .menuGroup = 2,
     .toolbarGroup = 8},
};

CommandInfo modeRow(HostType type) {
    const HostTypeInfo& host = hostTypeInfo(type);
    return {.id = modeCommand(type),
            .texts = {host.menuTextId, host.toolTipId, host.statusTextId, host.menuTextLiteral},
            .menu = EditorMenu::Mode,
            .toolbarGroup = 7,
            .hostType = type};
}

std::vector<CommandInfo> allRows() {
    std::vector<CommandInfo> all(std::begin(rows), std::end(rows));
    std::ranges::transform(allHostTypes, std::back_inserter(all), modeRow);
    return all;
}

constexpr MenuInfo menuTable[] = {
    {EditorMenu::File, textid::fileMenu, "fileMenu"},
    {EditorMenu::Edit, textid::editMenu, "editMenu"},
    {EditorMenu::View, textid::viewMenu, "viewMenu"},
    {EditorMenu::Entry, textid::entryMenu, "entryMenu"},
    {EditorMenu::Mode, textid::modeMenu, "modeMenu"},
    {EditorMenu::Help, textid::helpMenu, "helpMenu"},
};

// The commands of groups in their order, with separators between the groups.
CommandItems itemsOf(const std::vector<CommandInfo>& sorted, int CommandInfo::*group) {
    CommandItems items;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && sorted[i].*group != sorted[i - 1].*group) items.emplace_back();
        items.emplace_back(sorted[i].id);
    }
    return items;
}

}  // namespace

std::span<const CommandInfo> commands() {
    static const std::vector<CommandInfo> all = allRows();
    return all;
}

const CommandInfo& commandInfo(EditorCommand id) {
    return *std::ranges::find(commands(), id, &CommandInfo::id);
}

EditorCommand modeCommand(HostType type) {
    return static_cast<EditorCommand>(hostTypeInfo(type).modeCommand);
}

EditorCommand insertCommand(Palette palette) {
    return std::ranges::find(commands(), palette, &CommandInfo::inserts)->id;
}

bool isCommandEnabled(const CommandInfo& info, const CommandFacts& facts) {
    if (info.inserts) return facts.selectedRow(*info.inserts).has_value();
    return info.isEnabled == nullptr || info.isEnabled(facts);
}

bool isCheckable(const CommandInfo& info) {
    return info.hostType || info.isChecked != nullptr;
}

bool isCommandChecked(const CommandInfo& info, const CommandFacts& facts) {
    if (info.isChecked != nullptr) return info.isChecked(facts);
    return info.hostType == facts.hostType;
}

std::string commandToolTip(const CommandInfo& info, const CommandFacts& facts,
                           LanguageLibrary& language) {
    CommandText text;
    if (info.inserts) text = insertTip(*info.inserts, facts, language);
    if (info.toolTip != nullptr) text = info.toolTip(facts, language);
    if (text) return *std::move(text);
    return libraryText(language, info.texts.toolTip);
}

std::string commandMenuText(const CommandInfo& info, LanguageLibrary& language) {
    return info.texts.menu != 0 ? language.loadText(info.texts.menu)
                                : std::string(info.texts.menuLiteral);
}

std::optional<std::string> commandMenuText(const CommandInfo& info, const CommandFacts& facts,
                                           LanguageLibrary& language) {
    if (info.menuText == nullptr) return std::nullopt;
    if (auto text = info.menuText(facts, language)) return text;
    return commandMenuText(info, language);
}

std::span<const MenuInfo> menus() {
    return menuTable;
}

CommandItems menuItems(EditorMenu menu) {
    std::vector<CommandInfo> found;
    std::ranges::copy_if(commands(), std::back_inserter(found),
                         [menu](const CommandInfo& info) { return info.menu == menu; });
    return itemsOf(found, &CommandInfo::menuGroup);
}

CommandItems toolbarItems() {
    std::vector<CommandInfo> found;
    std::ranges::copy_if(commands(), std::back_inserter(found),
                         [](const CommandInfo& info) { return info.toolbarGroup > 0; });
    std::ranges::stable_sort(found, std::ranges::less(), &CommandInfo::toolbarGroup);
    return itemsOf(found, &CommandInfo::toolbarGroup);
}

CommandItems scriptListItems() {
    return {EditEntry,      std::nullopt, Cut,           Copy,         CopyAsText,
            Paste,          Duplicate,    DeleteEntries, std::nullopt, MoveUp,
            MoveDown,       std::nullopt, GoToLabel,     GoBack,       RenameLabel,
            FindUses,       std::nullopt, ApplyQuickFix, std::nullopt, InsertByName,
            HelpOnSelection};
}

CommandItems paletteItems(Palette palette) {
    return {insertCommand(palette), std::nullopt, HelpOnSelection};
}

}  // namespace quendra
