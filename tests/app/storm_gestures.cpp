#include "app/storm_gestures.h"

#include "app/pane_list.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>

namespace quendra::test {

namespace {

constexpr const char* listNames[] = {"scriptEventsPalette", "luFunctionsPalette",
                                     "menuCommandsPalette", "scriptList",
                                     "scriptList",          "scriptList"};
constexpr Qt::KeyboardModifiers selecting[] = {Qt::NoModifier, Qt::ControlModifier,
                                               Qt::ShiftModifier};

}  // namespace

const Gestures::Kind Gestures::kinds[] = {
    {"click a row", 14, &Gestures::clickRow},
    {"walk by keys", 8, &Gestures::walk},
    {"type ahead", 3, &Gestures::typeAhead},
    {"double-click", 12, &Gestures::doubleClick},
    {"Return", 8, &Gestures::pressReturn},
    {"drag from a palette", 10, &Gestures::dragFromPalette},
    {"drag in the script", 10, &Gestures::dragInScript},
    {"spoil a drag", 3, &Gestures::spoilDrag},
    {"move by keys", 6, &Gestures::moveByKeys},
    {"cut, copy, paste, delete", 20, &Gestures::editKey},
    {"key of a file command", 3, &Gestures::fileKey},
    {"undo or redo", 10, &Gestures::undoOrRedo},
    {"find", 3, &Gestures::findSomething},
    {"use the find bar", 3, &Gestures::useFindBar},
    {"click a tool button", 8, &Gestures::clickToolButton},
    {"use a menu", 4, &Gestures::useMenu},
    {"resize", 2, &Gestures::resizeWindow},
    {"turn the wheel", 2, &Gestures::turnWheel},
    {"close", 1, &Gestures::closeWindow},
};

Gestures::Gestures(Chance& chance, MainWindow& window, std::span<const std::filesystem::path> files)
    : chance_(chance), window_(window), files_(files) {}

std::string Gestures::make() {
    unsigned int all = 0;
    for (const Kind& kind : kinds) {
        all += kind.weight;
    }
    std::size_t drawn = chance_.below(all);
    const Kind* kind = kinds;
    while (drawn >= kind->weight) {
        drawn -= kind++->weight;
    }
    // Without a window manager nothing becomes active again when a dialog closes.
    QApplication::setActiveWindow(&window_);
    (this->*kind->make)();
    return kind->name;
}

std::optional<std::filesystem::path> Gestures::chooseFile() {
    if (chance_.oneIn(4)) return std::nullopt;
    return chance_.of(files_);
}

void Gestures::clickRow() {
    click(onSomeRow(anyList()), chance_.of(selecting));
}

void Gestures::walk() {
    static constexpr Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Home,     Qt::Key_End,
                                       Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab};
    PaneList& walked = anyList();
    walked.setFocus();
    if (chance_.oneIn(12)) return press(Qt::Key_A, Qt::ControlModifier);
    press(chance_.of(keys), chance_.of(selecting));
}

void Gestures::typeAhead() {
    PaneList& searched = anyList();
    searched.setFocus();
    // Forgets what was typed before, however long ago that was.
    searched.keyboardSearch({});
    static constexpr Qt::Key keys[] = {Qt::Key_W, Qt::Key_S, Qt::Key_1, Qt::Key_Space, Qt::Key_Z};
    press(chance_.of(keys));
}

void Gestures::doubleClick() {
    PaneList& clicked = chance_.oneIn(3) ? list("scriptList") : palette();
    QTest::mouseDClick(window_.windowHandle(), Qt::LeftButton, {}, onSomeRow(clicked));
}

void Gestures::pressReturn() {
    anyList().setFocus();
    press(Qt::Key_Return);
}

void Gestures::dragFromPalette() {
    PaneList& source = palette();
    const QPoint to = chance_.oneIn(3) ? anywhere() : onSomeRow(list("scriptList"));
    drag(onSomeRow(source), to);
}

void Gestures::dragInScript() {
    PaneList& script = list("scriptList");
    const QPoint to = chance_.oneIn(3) ? anywhere() : onSomeRow(script);
    drag(onSomeRow(script), to);
}

// Something comes in between: Escape, another key, another button, another window.
void Gestures::spoilDrag() {
    const QPoint from = onSomeRow(anyList());
    mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    mouse(QEvent::MouseMove, anywhere(), Qt::LeftButton);
    switch (chance_.below(5)) {
        case 0: press(Qt::Key_Escape); break;
        case 1: press(Qt::Key_Delete); break;
        case 2: QTest::mouseClick(window_.windowHandle(), Qt::RightButton, {}, anywhere()); break;
        case 3: press(Qt::Key_V, Qt::ControlModifier); break;
        default:
            QApplication::sendEvent(&window_,
                                    std::make_unique<QEvent>(QEvent::WindowDeactivate).get());
    }
    mouse(QEvent::MouseMove, anywhere(), Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, anywhere(), Qt::LeftButton);
}

void Gestures::moveByKeys() {
    list("scriptList").setFocus();
    press(chance_.oneIn(2) ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
}

void Gestures::editKey() {
    struct Shortcut {
        Qt::Key key;
        Qt::KeyboardModifiers held;
    };
    static constexpr Shortcut shortcuts[] = {
        {Qt::Key_X, Qt::ControlModifier}, {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_V, Qt::ControlModifier},
        {Qt::Key_Delete, Qt::NoModifier}, {Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier}};
    const Shortcut& shortcut = chance_.of(shortcuts);
    anyList().setFocus();
    press(shortcut.key, shortcut.held);
}

void Gestures::fileKey() {
    switch (chance_.below(6)) {
        case 0: return press(Qt::Key_N, Qt::ControlModifier);
        case 1: return press(Qt::Key_O, Qt::ControlModifier);
        case 2: return press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        case 3: return press(Qt::Key_S, Qt::ControlModifier);
        default: return press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    }
}

void Gestures::undoOrRedo() {
    const bool undo = !chance_.oneIn(3);
    for (std::size_t steps = 1 + chance_.below(4); steps > 0; --steps) {
        press(undo ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
    }
}

void Gestures::findSomething() {
    press(Qt::Key_F, Qt::ControlModifier);
    QApplication::processEvents();
    for (const QChar character : someText(chance_).left(8)) {
        QTest::sendKeyEvent(QTest::Click, window_.focusWidget(), Qt::Key_unknown,
                            QString(character), {});
    }
}

void Gestures::useFindBar() {
    switch (chance_.below(4)) {
        case 0: return press(Qt::Key_F3);
        case 1: return press(Qt::Key_F3, Qt::ShiftModifier);
        default: break;
    }
    if (auto* bar = window_.findChild<QWidget*>(QStringLiteral("findBar")); bar->isVisible()) {
        bar->findChild<QWidget*>(QStringLiteral("findText"))->setFocus();
        press(chance_.oneIn(2) ? Qt::Key_Return : Qt::Key_Escape);
    }
}

void Gestures::clickToolButton() {
    const auto* bar = window_.findChild<QWidget*>(QStringLiteral("toolBar"));
    const auto buttons = bar->findChildren<QToolButton*>();
    const QToolButton& button = *chance_.of(buttons);
    if (button.isVisible()) click(button.mapTo(&window_, button.rect().center()));
}

void Gestures::useMenu() {
    static constexpr const char* menus[] = {"fileMenu", "editMenu", "entryMenu", "modeMenu",
                                            "helpMenu"};
    auto* menu = window_.findChild<QMenu*>(QLatin1String(chance_.of(menus)));
    menu->popup(window_.mapToGlobal(QPoint(20, 20)));
    for (std::size_t steps = 1 + chance_.below(8); steps > 0; --steps) {
        QTest::keyClick(menu, Qt::Key_Down);
    }
    QTest::keyClick(menu, chance_.oneIn(4) ? Qt::Key_Escape : Qt::Key_Return);
}

void Gestures::resizeWindow() {
    window_.resize(200 + chance_.row(1200), 150 + chance_.row(900));
}

void Gestures::turnWheel() {
    QWidget& turned = *anyList().viewport();
    const QPointF point = turned.rect().center();
    const QPoint angle(0, chance_.oneIn(2) ? 480 : -480);
    QWheelEvent event(point, turned.mapToGlobal(point), {}, angle, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&turned, &event);
}

void Gestures::closeWindow() {
    window_.close();
    QApplication::processEvents();
    // The next one would start with the same document.
    window_.show();
    QApplication::setActiveWindow(&window_);
}

PaneList& Gestures::list(const char* name) {
    return *window_.findChild<PaneList*>(QLatin1String(name));
}

PaneList& Gestures::palette() {
    return list(listNames[chance_.below(3)]);
}

PaneList& Gestures::anyList() {
    return list(chance_.of(listNames));
}

QPoint Gestures::onRow(PaneList& shown, int row) {
    shown.scrollTo(shown.model()->index(row, 0));
    const int x = 10 + chance_.row(std::max(1, shown.viewport()->width() - 20));
    return shown.viewport()->mapTo(&window_, QPoint(x, shown.rowRect(row).center().y()));
}

QPoint Gestures::onSomeRow(PaneList& shown) {
    const int rows = shown.model()->rowCount();
    return rows == 0 || chance_.oneIn(20) ? anywhere() : onRow(shown, chance_.row(rows));
}

// Also beyond the edges of the window, and of the screen.
QPoint Gestures::anywhere() {
    return {chance_.row(window_.width() + 200) - 100, chance_.row(window_.height() + 200) - 100};
}

void Gestures::mouse(QEvent::Type type, QPoint point, Qt::MouseButton button,
                     Qt::KeyboardModifiers held) {
    QWindow* handle = window_.windowHandle();
    switch (type) {
        case QEvent::MouseButtonPress: return QTest::mousePress(handle, button, held, point);
        case QEvent::MouseButtonRelease: return QTest::mouseRelease(handle, button, held, point);
        default: return QTest::mouseMove(handle, point);
    }
}

void Gestures::click(QPoint point, Qt::KeyboardModifiers held) {
    mouse(QEvent::MouseButtonPress, point, Qt::LeftButton, held);
    mouse(QEvent::MouseButtonRelease, point, Qt::LeftButton, held);
}

void Gestures::press(Qt::Key key, Qt::KeyboardModifiers held) {
    QWidget* focused = window_.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window_, key, held);
}

void Gestures::drag(QPoint from, QPoint to) {
    mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    mouse(QEvent::MouseMove, from + (to - from) / 2, Qt::LeftButton);
    mouse(QEvent::MouseMove, to, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

}  // namespace quendra::test
