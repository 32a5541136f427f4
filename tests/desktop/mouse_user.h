// A user with a mouse in front of a window of this process. The window knows where its parts are,
// and the clicks come from the X server.
#pragma once

#include "desktop/virtual_desktop.h"

#include <QApplication>
#include <QWidget>

#include <functional>
#include <stdexcept>
#include <string>

namespace quendra::test {

/// Runs `work` in a thread of its own while the windows live in this one, and closes every dialog
/// that is left. What `work` throws fails the test.
void whileWindowsLive(const std::function<void()>& work);

/// Runs a function in the thread of the windows and gives its result; for the other thread.
template <class Function>
auto onScreen(const Function& function) {
    decltype(function()) result{};
    QMetaObject::invokeMethod(
        qApp, [&] { result = function(); }, Qt::BlockingQueuedConnection);
    return result;
}

/// All functions are for the user's thread. Widgets are those of the active window, by their object
/// names.
class MouseUser {
  public:
    /// Where to click, and whether the widget there knows that the pointer is on it.
    struct Target {
        ScreenPoint point;
        bool isUnderMouse = false;
    };

    /// Waits until the window of this object name has the focus.
    void in(const std::string& window);

    void click(const std::string& widget);
    /// Clicks the field, selects what is in it, and types over that.
    void type(const std::string& field, const std::string& text);
    /// Chooses a row of a drop-down list.
    void choose(const std::string& box, const std::string& text);
    /// A standard button of a message box or file dialog.
    void clickStandardButton(int button);

    /// Rows are scrolled into sight by the wheel.
    void clickRow(const std::string& list, const std::string& text);
    void clickRow(const std::string& list, int row);
    void doubleClickRow(const std::string& list, const std::string& text);
    ScreenPoint onRow(const std::string& list, int row);
    /// Where a drag takes hold of a row: away from where it is clicked, so that the press is not
    /// the second one of a double-click.
    [[nodiscard]] ScreenPoint gripOn(const std::string& list, int row);
    [[nodiscard]] int rowOf(const std::string& list, const std::string& text);
    /// An item of a menu of the menu bar, each by its action's or menu's object name.
    void chooseMenu(const std::string& menu, const std::string& action);

    /// A place in a widget: its middle when none is given.
    [[nodiscard]] ScreenPoint placeIn(const std::string& widget);

  private:
    void clickAt(const std::function<Target()>& target, int times = 1);

    std::string window_ = "mainWindow";
};

}  // namespace quendra::test
