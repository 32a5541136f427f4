#include "text_groups.h"

#include <initializer_list>
#include <utility>

namespace quendra::test {
namespace {

using Range = std::pair<StringId, StringId>;

std::vector<StringId> idsOf(std::initializer_list<Range> ranges) {
    std::vector<StringId> ids;
    for (const auto& [first, last] : ranges) {
        for (auto id = first; id <= last; ++id)
            ids.push_back(id);
    }
    return ids;
}

constexpr StringId browse = 10152;

std::vector<TextGroup> menuGroups() {
    return {
        {"menu bar", {10000, 10018, 11193, 10935, 10070}, {}},
        {"menu File", {10001, 10002, 10003, 10004, 10017}, {}},
        {"menu Edit", {15301, 15303, 11190, 11191, 11192, 15319, 15326}, {}},
        {"menu Edit with steps", {15302, 15304, 11190, 11191, 11192, 15319, 15326}, {}},
        {"menu Entry", {11194, 11195, 11196, 15322, 11197, 11198}, {}},
        {"menu Mode", {11199, 11200, 10010}, {"  &UTS", "  &T27", "  IC&L"}},
        {"menu Help", {11201, 11202}, {}},
    };
}

std::vector<TextGroup> simpleDialogGroups() {
    return {
        {"Comment", {13746}, {}},
        {"Goto", {13747}, {}},
        {"Label", {13748}, {}},
        {"Message", {13749}, {}},
        {"Type", {13750, 11209}, {}},
        {"Express_Logon", {14833}, {}},
        {"Wait", {13753}, {}},
        {"Wait_Ready", {13754}, {}},
        {"Run", {13735, browse}, {}},
        {"menu command 202", {13736, browse}, {}},
        {"menu command 204", {13738, browse}, {}},
        {"menu command 219", {13739, browse}, {}},
        {"menu command 254", {13741, browse}, {}},
        {"menu command 257", {13743, browse}, {}},
        {"Set_Cursor", {14557, 10156, 10157}, {}},
        {"Copy", {14834, 14835, 14836, 14837}, {}},
        {"Paste", {14838, 14839, 14840}, {}},
        {"Input", {11216, 11217, 11218, 11219, 11220, 11221, 15242}, {}},
        {"Wait_Until", {11212, 16008, 16009}, {}},
        {"Wait_For",
         {13751, 13807, 14414, 10316, 10317, 14415, 14416, 14417, 14418, 14419, 14300, 14420, 14421,
          14422, 14423},
         {}},
        {"If_Input_Is", {15243, 14300, 15244, 15245, 15246, 15247}, {}},
        {"Watch_For", {13752, 11214}, {}},
        {"Action", {11214}, {}},
    };
}

std::vector<TextGroup> transferGroups() {
    const std::vector<std::string> hosts{"&VM/CMS", "&TSO", "CIC&S/VS", "C&R/LF"};
    std::vector<StringId> settings{10980, 10982, 10983, 10984, 10985, 10986, 10987, 10988, browse,
                                   10297, 10989, 10811, 10991, 10857, 10992, 10993, 14592};
    auto settingsVm = settings;
    settings.push_back(10994);
    settingsVm.push_back(14934);
    auto advanced = idsOf({{10996, 11013}});
    advanced.push_back(10102);
    advanced.push_back(10093);
    return {{"Settings for TSO and CICS/VS", settings, hosts},
            {"Settings for VM/CMS", settingsVm, hosts},
            {"Advanced", advanced, {"Bidi Options", "Enable Arabic Processing", "PC Code Page:"}}};
}

// The ids of the rows of a catalogue, in no particular order.
std::vector<StringId> mainframeNames() {
    auto ids = idsOf({{12150, 12172}, {11611, 11614}, {11616, 11643}, {13718, 13721}});
    ids.insert(ids.end(), {13510, 11718, 11644, 11645, 13511});
    return ids;
}

std::vector<StringId> iSeriesNames() {
    auto ids = idsOf({{11646, 11671}, {12154, 12157}, {12173, 12177}, {12180, 12182}});
    ids.insert(ids.end(), {12150, 11612, 12151, 11613, 12159, 13718, 13510, 12160, 11616,
                           11617, 12161, 11618, 12162, 12164, 11619, 12166, 12167, 13719,
                           13720, 13721, 12168, 12169, 11644, 11645, 12172});
    return ids;
}

std::vector<StringId> vtNames() {
    auto ids = idsOf({{13442, 13553}, {14545, 14556}});
    ids.insert(ids.end(), {12151, 12159, 10714, 12164, 12656, 12163, 12192, 12191, 12160});
    return ids;
}

std::vector<StringId> menuCommandNames() {
    return idsOf({{11913, 11949},
                  {11952, 11954},
                  {13722, 13722},
                  {11959, 11960},
                  {13723, 13723},
                  {11962, 11983},
                  {13326, 13326},
                  {11985, 11985}});
}

}  // namespace

const std::vector<TextGroup>& mnemonicGroups() {
    static const auto groups = [] {
        auto all = menuGroups();
        for (auto& group : simpleDialogGroups())
            all.push_back(std::move(group));
        for (auto& group : transferGroups())
            all.push_back(std::move(group));
        return all;
    }();
    return groups;
}

const std::vector<TextGroup>& nameGroups() {
    static const std::vector<TextGroup> groups{
        {"menu commands", menuCommandNames(), {}},
        {"Mainframe", mainframeNames(), {}},
        {"iSeries", iSeriesNames(), {}},
        {"VT", vtNames(), {"F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9"}},
    };
    return groups;
}

}  // namespace quendra::test
