// The commands of the emulator's own menu that a script can choose: all that is known of each.
#pragma once

#include "text/language_library.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace quendra {

/// What a menu command asks for: nothing, the name of a file, or the settings of a file transfer.
enum class MenuParameters : std::uint8_t { None, FileName, SendFile, ReceiveFile };

/// VT emulators lack a command: it is refused wherever it is picked, and a VT file cannot store it.
enum class InVt : std::uint8_t { Allowed, Refused };

struct MenuCommandInfo {
    /// As a script stores it, and as its bitmap is numbered.
    std::uint32_t code;
    StringId nameId;
    MenuParameters parameters;
    InVt inVt;
    /// File name of the drawing, without ".svg".
    const char* icon;
};

/// In code order without gaps; palette row n is element n.
inline constexpr std::array menuCommandTable = std::to_array<MenuCommandInfo>({
    // clang-format off
    {201, 11913, MenuParameters::None, InVt::Allowed, "menu-new-session"},
    {202, 11914, MenuParameters::FileName, InVt::Allowed, "menu-open-session"},
    {203, 11915, MenuParameters::None, InVt::Allowed, "menu-save-session"},
    {204, 11916, MenuParameters::FileName, InVt::Allowed, "menu-save-session-as"},
    {205, 11917, MenuParameters::None, InVt::Allowed, "menu-close-session"},
    {206, 11918, MenuParameters::None, InVt::Allowed, "menu-connect"},
    {207, 11919, MenuParameters::None, InVt::Allowed, "menu-disconnect"},
    {208, 11920, MenuParameters::None, InVt::Allowed, "menu-page-setup"},
    {209, 11921, MenuParameters::None, InVt::Allowed, "menu-print-preview"},
    {210, 11922, MenuParameters::None, InVt::Allowed, "menu-print-screen"},
    {211, 11923, MenuParameters::None, InVt::Allowed, "menu-print-selection"},
    {212, 11924, MenuParameters::None, InVt::Allowed, "menu-select-printer"},
    {213, 11925, MenuParameters::None, InVt::Refused, "menu-associate-printer-session"},
    {214, 11926, MenuParameters::None, InVt::Allowed, "menu-exit"},
    {215, 11927, MenuParameters::None, InVt::Allowed, "menu-cut"},
    {216, 11928, MenuParameters::None, InVt::Allowed, "menu-copy"},
    {217, 11929, MenuParameters::None, InVt::Allowed, "menu-copy-append"},
    {218, 11930, MenuParameters::None, InVt::Allowed, "menu-paste"},
    {219, 11931, MenuParameters::FileName, InVt::Allowed, "menu-paste-from-file"},
    {220, 11932, MenuParameters::None, InVt::Allowed, "menu-paste-continue"},
    {221, 11933, MenuParameters::None, InVt::Allowed, "menu-clear-selection"},
    {222, 11934, MenuParameters::None, InVt::Allowed, "menu-select-all"},
    {223, 11935, MenuParameters::None, InVt::Allowed, "menu-deselect"},
    {224, 11936, MenuParameters::None, InVt::Allowed, "menu-find-text"},
    {225, 11937, MenuParameters::None, InVt::Allowed, "menu-toolbar"},
    {226, 11938, MenuParameters::None, InVt::Allowed, "menu-status-bar"},
    {227, 11939, MenuParameters::None, InVt::Allowed, "menu-keypad"},
    {228, 11940, MenuParameters::None, InVt::Allowed, "menu-full-screen"},
    {229, 11941, MenuParameters::None, InVt::Allowed, "menu-zoom-in"},
    {230, 11942, MenuParameters::None, InVt::Allowed, "menu-zoom-out"},
    {231, 11943, MenuParameters::None, InVt::Allowed, "menu-ruler"},
    {232, 11944, MenuParameters::None, InVt::Allowed, "menu-hot-spots"},
    {233, 11945, MenuParameters::None, InVt::Allowed, "menu-screen-history"},
    {234, 11946, MenuParameters::None, InVt::Allowed, "menu-refresh-screen"},
    {235, 11947, MenuParameters::None, InVt::Allowed, "menu-transfer-settings"},
    {236, 11948, MenuParameters::SendFile, InVt::Allowed, "menu-send-file"},
    {237, 11949, MenuParameters::ReceiveFile, InVt::Allowed, "menu-receive-file"},
    {238, 11952, MenuParameters::None, InVt::Allowed, "menu-edit-transfer-list"},
    {239, 11953, MenuParameters::None, InVt::Allowed, "menu-run-transfer-list"},
    {240, 11954, MenuParameters::None, InVt::Allowed, "menu-stop-transfer"},
    {241, 13722, MenuParameters::None, InVt::Allowed, "menu-session-settings"},
    {242, 11959, MenuParameters::None, InVt::Allowed, "menu-display-settings"},
    {243, 11960, MenuParameters::None, InVt::Allowed, "menu-color-settings"},
    {244, 13723, MenuParameters::None, InVt::Allowed, "menu-font-settings"},
    {245, 11962, MenuParameters::None, InVt::Allowed, "menu-keyboard-map"},
    {246, 11963, MenuParameters::None, InVt::Allowed, "menu-mouse-map"},
    {247, 11964, MenuParameters::None, InVt::Allowed, "menu-customize-toolbar"},
    {248, 11965, MenuParameters::None, InVt::Allowed, "menu-customize-keypad"},
    {249, 11966, MenuParameters::None, InVt::Allowed, "menu-hot-spot-settings"},
    {250, 11967, MenuParameters::None, InVt::Allowed, "menu-printer-settings"},
    {251, 11968, MenuParameters::None, InVt::Allowed, "menu-security-settings"},
    {252, 11969, MenuParameters::None, InVt::Allowed, "menu-save-settings-on-exit"},
    {253, 11970, MenuParameters::None, InVt::Allowed, "menu-record-macro"},
    {254, 11971, MenuParameters::FileName, InVt::Allowed, "menu-run-macro"},
    {255, 11972, MenuParameters::None, InVt::Allowed, "menu-pause-macro"},
    {256, 11973, MenuParameters::None, InVt::Allowed, "menu-stop-macro"},
    {257, 11974, MenuParameters::FileName, InVt::Allowed, "menu-edit-macro"},
    {258, 11975, MenuParameters::None, InVt::Allowed, "menu-start-trace"},
    {259, 11976, MenuParameters::None, InVt::Allowed, "menu-stop-trace"},
    {260, 11977, MenuParameters::None, InVt::Allowed, "menu-next-window"},
    {261, 11978, MenuParameters::None, InVt::Allowed, "menu-previous-window"},
    {262, 11979, MenuParameters::None, InVt::Allowed, "menu-cascade-windows"},
    {263, 11980, MenuParameters::None, InVt::Allowed, "menu-tile-windows"},
    {264, 11981, MenuParameters::None, InVt::Allowed, "menu-minimize-window"},
    {265, 11982, MenuParameters::None, InVt::Allowed, "menu-help-topics"},
    {266, 11983, MenuParameters::None, InVt::Allowed, "menu-keyboard-help"},
    {267, 13326, MenuParameters::None, InVt::Allowed, "menu-web-support"},
    {268, 11985, MenuParameters::None, InVt::Allowed, "menu-about"},
    // clang-format on
});

inline constexpr std::uint32_t firstMenuCommand = menuCommandTable.front().code;
inline constexpr std::size_t menuCommandCount = menuCommandTable.size();
inline constexpr std::uint32_t lastMenuCommand = menuCommandTable.back().code;
static_assert(menuCommandCount == 68 && lastMenuCommand - firstMenuCommand + 1 == menuCommandCount);
static_assert(std::ranges::is_sorted(menuCommandTable, std::ranges::less_equal{},
                                     &MenuCommandInfo::code));

/// The row of a code; null for one outside the table, which only a foreign file holds.
[[nodiscard]] constexpr const MenuCommandInfo* findMenuCommand(std::uint32_t code) {
    if (code < firstMenuCommand || code > lastMenuCommand) return nullptr;
    return &menuCommandTable[code - firstMenuCommand];
}

/// What a code asks for; nothing for one outside the table.
[[nodiscard]] constexpr MenuParameters menuParameters(std::uint32_t code) {
    const MenuCommandInfo* info = findMenuCommand(code);
    return info != nullptr ? info->parameters : MenuParameters::None;
}

[[nodiscard]] constexpr bool takesFileName(std::uint32_t code) {
    return menuParameters(code) == MenuParameters::FileName;
}

[[nodiscard]] constexpr bool isFileTransfer(std::uint32_t code) {
    const MenuParameters parameters = menuParameters(code);
    return parameters == MenuParameters::SendFile || parameters == MenuParameters::ReceiveFile;
}

/// True for the codes that take a file name or transfer settings.
[[nodiscard]] constexpr bool menuCommandTakesParameters(std::uint32_t code) {
    return menuParameters(code) != MenuParameters::None;
}

[[nodiscard]] constexpr bool isRefusedInVt(std::uint32_t code) {
    const MenuCommandInfo* info = findMenuCommand(code);
    return info != nullptr && info->inVt == InVt::Refused;
}

/// The two file transfers by name.
inline constexpr std::uint32_t sendFileCommand = 236;
inline constexpr std::uint32_t receiveFileCommand = 237;
static_assert(menuParameters(sendFileCommand) == MenuParameters::SendFile &&
              menuParameters(receiveFileCommand) == MenuParameters::ReceiveFile);

/// The names in code order.
struct MenuCommandCatalogue {
    std::array<std::string, menuCommandCount> names;
};
[[nodiscard]] MenuCommandCatalogue buildMenuCommandCatalogue(const TextSource& texts);

/// The name (UTF-8) of a code; "<Menu Command 300>" for a code outside the table.
[[nodiscard]] std::string menuCommandName(const MenuCommandCatalogue& catalogue,
                                          std::uint32_t code);

}  // namespace quendra
