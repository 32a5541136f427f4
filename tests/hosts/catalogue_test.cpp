// Catalogues of keys and menu commands, and the numbering of older files.
#include "hosts/lu_catalogue.h"
#include "hosts/menu_catalogue.h"
#include "scriptfile/format_version.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {

TEST(LuCatalogue, hasTheRowsOfEveryHostType) {
    const NumberedNames names;
    const std::vector<std::pair<HostType, std::size_t>> counts = {
        {HostType::Mainframe, 64}, {HostType::ISeries, 63}, {HostType::VT, 142},
        {HostType::UTS, 67},       {HostType::T27, 90},     {HostType::ICL, 137}};
    for (const auto& [type, count] : counts)
        EXPECT_EQ(names.luFunctions.of(type).rows.size(), count) << hostTypeInfo(type).name;
}

TEST(LuCatalogue, namesAKeyByItsFirstRow) {
    using Row = std::tuple<HostType, LuKey, const char*>;
    const NumberedNames names;
    for (const auto& [type, key, name] :
         {Row{HostType::UTS, {0, 0}, "Reserved"}, Row{HostType::T27, {0, 29}, "Right Delimiter"},
          Row{HostType::ICL, {1, 65}, "Action A"}, Row{HostType::T27, {0, 182}, "Shift FKey  1"},
          Row{HostType::VT, {4, 1}, "F1"}, Row{HostType::ICL, {1, 127}, "Action DEL"},
          Row{HostType::VT, {5, 24}, "{13454}"}, Row{HostType::VT, {4, 142}, "{14556}"},
          Row{HostType::Mainframe, {6, 2}, "{12159}"}, Row{HostType::VT, {4, 24}, "none"},
          Row{HostType::UTS, {4, 1}, "none"}})
        EXPECT_EQ(findLuFunction(names.luFunctions.of(type), key).value_or("none"), name);
}

TEST(MenuCatalogue, namesEveryCode) {
    using Row = std::pair<std::uint32_t, const char*>;
    const NumberedNames names;
    for (const auto& [code, name] :
         {Row{201, "{11913}"}, Row{237, "{11949}"}, Row{238, "{11952}"}, Row{240, "{11954}"},
          Row{241, "{13722}"}, Row{242, "{11959}"}, Row{244, "{13723}"}, Row{245, "{11962}"},
          Row{266, "{11983}"}, Row{267, "{13326}"}, Row{268, "{11985}"},
          Row{200, "<Menu Command 200>"}, Row{269, "<Menu Command 269>"},
          Row{4294967295, "<Menu Command 4294967295>"}})
        EXPECT_EQ(menuCommandName(names.menuCommands, code), name);
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
    EXPECT_EQ(accepted, 50u);
    EXPECT_EQ(recogniseSignature(bytesOf("qdmdscr=")), (Signature{HostType::Mainframe, '='}));
    EXPECT_EQ(recogniseSignature(bytesOf("Qd7dScR8")), (Signature{HostType::ICL, '8'}));
    EXPECT_FALSE(recogniseSignature(bytesOf("QDUDSCR7")));
    EXPECT_FALSE(recogniseSignature(bytesOf("QDMDSCR")));
    EXPECT_FALSE(recogniseSignature(bytesOf("QDXDSCR=")));
}

TEST(FormatVersion, renumbersMenuCommandsOfOlderVersions) {
    struct Row {
        char version;
        bool vt;
        std::uint32_t stored;
        std::uint32_t memory;
    };
    const std::vector<Row> rows = {
        {'2', false, 208, 208}, {'2', false, 209, 210}, {'2', false, 210, 211},
        {'2', false, 211, 214}, {'2', false, 214, 217}, {'2', false, 215, 219},
        {'2', false, 216, 220}, {'2', false, 220, 225}, {'2', false, 240, 246},
        {'2', false, 250, 257}, {'3', false, 217, 220}, {'3', false, 218, 222},
        {'3', false, 239, 243}, {'3', false, 240, 245}, {'3', false, 242, 247},
        {'3', false, 243, 249}, {'4', false, 217, 220}, {'4', false, 218, 222},
        {'5', false, 211, 214}, {'5', false, 250, 253}, {'6', false, 211, 211},
        {'6', false, 212, 214}, {'7', false, 230, 232}, {'8', false, 212, 212},
        {'6', true, 212, 214},  {'7', true, 267, 212},  {'=', true, 211, 211},
        {'=', true, 230, 232},  {'=', true, 266, 268},  {'=', true, 267, 212},
    };
    for (const Row& row : rows) {
        const RecordFormat format{row.vt, row.version};
        EXPECT_EQ(menuCommandFromFile(row.stored, format), row.memory)
            << row.version << (row.vt ? " VT " : " ") << row.stored;
    }
    for (std::uint32_t id = 201; id <= 268; ++id)
        EXPECT_EQ(vtStoresMenuCommand(id), id != 213) << id;
}

TEST(FormatVersion, renumbersCommandCodesAndVtKeys) {
    const std::vector<std::uint32_t> oldest = {15, 16, 17, 19, 20, 18, 20, 21, 22, 23};
    const std::vector<std::uint32_t> middle = {15, 16, 17, 18, 19, 20, 21, 22, 23, 24};
    for (std::uint8_t stored = 14; stored <= 23; ++stored) {
        EXPECT_EQ(commandCodeFromFile(stored, {false, '6'}), oldest[stored - 14u]) << +stored;
        EXPECT_EQ(commandCodeFromFile(stored, {false, '7'}), middle[stored - 14u]) << +stored;
        EXPECT_EQ(commandCodeFromFile(stored, {false, '9'}), middle[stored - 14u]) << +stored;
        EXPECT_EQ(commandCodeFromFile(stored, {false, ':'}), stored);
    }
    EXPECT_EQ(commandCodeFromFile(13, {false, '2'}), 13u);
    EXPECT_EQ(commandCodeFromFile(255, {false, '9'}), 256u);
    EXPECT_EQ(luNumberFromFile(66, {true, '7'}), 66);
    EXPECT_EQ(luNumberFromFile(70, {true, '7'}), 73);
    EXPECT_EQ(luNumberFromFile(70, {true, '8'}), 70);
    EXPECT_EQ(luNumberFromFile(70, {false, '7'}), 70);
}

}  // namespace quendra::test
