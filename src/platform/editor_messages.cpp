#include "platform/editor_messages.h"

#include <algorithm>
#include <unistd.h>

namespace quendra {

namespace fs = std::filesystem;

std::string packetOf(const EditorQuestion& question) {
    std::string packet = question.verb == EditorVerb::Shows ? "shows" : "raise";
    packet += '\0';
    packet += question.className;
    packet += '\0';
    packet += question.script;
    if (question.activationToken.empty()) return packet;
    packet += '\0';
    packet += question.activationToken;
    return packet;
}

std::optional<EditorQuestion> parseEditorQuestion(std::string_view packet) {
    const std::size_t verbEnd = packet.find('\0');
    if (verbEnd == std::string_view::npos) return std::nullopt;
    const std::size_t classEnd = packet.find('\0', verbEnd + 1);
    if (classEnd == std::string_view::npos) return std::nullopt;
    const std::string_view verb = packet.substr(0, verbEnd);
    if (verb != "shows" && verb != "raise") return std::nullopt;
    const std::string_view rest = packet.substr(classEnd + 1);
    const std::size_t scriptEnd = rest.find('\0');
    EditorQuestion question = {verb == "shows" ? EditorVerb::Shows : EditorVerb::Raise,
                               packet.substr(verbEnd + 1, classEnd - verbEnd - 1),
                               rest.substr(0, scriptEnd)};
    if (!question.script.starts_with('/')) return std::nullopt;
    if (scriptEnd == std::string_view::npos) return question;
    question.activationToken = rest.substr(scriptEnd + 1);
    const bool isToken = !question.activationToken.empty() &&
                         question.activationToken.find('\0') == std::string_view::npos;
    return isToken ? std::optional(question) : std::nullopt;
}

std::optional<sockaddr_un> socketAddress(const fs::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string& text = path.native();
    if (text.size() >= sizeof address.sun_path) return std::nullopt;
    std::ranges::copy(text, address.sun_path);
    return address;
}

bool sendPacket(int socket, std::string_view packet) {
    const ssize_t sent = ::send(socket, packet.data(), packet.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    return sent == static_cast<ssize_t>(packet.size());
}

bool peerIsSameUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

fs::path canonicalScript(const fs::path& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    fs::path canonical = fs::weakly_canonical(absolute, error);
    return error ? absolute.lexically_normal() : canonical;
}

}  // namespace quendra
