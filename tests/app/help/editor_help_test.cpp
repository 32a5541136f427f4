// The Help command, help on the selection, and F1 in every dialog, while the dialog is open.
#include "app/help/editor_help.h"

#include "app/editor_fixture.h"
#include "app/help/help_window.h"
#include "app/help/made_up_manual.h"
#include "app/help/page_view.h"
#include "dialogs/parameter_dialogs.h"

#include <QDialog>
#include <QListView>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <fstream>
#include <functional>
#include <tuple>

namespace quendra::test {

namespace {

class EditorHelpTest : public EditorTest {
  protected:
    EditorHelpTest() { state.settings.programDir = pages.bin(); }

    [[nodiscard]] static HelpWindow* manual() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<HelpWindow*>(widget);
            if (found != nullptr && found->isVisible()) return found;
        }
        return nullptr;
    }
    // The page that is open; empty without a help window.
    [[nodiscard]] static std::string page() {
        return manual() == nullptr ? "" : manual()->page().toStdString();
    }
    [[nodiscard]] std::string focused() const {
        return window.focusWidget()->objectName().toStdString();
    }
    // As the system would, so that shortcuts and modality count.
    static void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QApplication::setActiveWindow(&window);
        QTest::keyClick(window.windowHandle(), key, held);
    }
    // Opens the dialog of a new entry, and cancels it after these steps.
    void inDialogOf(CommandCode code, std::uint32_t id, const std::function<void(QDialog&)>& step) {
        ScriptEntry entry;
        entry.commandCode = code;
        entry.commandId = id;
        QTimer::singleShot(0, &window, [&] { inOpenDialog(step); });
        EXPECT_FALSE(editParameters({state, &window}, {entry}));
    }
    static void inOpenDialog(const std::function<void(QDialog&)>& step) {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        step(*dialog);
        dialog->reject();
    }
    void writeHelpFile() {
        std::filesystem::create_directories(state.settings.installDir);
        state.settings.helpFilePath = state.settings.installDir / "quendra.chm";
        std::ofstream(state.settings.helpFilePath) << "x";
    }

    MadeUpManual pages;
    std::vector<std::string> started;
    bool starts = true;
    const std::function<bool(const std::string&)> start = [this](const std::string& what) {
        started.push_back(what);
        return starts;
    };
    EditorHelp help{
        state, window, {[this](const auto& what, const auto&) { return start(what); }, start}};
};

TEST_F(EditorHelpTest, HelpOpensTheManualOfAPlainInstallationAndLeavesTheFocusInThePane) {
    for (const QWidget* widget : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<const HelpWindow*>(widget), nullptr) << "before it is asked for";
    widget<QListView>("menuCommandsPalette").setFocus();
    press(window, Qt::Key_F1);
    EXPECT_EQ(page(), "index.md");
    EXPECT_EQ(focused(), "menuCommandsPalette");
    EXPECT_TRUE(started.empty());
    HelpWindow* first = manual();
    first->close();
    action(319).trigger();
    EXPECT_EQ(manual(), first) << "one window for the whole run";
}

TEST_F(EditorHelpTest, HelpStartsWhatIsInstalledElseTheManualOpens) {
    writeHelpFile();
    open("a.qds", commentFile(2));
    action(323).trigger();
    ASSERT_EQ(focused(), "findText");
    action(319).trigger();
    EXPECT_EQ(started, std::vector<std::string>{"kchmviewer"});
    EXPECT_EQ(focused(), "scriptList");
    state.settings.useWebHelp = true;
    state.settings.webHelpBase = "https://h.test";
    action(319).trigger();
    EXPECT_EQ(started.back().substr(0, 21), "https://h.test/en/qd/");
    EXPECT_EQ(manual(), nullptr);
    state.settings.useWebHelp = false;
    starts = false;
    started.clear();
    action(319).trigger();
    EXPECT_EQ(started, (std::vector<std::string>{"kchmviewer", "xchm"}));
    EXPECT_TRUE(answers.messages.empty());
    EXPECT_EQ(page(), "index.md");
}

TEST_F(EditorHelpTest, SelectionLeadsToItsPage) {
    open("a.qds", scriptFile("QDTDSCR=", {commentRecord("one"), menuRecord(205),
                                          joined({Bytes{1}, word(0), word(0)})}));
    const auto helpInList = [&](const char* list) {
        widget<QListView>(list).setFocus();
        press(window, Qt::Key_F1, Qt::ShiftModifier);
        return page();
    };
    widget<QListView>("scriptEventsPalette").clearSelection();
    EXPECT_EQ(helpInList("scriptEventsPalette"), "t27.md") << "nothing selected";
    const std::tuple<const char*, int, const char*> rows[] = {
        {"scriptEventsPalette", 16, "wait-for.md"},    {"luFunctionsPalette", 3, "lu-function.md"},
        {"menuCommandsPalette", 3, "menu-command.md"}, {"scriptList", 0, "comment.md"},
        {"scriptList", 1, "menu-command.md"},          {"scriptList", 2, "lu-function.md"}};
    for (const auto& [list, row, expected] : rows) {
        choosePaletteRow(list, row);
        EXPECT_EQ(helpInList(list), expected);
    }
    select({}, 2);
    EXPECT_EQ(helpInList("scriptList"), "t27.md");
    EXPECT_EQ(focused(), "scriptList");
}

TEST_F(EditorHelpTest, F1InADialogOpensItsPage) {
    const auto expectPage = [&](CommandCode code, std::uint32_t id, const QString& expected) {
        inDialogOf(code, id, [&](QDialog& dialog) {
            press(dialog, Qt::Key_F1);
            EXPECT_EQ(page(), expected.toStdString());
            EXPECT_TRUE(dialog.isVisible());
        });
    };
    using enum CommandCode;
    for (const CommandCode code : {Comment, ExpressLogon, Input, IfInputIs, SetCursor, Type, Wait,
                                   WaitFor, WaitReady, WaitUntil, WatchFor})
        expectPage(code, 0, manualPageOf(commandKeyword(code)));
    expectPage(Run, 0, QStringLiteral("file-operation.md"));
    expectPage(MenuCommand, 202, QStringLiteral("file-operation.md"));
    expectPage(MenuCommand, 236, QStringLiteral("file-transfer-settings.md"));
}

TEST_F(EditorHelpTest, TheManualCanBeUsedWhileDialogsAreOpen) {
    const auto useManual = [&](const char* when) {
        SCOPED_TRACE(when);
        HelpWindow* shown = manual();
        ASSERT_NE(shown, nullptr);
        // A dialog that has just opened becomes the active window first.
        QCoreApplication::processEvents();
        press(*shown, Qt::Key_Home, Qt::AltModifier);
        EXPECT_EQ(page(), "index.md");
        const auto* back = shown->findChild<QWidget*>(QStringLiteral("helpBackButton"));
        const QPoint place = back->mapTo(shown, back->rect().center());
        QTest::mouseClick(shown->windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_NE(page(), "index.md") << "the mouse works too";
    };
    const auto inAction = [&](QDialog& action) {
        ASSERT_EQ(action.objectName(), QStringLiteral("actionDialog"));
        useManual("over both");
        press(action, Qt::Key_F1);
        EXPECT_EQ(page(), "action.md");
        useManual("after F1 in the upper one");
    };
    open("a.qds", commentFile(2));
    inDialogOf(CommandCode::IfInputIs, 0, [&](QDialog& dialog) {
        QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(window.windowHandle(), Qt::Key_X, Qt::ControlModifier);
        press(dialog, Qt::Key_F1);
        EXPECT_EQ(page(), "if-input-is.md");
        useManual("over the lower one");
        QTimer::singleShot(0, &window, [&] { inOpenDialog(inAction); });
        QApplication::setActiveWindow(&dialog);
        QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("thenButton")), Qt::LeftButton);
    });
    EXPECT_EQ(state.script.entryCount(), 2U) << "the editor waited all the time";
    useManual("after them");
    press(window, Qt::Key_F1);
    EXPECT_EQ(page(), "index.md");
}

TEST_F(EditorHelpTest, OtherKeysAndWindowsWithoutAPageAskForNothing) {
    QMessageBox box(&window);
    QTimer::singleShot(0, &box, [&] {
        QTest::keyClick(box.windowHandle(), Qt::Key_F1);
        EXPECT_EQ(manual(), nullptr);
        box.reject();
    });
    box.exec();
    inDialogOf(CommandCode::Label, 0, [&](QDialog& dialog) {
        press(dialog, Qt::Key_F1, Qt::ControlModifier);
        press(dialog, Qt::Key_F2);
        EXPECT_EQ(manual(), nullptr);
        press(dialog, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_EQ(page(), "label.md");
    });
}

TEST_F(EditorHelpTest, FollowsTheLanguageOfTheInterface) {
    std::ofstream(state.settings.configDir / "language.ini")
        << "[Language]\nLanguage=qdstring_de\n";
    action(319).trigger();
    EXPECT_TRUE(manual()->findChild<PageView*>()->toPlainText().contains(u"Der Editor"));
}

}  // namespace
}  // namespace quendra::test
