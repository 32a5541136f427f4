// Editing as its user does it: palettes, keys and the mouse on the real window, with prepared
// answers for the dialogs.
#include "app/editor_fixture.h"
#include "app/pane_list.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWindow>

#include <random>

namespace quendra::test {
namespace {

using Lines = std::vector<std::string>;

// Types a text into the dialog and presses OK.
DialogAnswer typing(const std::string& text) {
    return [text](ScriptEntry& entry) {
        setText(slotFields(entry, Slot::Entry), text);
        return true;
    };
}

const DialogAnswer cancelling = [](ScriptEntry&) { return false; };
const DialogAnswer accepting = [](ScriptEntry&) { return true; };

constexpr int commentRow = 2;
constexpr int beepRow = 0;
constexpr int waitRow = 15;

class EditingWindowTest : public EditorTest {
  protected:
    EditingWindowTest() { EXPECT_TRUE(QTest::qWaitForWindowActive(&window)); }

    [[nodiscard]] PaneList& list(const char* name) { return widget<PaneList>(name); }
    [[nodiscard]] PaneList& script() { return list("scriptList"); }
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
    [[nodiscard]] Lines lines() const {
        Lines result;
        for (int row = 0; row < script_->model()->rowCount(); ++row) {
            result.push_back(window.findChild<EditorPane*>()->entryText(row).toStdString());
        }
        return result;
    }
    [[nodiscard]] bool marked() const { return title().endsWith(QStringLiteral(" *")); }
    void expectCurrent(const std::vector<std::size_t>& selected, int focused) {
        EXPECT_EQ(window.pane().selectedEntries(), selected);
        EXPECT_EQ(window.pane().focusedEntry(), focused);
        EXPECT_EQ(state.currentIndex, focused);
    }

    PaneList* script_ = &script();
};

TEST_F(EditingWindowTest, EachPaletteInsertsByCommandDoubleClickReturnAndDrop) {
    struct Row {
        const char* palette;
        int command;
        int row;
        const char* line;
    };
    const Row rows[] = {{"scriptEventsPalette", 308, beepRow, "Beep"},
                        {"luFunctionsPalette", 309, 1, nullptr},
                        {"menuCommandsPalette", 310, 0, nullptr}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.palette);
        open("a.qds", commentFile(3));
        PaneList& palette = list(row.palette);
        const std::string line =
            row.line ? row.line
                     : palette.model()->index(row.row, 0).data().toString().toStdString();
        select({0}, 0);
        choosePaletteRow(row.palette, row.row);
        action(row.command).trigger();
        EXPECT_EQ(lines(), (Lines{"1", line, "2", "3"}));
        expectCurrent({1}, 1);
        doubleClick(palette, row.row);
        EXPECT_EQ(lines(), (Lines{"1", line, line, "2", "3"}));
        EXPECT_TRUE(palette.hasFocus()) << "the next insert needs no click more";
        press(palette, Qt::Key_Return);
        EXPECT_EQ(lines(), (Lines{"1", line, line, line, "2", "3"}));
        drag(onRow(palette, row.row), onRow(script(), 0));
        EXPECT_EQ(lines(), (Lines{line, "1", line, line, line, "2", "3"}));
        expectCurrent({0}, 0);
        EXPECT_TRUE(marked());
        state.document.modified = false;
    }
}

TEST_F(EditingWindowTest, CancelledInsertLeavesScriptTitleAndSelection) {
    open("a.qds", commentFile(3));
    select({0, 1}, 1);
    choosePaletteRow("scriptEventsPalette", commentRow);
    toDialogs = {cancelling, cancelling, typing("new")};
    action(308).trigger();
    drag(onRow(list("scriptEventsPalette"), commentRow), onRow(script(), 2));
    EXPECT_EQ(dialogs.size(), 2U);
    EXPECT_FALSE(marked());
    expectCurrent({0, 1}, 1);
    EXPECT_FALSE(action(321).isEnabled());
    action(308).trigger();
    EXPECT_EQ(lines(), (Lines{"1", "2", "new", "3"})) << "the cancelled drop is forgotten";
}

TEST_F(EditingWindowTest, ReturnAndDoubleClickEditTheEntry) {
    open("a.qds", commentFile(2));
    select({1}, 1);
    toDialogs = {typing("two"), cancelling, accepting, typing("one")};
    press(script(), Qt::Key_Return);
    EXPECT_EQ(lines(), (Lines{"1", "two"}));
    expectCurrent({1}, 1);
    EXPECT_TRUE(marked());
    action(311).trigger();
    action(311).trigger();
    EXPECT_EQ(action(321).text(), QStringLiteral("&Undo Edit entry"));
    action(321).trigger();
    EXPECT_EQ(lines(), (Lines{"1", "2"})) << "an OK that changed nothing is no step";
    doubleClick(script(), 0);
    EXPECT_EQ(lines(), (Lines{"one", "2"}));
}

TEST_F(EditingWindowTest, ReplacingAsksInTheStatusBarForTheRowThatItNeeds) {
    open("a.qds", scriptFile("QDMDSCR=", {Bytes{4}, menuRecord(201)}));
    doubleClick(script(), 0);
    EXPECT_TRUE(status().contains(QStringLiteral("Script Events"))) << status().toStdString();
    doubleClick(script(), 1);
    EXPECT_TRUE(status().contains(QStringLiteral("Menu Commands"))) << status().toStdString();
    EXPECT_FALSE(marked());
    choosePaletteRow("scriptEventsPalette", waitRow);
    select({0}, 0);
    toDialogs = {[](ScriptEntry& entry) {
        entry.number = 7;
        return true;
    }};
    action(311).trigger();
    EXPECT_EQ(lines().front(), "Wait 7");
    EXPECT_EQ(status(), QStringLiteral("2 entries"));
}

TEST_F(EditingWindowTest, VtRefusalAndHiddenTextThatIsTooLongAreToldInABox) {
    open("a.qds", scriptFile("QDVTSCR=", {commentRecord("1")}));
    choosePaletteRow("menuCommandsPalette", 12);
    action(310).trigger();
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text, state.language.loadText(13732));
    EXPECT_EQ(answers.messages[0].title, state.language.loadText(13733));
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
    choosePaletteRow("scriptEventsPalette", 14);
    toDialogs = {[](ScriptEntry& entry) {
        entry.hidden = 1;
        setText(slotFields(entry, Slot::Entry), std::string(247, 's'));
        return true;
    }};
    action(308).trigger();
    ASSERT_EQ(answers.messages.size(), 2U);
    const std::string& text = answers.messages[1].text;
    EXPECT_NE(text.find("\n\nType \"***"), std::string::npos) << text;
    EXPECT_EQ(text.find("sss"), std::string::npos) << "a refusal must not show the secret";
    EXPECT_EQ(lines(), Lines{"1"});
    EXPECT_FALSE(marked());
}

TEST_F(EditingWindowTest, UndoAndRedoNameTheirStepsAndBringSelectionBack) {
    open("a.qds", commentFile(5));
    EXPECT_FALSE(action(321).isEnabled());
    EXPECT_EQ(action(321).text(), QStringLiteral("&Undo"));
    select({0, 2, 3}, 2);
    answers.toMessages = {MessageAnswer::Yes};
    press(script(), Qt::Key_Delete);
    EXPECT_EQ(action(321).text(), QStringLiteral("&Undo Delete 3 entries"));
    EXPECT_EQ(action(321).toolTip(), QStringLiteral("Undo Delete 3 entries"));
    EXPECT_FALSE(action(322).isEnabled());
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lines(), (Lines{"1", "2", "3", "4", "5"}));
    expectCurrent({0, 2, 3}, 2);
    EXPECT_EQ(status(), QStringLiteral("5 entries"));
    EXPECT_EQ(action(322).text(), QStringLiteral("&Redo Delete 3 entries"));
    EXPECT_FALSE(action(321).isEnabled());
    press(script(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(lines(), (Lines{"2", "5"}));
    expectCurrent({1}, 1);
    press(script(), Qt::Key_Z, Qt::ControlModifier);
    press(script(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(lines(), (Lines{"2", "5"}));
}

TEST_F(EditingWindowTest, MovesAreUndoneLikeEverythingElse) {
    open("a.qds", commentFile(4));
    select({0, 1}, 0);
    press(script(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(lines(), (Lines{"3", "1", "2", "4"}));
    EXPECT_EQ(action(321).text(), QStringLiteral("&Undo Move 2 entries"));
    EXPECT_TRUE(marked());
    select({3}, 3);
    drag(onRow(script(), 3), onRow(script(), 0));
    EXPECT_EQ(lines(), (Lines{"4", "3", "1", "2"}));
    expectCurrent({0}, 0);
    action(321).trigger();
    EXPECT_EQ(lines(), (Lines{"3", "1", "2", "4"}));
    expectCurrent({3}, 3);
    action(321).trigger();
    EXPECT_EQ(lines(), (Lines{"1", "2", "3", "4"}));
    expectCurrent({0, 1}, 0);
    EXPECT_FALSE(marked());
}

TEST_F(EditingWindowTest, TitleMarkFollowsTheDifferenceFromTheSavedScript) {
    const auto path = open("a.qds", commentFile(3));
    select({0}, 0);
    action(305).trigger();
    EXPECT_TRUE(marked());
    action(321).trigger();
    EXPECT_FALSE(marked());
    action(322).trigger();
    EXPECT_TRUE(marked());
    action(302).trigger();
    EXPECT_FALSE(marked());
    action(321).trigger();
    EXPECT_TRUE(marked()) << "saving keeps the history, and before it the script differs";
    action(322).trigger();
    EXPECT_FALSE(marked());
    select({}, -1);
    select({1}, 1);
    action(307).trigger();
    EXPECT_TRUE(marked());
    answers.toMessages = {MessageAnswer::No};
    open("b.qds", commentFile(2));
    EXPECT_FALSE(action(321).isEnabled()) << "a new history";
    EXPECT_FALSE(action(322).isEnabled());
    select({0}, 0);
    action(305).trigger();
    answers.toMessages = {MessageAnswer::No};
    action(300).trigger();
    EXPECT_FALSE(action(321).isEnabled());
    EXPECT_EQ(readBytes(path), scriptFile("QDMDSCR=", {commentRecord("2"), commentRecord("3")}));
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
    action(310).trigger();
    // What the sheet leaves behind when it is cancelled lasts until the list is shown again.
    state.workingTransfer.settings = defaultTransferSettings();
    action(313).trigger();
    EXPECT_EQ(state.workingTransfer.settings, settings);
}

TEST_F(EditingWindowTest, CopyAsTextGivesTheLinesOfTheSelectionAndNoSecret) {
    open("a.qds", commentFile(3));
    select({2}, 2);
    choosePaletteRow("scriptEventsPalette", 14);
    toDialogs = {[](ScriptEntry& entry) {
        entry.hidden = 1;
        setText(slotFields(entry, Slot::Entry), "secret");
        return true;
    }};
    action(308).trigger();
    select({0, 3}, 3);
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    action(324).trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1\nType \"******\" (H)\n"));
    EXPECT_TRUE(state.entryClipboard.empty()) << "the entries' own clipboard is another one";
    select({}, -1);
    EXPECT_FALSE(action(324).isEnabled());
}

TEST_F(EditingWindowTest, InsertScriptTakesAnotherFileInOneStepAndLeavesItAlone) {
    const Bytes older = scriptFile("QDVTSCR<", {menuRecord(267), commentRecord("b")});
    const auto other = editor.folder / "other.qds";
    writeBytes(other, older);
    const auto path = open("a.qds", commentFile(2));
    select({0}, 0);
    answers.toFileDialogs.emplace_back(other);
    action(325).trigger();
    EXPECT_EQ(lines(), (Lines{"1", menuCommandName(state.menuCommands, 212), "b", "2"}));
    expectCurrent({1, 2}, 2);
    EXPECT_TRUE(status().contains(QStringLiteral("VT"))) << status().toStdString();
    EXPECT_EQ(state.currentHostType, HostType::Mainframe);
    EXPECT_EQ(state.document.fileName, path);
    EXPECT_EQ(action(321).text(), QStringLiteral("&Undo Insert Script"));
    EXPECT_EQ(readBytes(other), older);
    action(321).trigger();
    EXPECT_EQ(lines(), (Lines{"1", "2"}));
    EXPECT_FALSE(marked());
}

TEST_F(EditingWindowTest, InsertScriptKeepsTheLimitAndTellsWhatIsLeftOut) {
    const auto other = editor.folder / "other.qds";
    writeBytes(other, commentFile(10));
    open("a.qds", commentFile(4090));
    answers.toFileDialogs.emplace_back(other);
    action(325).trigger();
    EXPECT_EQ(state.script.entryCount(), 4096U);
    EXPECT_EQ(status(), QStringLiteral("6 of 10 entries inserted: the script is full"));
    action(325).trigger();
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text, "Max limit of 4096 script entries reached.");
    action(321).trigger();
    answers.messages.clear();
    writeBytes(other, bytesOf("dear all"));
    answers.toFileDialogs = {other, std::nullopt};
    action(325).trigger();
    action(325).trigger();
    ASSERT_EQ(answers.messages.size(), 1U) << "refused, then cancelled";
    EXPECT_FALSE(marked());
}

// One gesture chosen at random; the dialogs are answered at random too.
class Storm {
  public:
    Storm(unsigned int seed, EditorState& editor, MainWindow& window)
        : random_(seed), state_(editor.state), window_(window) {}

    [[nodiscard]] std::size_t upTo(std::size_t count) { return random_() % count; }
    [[nodiscard]] bool answer(ScriptEntry& entry) {
        if (upTo(4) == 0) return false;
        setText(slotFields(entry, Slot::Entry), std::to_string(upTo(50)));
        entry.hidden = static_cast<std::uint8_t>(upTo(2));
        return true;
    }
    void gesture() {
        static constexpr int commands[] = {305, 306, 307, 308, 309, 310, 311, 312, 313,
                                           315, 321, 322, 307, 308, 321, 305, 311};
        switch (upTo(4)) {
            case 0: return selectSome();
            case 1: return chooseRow();
            case 2: return moveSome();
            default: window_.runCommand(commands[upTo(std::size(commands))]);
        }
    }

  private:
    void selectSome() {
        const std::size_t count = state_.script.entryCount();
        std::vector<std::size_t> entries;
        for (std::size_t i = upTo(3); i < count; i += 1 + upTo(6)) {
            entries.push_back(i);
        }
        const int focused = static_cast<int>(upTo(count + 1)) - 1;
        window_.pane().selectEntries(entries, focused);
    }
    void chooseRow() {
        static constexpr const char* palettes[] = {"scriptEventsPalette", "luFunctionsPalette",
                                                   "menuCommandsPalette"};
        auto* list = window_.findChild<PaneList*>(QLatin1String(palettes[upTo(3)]));
        const auto rows = static_cast<std::size_t>(list->model()->rowCount());
        list->setCurrentIndex(list->model()->index(static_cast<int>(upTo(rows)), 0));
    }
    void moveSome() {
        auto* list = window_.findChild<PaneList*>(QStringLiteral("scriptList"));
        QTest::keyClick(list, upTo(2) == 0 ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
    }

    std::mt19937 random_;
    ApplicationState& state_;
    MainWindow& window_;
};

class StormTest : public EditingWindowTest, public testing::WithParamInterface<unsigned int> {
  protected:
    void expectSound() {
        ASSERT_LE(state.script.entryCount(), maxEntries);
        ASSERT_EQ(static_cast<std::size_t>(script_->model()->rowCount()),
                  state.script.entryCount());
        ASSERT_EQ(state.document.modified, state.script != state.document.saved);
        ASSERT_EQ(marked(), state.document.modified);
        ASSERT_LT(state.currentIndex, static_cast<int>(state.script.entryCount()));
        ASSERT_FALSE(state.dropPending);
        ASSERT_FALSE(state.editing);
        ASSERT_EQ(action(321).isEnabled(), state.history.canUndo());
    }
};

TEST_P(StormTest, AnyGesturesLeadBackToTheStartAndForthToTheEnd) {
    Storm storm(GetParam(), editor, window);
    // Half of the storms run against the limit.
    open("a.qds", commentFile(GetParam() % 2 == 0 ? 12 : 4090));
    const Script start = state.script;
    const auto answer = [&](ScriptEntry& entry) { return storm.answer(entry); };
    for (int step = 0; step < 150; ++step) {
        toDialogs = {answer};
        answers.toMessages = {storm.upTo(2) == 0 ? MessageAnswer::Yes : MessageAnswer::No};
        storm.gesture();
        toDialogs.clear();
        answers.toMessages.clear();
        ASSERT_NO_FATAL_FAILURE(expectSound()) << "step " << step;
    }
    while (state.history.canRedo()) {
        action(322).trigger();
    }
    const Script end = state.script;
    while (state.history.canUndo()) {
        action(321).trigger();
        ASSERT_NO_FATAL_FAILURE(expectSound());
    }
    EXPECT_EQ(state.script, start);
    EXPECT_FALSE(marked());
    while (state.history.canRedo()) {
        action(322).trigger();
    }
    EXPECT_EQ(state.script, end);
    toDialogs.clear();
}

INSTANTIATE_TEST_SUITE_P(Seeds, StormTest, testing::Range(1U, 7U));

}  // namespace
}  // namespace quendra::test
