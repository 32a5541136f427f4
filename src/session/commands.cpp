#include "session/commands.h"

#include "session/command_rules.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace quendra {

namespace {

using enum EditorCommand;

// Those of one menu in its order. The Mode commands follow from the host types.
constexpr CommandInfo rows[] = {
    {.id = NewScript,
     .texts = {10001, 12715, 13682},
     .shortcut = "Ctrl+N",
     .menu = EditorMenu::File},
    {.id = Open,
     .texts = {10002, 11709, 13683},
     .shortcut = "Ctrl+O",
     .menu = EditorMenu::File,
     .toolbarGroup = 1},
    {.id = Save,
     .texts = {10003, 13619, 13684},
     .shortcut = "Ctrl+S",
     .menu = EditorMenu::File,
     .toolbarGroup = 1,
     .isEnabled = hasEntries},
    {.id = SaveAs,
     .texts = {10004, 11710, 13685},
     .shortcut = "Ctrl+Shift+S",
     .menu = EditorMenu::File,
     .isEnabled = hasEntries},
    {.id = Exit,
     .texts = {10017, 11720, 13686},
     .shortcut = "Ctrl+Q",
     .menu = EditorMenu::File,
     .menuGroup = 2},
    {.id = Undo,
     .texts = {15301, 15305, 15309},
     .shortcut = "Ctrl+Z",
     .menu = EditorMenu::Edit,
     .toolbarGroup = 3,
     .isEnabled = canUndo,
     .toolTip = undoTip,
     .menuText = undoItem},
    {.id = Redo,
     .texts = {15303, 15307, 15310},
     .shortcut = "Ctrl+Shift+Z; Ctrl+Y",
     .menu = EditorMenu::Edit,
     .toolbarGroup = 3,
     .isEnabled = canRedo,
     .toolTip = redoTip,
     .menuText = redoItem},
    {.id = Cut,
     .texts = {11190, 13673, 13687},
     .shortcut = "Ctrl+X",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasSelection},
    {.id = Copy,
     .texts = {11191, 12655, 13688},
     .shortcut = "Ctrl+C",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasSelection},
    {.id = CopyAsText,
     .texts = {15319, 15320, 15321},
     .shortcut = "Ctrl+Shift+C",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .isEnabled = hasSelection},
    {.id = Paste,
     .texts = {11192, 10516, 13689},
     .shortcut = "Ctrl+V",
     .menu = EditorMenu::Edit,
     .menuGroup = 2,
     .toolbarGroup = 2,
     .isEnabled = hasClipboard,
     .addsEntries = true},
    {.id = Find,
     .texts = {15326, 15327, 15328},
     .shortcut = "Ctrl+F",
     .menu = EditorMenu::Edit,
     .menuGroup = 3,
     .isEnabled = hasEntries,
     .movesFocus = true},
    {.id = InsertScriptEvent,
     .texts = {11194, 13674, 13690},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .isEnabled = hasEvent,
     .toolTip = insertEventTip,
     .addsEntries = true},
    {.id = InsertLuFunction,
     .texts = {11195, 13675, 13691},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .isEnabled = hasLuFunction,
     .toolTip = insertLuFunctionTip,
     .addsEntries = true},
    {.id = InsertMenuCommand,
     .texts = {11196, 13676, 13692},
     .menu = EditorMenu::Entry,
     .toolbarGroup = 4,
     .isEnabled = hasMenuCommand,
     .toolTip = insertMenuCommandTip,
     .addsEntries = true},
    {.id = InsertScript,
     .texts = {15322, 15323, 15324},
     .shortcut = "Ctrl+Shift+O",
     .menu = EditorMenu::Entry,
     .addsEntries = true},
    {.id = EditEntry,
     .texts = {11197, 13677, 13693},
     .menu = EditorMenu::Entry,
     .menuGroup = 2,
     .toolbarGroup = 5,
     .isEnabled = canEdit,
     .toolTip = editTip},
    {.id = DeleteEntries,
     .texts = {11198, 12159, 13694},
     .shortcut = "Del",
     .menu = EditorMenu::Entry,
     .menuGroup = 3,
     .toolbarGroup = 6,
     .isEnabled = hasSelection,
     .toolTip = deleteTip},
    {.id = Help,
     .texts = {11201, 13681, 13698},
     .shortcut = "F1",
     .menu = EditorMenu::Help,
     .toolbarGroup = 8},
    {.id = HelpOnSelection,
     .texts = {15340, 15341, 15342},
     .shortcut = "Shift+F1",
     .menu = EditorMenu::Help},
    {.id = About,
     .texts = {11202, 11206, 13699},
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
    {EditorMenu::File, 10000, "fileMenu"},   {EditorMenu::Edit, 10018, "editMenu"},
    {EditorMenu::Entry, 11193, "entryMenu"}, {EditorMenu::Mode, 10935, "modeMenu"},
    {EditorMenu::Help, 10070, "helpMenu"},
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

bool isCommandEnabled(const CommandInfo& info, const CommandFacts& facts) {
    return info.isEnabled == nullptr || info.isEnabled(facts);
}

bool isCommandChecked(const CommandInfo& info, const CommandFacts& facts) {
    return info.hostType == facts.hostType;
}

std::string commandToolTip(const CommandInfo& info, const CommandFacts& facts,
                           LanguageLibrary& language) {
    if (info.toolTip != nullptr) {
        if (auto text = info.toolTip(facts, language)) return *std::move(text);
    }
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

}  // namespace quendra
