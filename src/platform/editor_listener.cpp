// The answering side: one epoll descriptor stands for the socket and all its connections, so that
// an event loop has a single thing to watch and nothing here ever waits.
#include "platform/editor_messages.h"
#include "platform/editor_windows.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <sys/epoll.h>
#include <system_error>

namespace quendra {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t maxConnections = 16;
constexpr int maxEvents = 16;
// An asker does not wait for a place in the queue, so there are more of them than anyone needs.
constexpr int maxQueued = 128;

}  // namespace

EditorListener::EditorListener(const fs::path& folder, EditorWindow window)
    : window_(std::move(window)) {
    if (listen(folder)) return;
    failure_ = FileFailure{errno, std::generic_category().message(errno)};
    events_ = Descriptor();
}

EditorListener::~EditorListener() {
    if (!address_.empty()) ::unlink(address_.c_str());
}

bool EditorListener::raiseOther(const fs::path& script) const {
    return raiseEditorShowing(address_.parent_path(), script, window_.className, {}, address_);
}

// A socket that does not listen yet refuses connections and would be taken for a dead one, so it
// gets the name under which others look for it only afterwards. The time in the name keeps it apart
// from one that a killed process of the same number left behind.
bool EditorListener::listen(const fs::path& folder) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    const std::string name = std::to_string(::getpid()) + "-" + std::to_string(now);
    const fs::path hidden = folder / ("new-" + name);
    const auto address = socketAddress(hidden);
    if (!address) {
        errno = ENAMETOOLONG;
        return false;
    }
    socket_ = Descriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    events_ = Descriptor(::epoll_create1(EPOLL_CLOEXEC));
    const auto* const where = reinterpret_cast<const sockaddr*>(&*address);
    if (!socket_.isOpen() || !events_.isOpen() ||
        ::bind(socket_.get(), where, sizeof *address) != 0) {
        return false;
    }
    address_ = hidden;
    if (::listen(socket_.get(), maxQueued) != 0 || !watch(socket_.get())) return false;
    const fs::path visible = folder / (std::string(editorSocketPrefix) + name);
    if (::rename(hidden.c_str(), visible.c_str()) != 0) return false;
    address_ = visible;
    return true;
}

bool EditorListener::watch(int descriptor) {
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = descriptor;
    return ::epoll_ctl(events_.get(), EPOLL_CTL_ADD, descriptor, &event) == 0;
}

void EditorListener::serve() {
    std::array<epoll_event, maxEvents> events{};
    const int count = ::epoll_wait(events_.get(), events.data(), maxEvents, 0);
    for (int i = 0; i < count; ++i) {
        const int descriptor = events[static_cast<std::size_t>(i)].data.fd;
        if (descriptor != socket_.get()) answer(descriptor);
    }
    // Last, since it may close connections that the events speak of.
    for (int i = 0; i < count; ++i) {
        if (events[static_cast<std::size_t>(i)].data.fd == socket_.get()) accept();
    }
}

// Takes as many as there are places, so that nobody who floods the queue keeps others out for long.
// Someone who connects and stays silent costs one of the places, and only until they are needed.
void EditorListener::accept() {
    for (std::size_t i = 0; i < maxConnections; ++i) {
        Descriptor connection(
            ::accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!connection.isOpen()) return;
        if (!peerIsSameUser(connection.get())) continue;
        if (connections_.size() == maxConnections) connections_.erase(connections_.begin());
        if (watch(connection.get())) connections_.push_back(std::move(connection));
    }
}

void EditorListener::answer(int descriptor) {
    std::array<char, maxEditorQuestion> buffer{};
    const ssize_t size = ::recv(descriptor, buffer.data(), buffer.size(), MSG_DONTWAIT | MSG_TRUNC);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
    // A packet that was cut gives its whole length.
    if (size <= 0 || static_cast<std::size_t>(size) > buffer.size()) return drop(descriptor);
    const auto question = parseEditorQuestion({buffer.data(), static_cast<std::size_t>(size)});
    if (!question) return drop(descriptor);
    const bool yes = isAskedFor(question->className, question->script);
    if (yes && question->verb == EditorVerb::Raise)
        window_.raise(std::string(question->activationToken));
    if (!sendPacket(descriptor, yes ? editorSaysYes : editorSaysNo)) drop(descriptor);
}

bool EditorListener::isAskedFor(std::string_view className, std::string_view script) const {
    return window_.className.find(className) != std::string::npos &&
           sameScript(window_.shownScript(), fs::path(script));
}

void EditorListener::drop(int descriptor) {
    std::erase_if(connections_,
                  [&](const Descriptor& connection) { return connection.get() == descriptor; });
}

}  // namespace quendra
