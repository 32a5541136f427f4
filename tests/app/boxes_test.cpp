// The real message boxes and file dialogs, answered by keys as a user would.
#include "app/file_dialogs.h"
#include "app/message_box.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <QAbstractButton>
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
            std::exchange(answer_, {})(*dialog);
        } else if (++left_ > 0) {
            dialog->close();
        }
    }

    std::function<void(QWidget&)> answer_;
    QTimer timer_;
    int left_ = 0;
};

std::function<void(QWidget&)> pressKey(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    return [key, held](QWidget& dialog) { QTest::keyClick(&dialog, key, held); };
}

struct BoxRow {
    const char* name;
    MessageButtons buttons;
    bool defaultsToNo;
    Qt::Key key;
    MessageAnswer answer;
};

TEST(MessageBoxTest, KeysGiveTheAnswerThatTheyMean) {
    const BoxRow rows[] = {
        {"OK, Return", MessageButtons::Ok, false, Qt::Key_Return, MessageAnswer::Ok},
        {"OK, Escape", MessageButtons::Ok, false, Qt::Key_Escape, MessageAnswer::Ok},
        {"Yes No, Return", MessageButtons::YesNo, false, Qt::Key_Return, MessageAnswer::Yes},
        {"Yes No, Escape", MessageButtons::YesNo, false, Qt::Key_Escape, MessageAnswer::No},
        {"risky, Return", MessageButtons::YesNo, true, Qt::Key_Return, MessageAnswer::No},
        {"three, Return", MessageButtons::YesNoCancel, false, Qt::Key_Return, MessageAnswer::Yes},
        {"three, Escape", MessageButtons::YesNoCancel, false, Qt::Key_Escape,
         MessageAnswer::Cancel},
    };
    for (const BoxRow& row : rows) {
        SCOPED_TRACE(row.name);
        const Answerer answerer(pressKey(row.key));
        EXPECT_EQ(askMessage(nullptr, {"Text", "Title", MessageIcon::Question, row.buttons,
                                       row.defaultsToNo}),
                  row.answer);
    }
}

TEST(MessageBoxTest, ShowsTitleIconAndTextThatLooksLikeMarkupAsItIs) {
    const Answerer answerer([](QWidget& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(box->text(), QStringLiteral("<b>file</b>"));
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->close();
    });
    showMessage(nullptr,
                {"<b>file</b>", "Title", MessageIcon::Exclamation, MessageButtons::Ok, false});
}

FileDialogRequest request(FileDialogMode mode, const TemporaryFolder& folder) {
    return {mode, "Some Title", "Quendra Script Files(*.qds)", "qds", folder.path()};
}

std::function<void(QWidget&)> typeName(const char* name) {
    return [name](QWidget& dialog) {
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(field, nullptr);
        QTest::keyClicks(field, QLatin1String(name));
        QTest::keyClick(field, Qt::Key_Return);
    };
}

TEST(FileDialogTest, SaveAddsTheExtensionAndNeverAsksToOverwrite) {
    const TemporaryFolder folder;
    writeBytes(folder / "taken.qds", bytesOf("x"));
    struct Row {
        const char* typed;
        const char* chosen;
    };
    for (const Row& row : {Row{"new", "new.qds"}, Row{"taken", "taken.qds"},
                           Row{"taken.qds", "taken.qds"}, Row{"other.txt", "other.txt"}}) {
        const Answerer answerer(typeName(row.typed));
        EXPECT_EQ(chooseFile(nullptr, request(FileDialogMode::Save, folder)), folder / row.chosen)
            << row.typed;
    }
}

TEST(FileDialogTest, OpenGivesExistingFilesAndCancelGivesNone) {
    const TemporaryFolder folder;
    writeBytes(folder / "there.qds", bytesOf("x"));
    {
        const Answerer answerer(typeName("there"));
        EXPECT_EQ(chooseFile(nullptr, request(FileDialogMode::Open, folder)), folder / "there.qds");
    }
    const Answerer answerer(pressKey(Qt::Key_Escape));
    EXPECT_EQ(chooseFile(nullptr, request(FileDialogMode::Open, folder)), std::nullopt);
}

TEST(FileDialogTest, StartsInTheFolderWithTheFilterAndTitle) {
    const TemporaryFolder folder;
    const Answerer answerer([&folder](QWidget& widget) {
        auto* dialog = qobject_cast<QFileDialog*>(&widget);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->directory().path().toStdString(), folder.path().string());
        EXPECT_EQ(dialog->nameFilters(),
                  QStringList(QStringLiteral("Quendra Script Files(*.qds)")));
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Some Title"));
        dialog->reject();
    });
    EXPECT_EQ(chooseFile(nullptr, request(FileDialogMode::Open, folder)), std::nullopt);
}

TEST(FileDialogTest, FilterNamesThePatternOnce) {
    struct Row {
        const char* description;
        const char* extension;
        const char* filter;
    };
    for (const Row& row :
         {Row{"Quendra VT(*.qvt)", "qvt", "Quendra VT(*.qvt)"},
          Row{"Programs", "exe", "Programs (*.exe)"}, Row{"All Files", "", "All Files (*)"}}) {
        EXPECT_EQ(fileDialogFilter({FileDialogMode::Open, {}, row.description, row.extension, {}}),
                  QLatin1String(row.filter));
    }
}

}  // namespace
}  // namespace quendra::test
