#include "desktop/mouse_user.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QThread>
#include <QWindow>

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

ScreenPoint screenPoint(const QWidget& widget, QPoint inside) {
    const QPoint point = widget.mapToGlobal(inside);
    return {point.x(), point.y()};
}

// The window that has the focus, when it can be clicked already.
QWidget* readyWindow() {
    QWidget* window = QApplication::activeWindow();
    const bool ready = window != nullptr && window->windowHandle() != nullptr &&
                       window->windowHandle()->isExposed();
    return ready ? window : nullptr;
}

QWidget& find(const std::string& name) {
    const QWidget* window = readyWindow();
    if (window != nullptr) {
        for (auto* found : window->findChildren<QWidget*>(QString::fromStdString(name)))
            if (found->isVisible()) return *found;
    }
    throw std::runtime_error("the active window has no " + name);
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

MouseUser::Target targetIn(const QWidget& widget, QPoint inside) {
    return {screenPoint(widget, inside), widget.underMouse()};
}

struct RowPlace {
    MouseUser::Target target;
    /// -1 above what is in sight, 1 below it.
    int side = 0;
};

RowPlace placeOfRow(const QListView& list, int row) {
    const QRect rect = list.visualRect(list.model()->index(row, 0, list.rootIndex()));
    const QRect sight = list.viewport()->rect();
    const int side = rect.top() < sight.top() ? -1 : rect.bottom() > sight.bottom() ? 1 : 0;
    return {targetIn(*list.viewport(), rect.center() - QPoint(rect.width() / 4, 0)), side};
}

bool samePoint(ScreenPoint a, ScreenPoint b) {
    return a.x == b.x && a.y == b.y;
}

void closeWhatIsLeft() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    // Not quit(), which would ask the windows first.
    QApplication::exit();
}

}  // namespace

void whileWindowsLive(const std::function<void()>& work) {
    const std::unique_ptr<QThread> user(QThread::create([&work] {
        try {
            work();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what() << "; the active window is \"" << activeTitle() << "\"";
        }
        QMetaObject::invokeMethod(qApp, closeWhatIsLeft, Qt::QueuedConnection);
    }));
    user->start();
    QApplication::exec();
    user->wait();
}

void MouseUser::in(const std::string& window) {
    waitUntil(
        [&] {
            return onScreen([&] {
                const QWidget* ready = readyWindow();
                return ready != nullptr && ready->objectName().toStdString() == window;
            });
        },
        window + " is the active window");
    window_ = window;
}

// A window that has just come up may still be moved to its place, and the frame of one that has
// just gone may still cover this one: the pointer has arrived when the widget knows of it.
void MouseUser::clickAt(const std::function<Target()>& target, int times) {
    Target aimed = ask(target);
    moveMouse(aimed.point);
    waitUntil(
        [&] {
            const Target now = ask(target);
            if (!samePoint(now.point, aimed.point)) moveMouse(now.point);
            const bool arrived = samePoint(now.point, aimed.point) && now.isUnderMouse;
            aimed = now;
            return arrived;
        },
        "the pointer is where it was moved to");
    clickMouse(aimed.point, 1, times);
}

ScreenPoint MouseUser::placeIn(const std::string& widget) {
    return ask([&] {
        const QWidget& found = find(widget);
        return screenPoint(found, found.rect().center());
    });
}

void MouseUser::click(const std::string& widget) {
    clickAt([&] {
        const QWidget& found = find(widget);
        if (!found.isEnabled()) throw std::runtime_error(widget + " is disabled");
        // The clickable part of a check box or radio button is at its left.
        return targetIn(found, {std::min(8, found.width() / 2), found.height() / 2});
    });
}

void MouseUser::type(const std::string& field, const std::string& text) {
    clickAt(
        [&] {
            const QWidget& found = find(field);
            return targetIn(found, {std::min(12, found.width() / 2), found.height() / 2});
        },
        3);
    press({"=" + text});
    const auto shown = [&] {
        const QWidget& found = find(field);
        const char* property = found.property("plainText").isValid() ? "plainText" : "text";
        return found.property(property).toString().toStdString();
    };
    waitUntil([&] { return ask(shown) == text; }, field + " holds \"" + text + "\"");
}

void MouseUser::choose(const std::string& box, const std::string& text) {
    click(box);
    const auto popup = [&] { return &static_cast<QComboBox&>(find(box)); };
    QComboBox* const combo = ask(popup);
    const auto view = [&] { return qobject_cast<QListView*>(combo->view()); };
    waitUntil([&] { return ask([&] { return view()->isVisible(); }); }, box + " is open");
    clickAt(
        [&] { return placeOfRow(*view(), combo->findText(QString::fromStdString(text))).target; });
    waitUntil([&] { return ask([&] { return combo->currentText().toStdString(); }) == text; },
              box + " shows " + text);
}

void MouseUser::clickStandardButton(int button) {
    clickAt([&] {
        const auto* buttons =
            readyWindow() ? readyWindow()->findChild<QDialogButtonBox*>() : nullptr;
        const auto* found =
            buttons ? buttons->button(static_cast<QDialogButtonBox::StandardButton>(button))
                    : nullptr;
        if (found == nullptr) throw std::runtime_error("no such button");
        return targetIn(*found, found->rect().center());
    });
}

int MouseUser::rowOf(const std::string& list, const std::string& text) {
    return ask([&] {
        const auto& view = static_cast<const QListView&>(find(list));
        const auto found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole,
                                               QString::fromStdString(text), 1,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive);
        return found.isEmpty() ? throw std::runtime_error("no row " + text) : found.front().row();
    });
}

ScreenPoint MouseUser::onRow(const std::string& list, int row) {
    const auto place = [&] { return placeOfRow(static_cast<QListView&>(find(list)), row); };
    const ScreenPoint middle = placeIn(list);
    RowPlace now = ask(place);
    moveMouse(middle);
    waitUntil([&] { return (now = ask(place)).target.isUnderMouse; }, "the pointer is on " + list);
    while (now.side != 0) {
        const RowPlace before = now;
        clickMouse(middle, now.side < 0 ? 4 : 5);
        waitUntil([&] { return !samePoint((now = ask(place)).target.point, before.target.point); },
                  list + " has scrolled");
    }
    return now.target.point;
}

ScreenPoint MouseUser::gripOn(const std::string& list, int row) {
    const ScreenPoint point = onRow(list, row);
    return {point.x + 40, point.y};
}

void MouseUser::clickRow(const std::string& list, int row) {
    onRow(list, row);
    clickAt([&] { return placeOfRow(static_cast<QListView&>(find(list)), row).target; });
}

void MouseUser::clickRow(const std::string& list, const std::string& text) {
    clickRow(list, rowOf(list, text));
}

void MouseUser::doubleClickRow(const std::string& list, const std::string& text) {
    const int row = rowOf(list, text);
    onRow(list, row);
    clickAt([&] { return placeOfRow(static_cast<QListView&>(find(list)), row).target; }, 2);
}

void MouseUser::chooseMenu(const std::string& menu, const std::string& action) {
    const auto window = [] { return QApplication::activeWindow(); };
    const auto opened = [&] { return window()->findChild<QMenu*>(QString::fromStdString(menu)); };
    clickAt([&] {
        const auto& bar = static_cast<QMenuBar&>(find("menuBar"));
        return targetIn(bar, bar.actionGeometry(opened()->menuAction()).center());
    });
    QMenu* const shown = ask([&] {
        return qobject_cast<QWidget*>(readyWindow())
            ->findChild<QMenu*>(QString::fromStdString(menu));
    });
    waitUntil([&] { return ask([&] { return shown->isVisible(); }); }, menu + " is open");
    clickAt([&] {
        for (QAction* item : shown->actions()) {
            if (item->objectName().toStdString() == action)
                return targetIn(*shown, shown->actionGeometry(item).center());
        }
        throw std::runtime_error(menu + " has no " + action);
    });
}

}  // namespace quendra::test
