// Catalogues of keys and menu commands; the frozen cases hold every command code and key.
#include "hosts/lu_catalogue.h"
#include "model/menu_commands.h"
#include "scriptfile/format_version.h"
#include "support/fixtures.h"
#include "text/text_ids.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

// Names and numbers of all rows: see the frozen cases and the document of the format.
TEST(Catalogues, haveTheirRowsAndKnowNoOtherNumbers) {
    const NumberedNames names;
    const std::pair<HostType, std::size_t> counts[] = {
        {HostType::Mainframe, 64}, {HostType::ISeries, 63}, {HostType::VT, 142},
        {HostType::UTS, 67},       {HostType::T27, 90},     {HostType::ICL, 137}};
    for (const auto& [type, count] : counts)
        EXPECT_EQ(names.luFunctions.of(type).rows.size(), count) << hostTypeInfo(type).name;
    EXPECT_FALSE(findLuFunction(names.luFunctions.of(HostType::VT), {4, 24}));
    EXPECT_EQ(menuCommandName(names.menuCommands, 201),
              numberedName(textid::menuCommandNewSession));
    EXPECT_EQ(menuCommandName(names.menuCommands, 268),
              numberedName(textid::menuCommandAboutQuendra));
    for (const std::uint32_t none : {200U, 269U, 4294967295U})
        EXPECT_EQ(menuCommandName(names.menuCommands, none),
                  "<Menu Command " + std::to_string(none) + ">");
}

}  // namespace
}  // namespace quendra::test
