#include "app/storm_hands.h"

#include "support/modal_looks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListView>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>
#include <QThread>

namespace quendra::test {

namespace {

constexpr int touchesPerDialog = 6;
/// A dialog that refuses its OK so often is cancelled.
constexpr int patience = 12;
constexpr int deepest = 5;

const char* const touchesProperty = "stormTouches";

constexpr Qt::Key editingKeys[] = {Qt::Key_Home,   Qt::Key_End,   Qt::Key_Left,  Qt::Key_Backspace,
                                   Qt::Key_Delete, Qt::Key_Tab,   Qt::Key_Up,    Qt::Key_Down,
                                   Qt::Key_PageUp, Qt::Key_Space, Qt::Key_Right, Qt::Key_Backtab};

bool canBeTouched(const QWidget& widget, const QWidget& dialog) {
    return widget.isEnabled() && widget.isVisibleTo(&dialog) && widget.focusPolicy() != Qt::NoFocus;
}

QList<QWidget*> touchable(const QWidget& dialog) {
    QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
    widgets.removeIf([&](const QWidget* widget) {
        const QString name = widget->objectName();
        return !canBeTouched(*widget, dialog) || name == QLatin1String("ok") ||
               name == QLatin1String("cancel");
    });
    return widgets;
}

void pressButton(const QWidget& dialog, const char* name) {
    if (auto* button = dialog.findChild<QAbstractButton*>(QLatin1String(name))) button->click();
}

void answerBox(Chance& chance, const QMessageBox& box) {
    chance.of(box.buttons())->click();
}

void touchList(Chance& chance, QListView& list) {
    const int rows = list.model()->rowCount(list.rootIndex());
    if (rows == 0) return;
    const QModelIndex row = list.model()->index(chance.row(rows), 0, list.rootIndex());
    list.scrollTo(row);
    const QPoint point = list.visualRect(row).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
    if (!chance.oneIn(2)) return;
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
}

void touchWidget(Chance& chance, QWidget& widget) {
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->click();
    if (auto* list = qobject_cast<QListView*>(&widget)) return touchList(chance, *list);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        return tabs->setCurrentIndex(chance.row(tabs->count()));
    }
    widget.setFocus();
    if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        return box->setCurrentIndex(chance.row(box->count()));
    }
    if (chance.oneIn(2)) QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    if (chance.oneIn(3)) return QTest::keyClick(&widget, chance.of(editingKeys));
    for (const QChar character : someText(chance)) {
        QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(character), {});
    }
}

}  // namespace

QString someText(Chance& chance) {
    static const QString texts[] = {QStringLiteral("1"),
                                    QStringLiteral("24"),
                                    QStringLiteral("300"),
                                    QStringLiteral("READY"),
                                    QStringLiteral("-7"),
                                    QStringLiteral("a \"b\" \\ c"),
                                    QStringLiteral("\u00e4\u20ac"),
                                    QStringLiteral("\u4e2d"),
                                    QStringLiteral("%s%n")};
    if (chance.oneIn(12)) return QString(260, QLatin1Char('x'));
    return chance.of(texts);
}

int ModalHands::during(const std::function<void()>& gesture) {
    touches_ = 0;
    const auto all = [&gesture] {
        gesture();
        QApplication::processEvents();
        // A click on the menu bar, and the button for what a narrow window has no room for.
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    };
    lookDuring(all, [this] { look(); });
    return touches_;
}

void ModalHands::look() {
    // The menu of a right click has a loop of its own, in which gestures stand still.
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !everyLoopHasItsDialog()) return;
    QApplication::setActiveWindow(dialog);
    ++touches_;
    if (const auto* box = qobject_cast<QMessageBox*>(dialog)) return answerBox(chance_, *box);
    touch(*dialog);
}

void ModalHands::touch(QWidget& dialog) {
    const int touches = dialog.property(touchesProperty).toInt();
    dialog.setProperty(touchesProperty, touches + 1);
    const bool deep = QThread::currentThread()->loopLevel() >= deepest;
    if (deep || chance_.row(touchesPerDialog) < touches)
        return finish(dialog, deep ? patience : touches);
    const QList<QWidget*> widgets = touchable(dialog);
    if (widgets.isEmpty()) return finish(dialog, touches);
    touchWidget(chance_, *chance_.of(widgets));
}

void ModalHands::finish(QWidget& dialog, int touches) {
    if (touches >= patience) {
        // The About box closes with its button only.
        pressButton(dialog, "ok");
        return static_cast<QDialog&>(dialog).reject();
    }
    switch (chance_.below(5)) {
        case 0: return QTest::keyClick(&dialog, Qt::Key_Escape);
        case 1: return QTest::keyClick(&dialog, Qt::Key_Return);
        case 2: return pressButton(dialog, "cancel");
        default: return pressButton(dialog, "ok");
    }
}

}  // namespace quendra::test
