// The real message boxes and file dialogs, answered by keys as a user would.
#include "app/file_dialogs.h"
#include "app/message_box.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

// Runs `answer` on the next dialog as soon as it is there; a dialog that is still open after that
// is closed, so that a wrong answer fails the test instead of holding it up.
class Answerer {
  public:
    explicit Answerer(std::function<void(QWidget&)> answer) : answer_(std::move(answer)) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(5);
    }
    ~Answerer() { EXPECT_EQ(left_, 0) << "the answer did not close the dialog"; }

  private:
    void look() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) return;
        if (answer_) {
            // Not from here: a box that the answer opens is to be seen as well.
            QTimer::singleShot(0, dialog,
                               [dialog, act = std::exchange(answer_, {})] { act(*dialog); });
        } else if (++left_ > 0) {
            dialog->close();
        }
    }

    std::function<void(QWidget&)> answer_;
    QTimer timer_;
    int left_ = 0;
};

TEST(MessageBoxTest, KeysGiveTheAnswerThatTheyMean) {
    using enum MessageAnswer;
    const std::tuple<MessageButtons, bool, MessageAnswer, MessageAnswer> rows[] = {
        {MessageButtons::Ok, false, Ok, Ok},
        {MessageButtons::YesNo, false, Yes, No},
        {MessageButtons::YesNo, true, No, No},
        {MessageButtons::YesNoCancel, false, Yes, Cancel}};
    for (const auto& [buttons, defaultsToNo, onReturn, onEscape] : rows) {
        const Message message{"Text", "Title", MessageIcon::Question, buttons, defaultsToNo};
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            const Answerer answerer([key](QWidget& box) { QTest::keyClick(&box, key); });
            EXPECT_EQ(askMessage(nullptr, message), key == Qt::Key_Return ? onReturn : onEscape);
        }
    }
}

TEST(MessageBoxTest, ShowsTitleIconAndTextThatLooksLikeMarkupAsItIs) {
    const Answerer answerer([](QWidget& dialog) {
        auto* box = dynamic_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(box->text(), QStringLiteral("<b>file</b>"));
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->close();
    });
    showMessage(nullptr, {"<b>file</b>", "Title", MessageIcon::Exclamation});
}

class FileDialogTest : public testing::Test {
  protected:
    FileDialogTest() { writeBytes(folder / "taken.qds", bytesOf("x")); }

    std::optional<std::filesystem::path> choose(FileDialogMode mode,
                                                std::function<void(QWidget&)> answer) {
        const Answerer answerer(std::move(answer));
        return chooseFile(nullptr, {mode, "Some Title", "Scripts(*.qds)", "qds", folder.path()});
    }
    static std::function<void(QWidget&)> typing(const char* name) {
        return [name](QWidget& dialog) {
            auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(field, nullptr);
            QTest::keyClicks(field, QLatin1String(name));
            QTest::keyClick(field, Qt::Key_Return);
        };
    }

    const TemporaryFolder folder;
};

TEST_F(FileDialogTest, SaveAddsTheExtensionAndNeverAsksToOverwrite) {
    for (const char* name : {"new", "taken"})
        EXPECT_EQ(choose(FileDialogMode::Save, typing(name)),
                  folder / (std::string(name) + ".qds"));
    for (const char* name : {"taken.qds", "other.txt"})
        EXPECT_EQ(choose(FileDialogMode::Save, typing(name)), folder / name);
    EXPECT_EQ(choose(FileDialogMode::Open, typing("taken")), folder / "taken.qds");
}

TEST_F(FileDialogTest, StartsInTheFolderWithTheFilterAndTitleAndCancelGivesNone) {
    const auto choice = choose(FileDialogMode::Open, [this](QWidget& widget) {
        auto* dialog = qobject_cast<QFileDialog*>(&widget);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->directory().path().toStdString(), folder.path().string());
        EXPECT_EQ(dialog->nameFilters(), QStringList(QStringLiteral("Scripts(*.qds)")));
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Some Title"));
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(choice, std::nullopt);
}

TEST_F(FileDialogTest, FilterNamesThePatternOnce) {
    const auto filter = [](const char* description, const char* extension) {
        return fileDialogFilter({FileDialogMode::Open, {}, description, extension, {}});
    };
    EXPECT_EQ(filter("Quendra VT(*.qvt)", "qvt"), QStringLiteral("Quendra VT(*.qvt)"));
    EXPECT_EQ(filter("Programs", "exe"), QStringLiteral("Programs (*.exe)"));
    EXPECT_EQ(filter("All Files", ""), QStringLiteral("All Files (*)"));
}

}  // namespace
}  // namespace quendra::test
