#include "platform/editor_windows.h"

#include "platform/editor_messages.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace quendra {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr auto answerTime = std::chrono::milliseconds(1000);
constexpr auto lockTime = std::chrono::milliseconds(2500);
constexpr std::size_t maxPeers = 256;
// A separator and the longest name that EditorListener gives its socket.
constexpr std::size_t maxSocketName = 48;

// Made by us or before us, ours, and closed to everybody else. A link is no folder.
bool makePrivateFolder(const fs::path& folder) {
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) return false;
    struct stat state {};
    return ::lstat(folder.c_str(), &state) == 0 && S_ISDIR(state.st_mode) &&
           state.st_uid == ::geteuid() && (state.st_mode & 077) == 0;
}

bool hasRoomForSocket(const fs::path& folder) {
    return folder.native().size() + maxSocketName < sizeof(sockaddr_un::sun_path);
}

// A connection to the editor behind a socket; removes the socket when there is no editor any more.
Descriptor connectTo(const fs::path& path) {
    const auto address = socketAddress(path);
    if (!address) return Descriptor();
    Descriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket.isOpen()) return Descriptor();
    const auto* const where = reinterpret_cast<const sockaddr*>(&*address);
    if (::connect(socket.get(), where, sizeof *address) != 0) {
        if (errno == ECONNREFUSED) ::unlink(path.c_str());
        return Descriptor();
    }
    return peerIsSameUser(socket.get()) ? std::move(socket) : Descriptor();
}

std::vector<fs::path> socketsIn(const fs::path& folder) {
    std::vector<fs::path> sockets;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (!entry->path().filename().native().starts_with(editorSocketPrefix)) continue;
        if (!fs::is_socket(entry->symlink_status(ignored))) continue;
        sockets.push_back(entry->path());
        if (sockets.size() == maxPeers) break;
    }
    return sockets;
}

// Connections on which an answer is due.
using Peers = std::vector<Descriptor>;

Peers askEveryone(const fs::path& folder, std::string_view packet, const fs::path& except) {
    Peers peers;
    for (const fs::path& path : socketsIn(folder)) {
        if (path == except) continue;
        Descriptor peer = connectTo(path);
        if (peer.isOpen() && sendPacket(peer.get(), packet)) peers.push_back(std::move(peer));
    }
    return peers;
}

bool saysYes(int socket) {
    std::array<char, 16> answer{};
    const ssize_t size = ::recv(socket, answer.data(), answer.size(), MSG_DONTWAIT);
    return size > 0 &&
           std::string_view(answer.data(), static_cast<std::size_t>(size)) == editorSaysYes;
}

// Takes the next one that says yes out of the peers; those that answer otherwise, or hang up, are
// dropped. None when nobody is left or the time is over.
std::optional<Descriptor> nextYes(Peers& peers, Clock::time_point deadline) {
    while (!peers.empty()) {
        std::vector<pollfd> waiting;
        for (const Descriptor& peer : peers)
            waiting.push_back({peer.get(), POLLIN, 0});
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        const int ready = ::poll(waiting.data(), waiting.size(),
                                 static_cast<int>(std::max(left, decltype(left){0})));
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) return std::nullopt;
        for (std::size_t i = waiting.size(); i-- > 0;) {
            if (waiting[i].revents == 0) continue;
            Descriptor peer = std::move(peers[i]);
            peers.erase(peers.begin() + static_cast<std::ptrdiff_t>(i));
            if (saysYes(peer.get())) return peer;
        }
    }
    return std::nullopt;
}

bool confirmsRaise(Descriptor peer, std::string_view packet, Clock::time_point deadline) {
    if (!sendPacket(peer.get(), packet)) return false;
    Peers one;
    one.push_back(std::move(peer));
    return nextYes(one, deadline).has_value();
}

// Keeps other starting editors waiting as long as it lives. Whoever holds it for too long, hanging
// or in bad faith, is passed: the worst that comes of it is a second window. The system lets go of
// it when its owner is killed.
Descriptor startLock(const fs::path& folder) {
    Descriptor file(
        ::open((folder / "start.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    const auto deadline = Clock::now() + lockTime;
    while (file.isOpen() && ::flock(file.get(), LOCK_EX | LOCK_NB) != 0 &&
           Clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return file;
}

}  // namespace

bool sameScript(const fs::path& left, const fs::path& right) {
    return !left.empty() && !right.empty() && canonicalScript(left) == canonicalScript(right);
}

std::optional<fs::path> editorSocketFolder(const Environment& environment,
                                           const fs::path& fallbackParent) {
    if (const auto runtime = folderVariable(environment, "XDG_RUNTIME_DIR")) {
        fs::path folder = *runtime / "quendra-script-editor";
        if (hasRoomForSocket(folder) && makePrivateFolder(folder)) return folder;
    }
    fs::path folder = fallbackParent / ("quendra-script-editor-" + std::to_string(::geteuid()));
    if (hasRoomForSocket(folder) && makePrivateFolder(folder)) return folder;
    return std::nullopt;
}

bool raiseEditorShowing(const fs::path& folder, const fs::path& script, std::string_view className,
                        std::string_view activationToken, const fs::path& self) {
    const std::string path = canonicalScript(script).native();
    const std::string shows = packetOf({EditorVerb::Shows, className, path});
    if (shows.size() > maxEditorQuestion) return false;
    std::string raise = packetOf({EditorVerb::Raise, className, path, activationToken});
    if (raise.size() > maxEditorQuestion) raise = packetOf({EditorVerb::Raise, className, path});
    const auto deadline = Clock::now() + answerTime;
    Peers peers = askEveryone(folder, shows, self);
    while (auto peer = nextYes(peers, deadline)) {
        // From the first yes on, one more span of time for the window to come up.
        if (confirmsRaise(std::move(*peer), raise, deadline + answerTime)) return true;
    }
    return false;
}

std::string activationToken(const Environment& environment) {
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (auto token = variable(environment, name)) return *std::move(token);
    }
    return {};
}

EditorAdmission admitEditor(const std::optional<fs::path>& folder, const fs::path& script,
                            EditorWindow window, std::string_view activationToken) {
    EditorAdmission admission;
    if (!folder) return admission;
    const Descriptor lock = startLock(*folder);
    admission.raisedOther =
        !script.empty() && raiseEditorShowing(*folder, script, window.className, activationToken);
    if (admission.raisedOther) return admission;
    admission.listener = std::make_unique<EditorListener>(*folder, std::move(window));
    if (admission.listener->failure()) admission.listener.reset();
    return admission;
}

}  // namespace quendra
