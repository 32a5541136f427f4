// Labels as a user meets them in the window: renaming, going there and back, and where they are
// used.
#include "support/editor_fixture.h"
#include "support/modal_steps.h"

#include <QApplication>
#include <QListView>
#include <QTest>

namespace quendra::test {
namespace {

using enum EditorCommand;

Bytes named(std::uint8_t code, std::string_view name) {
    return joined({{code}, counted(name)});
}
Bytes labelOf(std::string_view name) {
    return named(10, name);
}
Bytes jumpTo(std::string_view name) {
    return named(7, name);
}
Bytes waitingFor(std::string_view text, const Bytes& found, const Bytes& notFound) {
    return joined({{17}, counted(text), {1, 1, 0, 1, 1, 9}, found, notFound});
}

// 0 Goto End, 1 a comment, 2 a Wait_For that goes to Start or End, 3 Start:, 4 End:, 5 Goto Strat
class LabelCommandsTest : public EditorTest {
  protected:
    LabelCommandsTest() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        open("a.qds", scriptFile("QDMDSCR=", {jumpTo("End"), commentRecord("End"),
                                              waitingFor("End", jumpTo("Start"), jumpTo("End")),
                                              labelOf("Start"), labelOf("End"), jumpTo("Strat")}));
    }
    void press(std::size_t entry, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        select({entry}, static_cast<int>(entry));
        press(key, held);
    }
    /// Runs the dialogs that the key opens by the steps prepared so far.
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        // A dialog was there before.
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        script().setFocus();
        steps.run([&] {
            QTest::keyClick(&script(), key, held);
            return true;
        });
        QApplication::processEvents();
    }
    void click(int row, Qt::KeyboardModifiers held) {
        QTest::mouseClick(script().viewport(), Qt::LeftButton, held,
                          script().rowRect(row).center());
        QApplication::processEvents();
    }
    void expectAt(std::size_t entry) {
        EXPECT_EQ(window.pane().selectedEntries(), std::vector{entry});
        EXPECT_EQ(window.pane().focusedEntry(), static_cast<int>(entry));
    }

    ModalSteps steps;
};

TEST_F(LabelCommandsTest, F2RenamesALabelEverywhereInOneStep) {
    const std::string before = lines();
    steps.in("renameLabelDialog", [&](const OpenDialog& d) {
        EXPECT_EQ(d.shown("name"), "End");
        EXPECT_EQ(d.focused(), "name");
        EXPECT_EQ(d.shown("changes"), "Steps that change: 0") << "it still has its name";
        d.type("Start");
        EXPECT_EQ(d.shown("note"), "There is a label of that name already, in step 4.");
        d.click("ok");
        EXPECT_EQ(answers.messages.back().text, d.shown("note"));
        d.retype("name", "\u0416");
        EXPECT_NE(d.shown("note").find("U+0416"), std::string::npos);
        d.press(Qt::Key_Delete);
        d.click("ok");
        EXPECT_EQ(answers.messages.back().text, "A value is required in this field.");
        d.type("Ende");
        EXPECT_EQ(d.shown("changes"), "Steps that change: 3");
        d.press(Qt::Key_Return);
    });
    press(4, Qt::Key_F2);
    EXPECT_EQ(lines(),
              "Goto Ende|End|Wait_For \"End\" If Found Then Goto Start Else Goto Ende|Start:|Ende:|"
              "Goto Strat");
    expectAt(4);
    EXPECT_EQ(action(Undo).text(), QStringLiteral("&Undo Rename Label"));
    run(Undo);
    EXPECT_EQ(lines(), before);
    EXPECT_FALSE(isMarked());
}

TEST_F(LabelCommandsTest, F2AsksWhichOfSeveralAndLeavesAloneWhatKeepsItsName) {
    steps.in("renameLabelDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.shown("label"), "Start");
        d.choose("label", 1);
        EXPECT_EQ(d.shown("name"), "End");
        d.retype("name", "Out");
        EXPECT_EQ(d.shown("changes"), "Steps that change: 3");
        d.click("ok");
    });
    press(2, Qt::Key_F2);
    EXPECT_EQ(window.pane().entryText(4), QStringLiteral("Out:"));
    run(Undo);
    steps.in("renameLabelDialog", [](const OpenDialog& d) { d.click("ok"); });
    press(4, Qt::Key_F2);
    EXPECT_FALSE(isEnabled(Undo));
    select({1}, 1);
    EXPECT_FALSE(isEnabled(RenameLabel) || isEnabled(GoToLabel) || isEnabled(FindUses));
}

TEST_F(LabelCommandsTest, F12GoesToTheLabelAndAltLeftComesBackThroughEdits) {
    EXPECT_FALSE(isEnabled(GoBack));
    press(0, Qt::Key_F12);
    expectAt(4);
    steps.in("entryListDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.selected("entries"), "4   Start:");
        d.press(Qt::Key_Return);
    });
    press(2, Qt::Key_F12);
    expectAt(3);
    select({1}, 1);
    run(Cut);
    press(Qt::Key_Left, Qt::AltModifier);
    expectAt(1);
    press(Qt::Key_Left, Qt::AltModifier);
    expectAt(0);
    EXPECT_FALSE(isEnabled(GoBack));
    press(4, Qt::Key_F12);
    expectAt(4);
    EXPECT_EQ(status(), "Goto Strat: no such label; Start is in step 3");
    press(0, Qt::Key_F12);
    state.document.modified = false;
    run(NewScript);
    EXPECT_FALSE(isEnabled(GoBack)) << "that was another script";
}

TEST_F(LabelCommandsTest, CtrlClickGoesToTheLabelUnlessSeveralEntriesAreSelected) {
    select({1}, 1);
    click(0, Qt::ControlModifier);
    expectAt(4);
    select({0}, 0);
    click(0, Qt::ControlModifier);
    expectAt(4);
    press(Qt::Key_Left, Qt::AltModifier);
    expectAt(0);
    click(1, Qt::ControlModifier);
    EXPECT_EQ(window.pane().selectedEntries(), (std::vector<std::size_t>{0, 1}));
    click(5, Qt::ControlModifier);
    EXPECT_EQ(window.pane().selectedEntries(), (std::vector<std::size_t>{0, 1, 5}));
}

TEST_F(LabelCommandsTest, ShiftF12ListsTheUsesAndGoesToTheChosenOne) {
    steps.in("entryListDialog", [](const OpenDialog& d) {
        EXPECT_EQ(d.title(), "Uses of End");
        EXPECT_EQ(d.widget<QListView>("entries").model()->rowCount(), 2);
        EXPECT_EQ(d.selected("entries"), "1   Goto End");
        d.press(Qt::Key_Down);
        d.press(Qt::Key_Return);
    });
    press(4, Qt::Key_F12, Qt::ShiftModifier);
    expectAt(2);
    press(Qt::Key_Left, Qt::AltModifier);
    expectAt(4);
    select({0, 2, 5}, 5);
    answers.toMessages = {MessageAnswer::Yes};
    run(DeleteEntries);
    press(2, Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_EQ(status(), "Nothing goes to End");
}

}  // namespace
}  // namespace quendra::test
