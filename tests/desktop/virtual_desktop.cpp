#include "desktop/virtual_desktop.h"

#include <chrono>
#include <csignal>
#include <optional>
#include <stdexcept>
#include <sys/prctl.h>
#include <thread>

namespace quendra::test {
namespace {

/// How long anything may take on a slow machine that has much else to do.
constexpr std::chrono::milliseconds patience{40'000};

/// What it wrote to standard output; none when it failed, as it does when a window has just gone.
std::optional<std::string> xdotool(Words words) {
    ChildProcess tool;
    words.insert(words.begin(), "xdotool");
    tool.startAs(words);
    if (tool.exitCodeAtEnd() != 0) return std::nullopt;
    return tool.readAllStandardOutput().toStdString();
}

void add(Words& words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
}

Words pointerTo(ScreenPoint at) {
    return {"mousemove", std::to_string(at.x), std::to_string(at.y)};
}

}  // namespace

void waitUntil(const std::function<bool()>& condition, const std::string& what) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("waited in vain until " + what);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

ChildProcess::ChildProcess() {
    setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ChildProcess::~ChildProcess() {
    kill();
    waitForFinished();
}

void ChildProcess::startAs(const Words& command) {
    QStringList words;
    for (const std::string& word : command)
        words << QString::fromStdString(word);
    start(words.takeFirst(), words);
}

void ChildProcess::setVariable(const std::string& name, const std::string& value) {
    QProcessEnvironment variables = processEnvironment();
    if (variables.isEmpty()) variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QString::fromStdString(name), QString::fromStdString(value));
    setProcessEnvironment(variables);
}

int ChildProcess::exitCodeAtEnd() {
    const bool ended = state() == NotRunning || waitForFinished(patience.count());
    return ended && error() != FailedToStart && exitStatus() == NormalExit ? exitCode() : -1;
}

VirtualDesktop::VirtualDesktop() {
    // Without repetition by the server: a key that a busy machine holds down too long counts once.
    // And without starting anew when its only client, a question, goes before the manager has come.
    server_.startAs({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x960x24", "-r", "-noreset",
                     "-nolisten", "tcp"});
    // It tells its number when it takes connections.
    while (!server_.canReadLine()) {
        if (!server_.waitForReadyRead(patience.count())) throw std::runtime_error("no X server");
    }
    qputenv("DISPLAY", ':' + server_.readLine().trimmed());
    // There is no message bus to look for, and where none is found its library leaks the search.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        manager_.setVariable(name, folder_.path());
    manager_.startAs({"openbox", "--sm-disable"});
    // It names the active window, none, as soon as it manages any.
    waitUntil([] { return xdotool({"get_desktop"}).has_value(); }, "a window manager runs");
}

void act(const Words& words) {
    if (!xdotool(words)) throw std::runtime_error("xdotool failed at " + words.front());
}

void press(const Words& keys) {
    Words words;
    for (const std::string& key : keys) {
        const std::size_t star = key.find('*');
        const std::string times = star == std::string::npos ? "1" : key.substr(star + 1);
        if (key.starts_with('=')) {
            add(words, {"type", "--delay", "1", "--args", "1", key.substr(1)});
        } else if (times != "0") {
            add(words, {"key", "--delay", "1", "--repeat", times, key.substr(0, star)});
        }
    }
    act(words);
}

void moveMouse(ScreenPoint to) {
    act(pointerTo(to));
}

// Asking where the pointer is waits for the server, and the sleep makes the next click a later one:
// two clicks of one time stamp, as a busy server would make them, are no double-click.
void clickMouse(ScreenPoint at, int button, int times) {
    Words words = pointerTo(at);
    for (int i = 0; i < times; ++i)
        add(words, {"click", std::to_string(button), "getmouselocation", "sleep", "0.01"});
    act(words);
}

void startDrag(ScreenPoint from, ScreenPoint to) {
    constexpr int steps = 4;
    Words words = pointerTo(from);
    add(words, {"mousedown", "1"});
    for (int step = 1; step <= steps; ++step)
        add(words, pointerTo({from.x + (to.x - from.x) * step / steps,
                              from.y + (to.y - from.y) * step / steps}));
    act(words);
}

// Keys go to the window that the server gives the focus, the manager's own keys to the one that it
// knows of already.
std::string activeTitle() {
    const auto titles =
        xdotool({"getwindowfocus", "getwindowname", "getactivewindow", "getwindowname"});
    const std::string title = titles ? titles->substr(0, titles->find('\n')) : "";
    return titles == title + '\n' + title + '\n' ? title : "";
}

void waitForTitle(const std::string& title) {
    waitUntil([&] { return activeTitle() == title; }, "the active window is \"" + title + '"');
}

std::string windowTitles() {
    return xdotool({"search", "--onlyvisible", "--name", ".", "getwindowname", "%@"}).value_or("");
}

}  // namespace quendra::test
