#include "transfer/transfer_sheet_driver.h"

#include "dialogs/dialog_fixture.h"
#include "platform/text_encoding.h"
#include "transfer/transfer_sheet_page.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <fstream>

namespace quendra::test {

bool OpenSheet::isEnabled(const char* name) {
    return widget<QWidget>(QLatin1String(name)).isEnabled();
}

bool OpenSheet::isChecked(const char* name) {
    return widget<QAbstractButton>(QLatin1String(name)).isChecked();
}

QString OpenSheet::text(const char* name) {
    return widget<QLineEdit>(QLatin1String(name)).text();
}

void OpenSheet::showPage(int page) {
    auto& bar = *widget<QTabWidget>(QStringLiteral("tabs")).tabBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
}

void OpenSheet::click(const char* name) {
    clickOn(widget<QAbstractButton>(QLatin1String(name)));
}

void OpenSheet::type(const char* name, const QString& keys) {
    auto& edit = widget<QLineEdit>(QLatin1String(name));
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete);
    typeText(edit, keys);
}

void OpenSheet::paste(const char* name, const QString& text) {
    auto& edit = widget<QLineEdit>(QLatin1String(name));
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    pasteInto(edit, text);
}

void OpenSheet::choose(const char* name, int item) {
    auto& list = widget<QComboBox>(QLatin1String(name));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < item; ++i)
        QTest::keyClick(&list, Qt::Key_Down);
}

bool TransferSheetTest::open(const std::function<void(OpenSheet&)>& work) {
    QTimer::singleShot(0, qApp, [&work] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) throw std::runtime_error("no sheet was opened");
        QApplication::setActiveWindow(dialog);
        OpenSheet sheet(*dialog);
        try {
            work(sheet);
        } catch (const std::exception& error) {
            // No exception may pass through the event loop.
            ADD_FAILURE() << error.what();
        }
        if (dialog->isVisible()) dialog->reject();
    });
    return editTransferSettings({state, nullptr}, host, TransferDirection::Send);
}

void TransferSheetTest::speak(const char* language) {
    std::ofstream(state.settings.configDir / "language.ini")
        << "[language]\nLanguage=" << language << "\n";
    const auto notice = state.language.load(
        {state.settings.programDir, state.settings.configDir, state.settings.installDir});
    ASSERT_FALSE(notice) << notice->text;
}

std::string TransferSheetTest::stored(const TransferField& field) const {
    return utf8FromWindows1252(transferText(settings, field));
}

std::uint32_t TransferSheetTest::number(const TransferField& field) const {
    return transferNumber(settings, field);
}

}  // namespace quendra::test
