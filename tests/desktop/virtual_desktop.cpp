#include "desktop/virtual_desktop.h"

#include "support/fixtures.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>

namespace quendra::test {
namespace {

// The server tells its number when it takes connections.
std::string readNumber(int from) {
    std::string number;
    pollfd waiting = {from, POLLIN, 0};
    constexpr auto milliseconds = static_cast<int>(std::chrono::milliseconds(patience).count());
    std::array<char, 16> part{};
    while (::poll(&waiting, 1, milliseconds) > 0) {
        const ssize_t size = ::read(from, part.data(), part.size());
        if (size <= 0) break;
        number.append(part.data(), static_cast<std::size_t>(size));
        if (number.back() == '\n') return number.substr(0, number.size() - 1);
    }
    throw std::runtime_error("no X server");
}

std::optional<std::string> xdotool(Command words) {
    words.insert(words.begin(), "xdotool");
    return outputOf(words);
}

void act(const Command& words) {
    if (!xdotool(words)) throw std::runtime_error("xdotool failed at " + words.front());
}

void add(Command& words, const Command& more) {
    words.insert(words.end(), more.begin(), more.end());
}

Command pointerTo(ScreenPoint at) {
    return {"mousemove", std::to_string(at.x), std::to_string(at.y)};
}

void addKeys(Command& words, const std::string& keys) {
    if (keys.starts_with('=')) {
        return add(words, {"type", "--delay", "1", "--args", "1", keys.substr(1)});
    }
    const std::size_t star = keys.find('*');
    const std::string times = star == std::string::npos ? "1" : keys.substr(star + 1);
    if (times == "0") return;
    add(words, {"key", "--delay", "1", "--repeat", times, keys.substr(0, star)});
}

}  // namespace

VirtualDesktop::VirtualDesktop() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    // Without repetition by the server: a key that a busy machine holds down too long counts once.
    // And without starting anew when its only client, a question, goes before the manager has come.
    server_ = std::make_unique<ChildProcess>(
        Command{"Xvfb", "-displayfd", "3", "-screen", "0", "1280x960x24", "-r", "-noreset",
                "-nolisten", "tcp"},
        ChildProcess::Variables(), folder_.path(), folder_ / "server.log", ends[1]);
    ::close(ends[1]);
    ::setenv("DISPLAY", (":" + readNumber(ends[0])).c_str(), 1);
    ::close(ends[0]);
    // There is no message bus to look for, and where none is found its library leaks the search.
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
    manager_ =
        std::make_unique<ChildProcess>(Command{"openbox", "--sm-disable"},
                                       ChildProcess::Variables{{"HOME", folder_.path()},
                                                               {"XDG_CONFIG_HOME", folder_.path()},
                                                               {"XDG_CACHE_HOME", folder_.path()},
                                                               {"XDG_DATA_HOME", folder_.path()}},
                                       folder_.path(), folder_ / "manager.log");
    // It names the active window, none, as soon as it manages any.
    waitUntil([] { return xdotool({"get_desktop"}).has_value(); }, "a window manager runs");
}

void press(const std::vector<std::string>& keys) {
    Command words;
    for (const std::string& key : keys)
        addKeys(words, key);
    act(words);
}

void moveMouse(ScreenPoint to) {
    act(pointerTo(to));
}

// Asking where the pointer is waits for the server, and the sleep makes the next click a later one:
// two clicks of one time stamp, as a busy server would make them, are no double-click.
void clickMouse(ScreenPoint at, int button, int times) {
    Command words = pointerTo(at);
    for (int i = 0; i < times; ++i)
        add(words, {"click", std::to_string(button), "getmouselocation", "sleep", "0.01"});
    act(words);
}

void pressMouse(ScreenPoint at) {
    Command words = pointerTo(at);
    add(words, {"mousedown", "1"});
    act(words);
}

void releaseMouse() {
    act({"mouseup", "1"});
}

void dragMouse(ScreenPoint from, ScreenPoint to) {
    constexpr int steps = 4;
    Command words = pointerTo(from);
    add(words, {"mousedown", "1"});
    for (int step = 1; step <= steps; ++step)
        add(words, pointerTo({from.x + (to.x - from.x) * step / steps,
                              from.y + (to.y - from.y) * step / steps}));
    add(words, {"mouseup", "1"});
    act(words);
}

void holdKey(const std::string& key) {
    act({"keydown", key});
}

void releaseKey(const std::string& key) {
    act({"keyup", key});
}

std::string activeTitle() {
    const auto lines = linesOfText(xdotool({"getwindowfocus", "getwindowname"}).value_or(""));
    return lines.empty() ? "" : lines.front();
}

void waitForTitle(const std::string& title) {
    std::string last;
    try {
        waitUntil([&] { return (last = activeTitle()) == title; }, "");
    } catch (const std::runtime_error&) {
        throw std::runtime_error("waited for the window \"" + title + "\", but \"" + last +
                                 "\" is the active one");
    }
}

void minimiseActiveWindow() {
    act({"getactivewindow", "windowminimize"});
}

std::vector<std::string> windowTitles() {
    const auto found = xdotool({"search", "--onlyvisible", "--name", ".", "getwindowname", "%@"});
    std::vector<std::string> titles = linesOfText(found.value_or(""));
    std::ranges::sort(titles);
    return titles;
}

}  // namespace quendra::test
