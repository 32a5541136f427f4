#include "model/menu_catalogue.h"

#include "model/script_entry.h"
#include "text/text_ids.h"

namespace quendra {

namespace {

struct NameRange {
    std::uint32_t firstCode;
    std::uint32_t lastCode;
    StringId firstId;
};

constexpr std::array<NameRange, 8> nameRanges = {{
    {201, 237, textid::menuCommandNewSession},
    {238, 240, textid::menuCommandEditTransferList},
    {241, 241, textid::menuCommandSessionSettings},
    {242, 243, textid::menuCommandDisplaySettings},
    {244, 244, textid::menuCommandFontSettings},
    {245, 266, textid::menuCommandKeyboardMap},
    {267, 267, textid::menuCommandWebSupport},
    {268, 268, textid::menuCommandAboutQuendra},
}};

}  // namespace

StringId menuCommandNameId(std::uint32_t code) {
    for (const NameRange& range : nameRanges) {
        if (code >= range.firstCode && code <= range.lastCode) {
            return range.firstId + static_cast<StringId>(code - range.firstCode);
        }
    }
    return 0;
}

MenuCommandCatalogue buildMenuCommandCatalogue(const TextSource& texts) {
    MenuCommandCatalogue catalogue;
    for (std::size_t row = 0; row < menuCommandCount; ++row) {
        catalogue.names[row] =
            texts(menuCommandNameId(firstMenuCommand + static_cast<std::uint32_t>(row)));
    }
    return catalogue;
}

std::string menuCommandName(const MenuCommandCatalogue& catalogue, std::uint32_t code) {
    if (code < firstMenuCommand || code >= firstMenuCommand + menuCommandCount) {
        return "<Menu Command " + std::to_string(code) + ">";
    }
    return catalogue.names[code - firstMenuCommand];
}

bool menuCommandTakesParameters(std::uint32_t code) {
    return takesFileName(code) || isFileTransfer(code);
}

}  // namespace quendra
