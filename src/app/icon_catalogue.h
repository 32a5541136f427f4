// Which drawing belongs to which bitmap id. Script entries, palettes and commands know their icons
// by number only.
#pragma once

#include <QString>

#include <span>

namespace quendra {

// One drawing: its bitmap id and its file name in the folder icons/, without ".svg".
struct IconRow {
    int bitmapId;
    const char* name;
};

// All drawings by ascending bitmap id: 102 the program, 103 an LU function, 110..129 the Script
// Events in code order, 201..268 the menu commands, 300..325 the editor's own commands. The table
// lives as long as the program.
[[nodiscard]] std::span<const IconRow> iconCatalogue();

// The resource path of a drawing, empty for an id that has none.
[[nodiscard]] QString iconFile(int bitmapId);

}  // namespace quendra
