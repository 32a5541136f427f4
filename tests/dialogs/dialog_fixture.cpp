#include "dialogs/dialog_fixture.h"

#include <QClipboard>

#include <fstream>

namespace quendra {

void PrintTo(Slot slot, std::ostream* out) {
    *out << (slot == Slot::Entry ? "entry" : slot == Slot::Then ? "then" : "else");
}

void PrintTo(const ScriptEntry& entry, std::ostream* out) {
    for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
        const auto f = slotFields(entry, slot);
        PrintTo(slot, out);
        *out << ": code " << static_cast<int>(f.code) << " text \"" << textOf(f) << "\" row "
             << int{f.row} << " column " << int{f.column} << " number " << f.number << " id "
             << f.commandId << " data " << f.commandData << std::hex << " area " << f.area
             << std::dec << " length " << int{f.maxLength} << " hidden " << int{f.hidden}
             << " variable " << int{f.inputVariable} << " prompt \"" << promptOf(f) << "\" until "
             << f.waitUntil.year << '-' << f.waitUntil.month << '-' << f.waitUntil.day << " ("
             << f.waitUntil.dayOfWeek << ") " << f.waitUntil.hour << ':' << f.waitUntil.minute
             << ':' << f.waitUntil.second << '.' << f.waitUntil.milliseconds << '\n';
    }
}

namespace test {

ScriptEntry newEntry(CommandCode code) {
    ScriptEntry entry;
    entry.commandCode = code;
    entry.number = code == CommandCode::WaitReady ? 1 : 3;
    entry.maxLength = 255;
    if (code == CommandCode::Copy) entry.commandId = packArea({1, 1, 24, 80});
    if (code == CommandCode::Paste) entry.commandId = packArea({1, 1, 0, 0});
    if (code == CommandCode::Copy || code == CommandCode::Paste) entry.number = 0;
    return entry;
}

void typeText(QWidget& widget, const QString& text) {
    for (const QChar character : text) {
        const Qt::Key key = character == u'\n' ? Qt::Key_Return : Qt::Key_unknown;
        const QString keyText = character == u'\n' ? QStringLiteral("\r") : QString(character);
        QTest::sendKeyEvent(QTest::Click, &widget, key, keyText, Qt::NoModifier);
    }
}

void clickOn(QWidget& widget) {
    const bool isBox = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
    const QPoint place = isBox ? QPoint(8, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
}

void pasteInto(QWidget& widget, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void DialogTest::open(Slot slot, ActionOwner owner) {
    dialog = makeCommandDialog({state, nullptr}, {entry, slot, owner});
    if (dialog == nullptr) throw std::runtime_error("the command has no dialog");
    dialog->load();
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    QCoreApplication::processEvents();
}

void DialogTest::openNew(CommandCode code) {
    entry = newEntry(code);
    open();
}

void DialogTest::useLanguage(const std::string& name) {
    std::ofstream(state.settings.configDir / "language.ini")
        << "[Language]\nLanguage=" << name << '\n';
    const auto& settings = state.settings;
    const auto notice =
        state.language.load({settings.programDir, settings.configDir, settings.installDir});
    if (notice) throw std::runtime_error(notice->text);
}

std::string DialogTest::focused() const {
    const QWidget* focus = dialog->focusWidget();
    return focus == nullptr ? "nothing" : focus->objectName().toStdString();
}

void DialogTest::retype(const char* name, const QString& text) {
    auto& edit = widget<QLineEdit>(name);
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete);
    typeText(edit, text);
}

}  // namespace test
}  // namespace quendra
