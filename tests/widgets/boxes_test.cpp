// The real message boxes and file dialogs, answered by keys as a user would; the status line.
#include "support/fixtures.h"
#include "support/temporary_folder.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"
#include "widgets/status_line.h"
#include "widgets/tool_tip.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

// Runs `answer` on the next dialog as soon as it is there, and closes it when it is still open
// after that, so that a wrong answer fails the test instead of holding it up.
void inNextDialog(const std::function<void(QWidget&)>& answer) {
    QTimer::singleShot(0, [answer] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        ASSERT_FALSE(dialog.isNull());
        answer(*dialog);
        EXPECT_TRUE(dialog.isNull() || !dialog->isVisible()) << "the answer did not close it";
        if (!dialog.isNull()) dialog->close();
    });
}

TEST(MessageBoxTest, KeysGiveTheAnswerThatTheyMean) {
    using enum MessageAnswer;
    const std::tuple<MessageButtons, bool, MessageAnswer, MessageAnswer> rows[] = {
        {MessageButtons::Ok, false, Ok, Ok},
        {MessageButtons::YesNo, false, Yes, No},
        {MessageButtons::YesNo, true, No, No},
        {MessageButtons::YesNoCancel, false, Yes, Cancel}};
    for (const auto& [buttons, defaultsToNo, onReturn, onEscape] : rows) {
        const Message message{"<b>file</b>", "Title", MessageIcon::Question, buttons, defaultsToNo};
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            inNextDialog([key](QWidget& box) {
                EXPECT_EQ(box.windowTitle(), QStringLiteral("Title"));
                EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
                QTest::keyClick(&box, key);
            });
            EXPECT_EQ(askMessage(nullptr, message), key == Qt::Key_Return ? onReturn : onEscape);
        }
    }
}

TEST(MessageBoxTest, IsWideEnoughForItsTitleAndForEveryPieceOfItsText) {
    const std::string title = "Unable to load language library";
    for (const std::string& text : {std::string("/a.qm"), "/opt/" + std::string(250, 'x')}) {
        inNextDialog([](QWidget& box) {
            QFont bold = box.font();
            bold.setBold(true);
            EXPECT_GT(box.width(), QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + 100);
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            const QRect needed = label->fontMetrics().boundingRect(label->contentsRect(),
                                                                   Qt::TextWordWrap, label->text());
            EXPECT_GE(label->width(), needed.width());
            EXPECT_GE(label->height(), needed.height());
            QTest::keyClick(&box, Qt::Key_Return);
        });
        showMessage(nullptr, {text, title});
    }
}

TEST(StatusLineTest, TheToolTipOfWhatIsCutShowsItAsItStands) {
    StatusLine line;
    line.resize(20, 20);
    line.setLine(QStringLiteral("<b>bold</b>.qds saved"));
    EXPECT_TRUE(line.toolTip().contains(QStringLiteral("&lt;b&gt;bold")));
    QToolTip::showText({}, wrappingToolTip(QStringLiteral("So wide ").repeated(12)));
    ASSERT_TRUE(QToolTip::isVisible());
    int width = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel")) width = window->width();
    }
    EXPECT_GT(width, 400) << "no column of a few words";
    QToolTip::hideText();
}

TEST(FileDialogTest, StartsInTheFolderAddsTheExtensionAndNeverAsksToOverwrite) {
    const TemporaryFolder folder;
    for (const char* name : {"taken.qds", "there.2"})
        writeBytes(folder / name, bytesOf("x"));
    using enum FileDialogMode;
    const std::tuple<FileDialogMode, const char*, const char*> rows[] = {
        {Save, "new", "new.qds"},
        {Save, "taken", "taken.qds"},
        {Save, "taken.qds", "taken.qds"},
        {Save, "other.txt", "other.txt"},
        {Save, "release1.2", "release1.2.qds"},
        {Save, "there.2", "there.2"},
        {Save, "A.QDS", "A.QDS"},
        {Open, "taken", "taken.qds"}};
    for (const auto& [mode, typed, chosen] : rows) {
        inNextDialog([name = typed](QWidget& dialog) {
            auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            QTest::keyClicks(field, QLatin1String(name));
            QTest::keyClick(field, Qt::Key_Return);
        });
        const FileDialogRequest request{mode, "Title", "Scripts(*.qds)", "qds", folder.path()};
        EXPECT_EQ(chooseFile(nullptr, request), folder / chosen);
        inNextDialog([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        EXPECT_EQ(chooseFile(nullptr, request), std::nullopt);
    }
    EXPECT_EQ(fileDialogFilter({Open, {}, "Scripts(*.qds)", "qds", {}}),
              QStringLiteral("Scripts(*.qds)"));
    EXPECT_EQ(fileDialogFilter({Open, {}, "Programs", "exe", {}}),
              QStringLiteral("Programs (*.exe)"));
}

}  // namespace
}  // namespace quendra::test
