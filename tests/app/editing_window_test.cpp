// Editing and finding as a user does it: palettes, keys and the mouse on the real window, with
// prepared answers for the dialogs.
#include "support/editor_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QWindow>

namespace quendra::test {
namespace {

using enum EditorCommand;

// Types a text into the dialog and presses OK; the same with the box that hides it.
DialogAnswer typing(const std::string& text, bool hidden = false) {
    return [text, hidden](ScriptEntry& entry) {
        entry.hidden = hidden ? 1 : entry.hidden;
        setText(slotFields(entry, Slot::Entry), text);
        return true;
    };
}

class EditingWindowTest : public EditorTest {
  protected:
    EditingWindowTest() { EXPECT_TRUE(QTest::qWaitForWindowActive(&window)); }

    [[nodiscard]] QPoint onRow(const PaneList& shown, int row) const {
        return shown.viewport()->mapTo(&window, shown.rowRect(row).center() - QPoint(40, 0));
    }
    void doubleClick(PaneList& shown, int row) {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, onRow(shown, row));
        QApplication::processEvents();
    }
    void press(QWidget& in, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        in.setFocus();
        QTest::keyClick(&in, key, held);
        QApplication::processEvents();
    }
    void dragToTop(const PaneList& from, int row) {
        QWindow* handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, onRow(from, row));
        QTest::mouseMove(handle, onRow(script(), 1));
        QTest::mouseMove(handle, onRow(script(), 0));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, onRow(script(), 0));
        QApplication::processEvents();
    }
    /// Inserts a Type entry with a hidden text.
    void insertHidden(const std::string& text) {
        choosePaletteRow("scriptEventsPalette", 14);
        toDialogs = {typing(text, true)};
        run(InsertScriptEvent);
    }
    [[nodiscard]] std::string menuText(EditorCommand command) {
        return action(command).text().toStdString();
    }
};

TEST_F(EditingWindowTest, EachPaletteInsertsByCommandDoubleClickReturnAndDrop) {
    const std::pair<const char*, EditorCommand> rows[] = {
        {"scriptEventsPalette", InsertScriptEvent},
        {"luFunctionsPalette", InsertLuFunction},
        {"menuCommandsPalette", InsertMenuCommand}};
    for (const auto& [name, command] : rows) {
        SCOPED_TRACE(name);
        open("a.qds", commentFile(3));
        PaneList& palette = list(name);
        const std::string line = palette.model()->index(0, 0).data().toString().toStdString() + "|";
        choosePaletteRow(name, 0);
        run(command);
        expectScript("1|" + line + "2|3", {1}, 1);
        doubleClick(palette, 0);
        EXPECT_TRUE(palette.hasFocus()) << "the next insert needs no click more";
        press(palette, Qt::Key_Return);
        dragToTop(palette, 0);
        expectScript(line + "1|" + line + line + line + "2|3", {0}, 0);
        EXPECT_TRUE(isMarked());
        state.document.modified = false;
    }
}

TEST_F(EditingWindowTest, ReturnAndDoubleClickEditTheEntryOrAskForTheRowThatReplacesIt) {
    open("a.qds", scriptFile("QDMDSCR=", {commentRecord("1"), commentRecord("2"), Bytes{4}}));
    select({1}, 1);
    toDialogs = {[](ScriptEntry&) { return false; }, [](ScriptEntry&) { return true; },
                 typing("two"), typing("one")};
    run(EditEntry);
    run(EditEntry);
    EXPECT_FALSE(isMarked());
    EXPECT_FALSE(isEnabled(Undo)) << "Cancel, and an OK that changes nothing, are no steps";
    press(script(), Qt::Key_Return);
    expectScript("1|two|Beep", {1}, 1);
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(menuText(Undo), "&Undo Edit Entry");
    run(Undo);
    doubleClick(script(), 0);
    EXPECT_EQ(lines(), "one|2|Beep");
    doubleClick(script(), 2);
    const std::string request = status();
    EXPECT_NE(request.find("Script Events"), std::string::npos) << request;
    choosePaletteRow("luFunctionsPalette", 0);
    EXPECT_EQ(status(), request) << "not what was asked for";
    choosePaletteRow("scriptEventsPalette", 1);
    EXPECT_EQ(status(), "3 entries") << "now there is something to take the place";
    list("scriptEventsPalette").clearSelection();
    doubleClick(script(), 2);
    select({1}, 1);
    EXPECT_EQ(status(), "3 entries") << "another entry has its dialog";
}

TEST_F(EditingWindowTest, HiddenTextsAreShownNowhere) {
    open("a.qds", commentFile(1));
    insertHidden(std::string(247, 's'));
    const std::string& text = answers.messages.at(0).text;
    EXPECT_NE(text.find("\n\nType \"***"), std::string::npos) << text;
    EXPECT_EQ(text.find("sss"), std::string::npos) << "nor in the refusal of one that is too long";
    EXPECT_EQ(lines(), "1");
    EXPECT_FALSE(isMarked());
    insertHidden("secret");
    select({0, 1}, 1);
    run(CopyAsText);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1\nType \"******\" (H)\n"));
    EXPECT_TRUE(state.entryClipboard.empty()) << "the entries' own clipboard is another one";
    run(Find);
    QTest::keyClicks(&widget<QLineEdit>("findText"), QStringLiteral("secret"));
    EXPECT_EQ(widget<QLabel>("findCount").text(), QStringLiteral("Not found"));
}

TEST_F(EditingWindowTest, UndoAndRedoNameTheirStepsAndBringSelectionBack) {
    open("a.qds", commentFile(5));
    select({0, 2, 3}, 2);
    answers.toMessages = {MessageAnswer::No, MessageAnswer::Yes};
    press(script(), Qt::Key_Delete);
    EXPECT_EQ(answers.messages.back().text, "Delete 3 entries?");
    expectScript("1|2|3|4|5", {0, 2, 3}, 2);
    press(script(), Qt::Key_Delete);
    EXPECT_EQ(menuText(Undo), "&Undo Delete 3 Entries");
    dragToTop(script(), 1);
    expectScript("5|2", {0}, 0);
    EXPECT_EQ(menuText(Undo), "&Undo Move 1 Entry");
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    expectScript("2|5", {1}, 1);
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    expectScript("1|2|3|4|5", {0, 2, 3}, 2);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(status(), "5 entries");
    EXPECT_EQ(menuText(Redo), "&Redo Delete 3 Entries");
    press(script(), Qt::Key_Y, Qt::ControlModifier);
    press(script(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    expectScript("5|2", {0}, 0);
}

TEST_F(EditingWindowTest, AKeyHeldDownMovesInOneStep) {
    open("a.qds", commentFile(5));
    const auto holdDown = [this](int times) {
        for (int i = 0; i < times; ++i) {
            QKeyEvent again(QEvent::KeyPress, Qt::Key_Down, Qt::ControlModifier, {}, true);
            QApplication::sendEvent(&script(), &again);
        }
    };
    press(script(), Qt::Key_Down, Qt::ControlModifier);
    press(script(), Qt::Key_Down, Qt::ControlModifier);
    holdDown(2);
    expectScript("2|3|4|5|1", {4}, 4);
    run(Undo);
    expectScript("2|1|3|4|5", {1}, 1);
    run(Redo);
    expectScript("2|3|4|5|1", {4}, 4);
    run(Undo);
    holdDown(1);
    run(Undo);
    expectScript("2|1|3|4|5", {1}, 1);
    run(Undo);
    expectScript("1|2|3|4|5", {0}, 0);
    // Past an entry that is just the same, there is no step yet that could go on.
    open("b.qds",
         scriptFile("QDTDSCR=", {commentRecord("a"), commentRecord("a"), commentRecord("b")}));
    press(script(), Qt::Key_Down, Qt::ControlModifier);
    holdDown(1);
    EXPECT_EQ(menuText(Undo), "&Undo Move 1 Entry");
    expectScript("a|b|a", {2}, 2);
}

TEST_F(EditingWindowTest, InsertScriptTakesAnotherFileInOneStepAndLeavesItAlone) {
    const Bytes older = scriptFile("QDVTSCR<", {menuRecord(267), commentRecord("b")});
    const auto other = editor.folder / "other.qds";
    writeBytes(other, older);
    const auto path = open("a.qds", commentFile(2));
    run(InsertScript, other);
    expectScript("1|" + menuCommandName(state.menuCommands, 212) + "|b|2", {1, 2}, 2);
    EXPECT_NE(status().find("VT"), std::string::npos) << status();
    EXPECT_EQ(state.document.fileName, path);
    EXPECT_EQ(menuText(Undo), "&Undo Insert Script");
    EXPECT_EQ(readBytes(other), older);
    run(Undo);
    expectScript("1|2", {0}, 0);
    writeBytes(other, bytesOf("dear all"));
    run(InsertScript, other);
    run(InsertScript, std::nullopt);
    EXPECT_EQ(answers.messages.size(), 1U) << "refused, then cancelled";
    EXPECT_FALSE(isMarked());
    writeBytes(other, commentFile(4095));
    run(InsertScript, other);
    EXPECT_EQ(status(), "4094 of 4095 entries inserted: the script is full");
    select({0, 1, 2}, 0);
    run(Copy);
    deleteFirstEntry();
    run(Paste);
    EXPECT_EQ(status(), "1 of 3 entries inserted: the script is full");
}

class FindBarTest : public EditingWindowTest {
  protected:
    FindBarTest() {
        open("a.qds", commentFile(30));
        select({3}, 3);
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    }
    void type(const char* text) { QTest::keyClicks(&edit, QLatin1String(text)); }
    [[nodiscard]] std::vector<std::size_t> found() {
        std::vector<std::size_t> rows;
        for (int row = 0; row < script().model()->rowCount(); ++row)
            if (script().model()->index(row, 0).data(Qt::BackgroundRole).isValid())
                rows.push_back(static_cast<std::size_t>(row));
        return rows;
    }
    [[nodiscard]] std::string count() { return widget<QLabel>("findCount").text().toStdString(); }
    void expectAt(std::size_t entry, const char* position) {
        EXPECT_EQ(window.pane().selectedEntries(), std::vector{entry});
        EXPECT_EQ(count(), position);
    }

    QLineEdit& edit = widget<QLineEdit>("findText");
};

TEST_F(FindBarTest, GoesToTheNextMatchWithEveryLetterAndBackWhenOneIsTaken) {
    type("1");
    expectAt(9, "2 of 12");
    EXPECT_EQ(found(), (std::vector<std::size_t>{0, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20}));
    type("5");
    expectAt(14, "1 of 1");
    press(edit, Qt::Key_Backspace);
    expectAt(9, "2 of 12");
    type("x");
    expectAt(9, "Not found");
    select({18}, 18);
    press(edit, Qt::Key_Backspace);
    expectAt(18, "11 of 12");
    type("5");
    expectAt(14, "1 of 1");
    press(edit, Qt::Key_Backspace);
    expectAt(18, "11 of 12");
}

TEST_F(FindBarTest, NextAndPreviousGoRoundInBothDirections) {
    type("9");
    expectAt(8, "1 of 3");
    press(edit, Qt::Key_Return);
    press(edit, Qt::Key_F3);
    expectAt(28, "3 of 3");
    QTest::mouseClick(&widget<QToolButton>("findNext"), Qt::LeftButton);
    expectAt(8, "1 of 3");
    press(edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::mouseClick(&widget<QToolButton>("findPrevious"), Qt::LeftButton);
    expectAt(18, "2 of 3");
}

TEST_F(FindBarTest, MarksFollowTheScriptAndGoWithTheBar) {
    type("9");
    run(Cut);
    EXPECT_EQ(found(), (std::vector<std::size_t>{17, 27}));
    EXPECT_EQ(count(), "2 found");
    run(Undo);
    press(edit, Qt::Key_Escape);
    EXPECT_FALSE(edit.isVisible());
    EXPECT_TRUE(found().empty());
    EXPECT_TRUE(script().hasFocus());
    press(script(), Qt::Key_F3);
    EXPECT_TRUE(edit.hasFocus());
    expectAt(18, "2 of 3");
    press(script(), Qt::Key_Escape);
    EXPECT_FALSE(edit.isVisible()) << "from the list too";
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("9"));
    EXPECT_EQ(found(), (std::vector<std::size_t>{8, 18, 28}));
    press(edit, Qt::Key_X, Qt::ControlModifier);
    press(edit, Qt::Key_Delete);
    EXPECT_EQ(edit.text(), QString());
    EXPECT_EQ(state.script.entryCount(), 30U) << "keys of the field do not reach the script";
}

}  // namespace
}  // namespace quendra::test
