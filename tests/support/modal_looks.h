// Looks at the screen while code runs that opens modal dialogs. Needs Qt Widgets.
#pragma once

#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <functional>

namespace quendra::test {

/// False while a dialog that was just hidden still has its event loop: what opened it goes on only
/// after that.
[[nodiscard]] inline bool everyLoopHasItsDialog() {
    const auto windows = QApplication::topLevelWidgets();
    const auto shown = std::ranges::count_if(
        windows, [](const QWidget* window) { return window->isModal() && window->isVisible(); });
    return QThread::currentThread()->loopLevel() == shown;
}

/// Calls `look` every few milliseconds in the event loops of `operation`, those of dialogs that a
/// look opens included; never after the operation has ended.
inline void lookDuring(const std::function<void()>& operation, const std::function<void()>& look) {
    constexpr int lookEvery = 2;
    const QObject lifetime;
    // A repeating timer would stand still while a look is in a dialog that it opened itself.
    const std::function<void()> watch = [&] {
        QTimer::singleShot(lookEvery, &lifetime, [&] {
            watch();
            look();
        });
    };
    watch();
    operation();
}

}  // namespace quendra::test
