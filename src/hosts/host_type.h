// The six kinds of host terminal that a script can be written for.
#pragma once

#include "text/language_library.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quendra {

/// In the order of the Mode menu, of the toolbar and of every table by host type.
enum class HostType : std::uint8_t { Mainframe, ISeries, VT, UTS, T27, ICL };

inline constexpr std::array<HostType, 6> allHostTypes = {HostType::Mainframe, HostType::ISeries,
                                                         HostType::VT,        HostType::UTS,
                                                         HostType::T27,       HostType::ICL};

struct HostTypeInfo {
    HostType type;
    /// The enumerator's name, as the JSON form of a script has it.
    std::string_view name;
    /// What the command line calls it.
    std::string_view commandLineName;
    /// The number of the editor's command that makes it the current one, and of its icon.
    int modeCommand;
    /// The menu text: the library text of this id, or the literal when the id is 0.
    StringId menuTextId;
    std::string_view menuTextLiteral;
    /// Of the same command.
    StringId toolTipId;
    StringId statusTextId;
    /// First seven characters of a script file, before the version character.
    std::string_view signaturePrefix;
    /// Oldest format version that exists for this type; '=' is the newest of all.
    char oldestVersion;
    /// Session files that the File Operation dialog offers: filter text and extension without a
    /// dot.
    std::string_view sessionFileFilter;
    std::string_view sessionFileExtension;
};

[[nodiscard]] const HostTypeInfo& hostTypeInfo(HostType type);
[[nodiscard]] std::optional<HostType> hostTypeOfName(std::string_view name);
[[nodiscard]] std::optional<HostType> hostTypeOfCommandLineName(std::string_view name);

/// True for a menu command that the host type's emulator lacks.
[[nodiscard]] bool refusesMenuCommand(HostType type, std::uint32_t commandId);

}  // namespace quendra
