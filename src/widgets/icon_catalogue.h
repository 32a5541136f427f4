// Which drawing belongs to which bitmap id. Script entries, palettes and commands know their icons
// by number only.
#pragma once

#include "widgets/drawing.h"

#include <span>

namespace quendra {

// One drawing: its bitmap id and its file name in the folder icons/, without ".svg".
struct IconRow {
    int bitmapId;
    const char* name;
};

// All drawings by ascending bitmap id: 102 the program, 103 an LU function, 110..129 the Script
// Events in code order, 201..268 the menu commands, 300..326 the editor's own commands, 401..403
// the buttons of the help window. The table lives as long as the program.
[[nodiscard]] std::span<const IconRow> iconCatalogue();

// The drawing of an id, which lives as long as the program; null for an id that has none.
[[nodiscard]] const Drawing* iconDrawing(int bitmapId);

}  // namespace quendra
