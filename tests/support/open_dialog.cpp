#include "support/open_dialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QListView>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <sstream>

namespace quendra::test {

namespace {

QPoint pointOn(QListView& list, const std::string& text) {
    const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole,
                                           QString::fromStdString(text), 1, Qt::MatchExactly);
    if (found.isEmpty()) throw std::runtime_error("no row " + text);
    list.scrollTo(found.front());
    return list.visualRect(found.front()).center();
}

QWidget& selectAllIn(QWidget& field) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    return field;
}

}  // namespace

void typeInto(QWidget& widget, const std::string& text) {
    for (const QChar character : QString::fromStdString(text)) {
        const QString keys = character == u'\n' ? QStringLiteral("\r") : QString(character);
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, &widget, character == u'\n' ? Qt::Key_Return : key, keys,
                            Qt::NoModifier);
    }
}

void pasteInto(QWidget& widget, const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void clickOn(QWidget& widget) {
    // The middle of a check box may lie behind its text.
    const bool isBox = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
    const QPoint place = isBox ? QPoint(8, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
}

void OpenDialog::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget* focus = dialog->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : dialog, key, modifiers);
}

void OpenDialog::type(const std::string& keys) const {
    typeInto(*dialog->focusWidget(), keys);
}

void OpenDialog::retype(const std::string& field, const std::string& keys) const {
    QTest::keyClick(&selectAllIn(widget(field)), Qt::Key_Delete);
    typeInto(widget(field), keys);
}

void OpenDialog::repaste(const std::string& field, const std::string& text) const {
    pasteInto(selectAllIn(widget(field)), text);
}

void OpenDialog::choose(const std::string& list, int item) const {
    widget(list).setFocus();
    QTest::keyClick(&widget(list), Qt::Key_Home);
    for (int i = 0; i < item; ++i)
        QTest::keyClick(&widget(list), Qt::Key_Down);
}

void OpenDialog::showTab(int page) const {
    auto& bar = *widget<QTabWidget>("tabs").tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
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

std::string OpenDialog::shown(const std::string& name) const {
    const char* property = widget(name).inherits("QComboBox")        ? "currentText"
                           : widget(name).inherits("QPlainTextEdit") ? "plainText"
                                                                     : "text";
    return widget(name).property(property).toString().toStdString();
}

std::string OpenDialog::states(const std::string& names, const char* property) const {
    std::istringstream words(names);
    std::string result;
    for (std::string name; words >> name;)
        result += widget(name).property(property).toBool() ? '1' : '0';
    return result;
}

bool OpenDialog::has(const char* name) const {
    return dialog->findChild<QWidget*>(QLatin1String(name)) != nullptr;
}

std::string OpenDialog::selected(const char* list) const {
    const auto rows = widget<QListView>(list).selectionModel()->selectedIndexes();
    return rows.isEmpty() ? "" : rows.front().data().toString().toStdString();
}

std::string OpenDialog::focused() const {
    const QWidget* focus = dialog->focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
}

}  // namespace quendra::test
