// The table of drawings, by ascending bitmap id.
#include "widgets/icon_catalogue.h"

#include <algorithm>
#include <iterator>

namespace quendra {
namespace {

constexpr IconRow rows[] = {
    {102, "quendra-script-editor"},
    {103, "lu-function"},
    {110, "event-beep"},
    {111, "event-clear-watch"},
    {112, "event-comment"},
    {113, "event-goto"},
    {114, "event-input"},
    {115, "event-if-input-is"},
    {116, "event-label"},
    {117, "event-message"},
    {118, "event-return"},
    {119, "event-run"},
    {120, "event-set-cursor"},
    {121, "event-type"},
    {122, "event-wait"},
    {123, "event-wait-for"},
    {124, "event-wait-ready"},
    {125, "event-wait-until"},
    {126, "event-watch-for"},
    {127, "event-express-logon"},
    {128, "event-copy-area"},
    {129, "event-paste-at"},
    {201, "menu-new-session"},
    {202, "menu-open-session"},
    {203, "menu-save-session"},
    {204, "menu-save-session-as"},
    {205, "menu-close-session"},
    {206, "menu-connect"},
    {207, "menu-disconnect"},
    {208, "menu-page-setup"},
    {209, "menu-print-preview"},
    {210, "menu-print-screen"},
    {211, "menu-print-selection"},
    {212, "menu-select-printer"},
    {213, "menu-associate-printer-session"},
    {214, "menu-exit"},
    {215, "menu-cut"},
    {216, "menu-copy"},
    {217, "menu-copy-append"},
    {218, "menu-paste"},
    {219, "menu-paste-from-file"},
    {220, "menu-paste-continue"},
    {221, "menu-clear-selection"},
    {222, "menu-select-all"},
    {223, "menu-deselect"},
    {224, "menu-find-text"},
    {225, "menu-toolbar"},
    {226, "menu-status-bar"},
    {227, "menu-keypad"},
    {228, "menu-full-screen"},
    {229, "menu-zoom-in"},
    {230, "menu-zoom-out"},
    {231, "menu-ruler"},
    {232, "menu-hot-spots"},
    {233, "menu-screen-history"},
    {234, "menu-refresh-screen"},
    {235, "menu-transfer-settings"},
    {236, "menu-send-file"},
    {237, "menu-receive-file"},
    {238, "menu-edit-transfer-list"},
    {239, "menu-run-transfer-list"},
    {240, "menu-stop-transfer"},
    {241, "menu-session-settings"},
    {242, "menu-display-settings"},
    {243, "menu-color-settings"},
    {244, "menu-font-settings"},
    {245, "menu-keyboard-map"},
    {246, "menu-mouse-map"},
    {247, "menu-customize-toolbar"},
    {248, "menu-customize-keypad"},
    {249, "menu-hot-spot-settings"},
    {250, "menu-printer-settings"},
    {251, "menu-security-settings"},
    {252, "menu-save-settings-on-exit"},
    {253, "menu-record-macro"},
    {254, "menu-run-macro"},
    {255, "menu-pause-macro"},
    {256, "menu-stop-macro"},
    {257, "menu-edit-macro"},
    {258, "menu-start-trace"},
    {259, "menu-stop-trace"},
    {260, "menu-next-window"},
    {261, "menu-previous-window"},
    {262, "menu-cascade-windows"},
    {263, "menu-tile-windows"},
    {264, "menu-minimize-window"},
    {265, "menu-help-topics"},
    {266, "menu-keyboard-help"},
    {267, "menu-web-support"},
    {268, "menu-about"},
    {300, "command-new"},
    {301, "command-open"},
    {302, "command-save"},
    {303, "command-save-as"},
    {304, "command-exit"},
    {305, "command-cut"},
    {306, "command-copy"},
    {307, "command-paste"},
    {308, "command-insert-event"},
    {309, "command-insert-lu-function"},
    {310, "command-insert-menu-command"},
    {311, "command-edit-entry"},
    {312, "command-delete-entry"},
    {313, "command-host-mainframe"},
    {314, "command-host-iseries"},
    {315, "command-host-vt"},
    {316, "command-host-uts"},
    {317, "command-host-t27"},
    {318, "command-host-icl"},
    {319, "command-help"},
    {320, "command-about"},
    {321, "command-undo"},
    {322, "command-redo"},
    {323, "command-find"},
    {324, "command-copy-as-text"},
    {325, "command-insert-script"},
    {326, "command-help-on-selection"},
    {401, "help-back"},
    {402, "help-forward"},
    {403, "help-start"},
};

static_assert(std::ranges::is_sorted(rows, std::ranges::less_equal{}, &IconRow::bitmapId));

}  // namespace

std::span<const IconRow> iconCatalogue() {
    return rows;
}

const Drawing* iconDrawing(int bitmapId) {
    const auto* row = std::ranges::lower_bound(rows, bitmapId, {}, &IconRow::bitmapId);
    if (row == std::end(rows) || row->bitmapId != bitmapId) return nullptr;
    const std::span<const Drawing> all = drawings();
    const std::string_view name = row->name;
    const auto drawing = std::ranges::lower_bound(all, name, {}, &Drawing::name);
    return drawing != all.end() && drawing->name == name ? &*drawing : nullptr;
}

}  // namespace quendra
