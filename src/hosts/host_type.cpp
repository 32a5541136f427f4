#include "hosts/host_type.h"

#include "model/menu_commands.h"
#include "text/text_ids.h"

#include <algorithm>

namespace quendra {

namespace {

constexpr std::array infos = std::to_array<HostTypeInfo>({
    {HostType::Mainframe, "Mainframe", "mainframe", 313, textid::mainframeModeMenuText, "",
     textid::mainframeModeToolTip, textid::mainframeModeStatusText, "QDMDSCR", '2',
     "Quendra Mainframe Display(*.qmd)", "qmd"},
    {HostType::ISeries, "ISeries", "iseries", 314, textid::iSeriesModeMenuText, "",
     textid::iSeriesModeToolTip, textid::iSeriesModeStatusText, "QDADSCR", '2',
     "Quendra iSeries Display(*.qad)", "qad"},
    {HostType::VT, "VT", "vt", 315, textid::vtModeMenuText, "", textid::vtModeToolTip,
     textid::vtModeStatusText, "QDVTSCR", '6', "Quendra VT(*.qvt)", "qvt"},
    {HostType::UTS, "UTS", "uts", 316, 0, "  &UTS", textid::utsModeToolTip,
     textid::utsModeStatusText, "QDUDSCR", '8', "Quendra UTS Display(*.qud)", "qud"},
    {HostType::T27, "T27", "t27", 317, 0, "  &T27", textid::t27ModeToolTip,
     textid::t27ModeStatusText, "QDTDSCR", '8', "Quendra T27 Display(*.qtd)", "qtd"},
    {HostType::ICL, "ICL", "icl", 318, 0, "  IC&L", textid::iclModeToolTip,
     textid::iclModeStatusText, "QD7DSCR", '8', "Quendra ICL Display(*.q7d)", "q7d"},
});
static_assert(infos.size() == allHostTypes.size());
static_assert(std::ranges::equal(infos, allHostTypes, {}, &HostTypeInfo::type));

template <class Value>
std::optional<HostType> findBy(Value HostTypeInfo::*member, const Value& value) {
    const auto* row = std::ranges::find(infos, value, member);
    if (row == infos.end()) return std::nullopt;
    return row->type;
}

}  // namespace

const HostTypeInfo& hostTypeInfo(HostType type) {
    return infos[static_cast<std::size_t>(type)];
}

std::optional<HostType> hostTypeOfName(std::string_view name) {
    return findBy(&HostTypeInfo::name, name);
}

std::optional<HostType> hostTypeOfCommandLineName(std::string_view name) {
    return findBy(&HostTypeInfo::commandLineName, name);
}

bool refusesMenuCommand(HostType type, std::uint32_t commandId) {
    return type == HostType::VT && isRefusedInVt(commandId);
}

}  // namespace quendra
