// A desktop that nobody sees: an X server of its own, a window manager, and the hands of a user,
// whose keys and mouse come to the programs as those of any user do.
#pragma once

#include "desktop/child_process.h"
#include "support/temporary_folder.h"

#include <memory>
#include <string>
#include <vector>

namespace quendra::test {

/// While it lives, DISPLAY names it. One per process.
class VirtualDesktop {
  public:
    VirtualDesktop();

  private:
    TemporaryFolder folder_;
    std::unique_ptr<ChildProcess> server_;
    std::unique_ptr<ChildProcess> manager_;
};

/// Keys, one after the other, to whatever has the focus: "Return", "ctrl+s", "Down*5" for five of
/// them, and "=some text" for keys that type it.
void press(const std::vector<std::string>& keys);

/// Where the pointer goes, in pixels of the screen.
struct ScreenPoint {
    int x = 0;
    int y = 0;
};
void moveMouse(ScreenPoint to);
/// Left button 1, wheel up 4, wheel down 5.
void clickMouse(ScreenPoint at, int button = 1, int times = 1);
void pressMouse(ScreenPoint at);
void releaseMouse();
/// The button goes down at `from`, the pointer wanders, and the button goes up at `to`.
void dragMouse(ScreenPoint from, ScreenPoint to);
void holdKey(const std::string& key);
void releaseKey(const std::string& key);

/// The title of the window that keys go to, which is a little later the active one; empty for none.
[[nodiscard]] std::string activeTitle();
void waitForTitle(const std::string& title);
void minimiseActiveWindow();
/// Titles of the windows that show.
[[nodiscard]] std::vector<std::string> windowTitles();

}  // namespace quendra::test
