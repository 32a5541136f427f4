// One gesture after the other on the real window, each chosen at random among all that a user has.
#pragma once

#include "storm/storm_hands.h"
#include "support/editor_fixture.h"
#include "widgets/pane_list.h"

#include <QMenu>
#include <QToolButton>
#include <QWindow>

#include <span>

namespace quendra::test {

class Gestures {
  public:
    /// `files` are offered to Open, Save As and Insert Script.
    Gestures(Chance& chance, MainWindow& window, std::span<const std::filesystem::path> files)
        : chance_(chance), window_(window), files_(files) {}

    /// Makes the next gesture and gives its name.
    std::string make() {
        std::size_t all = 0;
        for (const Kind& kind : kinds_)
            all += kind.weight;
        std::size_t drawn = chance_.below(all);
        auto kind = kinds_.begin();
        while (drawn >= kind->weight)
            drawn -= kind++->weight;
        // Without a window manager nothing becomes active again when a dialog closes.
        QApplication::setActiveWindow(&window_);
        kind->make();
        return kind->name;
    }
    /// What a file dialog is answered with.
    [[nodiscard]] std::optional<std::filesystem::path> chooseFile() {
        if (chance_.oneIn(4)) return std::nullopt;
        return chance_.of(files_);
    }

  private:
    struct Kind {
        const char* name;
        std::size_t weight;
        std::function<void()> make;
    };

    void walk() {
        static constexpr const char* keys[] = {"Up",   "Down",   "Home", "End",
                                               "PgUp", "PgDown", "Tab"};
        static constexpr const char* held[] = {"", "Ctrl+", "Shift+"};
        anyList().setFocus();
        if (chance_.oneIn(12)) return press("Ctrl+A");
        press(std::string(chance_.of(held)) + chance_.of(keys));
    }

    void drag(PaneList& source) {
        const QPoint to = chance_.oneIn(3) ? anywhere() : onSomeRow(list(3));
        const QPoint from = onSomeRow(source);
        QTest::mousePress(handle(), Qt::LeftButton, {}, from);
        QTest::mouseMove(handle(), from + (to - from) / 2);
        QTest::mouseMove(handle(), to);
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, to);
    }

    // Something comes in between: Escape, another key, another button, another window.
    void spoilDrag() {
        QTest::mousePress(handle(), Qt::LeftButton, {}, onSomeRow(anyList()));
        QTest::mouseMove(handle(), anywhere());
        QEvent deactivation(QEvent::WindowDeactivate);
        switch (chance_.below(5)) {
            case 0: press("Escape"); break;
            case 1: press("Delete"); break;
            case 2: QTest::mouseClick(handle(), Qt::RightButton, {}, anywhere()); break;
            case 3: press("Ctrl+V"); break;
            default: QApplication::sendEvent(&window_, &deactivation);
        }
        QTest::mouseMove(handle(), anywhere());
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, anywhere());
    }

    void undoOrRedo() {
        const bool undo = !chance_.oneIn(3);
        for (std::size_t steps = 1 + chance_.below(4); steps > 0; --steps)
            press(undo ? "Ctrl+Z" : "Ctrl+Y");
    }

    void find() {
        static constexpr const char* keys[] = {"F3", "Shift+F3", "Return", "Escape", "End"};
        press("Ctrl+F");
        QApplication::processEvents();
        typeText(*window_.focusWidget(), chance_.text().left(8));
        press(chance_.of(keys));
    }

    void clickToolButton() {
        const auto* bar = window_.findChild<QWidget*>(QStringLiteral("toolBar"));
        const QToolButton& button = *chance_.of(bar->findChildren<QToolButton*>());
        if (button.isVisible()) click(button.mapTo(&window_, button.rect().center()));
    }

    void useMenu() {
        static constexpr const char* menus[] = {"fileMenu",  "editMenu", "viewMenu",
                                                "entryMenu", "modeMenu", "helpMenu"};
        auto* menu = window_.findChild<QMenu*>(QLatin1String(chance_.of(menus)));
        menu->popup(window_.mapToGlobal(QPoint(20, 20)));
        for (std::size_t steps = 1 + chance_.below(8); steps > 0; --steps)
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, chance_.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
    }

    void close() {
        window_.close();
        QApplication::processEvents();
        // The next one would start with the same document.
        window_.show();
        QApplication::setActiveWindow(&window_);
    }

    /// The palettes, then the script.
    PaneList& list(std::size_t number) {
        static constexpr const char* names[] = {"scriptEventsPalette", "luFunctionsPalette",
                                                "menuCommandsPalette", "scriptList"};
        return *window_.findChild<PaneList*>(QLatin1String(names[number]));
    }
    PaneList& palette() { return list(chance_.below(3)); }
    PaneList& anyList() { return chance_.oneIn(2) ? list(3) : palette(); }
    QWindow* handle() { return window_.windowHandle(); }
    Qt::KeyboardModifiers selecting() {
        static constexpr Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::ControlModifier,
                                                         Qt::ShiftModifier};
        return chance_.of(held);
    }
    QPoint onSomeRow(PaneList& shown) {
        const int rows = shown.model()->rowCount();
        if (rows == 0 || chance_.oneIn(20)) return anywhere();
        const int row = chance_.row(rows);
        shown.scrollTo(shown.model()->index(row, 0));
        const int x = 10 + chance_.row(std::max(1, shown.viewport()->width() - 20));
        return shown.viewport()->mapTo(&window_, QPoint(x, shown.rowRect(row).center().y()));
    }
    // Also beyond the edges of the window, and of the screen.
    QPoint anywhere() {
        return {chance_.row(window_.width() + 200) - 100,
                chance_.row(window_.height() + 200) - 100};
    }
    void click(QPoint point, Qt::KeyboardModifiers held = {}) {
        QTest::mousePress(handle(), Qt::LeftButton, held, point);
        QTest::mouseRelease(handle(), Qt::LeftButton, held, point);
    }
    void doubleClick(PaneList& clicked) {
        QTest::mouseDClick(handle(), Qt::LeftButton, {}, onSomeRow(clicked));
    }
    void press(const std::string& keys) {
        QWidget* focused = window_.focusWidget();
        QTest::keySequence(focused != nullptr ? focused : &window_,
                           QKeySequence(QString::fromStdString(keys)));
    }
    void pressIn(PaneList& focused, const std::string& keys) {
        focused.setFocus();
        press(keys);
    }
    void editByKey() {
        static constexpr const char* keys[] = {"Ctrl+X", "Ctrl+C", "Ctrl+V",
                                               "Ctrl+V", "Delete", "Ctrl+Shift+C"};
        pressIn(anyList(), chance_.of(keys));
    }
    void pressFileKey() {
        static constexpr const char* keys[] = {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Shift+S",
                                               "Ctrl+Shift+O"};
        press(chance_.of(keys));
    }

    Chance& chance_;
    MainWindow& window_;
    std::span<const std::filesystem::path> files_;
    const std::vector<Kind> kinds_ = {
        {"click a row", 14, [this] { click(onSomeRow(anyList()), selecting()); }},
        {"walk by keys", 8, [this] { walk(); }},
        {"double-click", 12, [this] { doubleClick(chance_.oneIn(3) ? list(3) : palette()); }},
        {"Return", 8, [this] { pressIn(anyList(), "Return"); }},
        {"drag from a palette", 10, [this] { drag(palette()); }},
        {"drag in the script", 10, [this] { drag(list(3)); }},
        {"spoil a drag", 3, [this] { spoilDrag(); }},
        {"move up", 3, [this] { pressIn(list(3), "Ctrl+Up"); }},
        {"move down", 3, [this] { pressIn(list(3), "Ctrl+Down"); }},
        {"cut, copy, paste, delete", 20, [this] { editByKey(); }},
        {"key of a file command", 3, [this] { pressFileKey(); }},
        {"undo or redo", 10, [this] { undoOrRedo(); }},
        {"find", 6, [this] { find(); }},
        {"click a tool button", 8, [this] { clickToolButton(); }},
        {"use a menu", 4, [this] { useMenu(); }},
        {"resize", 2, [this] { window_.resize(200 + chance_.row(1200), 150 + chance_.row(900)); }},
        {"close", 1, [this] { close(); }},
    };
};

}  // namespace quendra::test
