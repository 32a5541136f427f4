// A whole sequence on the real window with its real dialogs: from a double-click in a palette to
// the file and back.
#include "app/pane_list.h"
#include "dialogs/dialog_fixture.h"
#include "scriptfile/entry_codec.h"

#include <QAction>
#include <QApplication>
#include <QWindow>
#include <QtTest>

namespace quendra::test {
namespace {

class WholeSequenceTest : public SearchDialogTest {
  protected:
    WholeSequenceTest() : window(state), scriptEditor(state, window, editParameters) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        writeBytes(editor.folder / "a.qds", commentFile(2));
    }

    void menuCommand(int command) {
        if (command == 301) answers.toFileDialogs.emplace_back(editor.folder / "a.qds");
        window.findChild<QAction*>(QStringLiteral("command%1").arg(command))->trigger();
        QApplication::processEvents();
    }
    /// Lets the prepared steps answer what the double-click opens.
    void doubleClickThrough(const char* list, const char* text) {
        steps.run([&] {
            doubleClick(list, text);
            return true;
        });
    }
    void doubleClick(const char* name, const char* text) {
        auto& list = *window.findChild<PaneList*>(QLatin1String(name));
        const auto found =
            list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, QLatin1String(text));
        ASSERT_FALSE(found.isEmpty()) << text;
        list.scrollTo(found.front());
        const QPoint place = list.rowRect(found.front().row()).center() - QPoint(40, 0);
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                           list.viewport()->mapTo(&window, place));
        QApplication::processEvents();
    }
    /// The lines of the script, and "*" when it is marked as changed.
    [[nodiscard]] std::string shown() const {
        std::string result;
        for (int row = 0; row < static_cast<int>(state.script.entryCount()); ++row)
            result += window.findChild<EditorPane*>()->entryText(row).toStdString() + '\n';
        return result + (window.windowTitle().endsWith(QStringLiteral(" *")) ? "*" : "");
    }
    [[nodiscard]] std::string storedText(std::size_t row) const {
        const ScriptEntry stored = unpackEntry(state.script.entries[row], state.cipher);
        return std::string(textOf(slotFields(stored, Slot::Entry)));
    }

    MainWindow window;
    ScriptEditor scriptEditor;
};

TEST_F(WholeSequenceTest, AHiddenTypeStaysHiddenThroughFileEditAndUndo) {
    menuCommand(301);
    window.pane().selectEntries(std::vector<std::size_t>{1}, 1);
    steps.in("textDialog", [](const OpenDialog& d) {
        d.click("hide");
        d.retype("text", "secret");
        d.press(Qt::Key_Return);
    });
    doubleClickThrough("scriptEventsPalette", "Type");
    const std::string built = "1\n2\nType \"******\" (H)\n";
    EXPECT_EQ(shown(), built + '*');
    EXPECT_EQ(window.pane().selectedEntries(), std::vector<std::size_t>{2});
    menuCommand(302);
    menuCommand(300);
    EXPECT_EQ(shown(), "");
    menuCommand(301);
    EXPECT_EQ(shown(), built);

    steps.in("textDialog", [](const OpenDialog& d) {
        EXPECT_FALSE(d.has("hide"));
        EXPECT_EQ(d.shown("text"), "******");
        d.type("longer");
        d.click("ok");
    });
    doubleClickThrough("scriptList", "Type \"******\" (H)");
    EXPECT_EQ(shown(), built + '*');
    EXPECT_EQ(storedText(2), "longer");
    menuCommand(321);
    EXPECT_EQ(shown(), built);
    EXPECT_EQ(storedText(2), "secret");
    EXPECT_TRUE(answers.messages.empty());
}

}  // namespace
}  // namespace quendra::test
