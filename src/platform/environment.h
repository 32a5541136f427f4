// The environment as a value: the variables of the process, or those a test makes up.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quendra {

/// Variables by name, in the bytes of the system.
using Environment = std::map<std::string, std::string, std::less<>>;

/// A copy of this process's variables as they are now.
[[nodiscard]] Environment processEnvironment();

/// A variable that is set and not empty.
[[nodiscard]] std::optional<std::string> variable(const Environment& environment,
                                                  std::string_view name);

/// A variable that holds an absolute path. A relative one counts as not set: it would name another
/// folder in every working directory.
[[nodiscard]] std::optional<std::filesystem::path> folderVariable(const Environment& environment,
                                                                  std::string_view name);

/// The path with "%NAME%" or "<NAME>" replaced by the variable of that name, marker by marker from
/// the left. The opening marker is the first "%", or the first "<" where there is no "%"; the
/// closing one is the next "%" behind it, or the next ">" where there is none. The search starts
/// anew after each replacement, so values may hold markers themselves. It ends, and the rest stays
/// as it stands, at a missing marker, at a variable that is not set or empty, and at 32
/// replacements or 4096 bytes: a variable that names itself would never be done.
[[nodiscard]] std::string expandEnvironmentNames(std::string path, const Environment& environment);

}  // namespace quendra
