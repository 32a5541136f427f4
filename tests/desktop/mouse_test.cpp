// The log-on script of the examples built by mouse, text fields apart, and the drags of a real
// mouse under a real window manager.
#include "app/appearance.h"
#include "app/editor_fixture.h"
#include "app/pane_list.h"
#include "desktop/mouse_user.h"

#include <QDialogButtonBox>

#include <iostream>

namespace quendra::test {
namespace {

constexpr const char* events = "scriptEventsPalette";
constexpr const char* keys = "luFunctionsPalette";
constexpr const char* menuCommands = "menuCommandsPalette";
constexpr const char* script = "scriptList";

using Fields = std::vector<std::pair<std::string, std::string>>;

// All but the life of the windows is for the user's thread.
class MouseTest : public testing::Test {
  protected:
    MouseTest() : window_(editor_.state), scriptEditor_(editor_.state, window_, editParameters) {
        window_.show();
    }
    ~MouseTest() override {
        if (HasFailure()) std::cout << "the script: " << linesShown() << "\n";
    }

    /// Opens a script of these comments, and has the user work on it.
    void whileItShows(const std::vector<std::string>& texts, const std::function<void()>& work) {
        Bytes file = bytesOf("QDMDSCR=");
        for (const std::string& text : texts)
            file = joined({file, commentRecord(text)});
        writeBytes(editor_.folder / "shown.qds", file);
        window_.showOpened(openDocumentAtStart(editor_.state, editor_.folder / "shown.qds"));
        whileWindowsLive(work);
    }

    [[nodiscard]] std::string linesShown() {
        std::string all;
        for (std::size_t row = 0; row < editor_.state.script.entryCount(); ++row)
            all += window_.pane().entryText(static_cast<int>(row)).toStdString() + " ";
        return all.substr(0, all.size() - (all.empty() ? 0 : 1));
    }
    void waitForLines(const std::string& expected) {
        std::string last;
        try {
            waitUntil([&] { return (last = onScreen([&] { return linesShown(); })) == expected; },
                      "");
        } catch (const std::runtime_error&) {
            throw std::runtime_error("waited for \"" + expected + "\", but there is \"" + last +
                                     "\"");
        }
    }
    void waitForDragImage(bool shows) {
        const auto asAwaited = [&] {
            const auto* image = window_.findChild<QWidget*>(QStringLiteral("dragImage"));
            return shows == (image != nullptr && image->isVisible());
        };
        waitUntil([&] { return onScreen(asAwaited); }, "the drag image shows or is gone");
        EXPECT_EQ(shows, onScreen([] { return QApplication::overrideCursor() != nullptr; }));
    }
    // Both rows are in sight.
    void dragRow(int from, int to) {
        const ScreenPoint onTarget = user_.onRow(script, to);
        dragMouse(user_.gripOn(script, from), onTarget);
    }

    void expectOneMoreEntry() {
        ++inserted_;
        user_.in("mainWindow");
        waitUntil(
            [&] {
                return onScreen([&] { return editor_.state.script.entryCount(); }) == inserted_;
            },
            "the script has " + std::to_string(inserted_) + " entries");
    }
    void fillIn(const std::string& dialog, const Fields& fields) {
        user_.in(dialog);
        for (const auto& [field, text] : fields)
            user_.type(field, text);
    }
    void accept() {
        user_.click("ok");
        expectOneMoreEntry();
    }
    void open(const std::string& event, const std::string& dialog, const Fields& fields = {}) {
        user_.doubleClickRow(events, event);
        fillIn(dialog, fields);
    }
    void insert(const std::string& event, const std::string& dialog, const Fields& fields = {}) {
        open(event, dialog, fields);
        accept();
    }
    void insertText(const std::string& event, const std::string& text) {
        insert(event, "textDialog", {{"text", text}});
    }
    void insertPlain(const char* palette, const std::string& row) {
        user_.doubleClickRow(palette, row);
        expectOneMoreEntry();
    }
    // An action with a text.
    void chooseAction(const char* button, const std::string& action, const std::string& text,
                      const char* backIn) {
        user_.click(button);
        user_.in("actionDialog");
        user_.clickRow("scriptEventsList", action);
        user_.click("ok");
        fillIn("textDialog", {{"text", text}});
        user_.click("ok");
        user_.in(backIn);
    }
    void insertInput(const std::string& prompt, bool hidden, const std::string& variable) {
        open("Input", "inputDialog",
             {{"title", "TSO logon"}, {"prompt", prompt}, {"maximumLength", "8"}});
        if (hidden) user_.click("hideInput");
        user_.choose("variable", variable);
        accept();
    }
    void openWaitFor(const std::string& text, const std::string& seconds) {
        open("Wait_For", "waitForDialog", {{"text", text}});
        user_.click("timeout");
        user_.type("timeoutSeconds", seconds);
    }
    void buildFirstHalf();
    void buildSecondHalf();
    void dropDisconnectAtTheEnd();

    EditorState editor_;
    MainWindow window_;
    ScriptEditor scriptEditor_;
    MouseUser user_;
    std::size_t inserted_ = 0;
};

void MouseTest::buildFirstHalf() {
    insertText("Comment", "Logs on to TSO, opens the editor and fetches last night's report.");
    openWaitFor("ENTER USERID", "30");
    chooseAction("elseButton", "Goto", "NoHost", "waitForDialog");
    accept();
    insertInput("Your TSO user id:", false, "VarUserId");
    insertText("Type", "VarUserId");
    insertPlain(keys, "Enter");
    // By the toolbar.
    user_.clickRow(events, "Wait_Ready");
    user_.click("toolButton308");
    fillIn("waitDialog", {});
    accept();
    insertText("Label", "AskPassword");
    insertInput("Your password (not shown):", true, "VarPassword");
    open("If_Input_Is", "ifInputIsDialog",
         {{"firstOperandText", "VarPassword"}, {"secondOperandText", "quit"}});
    chooseAction("thenButton", "Goto", "Leave", "ifInputIsDialog");
    accept();
    insert("Set_Cursor", "setCursorDialog", {{"row", "8"}, {"column", "20"}});
    insertText("Type", "VarPassword");
    // By the menu.
    user_.clickRow(keys, "Enter");
    user_.chooseMenu("entryMenu", "command309");
    expectOneMoreEntry();
    openWaitFor("PASSWORD NOT AUTHORIZED", "3");
    user_.type("row", "2");
    chooseAction("thenButton", "Goto", "AskPassword", "waitForDialog");
    accept();
}

void MouseTest::buildSecondHalf() {
    open("Watch_For", "watchForDialog", {{"text", "***"}});
    user_.clickRow("luFunctionsList", "Enter");
    accept();
    openWaitFor("READY", "60");
    user_.click("thenButton");
    user_.in("actionDialog");
    user_.doubleClickRow("scriptEventsList", "Clear_Watch");
    user_.click("ok");
    user_.in("waitForDialog");
    chooseAction("elseButton", "Message", "TSO did not become ready within a minute.",
                 "waitForDialog");
    accept();
    user_.doubleClickRow(menuCommands, "Receive File from Host");
    user_.in("transferSheet");
    user_.click("transferHost1");
    fillIn("transferSheet", {{"hostFileName", "'OPS.NIGHTLY.REPORT'"},
                             {"member", "SUMMARY"},
                             {"pcFileName", "C:\\Reports\\summary.txt"}});
    accept();
    insert("Wait_Ready", "waitDialog");
    insertText("Type", "EDIT");
    insertPlain(keys, "Enter");
    insertPlain(events, "Return");
    insertText("Label", "NoHost");
    insertPlain(events, "Beep");
    insertText("Message", "The host does not answer. Is the line up?");
    insertText("Label", "Leave");
}

// Dropped on the last entry it lands before that one, and is then dragged behind it.
void MouseTest::dropDisconnectAtTheEnd() {
    const int last = static_cast<int>(inserted_) - 1;
    const ScreenPoint onLast = user_.onRow(script, last);
    dragMouse(user_.gripOn(menuCommands, user_.rowOf(menuCommands, "Disconnect")), onLast);
    expectOneMoreEntry();
    user_.clickRow(script, last);
    dragRow(last, last + 1);
    const auto label = [&] { return window_.pane().entryText(last).toStdString(); };
    waitUntil([&] { return onScreen(label) == "Leave:"; }, "the drag has moved the entry");
}

TEST_F(MouseTest, BuildsTheLogOnScriptAndSavesIt) {
    whileWindowsLive([this] {
        user_.in("mainWindow");
        buildFirstHalf();
        buildSecondHalf();
        dropDisconnectAtTheEnd();
        user_.click("toolButton302");
        fillIn("fileDialog", {{"fileNameEdit", "logon.qds"}});
        user_.clickStandardButton(QDialogButtonBox::Save);
        user_.in("mainWindow");
        waitForTitle("Quendra Script Editor  -  " + (editor_.folder / "logon.qds").string());
    });
    EXPECT_EQ(readBytes(editor_.folder / "logon.qds"),
              readBytes(QUENDRA_EXAMPLES "/tso-logon.qds"));
}

TEST_F(MouseTest, DragOfManyEntriesShowsThemMovesThemAndIsUndone) {
    whileItShows({"1", "2", "3", "4", "5", "6", "7", "8"}, [this] {
        user_.in("mainWindow");
        user_.clickRow(script, 1);
        holdKey("ctrl");
        user_.clickRow(script, 2);
        user_.clickRow(script, 4);
        releaseKey("ctrl");
        // The selection is back with the undo, so the same drag can be made again.
        const std::function<void()> undos[] = {[&] { user_.click("toolButton321"); },
                                               [] { press({"ctrl+z"}); }};
        for (const auto& undo : undos) {
            dragRow(4, 6);
            waitForLines("1 4 6 2 3 7 5 8");
            undo();
            waitForLines("1 2 3 4 5 6 7 8");
        }
    });
}

TEST_F(MouseTest, DragShowsItsImageAndEndsWhereverTheButtonGoesUp) {
    whileItShows({"1", "2", "3"}, [this] {
        user_.in("mainWindow");
        const ScreenPoint from = user_.gripOn(events, user_.rowOf(events, "Beep"));
        const ScreenPoint onSecond = user_.onRow(script, 1);
        user_.clickRow(events, "Beep");
        const auto drag = [&](ScreenPoint to, const char* lines) {
            pressMouse(from);
            moveMouse({from.x - 40, from.y + 10});
            waitForDragImage(true);
            moveMouse(to);
            releaseMouse();
            waitForDragImage(false);
            waitForLines(lines);
        };
        drag({2, onSecond.y}, "1 2 3");        // beside the window
        drag({from.x, from.y + 30}, "1 2 3");  // on its own palette
        drag(onSecond, "1 Beep 2 3");
    });
}

TEST_F(MouseTest, DragIsCancelledByEscapeAndByAnotherWindow) {
    QWidget other;
    other.setObjectName(QStringLiteral("other"));
    other.setWindowTitle(QStringLiteral("other"));
    const auto showOther = [&](bool shown) {
        onScreen([&] {
            other.setVisible(shown);
            if (!shown) window_.activateWindow();
            return true;
        });
    };
    whileItShows({"1", "2", "3"}, [&] {
        for (const bool escape : {true, false}) {
            user_.in("mainWindow");
            user_.clickRow(script, 0);
            const ScreenPoint to = user_.onRow(script, 2);
            pressMouse(user_.gripOn(script, 0));
            moveMouse({to.x, to.y - 4});
            waitForDragImage(true);
            escape ? press({"Escape"}) : showOther(true);
            waitForDragImage(false);
            releaseMouse();
            waitForLines("1 2 3");
            showOther(false);
        }
        // Nothing of it is left over for the next drag.
        user_.in("mainWindow");
        user_.clickRow(script, 0);
        dragRow(0, 2);
        waitForLines("2 3 1");
    });
}

}  // namespace
}  // namespace quendra::test
