// Catalogues of keys and menu commands, and the numbering of older files; the frozen cases hold
// every command code and key of every version.
#include "hosts/lu_catalogue.h"
#include "model/menu_commands.h"
#include "scriptfile/format_version.h"
#include "support/fixtures.h"

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
    EXPECT_EQ(menuCommandName(names.menuCommands, 201), "{11913}");
    EXPECT_EQ(menuCommandName(names.menuCommands, 268), "{11985}");
    for (const std::uint32_t none : {200U, 269U, 4294967295U})
        EXPECT_EQ(menuCommandName(names.menuCommands, none),
                  "<Menu Command " + std::to_string(none) + ">");
}

TEST(FormatVersion, acceptsExactlyTheKnownSignatures) {
    std::size_t accepted = 0;
    for (int version = 0; version < 256; ++version) {
        for (const HostType type : allHostTypes) {
            auto bytes = bytesOf(hostTypeInfo(type).signaturePrefix);
            bytes.push_back(static_cast<std::uint8_t>(version));
            const auto signature = recogniseSignature(bytes);
            EXPECT_EQ(signature.value_or(Signature{type}).hostType, type);
            accepted += signature.has_value();
        }
    }
    EXPECT_EQ(accepted, 50U);
    EXPECT_EQ(recogniseSignature(bytesOf("Qd7dScR8")), (Signature{HostType::ICL, '8'}));
    EXPECT_FALSE(recogniseSignature(bytesOf("QDUDSCR7")));
    EXPECT_FALSE(recogniseSignature(bytesOf("QDXDSCR=")));
}

TEST(FormatVersion, renumbersMenuCommandsOfOlderVersions) {
    const struct {
        RecordFormat format;
        std::uint32_t stored;
        std::uint32_t meant;
    } rows[] = {
        {{false, '2'}, 208, 208}, {{false, '2'}, 209, 210}, {{false, '2'}, 211, 214},
        {{false, '2'}, 214, 217}, {{false, '2'}, 215, 219}, {{false, '2'}, 216, 220},
        {{false, '2'}, 217, 222}, {{false, '2'}, 238, 243}, {{false, '2'}, 239, 245},
        {{false, '2'}, 241, 247}, {{false, '2'}, 242, 249}, {{false, '3'}, 217, 220},
        {{false, '3'}, 218, 222}, {{false, '3'}, 239, 243}, {{false, '3'}, 240, 245},
        {{false, '3'}, 242, 247}, {{false, '3'}, 243, 249}, {{false, '4'}, 217, 220},
        {{false, '4'}, 218, 222}, {{false, '5'}, 250, 253}, {{false, '6'}, 211, 211},
        {{false, '6'}, 212, 214}, {{false, '7'}, 230, 232}, {{false, '8'}, 212, 212},
        {{true, '6'}, 212, 214},  {{true, '='}, 211, 211},  {{true, '='}, 266, 268},
        {{true, '='}, 267, 212},
    };
    for (const auto& row : rows)
        EXPECT_EQ(menuCommandFromFile(row.stored, row.format), row.meant)
            << row.format.version << (row.format.vt ? " VT " : " ") << row.stored;
    for (std::uint32_t id = 201; id <= 268; ++id)
        EXPECT_EQ(vtStoresMenuCommand(id), id != 213) << id;
}

}  // namespace
}  // namespace quendra::test
