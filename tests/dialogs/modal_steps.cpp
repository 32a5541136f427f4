#include "dialogs/modal_steps.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QApplication>
#include <QItemSelectionModel>
#include <QThread>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace quendra::test {

namespace {

constexpr int lookEvery = 2;
constexpr int looksUntilGivingUp = 400;

QModelIndex rowOf(const QListView& list, const std::string& text) {
    const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole,
                                           QString::fromStdString(text), 1,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found.isEmpty()) throw std::runtime_error("no row " + text);
    return found.front();
}

QPoint pointOn(QListView& list, const std::string& text) {
    const QModelIndex row = rowOf(list, text);
    list.scrollTo(row);
    return list.visualRect(row).center();
}

// A dialog that was just hidden still has its event loop; what opened it goes on only after that.
bool everyLoopHasItsDialog() {
    const auto windows = QApplication::topLevelWidgets();
    const auto shown = std::count_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isModal() && window->isVisible();
    });
    return QThread::currentThread()->loopLevel() == shown;
}

}  // namespace

void OpenDialog::click(const char* button) const {
    QTest::mouseClick(&widget<QWidget>(button), Qt::LeftButton, {},
                      QPoint(8, widget<QWidget>(button).height() / 2));
}

void OpenDialog::press(Qt::Key key) const {
    QTest::keyClick(dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog, key);
}

void OpenDialog::type(const char* keys) const {
    QTest::keyClicks(dialog.focusWidget(), QLatin1String(keys));
}

void OpenDialog::retype(const char* name, const std::string& keys) const {
    auto& field = widget<QWidget>(name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromStdString(keys));
}

void OpenDialog::clickRow(const char* list, const std::string& text) const {
    auto& view = widget<QListView>(list);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, pointOn(view, text));
}

void OpenDialog::doubleClickRow(const char* list, const std::string& text) const {
    auto& view = widget<QListView>(list);
    const QPoint point = pointOn(view, text);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, point);
    QCoreApplication::processEvents();
}

std::string OpenDialog::title() const {
    return dialog.windowTitle().toStdString();
}

std::string OpenDialog::shown(const char* name) const {
    const auto& field = widget<QWidget>(name);
    const char* property = field.inherits("QComboBox") ? "currentText" : "text";
    return field.property(property).toString().toStdString();
}

bool OpenDialog::isChecked(const char* button) const {
    return widget<QAbstractButton>(button).isChecked();
}

bool OpenDialog::isEnabled(const char* name) const {
    return widget<QWidget>(name).isEnabled();
}

bool OpenDialog::has(const char* name) const {
    return dialog.findChild<QWidget*>(QLatin1String(name)) != nullptr;
}

std::string OpenDialog::selected(const char* list) const {
    const auto rows = widget<QListView>(list).selectionModel()->selectedIndexes();
    return rows.isEmpty() ? "" : rows.front().data().toString().toStdString();
}

std::string OpenDialog::focused() const {
    const QWidget* focus = dialog.focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
}

ModalSteps::ModalSteps() = default;

ModalSteps::~ModalSteps() {
    EXPECT_TRUE(steps_.empty()) << "never opened: " << steps_.front().dialog;
}

void ModalSteps::in(const char* dialog, std::function<void(const OpenDialog&)> step) {
    steps_.push_back({dialog, std::move(step)});
}

bool ModalSteps::run(const std::function<bool()>& operation) {
    running_ = true;
    idleLooks_ = 0;
    watch();
    const bool result = operation();
    running_ = false;
    return result;
}

// A repeating timer would stand still while a step is in a dialog that it opened itself.
void ModalSteps::watch() {
    QTimer::singleShot(lookEvery, this, [this] {
        if (!running_) return;
        watch();
        look();
    });
}

void ModalSteps::look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const bool ready = dialog != nullptr && everyLoopHasItsDialog() && !steps_.empty() &&
                       dialog->objectName().toStdString() == steps_.front().dialog;
    if (!ready) {
        if (++idleLooks_ > looksUntilGivingUp) giveUp();
        return;
    }
    idleLooks_ = 0;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    QApplication::setActiveWindow(dialog);
    try {
        step.act({*dialog});
    } catch (const std::exception& fault) {
        ADD_FAILURE() << "in " << step.dialog << ": " << fault.what();
        giveUp();
    }
}

void ModalSteps::giveUp() {
    QWidget* open = QApplication::activeModalWidget();
    const std::string awaited = steps_.empty() ? "no more" : steps_.front().dialog;
    ADD_FAILURE() << "awaited " << awaited << ", but there is "
                  << (open == nullptr ? "none" : open->objectName().toStdString());
    steps_.clear();
    while (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        dialog->reject();
        if (dialog->isVisible()) break;
    }
}

}  // namespace quendra::test
