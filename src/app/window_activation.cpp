#include "app/window_activation.h"

#include <QGuiApplication>
#include <QWidget>

#include <charconv>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <xcb/xcb.h>

namespace quendra {

namespace {

struct ReplyDeleter {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using XReply = std::unique_ptr<Reply, ReplyDeleter>;

// When the user asked for it, in the server's time: a startup id ends in "_TIME12345".
std::optional<xcb_timestamp_t> timeOf(std::string_view token) {
    constexpr std::string_view mark = "_TIME";
    const std::size_t at = token.rfind(mark);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view digits = token.substr(at + mark.size());
    xcb_timestamp_t time = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), time);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return time;
}

xcb_atom_t atomOf(xcb_connection_t* server, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// The toolkit would ask with the time of what the user did last in this very program, and a window
// manager that guards the keyboard takes that for old.
void askWindowManager(xcb_connection_t* server, xcb_window_t window, xcb_timestamp_t time) {
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
    if (!geometry) return;
    xcb_client_message_event_t request = {};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = window;
    request.type = atomOf(server, "_NET_ACTIVE_WINDOW");
    constexpr std::uint32_t fromApplication = 1;
    request.data.data32[0] = fromApplication;
    request.data.data32[1] = time;
    xcb_send_event(server, 0, geometry->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(server);
}

}  // namespace

void bringToFront(QWidget& window, const std::string& token) {
    // Where the toolkit looks for it, and takes it away.
    const bool onWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (onWayland && !token.empty()) qputenv("XDG_ACTIVATION_TOKEN", token.c_str());
    window.raise();
    window.activateWindow();
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const auto time = timeOf(token);
    if (x11 == nullptr || !time) return;
    askWindowManager(x11->connection(), static_cast<xcb_window_t>(window.winId()), *time);
}

}  // namespace quendra
