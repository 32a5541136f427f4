// The Help command, help on the selection, and F1 in every dialog, while the dialog is open.
#include "help/editor_help.h"

#include "dialogs/parameter_dialogs.h"
#include "help/help_window.h"
#include "help/made_up_manual.h"
#include "help/page_view.h"
#include "support/editor_fixture.h"
#include "widgets/toolkit_language.h"

#include <QDialog>
#include <QListView>
#include <QTimer>
#include <QtTest>

#include <fstream>
#include <functional>
#include <tuple>

namespace quendra::test {

namespace {

using enum EditorCommand;

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
        entry.code = code;
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

    MadeUpManual pages;
    std::vector<std::string> started;
    bool starts = true;
    const HelpLaunchers launchers = {[this](const std::string& program, const auto&) {
                                         started.push_back(program);
                                         return starts;
                                     },
                                     [](const std::string&) { return false; }};
    EditorHelp help{state, launchers};
    CommandHandlers withHelp{state, window, scriptEditor, &help};
};

TEST_F(EditorHelpTest, HelpOpensTheManualOfAPlainInstallationAndLeavesTheFocusInThePane) {
    EXPECT_EQ(manual(), nullptr);
    widget<QListView>("menuCommandsPalette").setFocus();
    press(window, Qt::Key_F1);
    EXPECT_EQ(page(), "index.html");
    EXPECT_EQ(focused(), "menuCommandsPalette");
    EXPECT_TRUE(started.empty());
}

TEST_F(EditorHelpTest, HelpStartsWhatIsInstalledElseTheManualInTheLanguageOfTheInterfaceOpens) {
    std::filesystem::create_directories(state.settings.installDir);
    state.settings.helpFilePath = state.settings.installDir / "quendra.chm";
    std::ofstream(state.settings.helpFilePath) << "x";
    run(Help);
    EXPECT_EQ(started, std::vector<std::string>{"kchmviewer"});
    EXPECT_EQ(manual(), nullptr);
    starts = false;
    std::ofstream(state.settings.configDir / "language.ini")
        << "[Language]\nLanguage=qdstring_de\n";
    run(Help);
    EXPECT_EQ(started.size(), 3U) << "all viewers were tried";
    EXPECT_TRUE(answers.messages.empty());
    EXPECT_TRUE(manual()->findChild<PageView*>()->toPlainText().contains(u"Der Editor"));
    std::ofstream(state.settings.configDir / "language.ini")
        << "[Language]\nLanguage=qdstring_x/../../planted\n";
    EXPECT_EQ(interfaceLanguage(state.settings.configDir), "") << "no way to other folders";
}

TEST_F(EditorHelpTest, SelectionLeadsToItsPage) {
    open("a.qds", scriptFile("QDTDSCR=", {commentRecord("one"), menuRecord(205),
                                          joined({Bytes{1}, word(0), word(0)})}));
    const auto helpInList = [&](const char* list) {
        widget<QListView>(list).setFocus();
        press(window, Qt::Key_F1, Qt::ShiftModifier);
        return page();
    };
    const std::tuple<const char*, int, const char*> rows[] = {
        {"scriptEventsPalette", 16, "wait-for.html"},
        {"luFunctionsPalette", 3, "lu-function.html"},
        {"menuCommandsPalette", 3, "menu-command.html"},
        {"scriptList", 0, "comment.html"},
        {"scriptList", 1, "menu-command.html"},
        {"scriptList", 2, "lu-function.html"}};
    for (const auto& [list, row, expected] : rows) {
        choosePaletteRow(list, row);
        EXPECT_EQ(helpInList(list), expected);
    }
    select({}, 2);
    EXPECT_EQ(helpInList("scriptList"), "t27.html") << "nothing selected";
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
    expectPage(Run, 0, QStringLiteral("file-operation.html"));
    expectPage(MenuCommand, 202, QStringLiteral("file-operation.html"));
    expectPage(MenuCommand, 236, QStringLiteral("file-transfer-settings.html"));
}

TEST_F(EditorHelpTest, TheManualCanBeUsedWhileDialogsAreOpen) {
    const auto useManual = [&](QDialog& dialog, const char* expected) {
        press(dialog, Qt::Key_F1);
        EXPECT_EQ(page(), expected);
        press(*manual(), Qt::Key_Home, Qt::AltModifier);
        EXPECT_EQ(page(), "index.html");
        const auto* back = manual()->findChild<QWidget*>(QStringLiteral("helpBackButton"));
        const QPoint place = back->mapTo(manual(), back->rect().center());
        QTest::mouseClick(manual()->windowHandle(), Qt::LeftButton, {}, place);
        EXPECT_EQ(page(), expected) << "the mouse works too";
    };
    open("a.qds", commentFile(2));
    inDialogOf(CommandCode::IfInputIs, 0, [&](QDialog& dialog) {
        QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(window.windowHandle(), Qt::Key_X, Qt::ControlModifier);
        useManual(dialog, "if-input-is.html");
        QTimer::singleShot(0, &window, [&] {
            inOpenDialog([&](QDialog& action) { useManual(action, "action.html"); });
        });
        QApplication::setActiveWindow(&dialog);
        QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("thenButton")), Qt::LeftButton);
    });
    EXPECT_EQ(state.script.entryCount(), 2U) << "the editor waited all the time";
}

}  // namespace
}  // namespace quendra::test
