// The commands of the emulator's own menu that a script can choose: all that is known of each.
#pragma once

#include "text/language_library.h"
#include "text/text_ids.h"

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
    {201, textid::menuCommandNewSession, MenuParameters::None, InVt::Allowed, "menu-new-session"},
    {202, textid::menuCommandOpenSession, MenuParameters::FileName, InVt::Allowed, "menu-open-session"},
    {203, textid::menuCommandSaveSession, MenuParameters::None, InVt::Allowed, "menu-save-session"},
    {204, textid::menuCommandSaveSessionAs, MenuParameters::FileName, InVt::Allowed, "menu-save-session-as"},
    {205, textid::menuCommandCloseSession, MenuParameters::None, InVt::Allowed, "menu-close-session"},
    {206, textid::menuCommandConnect, MenuParameters::None, InVt::Allowed, "menu-connect"},
    {207, textid::menuCommandDisconnect, MenuParameters::None, InVt::Allowed, "menu-disconnect"},
    {208, textid::menuCommandPageSetup, MenuParameters::None, InVt::Allowed, "menu-page-setup"},
    {209, textid::menuCommandPrintPreview, MenuParameters::None, InVt::Allowed, "menu-print-preview"},
    {210, textid::menuCommandPrintScreen, MenuParameters::None, InVt::Allowed, "menu-print-screen"},
    {211, textid::menuCommandPrintSelection, MenuParameters::None, InVt::Allowed, "menu-print-selection"},
    {212, textid::menuCommandSelectPrinter, MenuParameters::None, InVt::Allowed, "menu-select-printer"},
    {213, textid::menuCommandAssociatePrinterSession, MenuParameters::None, InVt::Refused, "menu-associate-printer-session"},
    {214, textid::menuCommandExit, MenuParameters::None, InVt::Allowed, "menu-exit"},
    {215, textid::menuCommandCut, MenuParameters::None, InVt::Allowed, "menu-cut"},
    {216, textid::menuCommandCopy, MenuParameters::None, InVt::Allowed, "menu-copy"},
    {217, textid::menuCommandCopyAppend, MenuParameters::None, InVt::Allowed, "menu-copy-append"},
    {218, textid::menuCommandPaste, MenuParameters::None, InVt::Allowed, "menu-paste"},
    {219, textid::menuCommandPasteFromFile, MenuParameters::FileName, InVt::Allowed, "menu-paste-from-file"},
    {220, textid::menuCommandPasteContinue, MenuParameters::None, InVt::Allowed, "menu-paste-continue"},
    {221, textid::menuCommandClearSelection, MenuParameters::None, InVt::Allowed, "menu-clear-selection"},
    {222, textid::menuCommandSelectAll, MenuParameters::None, InVt::Allowed, "menu-select-all"},
    {223, textid::menuCommandDeselect, MenuParameters::None, InVt::Allowed, "menu-deselect"},
    {224, textid::menuCommandFindText, MenuParameters::None, InVt::Allowed, "menu-find-text"},
    {225, textid::menuCommandToolbar, MenuParameters::None, InVt::Allowed, "menu-toolbar"},
    {226, textid::menuCommandStatusBar, MenuParameters::None, InVt::Allowed, "menu-status-bar"},
    {227, textid::menuCommandKeypad, MenuParameters::None, InVt::Allowed, "menu-keypad"},
    {228, textid::menuCommandFullScreen, MenuParameters::None, InVt::Allowed, "menu-full-screen"},
    {229, textid::menuCommandZoomIn, MenuParameters::None, InVt::Allowed, "menu-zoom-in"},
    {230, textid::menuCommandZoomOut, MenuParameters::None, InVt::Allowed, "menu-zoom-out"},
    {231, textid::menuCommandRuler, MenuParameters::None, InVt::Allowed, "menu-ruler"},
    {232, textid::menuCommandHotSpots, MenuParameters::None, InVt::Allowed, "menu-hot-spots"},
    {233, textid::menuCommandScreenHistory, MenuParameters::None, InVt::Allowed, "menu-screen-history"},
    {234, textid::menuCommandRefreshScreen, MenuParameters::None, InVt::Allowed, "menu-refresh-screen"},
    {235, textid::menuCommandTransferSettings, MenuParameters::None, InVt::Allowed, "menu-transfer-settings"},
    {236, textid::menuCommandSendFileToHost, MenuParameters::SendFile, InVt::Allowed, "menu-send-file"},
    {237, textid::menuCommandReceiveFileFromHost, MenuParameters::ReceiveFile, InVt::Allowed, "menu-receive-file"},
    {238, textid::menuCommandEditTransferList, MenuParameters::None, InVt::Allowed, "menu-edit-transfer-list"},
    {239, textid::menuCommandRunTransferList, MenuParameters::None, InVt::Allowed, "menu-run-transfer-list"},
    {240, textid::menuCommandStopTransfer, MenuParameters::None, InVt::Allowed, "menu-stop-transfer"},
    {241, textid::menuCommandSessionSettings, MenuParameters::None, InVt::Allowed, "menu-session-settings"},
    {242, textid::menuCommandDisplaySettings, MenuParameters::None, InVt::Allowed, "menu-display-settings"},
    {243, textid::menuCommandColorSettings, MenuParameters::None, InVt::Allowed, "menu-color-settings"},
    {244, textid::menuCommandFontSettings, MenuParameters::None, InVt::Allowed, "menu-font-settings"},
    {245, textid::menuCommandKeyboardMap, MenuParameters::None, InVt::Allowed, "menu-keyboard-map"},
    {246, textid::menuCommandMouseMap, MenuParameters::None, InVt::Allowed, "menu-mouse-map"},
    {247, textid::menuCommandCustomizeToolbar, MenuParameters::None, InVt::Allowed, "menu-customize-toolbar"},
    {248, textid::menuCommandCustomizeKeypad, MenuParameters::None, InVt::Allowed, "menu-customize-keypad"},
    {249, textid::menuCommandHotSpotSettings, MenuParameters::None, InVt::Allowed, "menu-hot-spot-settings"},
    {250, textid::menuCommandPrinterSettings, MenuParameters::None, InVt::Allowed, "menu-printer-settings"},
    {251, textid::menuCommandSecuritySettings, MenuParameters::None, InVt::Allowed, "menu-security-settings"},
    {252, textid::menuCommandSaveSettingsOnExit, MenuParameters::None, InVt::Allowed, "menu-save-settings-on-exit"},
    {253, textid::menuCommandRecordMacro, MenuParameters::None, InVt::Allowed, "menu-record-macro"},
    {254, textid::menuCommandRunMacro, MenuParameters::FileName, InVt::Allowed, "menu-run-macro"},
    {255, textid::menuCommandPauseMacro, MenuParameters::None, InVt::Allowed, "menu-pause-macro"},
    {256, textid::menuCommandStopMacro, MenuParameters::None, InVt::Allowed, "menu-stop-macro"},
    {257, textid::menuCommandEditMacro, MenuParameters::FileName, InVt::Allowed, "menu-edit-macro"},
    {258, textid::menuCommandStartTrace, MenuParameters::None, InVt::Allowed, "menu-start-trace"},
    {259, textid::menuCommandStopTrace, MenuParameters::None, InVt::Allowed, "menu-stop-trace"},
    {260, textid::menuCommandNextWindow, MenuParameters::None, InVt::Allowed, "menu-next-window"},
    {261, textid::menuCommandPreviousWindow, MenuParameters::None, InVt::Allowed, "menu-previous-window"},
    {262, textid::menuCommandCascadeWindows, MenuParameters::None, InVt::Allowed, "menu-cascade-windows"},
    {263, textid::menuCommandTileWindows, MenuParameters::None, InVt::Allowed, "menu-tile-windows"},
    {264, textid::menuCommandMinimizeWindow, MenuParameters::None, InVt::Allowed, "menu-minimize-window"},
    {265, textid::menuCommandHelpTopics, MenuParameters::None, InVt::Allowed, "menu-help-topics"},
    {266, textid::menuCommandKeyboardHelp, MenuParameters::None, InVt::Allowed, "menu-keyboard-help"},
    {267, textid::menuCommandWebSupport, MenuParameters::None, InVt::Allowed, "menu-web-support"},
    {268, textid::menuCommandAboutQuendra, MenuParameters::None, InVt::Allowed, "menu-about"},
    // clang-format on
});

inline constexpr std::uint32_t firstMenuCommand = menuCommandTable.front().code;
inline constexpr std::size_t menuCommandCount = menuCommandTable.size();
inline constexpr std::uint32_t lastMenuCommand = menuCommandTable.back().code;
static_assert(menuCommandCount == 68 && lastMenuCommand - firstMenuCommand + 1 == menuCommandCount);
static_assert(std::ranges::is_sorted(menuCommandTable, std::ranges::less_equal{},
                                     &MenuCommandInfo::code));

/// True for a code of the table; others are held by foreign files only.
[[nodiscard]] constexpr bool isMenuCommand(std::uint32_t code) {
    return code >= firstMenuCommand && code <= lastMenuCommand;
}

/// The row of a code; null for one outside the table.
[[nodiscard]] constexpr const MenuCommandInfo* findMenuCommand(std::uint32_t code) {
    return isMenuCommand(code) ? &menuCommandTable[code - firstMenuCommand] : nullptr;
}

/// What a code asks for; nothing for one outside the table.
[[nodiscard]] constexpr MenuParameters menuParameters(std::uint32_t code) {
    // Not by way of the row: no compiler with sanitizers takes that for a constant.
    return isMenuCommand(code) ? menuCommandTable[code - firstMenuCommand].parameters
                               : MenuParameters::None;
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
