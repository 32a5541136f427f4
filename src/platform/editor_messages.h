// What editors say to each other: packets on a local socket, one question each, one answer each.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>

namespace quendra {

/// Sockets of listening editors begin with this.
inline constexpr std::string_view editorSocketPrefix = "editor-";
/// A longer packet is no question: a path is at most 4096 bytes.
inline constexpr std::size_t maxEditorQuestion = 8192;
inline constexpr std::string_view editorSaysYes = "yes";
inline constexpr std::string_view editorSaysNo = "no";

enum class EditorVerb { Shows, Raise };

/// Views into the packet. `script` is absolute and as canonical as its asker could make it.
struct EditorQuestion {
    EditorVerb verb = EditorVerb::Shows;
    std::string_view className;
    std::string_view script;
    /// The desktop's leave to raise the window; empty for none.
    std::string_view activationToken = {};
};

[[nodiscard]] std::string packetOf(const EditorQuestion& question);
/// None for what is no question; nobody can be trusted to have sent one.
[[nodiscard]] std::optional<EditorQuestion> parseEditorQuestion(std::string_view packet);

/// The socket's address, or none when the path is longer than its 107 bytes.
[[nodiscard]] std::optional<sockaddr_un> socketAddress(const std::filesystem::path& path);

/// Sends without waiting; false when it did not go out whole.
[[nodiscard]] bool sendPacket(int socket, std::string_view packet);

/// The other end belongs to this process's user.
[[nodiscard]] bool peerIsSameUser(int socket);

/// The path with links, "." and ".." followed as far as it exists; absolute.
[[nodiscard]] std::filesystem::path canonicalScript(const std::filesystem::path& path);

}  // namespace quendra
