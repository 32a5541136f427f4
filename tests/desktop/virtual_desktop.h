// A desktop that nobody sees: an X server of its own, a window manager, and the hands of a user,
// whose keys and mouse come to the programs as those of any user do.
#pragma once

#include "support/temporary_folder.h"

#include <QProcess>

#include <functional>
#include <string>
#include <vector>

namespace quendra::test {

/// Looks again and again until the condition holds; throws std::runtime_error, naming what was
/// awaited, when that takes too long.
void waitUntil(const std::function<bool()>& condition, const std::string& what);

using Words = std::vector<std::string>;

/// A program that a test starts; it does not outlive the test.
class ChildProcess : public QProcess {
  public:
    ChildProcess();
    ~ChildProcess() override;

    /// The program's name and its arguments.
    void startAs(const Words& command);
    /// For the time behind that.
    void setVariable(const std::string& name, const std::string& value);

    [[nodiscard]] bool runs() { return !waitForFinished(0) && state() == Running; }
    /// Waits for its end: the exit code, -1 for any other end.
    [[nodiscard]] int exitCodeAtEnd();
};

/// While it lives, DISPLAY names it. One per process.
class VirtualDesktop {
  public:
    VirtualDesktop();

  private:
    TemporaryFolder folder_;
    ChildProcess server_;
    ChildProcess manager_;
};

/// Keys, one after the other, to whatever has the focus: "Return", "ctrl+s", "Down*5" for five of
/// them, and "=some text" for keys that type it.
void press(const Words& keys);

/// What the pointer or the windows do, in the words of xdotool.
void act(const Words& words);

/// Where the pointer goes, in pixels of the screen.
struct ScreenPoint {
    int x = 0;
    int y = 0;

    bool operator==(const ScreenPoint&) const = default;
};
void moveMouse(ScreenPoint to);
/// Left button 1, wheel up 4, wheel down 5.
void clickMouse(ScreenPoint at, int button = 1, int times = 1);
/// The left button goes down at `from`, and the pointer wanders to `to`.
void startDrag(ScreenPoint from, ScreenPoint to);

/// The title of the window that keys go to, which is a little later the active one; empty for none.
[[nodiscard]] std::string activeTitle();
void waitForTitle(const std::string& title);
/// Titles of the windows that show, a line each.
[[nodiscard]] std::string windowTitles();

}  // namespace quendra::test
