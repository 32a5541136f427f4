#include "model/menu_commands.h"

namespace quendra {

MenuCommandCatalogue buildMenuCommandCatalogue(const TextSource& texts) {
    MenuCommandCatalogue catalogue;
    std::ranges::transform(menuCommandTable, catalogue.names.begin(),
                           [&](const MenuCommandInfo& info) { return texts(info.nameId); });
    return catalogue;
}

std::string menuCommandName(const MenuCommandCatalogue& catalogue, std::uint32_t code) {
    if (findMenuCommand(code) == nullptr) return "<Menu Command " + std::to_string(code) + ">";
    return catalogue.names[code - firstMenuCommand];
}

}  // namespace quendra
