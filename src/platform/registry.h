// The registry: settings by key path and value name, read only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quendra {

/// The user's own settings, or those of the machine.
enum class RegistryRoot { CurrentUser, LocalMachine };

/// The text of a value, in UTF-8; none when the key or the value is missing. On Linux the user's
/// root is the profile file quendra/registry.ini in $XDG_CONFIG_HOME (default ~/.config), the
/// machine's the first such file in $XDG_CONFIG_DIRS (default /etc/xdg) that has the value; a
/// section is a key path, an entry a value.
[[nodiscard]] std::optional<std::string> registryText(RegistryRoot root, std::string_view key,
                                                      std::string_view value);

/// True when the key exists in that root, with or without values.
[[nodiscard]] bool registryHasKey(RegistryRoot root, std::string_view key);

/// The identity whose key hidden texts are enciphered under: value "Default User ID" of the user's
/// key "Identities". Empty when there is none; then hidden texts are only obscured, since the key
/// is the same everywhere.
[[nodiscard]] std::string userIdentity();

}  // namespace quendra
