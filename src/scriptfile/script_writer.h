// From a script to the bytes of a script file in the current version.
#pragma once

#include "hosts/host_type.h"
#include "model/script.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quendra {

/// The whole file: signature, then one record per entry with its actions. Cannot fail, since every
/// entry of a script has been stored already, and needs no key. What VT cannot store is lost in a
/// VT file: ask unstorableEntries first.
[[nodiscard]] std::vector<std::uint8_t> writeScript(const Script& script, HostType hostType);

/// Indexes of the entries that a file of this host type cannot give back as they are: for VT those
/// with menu command 213 or with transfer settings, in an action too. None for the other host
/// types.
[[nodiscard]] std::vector<std::size_t> unstorableEntries(const Script& script, HostType hostType);

}  // namespace quendra
