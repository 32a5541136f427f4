// The registry: settings by key path and value name, read only.
//
// Two roots, each made of profile files "quendra/registry.ini" in which a section is a key path and
// an entry a value:
//
//   [Software\Quendra\6.1]
//   BaseRegistry = hex:02
//   Working Directory = /srv/scripts
#pragma once

#include "platform/environment.h"
#include "platform/profile_file.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quendra {

/// The user's own settings, or those of the machine.
enum class RegistryRoot { CurrentUser, LocalMachine };

/// Both roots as they were when they were read, so that one start sees one state of them.
struct Registry {
    /// At most one file: that in $XDG_CONFIG_HOME (default ~/.config).
    std::vector<Profile> currentUser;
    /// Those in $XDG_CONFIG_DIRS (default /etc/xdg), most important first.
    std::vector<Profile> localMachine;
};

/// Files that are missing or cannot be read count as empty.
[[nodiscard]] Registry readRegistry(const Environment& environment);

/// A text value, in UTF-8: of the first file that has it. None when the key or the value is
/// missing; a value without text gives the empty text.
[[nodiscard]] std::optional<std::string> registryText(const Registry& registry, RegistryRoot root,
                                                      std::string_view key, std::string_view value);

/// A value of exactly one byte, written "2", "0x02" or "hex:02". None when the key or the value is
/// missing, and for anything else, more bytes than one included.
[[nodiscard]] std::optional<std::uint8_t> registryByte(const Registry& registry, RegistryRoot root,
                                                       std::string_view key,
                                                       std::string_view value);

/// True when the key exists in that root, with or without values.
[[nodiscard]] bool registryHasKey(const Registry& registry, RegistryRoot root,
                                  std::string_view key);

/// Whether the user's root can serve at all: its file can be read, or there is none yet and the
/// user could make one. Nothing is written to find out.
[[nodiscard]] bool userRegistryUsable(const Environment& environment);

/// The identity whose key hidden texts are enciphered under: value "Default User ID" of the user's
/// key "Identities". Empty when there is none; then hidden texts are only obscured, since the key
/// is the same everywhere.
[[nodiscard]] std::string userIdentity(const Registry& registry);
/// The same by the variables of this process.
[[nodiscard]] std::string userIdentity();

/// Gives the identity each time it is called, as it is then. Cheap while there is none: the user's
/// file is read again only when it has changed.
[[nodiscard]] std::function<std::string()> userIdentitySource(const Environment& environment);

/// The user's file when it is there and cannot be read, so that nobody knows whether there is an
/// identity; none when it is read or missing.
[[nodiscard]] std::optional<std::filesystem::path> unreadableUserRegistry(
    const Environment& environment);

}  // namespace quendra
