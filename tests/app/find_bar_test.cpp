// Finding entries while a text is typed.
#include "app/editor_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace quendra::test {
namespace {

using Rows = std::vector<std::size_t>;

class FindBarTest : public EditorTest {
  protected:
    FindBarTest() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        open("a.qds", commentFile(30));
        select({3}, 3);
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    }
    void type(const char* text) { QTest::keyClicks(&edit, QLatin1String(text)); }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(&edit, key, held);
        QApplication::processEvents();
    }
    [[nodiscard]] Rows found() {
        Rows rows;
        for (int row = 0; row < script().model()->rowCount(); ++row) {
            const QVariant brush = script().model()->index(row, 0).data(Qt::BackgroundRole);
            if (brush.isValid()) rows.push_back(static_cast<std::size_t>(row));
        }
        return rows;
    }
    [[nodiscard]] std::string count() { return widget<QLabel>("findCount").text().toStdString(); }
    void expectAt(std::size_t entry, const char* position) {
        EXPECT_EQ(window.pane().selectedEntries(), Rows{entry});
        EXPECT_EQ(state.currentIndex, static_cast<int>(entry));
        EXPECT_EQ(count(), position);
    }

    QLineEdit& edit = widget<QLineEdit>("findText");
    QToolBar& bar = widget<QToolBar>("findBar");
};

TEST_F(FindBarTest, GoesToTheNextMatchWithEveryLetterAndBackWhenOneIsTaken) {
    EXPECT_TRUE(bar.isVisible());
    type("1");
    expectAt(9, "2 of 12");
    EXPECT_EQ(found(), (Rows{0, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20}));
    type("5");
    expectAt(14, "1 of 1");
    press(Qt::Key_Backspace);
    expectAt(9, "2 of 12");
    type("x");
    expectAt(9, "Not found");
    EXPECT_TRUE(found().empty());
    edit.selectAll();
    press(Qt::Key_Backspace);
    EXPECT_EQ(count(), "");
}

TEST_F(FindBarTest, NextAndPreviousGoRoundInBothDirections) {
    type("9");
    expectAt(8, "1 of 3");
    press(Qt::Key_Return);
    press(Qt::Key_F3);
    expectAt(28, "3 of 3");
    press(Qt::Key_Return);
    expectAt(8, "1 of 3");
    press(Qt::Key_Return, Qt::ShiftModifier);
    expectAt(28, "3 of 3");
    QTest::mouseClick(&widget<QToolButton>("findPrevious"), Qt::LeftButton);
    expectAt(18, "2 of 3");
    QTest::mouseClick(&widget<QToolButton>("findNext"), Qt::LeftButton);
    expectAt(28, "3 of 3");
    select({2}, 2);
    EXPECT_EQ(count(), "3 found");
}

TEST_F(FindBarTest, MarksFollowTheScriptAndGoWithTheBar) {
    type("9");
    run(305);
    EXPECT_EQ(found(), (Rows{17, 27}));
    EXPECT_EQ(count(), "2 found");
    run(321);
    EXPECT_EQ(found(), (Rows{8, 18, 28}));
    edit.setFocus();
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(found().empty());
    EXPECT_TRUE(script().hasFocus());
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("9"));
    EXPECT_EQ(found(), (Rows{8, 18, 28}));
}

TEST_F(FindBarTest, KeysOfTheFieldDoNotReachTheScript) {
    type("12");
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(edit.text(), QStringLiteral("2"));
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_X, Qt::Key_Z})
        press(key, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("2"));
    EXPECT_EQ(state.script.entryCount(), 30U);
    EXPECT_TRUE(state.entryClipboard.empty());
}

}  // namespace
}  // namespace quendra::test
