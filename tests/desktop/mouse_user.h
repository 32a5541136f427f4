// A user with a mouse in front of a window of this process. The window knows where its parts are,
// and the clicks come from the X server.
#pragma once

#include "desktop/virtual_desktop.h"

#include <QApplication>

#include <functional>
#include <string>

namespace quendra::test {

/// Runs `work` in a thread of its own while the windows live in this one, and closes every dialog
/// that is left. What `work` throws fails the test.
void whileWindowsLive(const std::function<void()>& work);

/// Runs a function in the thread of the windows and gives its result; for the other thread, as all
/// that follows.
template <class Function>
auto onScreen(const Function& function) {
    decltype(function()) result{};
    QMetaObject::invokeMethod(
        qApp, [&] { result = function(); }, Qt::BlockingQueuedConnection);
    return result;
}

/// Waits until the window of this object name has the focus. Widgets are those of the active
/// window, or of the list that it has dropped down, by their object name, their class, or the text
/// on them.
void waitForWindow(const std::string& window);

void click(const std::string& widget);
/// Clicks the field, selects what is in it, and types over that.
void typeOver(const std::string& field, const std::string& text);

/// Rows are scrolled into sight by the wheel.
ScreenPoint onRow(const std::string& list, const std::string& text);
void clickRow(const std::string& list, const std::string& text, int times = 1);
/// Takes hold of a row away from where it is clicked, so that the press is not the second one of a
/// double-click, and goes to the other row.
void startRowDrag(const std::string& list, const std::string& text, const std::string& toList,
                  const std::string& toText);

}  // namespace quendra::test
