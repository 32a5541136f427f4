// The table of drawings, by ascending bitmap id.
#include "widgets/icon_catalogue.h"

#include "model/menu_commands.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quendra {
namespace {

// The program, and what a script is made of but for the menu commands, which name their own.
constexpr IconRow ofScript[] = {
    {102, "quendra-script-editor"}, {103, "lu-function"},         {110, "event-beep"},
    {111, "event-clear-watch"},     {112, "event-comment"},       {113, "event-goto"},
    {114, "event-input"},           {115, "event-if-input-is"},   {116, "event-label"},
    {117, "event-message"},         {118, "event-return"},        {119, "event-run"},
    {120, "event-set-cursor"},      {121, "event-type"},          {122, "event-wait"},
    {123, "event-wait-for"},        {124, "event-wait-ready"},    {125, "event-wait-until"},
    {126, "event-watch-for"},       {127, "event-express-logon"}, {128, "event-copy-area"},
    {129, "event-paste-at"},
};

// What belongs to the windows.
constexpr IconRow ofWindows[] = {
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
    {330, "command-problems"},
    {331, "command-next-problem"},
    {332, "command-previous-problem"},
    {333, "command-quick-fix"},
    {334, "command-gutter"},
    {335, "command-go-to-step"},
    {350, "command-compare-with-file"},
    {351, "command-compare-with-saved"},
    {352, "command-resolve-conflicts"},
    {401, "help-back"},
    {402, "help-forward"},
    {403, "help-start"},
};

constexpr auto rows = [] {
    std::array<IconRow, std::size(ofScript) + menuCommandTable.size() + std::size(ofWindows)> all{};
    auto* next = std::ranges::copy(ofScript, all.begin()).out;
    for (const MenuCommandInfo& info : menuCommandTable)
        *next++ = {static_cast<int>(info.code), info.icon};
    std::ranges::copy(ofWindows, next);
    return all;
}();

static_assert(std::ranges::is_sorted(rows, std::ranges::less_equal{}, &IconRow::bitmapId));

}  // namespace

std::span<const IconRow> iconCatalogue() {
    return rows;
}

const Drawing* iconDrawing(int bitmapId) {
    const auto* row = std::ranges::lower_bound(rows, bitmapId, {}, &IconRow::bitmapId);
    if (row == rows.end() || row->bitmapId != bitmapId) return nullptr;
    const std::span<const Drawing> all = drawings();
    const std::string_view name = row->name;
    const auto drawing = std::ranges::lower_bound(all, name, {}, &Drawing::name);
    return drawing != all.end() && drawing->name == name ? &*drawing : nullptr;
}

}  // namespace quendra
