// The three palettes, from which steps and actions are chosen: what they are called, and which
// command each of their rows stands for.
#pragma once

#include "hosts/lu_catalogue.h"
#include "model/script_entry.h"
#include "text/language_library.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quendra {

/// In the order in which they are shown.
enum class Palette : std::uint8_t { ScriptEvents, LuFunctions, MenuCommands };

inline constexpr std::array<Palette, 3> allPalettes = {Palette::ScriptEvents, Palette::LuFunctions,
                                                       Palette::MenuCommands};

struct PaletteInfo {
    Palette palette;
    /// The begin of the object names of its list and label: "luFunctions".
    std::string_view name;
    /// Above the list.
    StringId titleId;
    /// The undo step and the tool tip of an insert, with a place for the row: "Insert Script Event
    /// %s".
    StringId insertTextId;
};
[[nodiscard]] const PaletteInfo& paletteInfo(Palette palette);

/// A palette and its selected row, -1 for none.
struct PaletteChoice {
    Palette palette = Palette::ScriptEvents;
    int row = -1;

    bool operator==(const PaletteChoice&) const = default;
};

/// The command of a chosen row, which exists.
[[nodiscard]] CommandCode commandOf(const PaletteChoice& choice);
/// The menu command of a chosen row of that palette.
[[nodiscard]] std::uint32_t menuCommandOf(const PaletteChoice& choice);
/// True for the menu command that the host type's emulator lacks; false without a row.
[[nodiscard]] bool isRefused(const PaletteChoice& choice, HostType hostType);

/// Makes a slot the chosen command: its code, and key or menu command. All else stays.
void takeCommand(Step& fields, const PaletteChoice& choice, const LuCatalogue& luFunctions);

/// Where the palettes hold the command of a slot: the palette of its kind, without a row for a key
/// that the catalogue lacks and for a menu command that there is not. Nothing of the first palette
/// for a slot without a command.
[[nodiscard]] PaletteChoice choiceOf(const Step& fields, const LuCatalogue& luFunctions);

}  // namespace quendra
