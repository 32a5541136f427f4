#include "desktop/mouse_user.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QListView>
#include <QThread>
#include <QWindow>

#include <gtest/gtest.h>
#include <stdexcept>

namespace quendra::test {
namespace {

// The window that has the focus, or its open list, when it can be clicked already.
QWidget* readyWindow() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* window = popup != nullptr ? popup : QApplication::activeWindow();
    const bool ready = window != nullptr && window->windowHandle() != nullptr &&
                       window->windowHandle()->isExposed();
    return ready ? window : nullptr;
}

QWidget& find(const std::string& name) {
    const QWidget* window = readyWindow();
    if (window == nullptr) throw std::runtime_error("no window is active");
    for (QWidget* found : window->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<QAbstractButton*>(found);
        const bool isMeant = found->objectName().toStdString() == name ||
                             found->inherits(name.c_str()) ||
                             (button != nullptr && button->text().toStdString() == name);
        if (isMeant && found->isVisible() && found->isEnabled()) return *found;
    }
    throw std::runtime_error("the active window offers no " + name);
}

// The exception reaches the thread that asked.
template <class Function>
auto ask(const Function& function) {
    std::string fault;
    auto result = onScreen([&] {
        try {
            return function();
        } catch (const std::exception& error) {
            fault = error.what();
            return decltype(function()){};
        }
    });
    if (!fault.empty()) throw std::runtime_error(fault);
    return result;
}

// Where to click, and whether the widget there knows that the pointer is on it.
struct Target {
    ScreenPoint point;
    bool isUnderMouse = false;
    /// A row: -1 above what is in sight, 1 below it.
    int side = 0;
};

Target targetIn(const QWidget& widget, QPoint inside) {
    const QPoint point = widget.mapToGlobal(inside);
    return {{point.x(), point.y()}, widget.underMouse()};
}

Target rowIn(const std::string& name, const std::string& text) {
    const auto& list = dynamic_cast<QListView&>(find(name));
    const auto rows = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole,
                                          QString::fromStdString(text), 1, Qt::MatchExactly);
    if (rows.isEmpty()) throw std::runtime_error("no row " + text);
    const QRect rect = list.visualRect(rows.front());
    const QRect sight = list.viewport()->rect();
    Target row = targetIn(*list.viewport(), rect.center() - QPoint(rect.width() / 4, 0));
    row.side = rect.top() < sight.top() ? -1 : rect.bottom() > sight.bottom() ? 1 : 0;
    return row;
}

// At the left, where the clickable part of a check box or radio button is.
Target startOf(const std::string& name) {
    const QWidget& found = find(name);
    return targetIn(found, {std::min(10, found.width() / 2), found.height() / 2});
}

// A window that has just come up may still be moved to its place, and the frame of one that has
// just gone may still cover this one: the pointer has arrived when the widget knows of it.
void clickAt(const std::function<Target()>& target, int times) {
    Target aimed = ask(target);
    moveMouse(aimed.point);
    waitUntil(
        [&] {
            const Target now = ask(target);
            const bool stands = now.point == aimed.point;
            if (!stands) moveMouse(now.point);
            aimed = now;
            return stands && now.isUnderMouse;
        },
        "the pointer is where it was moved to");
    clickMouse(aimed.point, 1, times);
}

}  // namespace

void whileWindowsLive(const std::function<void()>& work) {
    const std::unique_ptr<QThread> user(QThread::create([&work] {
        try {
            work();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what() << "; the active window is \"" << activeTitle() << "\"";
        }
        // Not quit(), which would ask the windows first.
        QMetaObject::invokeMethod(
            qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
    }));
    user->start();
    QApplication::exec();
    user->wait();
}

void waitForWindow(const std::string& window) {
    const auto name = [] {
        const QWidget* ready = readyWindow();
        return ready == nullptr ? std::string() : ready->objectName().toStdString();
    };
    waitUntil([&] { return onScreen(name) == window; }, window + " is the active window");
}

void click(const std::string& widget) {
    clickAt([&] { return startOf(widget); }, 1);
}

void typeOver(const std::string& field, const std::string& text) {
    clickAt([&] { return startOf(field); }, 3);
    press({"=" + text});
    const auto shown = [&] {
        const QWidget& found = find(field);
        const char* property = found.property("plainText").isValid() ? "plainText" : "text";
        return found.property(property).toString().toStdString();
    };
    waitUntil([&] { return ask(shown) == text; }, field + " holds \"" + text + "\"");
}

ScreenPoint onRow(const std::string& list, const std::string& text) {
    const auto row = [&] { return rowIn(list, text); };
    const ScreenPoint start = ask([&] { return startOf(list); }).point;
    moveMouse(start);
    Target now;
    waitUntil([&] { return (now = ask(row)).isUnderMouse; }, "the pointer is on " + list);
    while (now.side != 0) {
        const ScreenPoint before = now.point;
        clickMouse(start, now.side < 0 ? 4 : 5);
        waitUntil([&] { return (now = ask(row)).point != before; }, list + " has scrolled");
    }
    return now.point;
}

void clickRow(const std::string& list, const std::string& text, int times) {
    onRow(list, text);
    clickAt([&] { return rowIn(list, text); }, times);
}

void startRowDrag(const std::string& list, const std::string& text, const std::string& toList,
                  const std::string& toText) {
    const ScreenPoint to = onRow(toList, toText);
    const ScreenPoint from = onRow(list, text);
    startDrag({from.x + 40, from.y}, to);
}

}  // namespace quendra::test
