// The scripts that were opened or saved last, as the state file remembers them.
#pragma once

#include "settings/user_state.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace quendra {

inline constexpr std::size_t mostRecentScripts = 10;

/// The last one first. Absolute paths, whether or not there is anything at them.
[[nodiscard]] std::vector<std::filesystem::path> recentScripts(const UserState& state);

/// Puts an absolute path at the top.
void rememberScript(UserState& state, const std::filesystem::path& script);
void forgetRecentScripts(UserState& state);

/// What to call each of these files, in UTF-8: its name, with as many of its folders before it as
/// tell it from the others.
[[nodiscard]] std::vector<std::string> distinctNames(
    const std::vector<std::filesystem::path>& files);

}  // namespace quendra
