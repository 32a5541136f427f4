// Inserting by name, and going round the lists, as a user does it at the keyboard.
#include "support/editor_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

namespace quendra::test {
namespace {

using enum EditorCommand;

class InsertPanelTest : public EditorTest {
  protected:
    InsertPanelTest() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        open("a.qds", commentFile(3));
        select({1}, 1);
        script().setFocus();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
        QApplication::processEvents();
    }
    void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
        QApplication::processEvents();
    }
    [[nodiscard]] std::string offered(int row) const {
        const QModelIndex index = offers.model()->index(row, 0);
        return index.data(Qt::AccessibleTextRole).toString().toStdString();
    }
    [[nodiscard]] std::string current() { return field.accessibleDescription().toStdString(); }

    QWidget& panel = widget<QWidget>("insertPanel");
    QLineEdit& field = widget<QLineEdit>("insertName");
    QListView& offers = widget<QListView>("insertList");
};

TEST_F(InsertPanelTest, InsertsAsTheSameStepAndDialogAsThePalettes) {
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(field.hasFocus());
    type("pf3");
    EXPECT_EQ(current(), "PF3, LU Functions");
    press(Qt::Key_Return);
    expectScript("1|2|PF3|3", {2}, 2);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(script().hasFocus());
    EXPECT_EQ(action(Undo).text(), QStringLiteral("&Undo Insert LU Function PF3"));
    type("/");
    EXPECT_EQ(field.text(), QString());
    type("comm");
    toDialogs = {[](ScriptEntry&) { return false; },
                 [](ScriptEntry& entry) {
                     setText(slotFields(entry, Slot::Entry), "new");
                     return true;
                 }};
    press(Qt::Key_Return);
    EXPECT_EQ(lines(), "1|2|PF3|3") << "its dialog was cancelled";
    list("luFunctionsPalette").setFocus();
    press(Qt::Key_K, Qt::ControlModifier);
    type("comm");
    press(Qt::Key_Enter);
    expectScript("1|2|PF3|new|3", {3}, 3);
    EXPECT_TRUE(script().hasFocus()) << "whence it was opened";
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    expectScript("1|2|3", {1}, 1);
    EXPECT_FALSE(isMarked());
}

TEST_F(InsertPanelTest, OffersFirstWhatWasInsertedMostInWhateverWay) {
    choosePaletteRow("menuCommandsPalette", 6);
    run(InsertMenuCommand);
    run(InsertMenuCommand);
    choosePaletteRow("luFunctionsPalette", 3);
    run(InsertLuFunction);
    press(Qt::Key_K, Qt::ControlModifier);
    const auto name = [this](Palette palette, int row) {
        return window.pane().paletteText(palette, row).toStdString();
    };
    EXPECT_EQ(offered(0), name(Palette::MenuCommands, 6) + ", Menu Commands");
    EXPECT_EQ(offered(1), name(Palette::LuFunctions, 3) + ", LU Functions");
    EXPECT_EQ(offered(2), "Beep, Script Events");
    QTest::mouseClick(offers.viewport(), Qt::LeftButton, {},
                      offers.visualRect(offers.model()->index(2, 0)).center());
    QApplication::processEvents();
    EXPECT_EQ(state.script.entryCount(), 7U);
    EXPECT_EQ(window.pane().entryText(window.pane().focusedEntry()), QStringLiteral("Beep"));
    EXPECT_TRUE(script().hasFocus());
    const int inserted = window.pane().focusedEntry();
    ASSERT_GT(inserted, 0);
    const QPointF beneath = script().rowRect(0).center();
    QMouseEvent second(QEvent::MouseButtonDblClick, beneath,
                       script().viewport()->mapToGlobal(beneath), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(script().viewport(), &second);
    QApplication::processEvents();
    EXPECT_EQ(window.pane().focusedEntry(), inserted)
        << "whoever double-clicks hits nothing beneath";
    const UserState& remembered = state.userState;
    EXPECT_TRUE(QTest::qWaitFor([&] { return remembered.texts({"Insert", "Used"}).size() == 3; }));
}

TEST_F(InsertPanelTest, KeysGoThroughWholeRowsAndEscapeChangesNothing) {
    auto& palette = list("scriptEventsPalette");
    palette.setFocus();
    press(Qt::Key_K, Qt::ControlModifier);
    const int rowHeight = offers.sizeHintForRow(0);
    EXPECT_EQ(offers.viewport()->height() % rowHeight, 0);
    EXPECT_GT(offers.viewport()->height(), 4 * rowHeight);
    EXPECT_TRUE(window.pane().rect().contains(panel.geometry()));
    press(Qt::Key_Up);
    EXPECT_EQ(current(), offered(0));
    press(Qt::Key_Down);
    EXPECT_EQ(current(), offered(1));
    press(Qt::Key_PageDown);
    press(Qt::Key_PageUp);
    EXPECT_EQ(current(), offered(1));
    type("nosuch");
    EXPECT_FALSE(offers.isVisible());
    EXPECT_EQ(widget<QLabel>("insertNothing").text(),
              QString::fromUtf8("Nothing is called “nosuch”"));
    press(Qt::Key_Return);
    EXPECT_TRUE(field.hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(palette.hasFocus());
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(current(), offered(0));
    QTest::mouseClick(script().viewport(), Qt::LeftButton, {},
                      QPoint(20, script().viewport()->height() - 5));
    EXPECT_FALSE(panel.isVisible()) << "the focus went elsewhere";
    EXPECT_EQ(lines(), "1|2|3");
    EXPECT_FALSE(isMarked());
}

TEST_F(InsertPanelTest, AFullScriptIsToldBeforeAnythingIsChosen) {
    open("full.qds", commentFile(4096));
    script().setFocus();
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(answers.messages.size(), 1U);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(InsertPanelTest, F6GoesRoundTheListsAndComesBackFromBars) {
    const std::vector<const char*> round = {"scriptEventsPalette", "luFunctionsPalette",
                                            "menuCommandsPalette", "scriptList"};
    for (const char* next : round) {
        press(Qt::Key_F6);
        EXPECT_TRUE(list(next).hasFocus()) << next;
    }
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(list("menuCommandsPalette").hasFocus());
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(widget<QLineEdit>("findText").hasFocus());
    press(Qt::Key_F6);
    EXPECT_TRUE(list("menuCommandsPalette").hasFocus());
}

TEST_F(InsertPanelTest, PalettesFindWhatIsTypedAnywhereInTheirRows) {
    const std::pair<const char*, const char*> rows[] = {
        {"screen", "Clear Screen"}, {"pf13", "PF13"},      {"p", "PF14"}, {"~", "PF14"},
        {"ark", "Field Mark"},      {"scr", "Scroll Down"}};
    auto& palette = list("luFunctionsPalette");
    palette.setFocus();
    for (const auto& [typed, found] : rows) {
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        type(typed);
        EXPECT_EQ(palette.currentIndex().data().toString().toStdString(), found) << typed;
    }
}

}  // namespace
}  // namespace quendra::test
