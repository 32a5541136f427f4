// The log-on script of the examples built by mouse, text fields apart, and the drags of a real
// mouse under a real window manager.
#include "desktop/mouse_user.h"
#include "support/editor_fixture.h"

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
    MouseTest()
        : window_(editor_.state),
          scriptEditor_(editor_.state, window_, editParameters),
          handlers_(editor_.state, window_, scriptEditor_) {
        window_.show();
    }
    ~MouseTest() override {
        if (HasFailure()) std::cout << "the script: " << lines() << "\n";
    }

    [[nodiscard]] std::string lines() {
        std::string all;
        for (std::size_t row = 0; row < editor_.state.script.entryCount(); ++row)
            all += window_.pane().entryText(static_cast<int>(row)).toStdString() + "|";
        return all;
    }
    void waitForLines(const std::string& expected) {
        waitUntil([&] { return onScreen([&] { return lines(); }) == expected; },
                  "the script is " + expected);
    }
    void waitForDragImage(bool shows) {
        const auto isShown = [&] {
            const auto* image = window_.findChild<QWidget*>(QStringLiteral("dragImage"));
            return image != nullptr && image->isVisible();
        };
        waitUntil([&] { return onScreen(isShown) == shows; }, "the drag image shows or is gone");
        EXPECT_EQ(shows, onScreen([] { return QApplication::overrideCursor() != nullptr; }));
    }

    static void clickTool(EditorCommand command) { click(toolButtonName(command).toStdString()); }
    void expectOneMoreEntry() {
        ++inserted_;
        waitForWindow("mainWindow");
        const auto count = [&] { return editor_.state.script.entryCount(); };
        waitUntil([&] { return onScreen(count) == inserted_; },
                  "the script has " + std::to_string(inserted_) + " entries");
    }
    void fillIn(const std::string& dialog, const Fields& fields) {
        waitForWindow(dialog);
        for (const auto& [field, text] : fields)
            typeOver(field, text);
    }
    void accept() {
        click("ok");
        expectOneMoreEntry();
    }
    void open(const std::string& event, const std::string& dialog, const Fields& fields = {}) {
        clickRow(events, event, 2);
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
        clickRow(palette, row, 2);
        expectOneMoreEntry();
    }
    // An action with a text.
    void chooseAction(const char* button, const std::string& action, const std::string& text,
                      const char* backIn) {
        click(button);
        waitForWindow("actionDialog");
        clickRow("scriptEventsList", action);
        click("ok");
        fillIn("textDialog", {{"text", text}});
        click("ok");
        waitForWindow(backIn);
    }
    void insertInput(const std::string& prompt, bool hidden, const std::string& variable) {
        open("Input", "inputDialog",
             {{"title", "TSO logon"}, {"prompt", prompt}, {"maximumLength", "8"}});
        if (hidden) click("hideInput");
        click("variable");
        waitUntil([] { return onScreen([] { return QApplication::activePopupWidget(); }); },
                  "the variables drop down");
        clickRow("QListView", variable);
        waitForWindow("inputDialog");
        accept();
    }
    void openWaitFor(const std::string& text, const std::string& seconds) {
        open("Wait_For", "waitForDialog", {{"text", text}});
        click("timeout");
        typeOver("timeoutSeconds", seconds);
    }
    void buildFirstHalf();
    void buildSecondHalf();

    EditorState editor_;
    MainWindow window_;
    ScriptEditor scriptEditor_;
    CommandHandlers handlers_;
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
    clickRow(events, "Wait_Ready");
    clickTool(EditorCommand::InsertScriptEvent);
    waitForWindow("waitDialog");
    accept();
    insertText("Label", "AskPassword");
    insertInput("Your password (not shown):", true, "VarPassword");
    open("If_Input_Is", "ifInputIsDialog",
         {{"firstOperandText", "VarPassword"}, {"secondOperandText", "quit"}});
    chooseAction("thenButton", "Goto", "Leave", "ifInputIsDialog");
    accept();
    insert("Set_Cursor", "setCursorDialog", {{"row", "8"}, {"column", "20"}});
    insertText("Type", "VarPassword");
    insertPlain(keys, "Enter");
    openWaitFor("PASSWORD NOT AUTHORIZED", "3");
    typeOver("row", "2");
    chooseAction("thenButton", "Goto", "AskPassword", "waitForDialog");
    accept();
}

void MouseTest::buildSecondHalf() {
    open("Watch_For", "watchForDialog", {{"text", "***"}});
    clickRow("luFunctionsList", "Enter");
    accept();
    openWaitFor("READY", "60");
    click("thenButton");
    waitForWindow("actionDialog");
    clickRow("scriptEventsList", "Clear_Watch", 2);
    click("ok");
    waitForWindow("waitForDialog");
    chooseAction("elseButton", "Message", "TSO did not become ready within a minute.",
                 "waitForDialog");
    accept();
    clickRow(menuCommands, "Receive File from Host", 2);
    waitForWindow("transferSheet");
    click("transferHost1");
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
    // Dropped on the last entry it lands before that one, and is then dragged behind it.
    startRowDrag(menuCommands, "Disconnect", script, "Leave:");
    act({"mouseup", "1"});
    expectOneMoreEntry();
    clickRow(script, "Disconnect");
    startRowDrag(script, "Disconnect", script, "Leave:");
    act({"mouseup", "1"});
    waitUntil([&] { return onScreen([&] { return lines(); }).ends_with("Leave:|Disconnect|"); },
              "the drag has moved the entry");
}

TEST_F(MouseTest, BuildsTheLogOnScriptAndSavesIt) {
    whileWindowsLive([this] {
        waitForWindow("mainWindow");
        buildFirstHalf();
        buildSecondHalf();
        clickTool(EditorCommand::Save);
        fillIn("fileDialog", {{"fileNameEdit", "logon.qds"}});
        click("&Save");
        waitForWindow("mainWindow");
        waitForTitle("Quendra Script Editor  -  " + (editor_.folder / "logon.qds").string());
    });
    EXPECT_EQ(readBytes(editor_.folder / "logon.qds"),
              readBytes(QUENDRA_EXAMPLES "/tso-logon.qds"));
}

TEST_F(MouseTest, ADragMovesManyEntriesUnlessEscapeOrAnotherWindowCancelsIt) {
    QWidget other;
    other.setWindowTitle(QStringLiteral("other"));
    const auto showOther = [&](bool shown) {
        onScreen([&] {
            other.setVisible(shown);
            if (!shown) window_.activateWindow();
            return true;
        });
    };
    const auto file = editor_.folder / "shown.qds";
    writeBytes(file, commentFile(8));
    window_.showOpened(openDocumentAtStart(editor_.state, file));
    whileWindowsLive([&] {
        waitForWindow("mainWindow");
        clickRow(script, "2");
        act({"keydown", "ctrl"});
        clickRow(script, "3");
        clickRow(script, "5");
        act({"keyup", "ctrl"});
        for (const bool escape : {true, false}) {
            startRowDrag(script, "5", script, "7");
            waitForDragImage(true);
            escape ? press({"Escape"}) : showOther(true);
            waitForDragImage(false);
            act({"mouseup", "1"});
            waitForLines("1|2|3|4|5|6|7|8|");
            showOther(false);
            waitForWindow("mainWindow");
        }
        // Nothing of it is left over for the next drag.
        startRowDrag(script, "5", script, "7");
        act({"mouseup", "1"});
        waitForLines("1|4|6|2|3|7|5|8|");
        clickTool(EditorCommand::Undo);
        waitForLines("1|2|3|4|5|6|7|8|");
    });
}

}  // namespace
}  // namespace quendra::test
