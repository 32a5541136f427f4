// Hands that do at random whatever an open dialog or message box allows, until it closes.
#pragma once

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

#include <functional>
#include <iterator>
#include <random>

namespace quendra::test {

/// The choices of one storm: the same seed makes the same ones.
class Chance {
  public:
    explicit Chance(unsigned int seed) : random_(seed) {}

    [[nodiscard]] std::size_t below(std::size_t count) { return random_() % count; }
    /// A row, or a coordinate, from 0.
    [[nodiscard]] int row(int count) {
        return static_cast<int>(below(static_cast<std::size_t>(count)));
    }
    [[nodiscard]] bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class Range>
    [[nodiscard]] const auto& of(const Range& range) {
        return *std::next(std::begin(range), row(static_cast<int>(std::size(range))));
    }
    /// Some text as it may be typed or pasted: short or too long, with what windows-1252 lacks.
    [[nodiscard]] QString text() {
        static constexpr const char* texts[] = {
            "1", "24", "300", "READY", "-7", "a \"b\" \\ c", "\u00e4\u20ac", "\u4e2d", "%s%n"};
        if (oneIn(12)) return QString(260, QLatin1Char('x'));
        return QString::fromUtf8(of(texts));
    }

  private:
    std::mt19937 random_;
};

/// Types a text key by key.
inline void typeText(QWidget& widget, const QString& text) {
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(character), {});
}

/// Works on modal dialogs while gestures run. Every dialog ends after a few touches.
class ModalHands {
  public:
    explicit ModalHands(Chance& chance) : chance_(chance) {}

    /// Runs a gesture, and works on every dialog that it opens.
    void during(const std::function<void()>& gesture) {
        const auto all = [&gesture] {
            gesture();
            QApplication::processEvents();
            // A click on the menu bar, and the button for what a narrow window has no room for.
            while (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
        };
        lookDuring(all, [this] { look(); });
    }
    /// How often something was done in a dialog or a message box.
    [[nodiscard]] int touches() const { return touches_; }

  private:
    void look() {
        // The menu of a right click has a loop of its own, in which gestures stand still.
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
            return;
        }
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !everyLoopHasItsDialog()) return;
        QApplication::setActiveWindow(dialog);
        ++touches_;
        if (const auto* box = qobject_cast<QMessageBox*>(dialog))
            return chance_.of(box->buttons())->click();
        touch(*dialog);
    }

    void touch(QWidget& dialog) {
        constexpr int touchesPerDialog = 6;
        constexpr int deepest = 5;
        const int touches = dialog.property("stormTouches").toInt();
        dialog.setProperty("stormTouches", touches + 1);
        const bool deep = QThread::currentThread()->loopLevel() >= deepest;
        if (deep || chance_.row(touchesPerDialog) < touches)
            return finish(dialog, deep ? patience : touches);
        QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
        widgets.removeIf([&dialog](const QWidget* widget) {
            return !widget->isEnabled() || !widget->isVisibleTo(&dialog) ||
                   widget->focusPolicy() == Qt::NoFocus || widget->objectName() == u"ok" ||
                   widget->objectName() == u"cancel";
        });
        if (widgets.isEmpty()) return finish(dialog, touches);
        touchWidget(*chance_.of(widgets));
    }

    void touchWidget(QWidget& widget) {
        if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->click();
        if (auto* list = qobject_cast<QListView*>(&widget)) return touchList(*list);
        if (auto* tabs = qobject_cast<QTabBar*>(&widget))
            return tabs->setCurrentIndex(chance_.row(tabs->count()));
        widget.setFocus();
        if (auto* box = qobject_cast<QComboBox*>(&widget))
            return box->setCurrentIndex(chance_.row(box->count()));
        static constexpr Qt::Key keys[] = {
            Qt::Key_Home, Qt::Key_End,  Qt::Key_Left,   Qt::Key_Backspace, Qt::Key_Delete,
            Qt::Key_Tab,  Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Space,     Qt::Key_Backtab};
        if (chance_.oneIn(2)) QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        if (chance_.oneIn(3)) return QTest::keyClick(&widget, chance_.of(keys));
        typeText(widget, chance_.text());
    }

    void touchList(QListView& list) {
        const int rows = list.model()->rowCount(list.rootIndex());
        if (rows == 0) return;
        const QModelIndex row = list.model()->index(chance_.row(rows), 0, list.rootIndex());
        list.scrollTo(row);
        const QPoint point = list.visualRect(row).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
        if (chance_.oneIn(2)) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
    }

    void finish(QWidget& dialog, int touches) {
        const auto click = [&dialog](const char* name) {
            if (auto* button = dialog.findChild<QAbstractButton*>(QLatin1String(name)))
                button->click();
        };
        if (touches >= patience) {
            // The About box closes with its button only.
            click("ok");
            return static_cast<QDialog&>(dialog).reject();
        }
        switch (chance_.below(5)) {
            case 0: return QTest::keyClick(&dialog, Qt::Key_Escape);
            case 1: return QTest::keyClick(&dialog, Qt::Key_Return);
            case 2: return click("cancel");
            default: return click("ok");
        }
    }

    /// A dialog that refuses its OK so often is cancelled.
    static constexpr int patience = 12;
    Chance& chance_;
    int touches_ = 0;
};

}  // namespace quendra::test
