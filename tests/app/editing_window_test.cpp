// Editing as its user does it: palettes, keys and the mouse on the real window, with prepared
// answers for the dialogs.
#include "app/editor_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWindow>

namespace quendra::test {
namespace {

// Types a text into the dialog and presses OK; the same with the box that hides it.
DialogAnswer typing(const std::string& text, bool hidden = false) {
    return [text, hidden](ScriptEntry& entry) {
        entry.hidden = hidden ? 1 : entry.hidden;
        setText(slotFields(entry, Slot::Entry), text);
        return true;
    };
}

const DialogAnswer cancelling = [](ScriptEntry&) { return false; };
const DialogAnswer accepting = [](ScriptEntry&) { return true; };

constexpr int commentRow = 2;
constexpr int typeRow = 14;

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
    void drag(QPoint from, QPoint to) {
        QWindow* handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        QTest::mouseMove(handle, from + (to - from) / 2);
        QTest::mouseMove(handle, to);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
        QApplication::processEvents();
    }
    [[nodiscard]] std::string menuText(int command) { return action(command).text().toStdString(); }
};

TEST_F(EditingWindowTest, EachPaletteInsertsByCommandDoubleClickReturnAndDrop) {
    int command = 308;
    for (const char* name : {"scriptEventsPalette", "luFunctionsPalette", "menuCommandsPalette"}) {
        SCOPED_TRACE(name);
        open("a.qds", commentFile(3));
        PaneList& palette = list(name);
        const std::string line = palette.model()->index(0, 0).data().toString().toStdString() + "|";
        choosePaletteRow(name, 0);
        run(command++);
        expectScript("1|" + line + "2|3", {1}, 1);
        doubleClick(palette, 0);
        EXPECT_TRUE(palette.hasFocus()) << "the next insert needs no click more";
        press(palette, Qt::Key_Return);
        drag(onRow(palette, 0), onRow(script(), 0));
        expectScript(line + "1|" + line + line + line + "2|3", {0}, 0);
        EXPECT_TRUE(isMarked());
        state.document.modified = false;
    }
}

TEST_F(EditingWindowTest, ReturnAndDoubleClickEditTheEntry) {
    open("a.qds", commentFile(2));
    select({1}, 1);
    toDialogs = {cancelling, accepting, typing("two"), accepting, typing("one")};
    run(311);
    run(311);
    EXPECT_FALSE(isMarked());
    EXPECT_FALSE(isEnabled(321)) << "Cancel, and an OK that changes nothing, are no steps";
    press(script(), Qt::Key_Return);
    expectScript("1|two", {1}, 1);
    EXPECT_TRUE(isMarked());
    run(311);
    EXPECT_EQ(menuText(321), "&Undo Edit Entry");
    run(321);
    doubleClick(script(), 0);
    EXPECT_EQ(lines(), "one|2");
}

TEST_F(EditingWindowTest, ReplacingAsksInTheStatusBarForTheRowThatItNeeds) {
    open("a.qds", scriptFile("QDMDSCR=", {Bytes{4}, menuRecord(201)}));
    doubleClick(script(), 1);
    EXPECT_NE(status().find("Menu Commands"), std::string::npos) << status();
    doubleClick(script(), 0);
    EXPECT_NE(status().find("Script Events"), std::string::npos) << status();
    EXPECT_FALSE(isMarked());
    choosePaletteRow("scriptEventsPalette", commentRow);
    toDialogs = {typing("x")};
    run(311);
    EXPECT_TRUE(lines().starts_with("x|")) << lines();
    EXPECT_EQ(status(), "2 entries");
}

TEST_F(EditingWindowTest, VtRefusalAndHiddenTextThatIsTooLongAreToldInABox) {
    open("a.qds", scriptFile("QDVTSCR=", {commentRecord("1")}));
    choosePaletteRow("menuCommandsPalette", 12);
    run(310);
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text, state.language.loadText(13732));
    EXPECT_EQ(answers.messages[0].title, state.language.loadText(13733));
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
    choosePaletteRow("scriptEventsPalette", typeRow);
    toDialogs = {typing(std::string(247, 's'), true)};
    run(308);
    ASSERT_EQ(answers.messages.size(), 2U);
    const std::string& text = answers.messages[1].text;
    EXPECT_NE(text.find("\n\nType \"***"), std::string::npos) << text;
    EXPECT_EQ(text.find("sss"), std::string::npos) << "a refusal must not show the secret";
    EXPECT_EQ(lines(), "1");
    EXPECT_FALSE(isMarked());
}

TEST_F(EditingWindowTest, UndoAndRedoNameTheirStepsAndBringSelectionBack) {
    open("a.qds", commentFile(5));
    EXPECT_EQ(menuText(321), "&Undo");
    select({0, 2, 3}, 2);
    answers.toMessages = {MessageAnswer::No, MessageAnswer::Yes};
    press(script(), Qt::Key_Delete);
    EXPECT_EQ(answers.messages.back().text, "Delete 3 entries?");
    EXPECT_EQ(answers.messages.back().title, state.language.loadText(13224));
    EXPECT_EQ(answers.messages.back().buttons, MessageButtons::YesNo);
    expectScript("1|2|3|4|5", {0, 2, 3}, 2);
    press(script(), Qt::Key_Delete);
    EXPECT_EQ(menuText(321), "&Undo Delete 3 Entries");
    drag(onRow(script(), 1), onRow(script(), 0));
    expectScript("5|2", {0}, 0);
    EXPECT_EQ(menuText(321), "&Undo Move 1 Entry");
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    expectScript("2|5", {1}, 1);
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    expectScript("1|2|3|4|5", {0, 2, 3}, 2);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(status(), "5 entries");
    EXPECT_EQ(menuText(322), "&Redo Delete 3 Entries");
    press(script(), Qt::Key_Y, Qt::ControlModifier);
    expectScript("2|5", {1}, 1);
    press(script(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    expectScript("5|2", {0}, 0);
}

TEST_F(EditingWindowTest, TitleMarkFollowsTheDifferenceFromTheSavedScript) {
    const auto path = open("a.qds", commentFile(3));
    deleteFirstEntry();
    run(302);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(readBytes(path), scriptFile("QDMDSCR=", {commentRecord("2"), commentRecord("3")}));
    run(321);
    EXPECT_TRUE(isMarked()) << "saving keeps the history, and before it the script differs";
    run(322);
    EXPECT_FALSE(isMarked());
    open("b.qds", commentFile(2));
    EXPECT_FALSE(isEnabled(321)) << "a new history";
    run(305);
    run(300, MessageAnswer::No);
    EXPECT_FALSE(isEnabled(321));
}

TEST_F(EditingWindowTest, NewTransferStartsFromTheLastOneThatTheListShows) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, "SHOWN");
    open("a.qds", commentFile(1));
    choosePaletteRow("menuCommandsPalette", 35);
    toDialogs = {[&](ScriptEntry& entry) {
        entry.transferSettings = settings;
        return true;
    }};
    run(310);
    // What the sheet leaves behind when it is cancelled lasts until the list is shown again.
    state.workingTransfer.settings = defaultTransferSettings();
    run(313);
    EXPECT_EQ(state.workingTransfer.settings, settings);
}

TEST_F(EditingWindowTest, CopyAsTextGivesTheLinesOfTheSelectionAndNoSecret) {
    open("a.qds", commentFile(1));
    choosePaletteRow("scriptEventsPalette", typeRow);
    toDialogs = {typing("secret", true)};
    run(308);
    select({0, 1}, 1);
    run(324);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1\nType \"******\" (H)\n"));
    EXPECT_TRUE(state.entryClipboard.empty()) << "the entries' own clipboard is another one";
}

TEST_F(EditingWindowTest, InsertScriptTakesAnotherFileInOneStepAndLeavesItAlone) {
    const Bytes older = scriptFile("QDVTSCR<", {menuRecord(267), commentRecord("b")});
    const auto other = editor.folder / "other.qds";
    writeBytes(other, older);
    const auto path = open("a.qds", commentFile(2));
    run(325, other);
    expectScript("1|" + menuCommandName(state.menuCommands, 212) + "|b|2", {1, 2}, 2);
    EXPECT_NE(status().find("VT"), std::string::npos) << status();
    EXPECT_EQ(state.currentHostType, HostType::Mainframe);
    EXPECT_EQ(state.document.fileName, path);
    EXPECT_EQ(menuText(321), "&Undo Insert Script");
    EXPECT_EQ(readBytes(other), older);
    run(321);
    expectScript("1|2", {0}, 0);
    writeBytes(other, bytesOf("dear all"));
    run(325, other);
    run(325, std::nullopt);
    EXPECT_EQ(answers.messages.size(), 1U) << "refused, then cancelled";
    EXPECT_FALSE(isMarked());
    writeBytes(other, commentFile(4095));
    run(325, other);
    EXPECT_EQ(state.script.entryCount(), 4096U);
    EXPECT_EQ(status(), "4094 of 4095 entries inserted: the script is full");
}

}  // namespace
}  // namespace quendra::test
