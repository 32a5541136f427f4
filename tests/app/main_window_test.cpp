// The window as its user meets it: menus, keys, titles, prompts and what stands in the status bar.
#include "app/commands.h"
#include "app/editor_fixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <filesystem>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

const Bytes letter = bytesOf("dear all");

class MainWindowTest : public EditorTest {
  protected:
    void pressInList(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&widget<QListView>("scriptList"), key, held);
        QCoreApplication::processEvents();
    }
    void deleteFirstEntry() {
        select({0}, 0);
        answers.toMessages.push_back(MessageAnswer::Yes);
        action(312).trigger();
        answers.messages.clear();
    }
    std::vector<std::string> lines() {
        std::vector<std::string> result;
        for (std::size_t i = 0; i < state.script.entryCount(); ++i) {
            result.push_back(window.pane().entryText(static_cast<int>(i)).toStdString());
        }
        return result;
    }
    QString untitled = QStringLiteral("Quendra Script Editor  -  Untitled");
};

TEST_F(MainWindowTest, StartsUntitledEmptyAndAsMainframe) {
    EXPECT_EQ(title(), untitled);
    EXPECT_EQ(status(), QStringLiteral("No entries"));
    EXPECT_TRUE(action(313).isChecked());
    EXPECT_EQ(widget<QListView>("luFunctionsPalette").model()->rowCount(), 64);
    EXPECT_FALSE(action(302).isEnabled());
}

TEST_F(MainWindowTest, MenusHoldTheirCommandsInOrder) {
    const std::vector<std::vector<int>> expected = {{300, 301, 302, 303, 0, 304},
                                                    {321, 322, 0, 305, 306, 324, 307, 0, 323},
                                                    {308, 309, 310, 325, 0, 311, 0, 312},
                                                    {313, 314, 315, 316, 317, 318},
                                                    {319, 0, 320}};
    std::vector<std::vector<int>> found;
    for (const QAction* entry : window.menuBar()->actions()) {
        auto& ids = found.emplace_back();
        for (const QAction* item : entry->menu()->actions()) {
            ids.push_back(item->isSeparator() ? 0 : item->objectName().mid(7).toInt());
        }
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(window.menuBar()->actions().at(2)->text(), QStringLiteral("E&ntry"));
    EXPECT_EQ(action(316).text(), QStringLiteral("  &UTS"));
}

TEST_F(MainWindowTest, ToolBarHoldsItsButtonsInOrder) {
    std::vector<int> found;
    for (QAction* item : widget<QToolBar>("toolBar").actions()) {
        found.push_back(item->isSeparator() ? 0 : item->objectName().mid(7).toInt());
    }
    EXPECT_EQ(found,
              (std::vector<int>{301, 302, 0,   305, 306, 307, 0,   321, 322, 0,   308, 309, 310, 0,
                                311, 0,   312, 0,   313, 314, 315, 316, 317, 318, 0,   319, 320}));
}

TEST_F(MainWindowTest, OpenShowsScriptTitleCountAndHostType) {
    const fs::path path =
        open("a.qds", scriptFile("QDTDSCR=", {commentRecord("one"), commentRecord("two")}));
    EXPECT_EQ(title().toStdString(), "Quendra Script Editor  -  " + path.string());
    EXPECT_EQ(status(), QStringLiteral("2 entries"));
    EXPECT_TRUE(action(317).isChecked());
    EXPECT_FALSE(action(313).isChecked());
    EXPECT_EQ(widget<QListView>("luFunctionsPalette").model()->rowCount(), 90);
    EXPECT_EQ(lines(), (std::vector<std::string>{"one", "two"}));
    EXPECT_TRUE(action(302).isEnabled());
    ASSERT_EQ(answers.fileDialogs.size(), 1U);
    EXPECT_EQ(answers.fileDialogs[0].mode, FileDialogMode::Open);
    EXPECT_EQ(answers.fileDialogs[0].filterDescription, "Quendra Script Files(*.qds)");
    EXPECT_EQ(answers.fileDialogs[0].extension, "qds");
    EXPECT_EQ(answers.fileDialogs[0].initialFolder, state.settings.scriptsDir);
}

TEST_F(MainWindowTest, CancelledAndFailedOpenLeaveScriptAndTitle) {
    const fs::path path = open("a.qds", commentFile(3));
    const QString before = title();
    answers.toFileDialogs.emplace_back(std::nullopt);
    action(301).trigger();
    EXPECT_EQ(title(), before);
    const fs::path refused = open("letter.qds", letter);
    EXPECT_EQ(title(), before);
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].title, state.language.loadText(13724));
    action(302).trigger();
    EXPECT_EQ(readBytes(refused), letter) << "a later Save must not reach the refused file";
    EXPECT_EQ(readBytes(path), commentFile(3));
}

TEST_F(MainWindowTest, FileThatIsNotWholeIsToldOfInTheStatusBar) {
    open("cut.qds", scriptFile("QDMDSCR=", {commentRecord("one"), Bytes{6, 40}}));
    EXPECT_TRUE(answers.messages.empty());
    EXPECT_TRUE(status().startsWith(QStringLiteral("1 entry loaded: "))) << status().toStdString();
    deleteFirstEntry();
    EXPECT_EQ(status(), QStringLiteral("No entries"));
}

TEST_F(MainWindowTest, ChangeMarksTheTitleOnceAndSaveTakesTheMarkAway) {
    const fs::path path = open("a.qds", commentFile(3));
    deleteFirstEntry();
    deleteFirstEntry();
    EXPECT_EQ(title().toStdString(), "Quendra Script Editor  -  " + path.string() + " *");
    EXPECT_EQ(status(), QStringLiteral("1 entry"));
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(title().toStdString(), "Quendra Script Editor  -  " + path.string());
    EXPECT_EQ(readBytes(path), scriptFile("QDMDSCR=", {commentRecord("3")}));
}

TEST_F(MainWindowTest, FailedSaveIsShownAndTheMarkStays) {
    const fs::path folder = editor.folder / "sub";
    fs::create_directory(folder);
    writeBytes(folder / "a.qds", commentFile(2));
    answers.toFileDialogs.emplace_back(folder / "a.qds");
    action(301).trigger();
    deleteFirstEntry();
    fs::remove_all(folder);
    action(302).trigger();
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_TRUE(title().endsWith(QStringLiteral(" *")));
    // The question whether to save comes again, and a Yes that fails does not throw the script
    // away.
    answers.toMessages.push_back(MessageAnswer::Yes);
    EXPECT_FALSE(window.close());
    EXPECT_EQ(state.script.entryCount(), 1U);
}

TEST_F(MainWindowTest, UntitledSaveIsSaveAs) {
    const fs::path path = open("a.qds", commentFile(3));
    action(306).trigger();
    answers.messages.clear();
    select({0, 1}, 0);
    action(306).trigger();
    action(300).trigger();
    EXPECT_EQ(title(), untitled);
    EXPECT_EQ(status(), QStringLiteral("No entries"));
    action(307).trigger();
    EXPECT_EQ(title(), untitled + QStringLiteral(" *"));
    answers.toFileDialogs.emplace_back(std::nullopt);
    action(302).trigger();
    EXPECT_EQ(title(), untitled + QStringLiteral(" *")) << "cancelling leaves it modified";
    const fs::path other = editor.folder / "b.qds";
    answers.toFileDialogs.emplace_back(other);
    action(302).trigger();
    EXPECT_EQ(answers.fileDialogs.back().mode, FileDialogMode::Save);
    EXPECT_EQ(answers.fileDialogs.back().title, state.language.loadText(13714));
    EXPECT_EQ(title().toStdString(), "Quendra Script Editor  -  " + other.string());
    EXPECT_EQ(readBytes(other), commentFile(2));
    EXPECT_EQ(readBytes(path), commentFile(3));
}

TEST_F(MainWindowTest, FileChangedByOthersIsOnlyOverwrittenAfterYes) {
    const fs::path path = open("a.qds", commentFile(2));
    writeBytes(path, letter);
    answers.toMessages.push_back(MessageAnswer::No);
    action(302).trigger();
    EXPECT_EQ(readBytes(path), letter);
    answers.toMessages.push_back(MessageAnswer::Yes);
    action(302).trigger();
    EXPECT_EQ(readBytes(path), commentFile(2));
    EXPECT_EQ(readBytes(path.string() + ".bak"), letter);
    EXPECT_EQ(status(), QStringLiteral("The old file is kept as a.qds.bak"));
}

TEST_F(MainWindowTest, SavingAsVtWhatVtCannotStoreNeedsAYes) {
    const Bytes before = scriptFile("QDMDSCR=", {menuRecord(213)});
    const fs::path path = open("a.qds", before);
    action(315).trigger();
    answers.toMessages.push_back(MessageAnswer::No);
    action(302).trigger();
    EXPECT_EQ(readBytes(path), before);
    answers.toMessages.push_back(MessageAnswer::Yes);
    action(302).trigger();
    EXPECT_EQ(readBytes(path).at(2), 'V');
}

enum class PromptCommand { New, Open, Close };

struct PromptRow {
    const char* name;
    PromptCommand command;
    MessageAnswer answer;
    bool goesOn;
    bool saved;
};

TEST_F(MainWindowTest, PromptBeforeChangesAreDiscarded) {
    using enum MessageAnswer;
    const PromptRow rows[] = {
        {"New, Yes", PromptCommand::New, Yes, true, true},
        {"New, No", PromptCommand::New, No, true, false},
        {"New, Cancel", PromptCommand::New, Cancel, false, false},
        {"Open, Yes", PromptCommand::Open, Yes, true, true},
        {"Open, No", PromptCommand::Open, No, true, false},
        {"Open, Cancel", PromptCommand::Open, Cancel, false, false},
        {"Close, Yes", PromptCommand::Close, Yes, true, true},
        {"Close, No", PromptCommand::Close, No, true, false},
        {"Close, Cancel", PromptCommand::Close, Cancel, false, false},
    };
    for (const PromptRow& row : rows) {
        SCOPED_TRACE(row.name);
        const fs::path path = open("a.qds", commentFile(2));
        deleteFirstEntry();
        answers.toMessages.push_back(row.answer);
        bool wentOn = false;
        if (row.command == PromptCommand::Close) {
            wentOn = window.close();
            window.show();
            state.document.modified = false;
        } else if (row.command == PromptCommand::New) {
            action(300).trigger();
            wentOn = state.script.entryCount() == 0;
        } else {
            if (row.goesOn) answers.toFileDialogs.emplace_back(std::nullopt);
            const std::size_t asked = answers.fileDialogs.size();
            action(301).trigger();
            wentOn = answers.fileDialogs.size() == asked + 1;
        }
        EXPECT_EQ(wentOn, row.goesOn);
        ASSERT_EQ(answers.messages.size(), 1U);
        const Message& prompt = answers.messages[0];
        EXPECT_EQ(prompt.buttons, MessageButtons::YesNoCancel);
        EXPECT_EQ(prompt.icon, MessageIcon::Question);
        EXPECT_NE(prompt.text.find(path.string()), std::string::npos);
        EXPECT_EQ(prompt.title,
                  state.language.loadText(row.command == PromptCommand::Close ? 13717 : 13712));
        EXPECT_EQ(readBytes(path) != commentFile(2), row.saved);
        state.document.modified = false;
        answers.messages.clear();
    }
}

TEST_F(MainWindowTest, ClosingAnUntitledScriptGoesOnWhenSaveAsIsCancelled) {
    open("a.qds", commentFile(2));
    select({0}, 0);
    action(306).trigger();
    action(300).trigger();
    action(307).trigger();
    answers.toMessages.push_back(MessageAnswer::Yes);
    answers.toFileDialogs.emplace_back(std::nullopt);
    EXPECT_TRUE(window.close());
    ASSERT_EQ(answers.messages.size(), 1U);
    EXPECT_EQ(answers.messages[0].text, state.language.loadText(13711));
}

TEST_F(MainWindowTest, ExitClosesWithTheSamePrompt) {
    open("a.qds", commentFile(2));
    deleteFirstEntry();
    answers.toMessages.push_back(MessageAnswer::Cancel);
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.isVisible());
    answers.toMessages.push_back(MessageAnswer::No);
    action(304).trigger();
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, EndOfTheSessionClosesWithoutAQuestion) {
    open("a.qds", commentFile(2));
    deleteFirstEntry();
    window.endSession();
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(answers.messages.empty());
}

TEST_F(MainWindowTest, NewOnAnEmptyScriptDoesNothing) {
    const fs::path path = open("a.qds", commentFile(1));
    deleteFirstEntry();
    action(300).trigger();
    EXPECT_EQ(title().toStdString(), "Quendra Script Editor  -  " + path.string() + " *");
}

TEST_F(MainWindowTest, ModeSwitchRenamesKeysAndChangesNothingElse) {
    const Bytes bytes = scriptFile("QDMDSCR=", {Bytes{1, 4, 31}, Bytes{1, 1, 1}});
    const fs::path path = open("a.qds", bytes);
    const auto before = lines();
    window.pane().takeFocus();
    for (const HostTypeInfo& info : {hostTypeInfo(HostType::VT), hostTypeInfo(HostType::VT),
                                     hostTypeInfo(HostType::Mainframe)}) {
        action(info.modeCommand).trigger();
        EXPECT_EQ(state.currentHostType, info.type);
        for (int mode = 313; mode <= 318; ++mode) {
            EXPECT_EQ(action(mode).isChecked(), mode == info.modeCommand) << mode;
            EXPECT_EQ(
                widget<QToolButton>(("toolButton" + std::to_string(mode)).c_str()).isChecked(),
                mode == info.modeCommand);
        }
        EXPECT_EQ(
            static_cast<std::size_t>(widget<QListView>("luFunctionsPalette").model()->rowCount()),
            luRows(info.type).size());
        EXPECT_EQ(lines() == before, info.type == HostType::Mainframe);
        EXPECT_TRUE(widget<QListView>("scriptList").hasFocus());
    }
    EXPECT_FALSE(title().endsWith(QLatin1Char('*')));
    action(302).trigger();
    EXPECT_EQ(readBytes(path), bytes);
}

TEST_F(MainWindowTest, NewKeepsTheMode) {
    open("a.qds", scriptFile("QD7DSCR=", {commentRecord("x")}));
    action(300).trigger();
    EXPECT_TRUE(action(318).isChecked());
    EXPECT_EQ(state.currentHostType, HostType::ICL);
}

TEST_F(MainWindowTest, CommandStatesFollowSelectionsInTheLists) {
    open("a.qds", commentFile(2));
    choosePaletteRow("scriptEventsPalette", 0);
    EXPECT_TRUE(action(308).isEnabled());
    EXPECT_EQ(action(308).toolTip(), QStringLiteral("Insert Script Event Beep"));
    EXPECT_FALSE(action(309).isEnabled());
    EXPECT_FALSE(widget<QToolButton>("toolButton309").isEnabled());
    select({0, 1}, 1);
    EXPECT_EQ(action(312).toolTip(), QStringLiteral("Delete 2 entries"));
    EXPECT_EQ(action(311).toolTip(), QStringLiteral("Edit 2"));
    select({}, -1);
    EXPECT_FALSE(action(305).isEnabled());
    EXPECT_FALSE(action(311).isEnabled());
    EXPECT_FALSE(action(307).isEnabled());
    select({0}, 0);
    action(306).trigger();
    EXPECT_TRUE(action(307).isEnabled());
}

TEST_F(MainWindowTest, ToolTipShowsMarkupAsItIs) {
    open("a.qds", scriptFile("QDMDSCR=", {commentRecord("<b>bold</b>")}));
    EXPECT_TRUE(action(311).toolTip().contains(QStringLiteral("&lt;b&gt;bold&lt;/b&gt;")))
        << action(311).toolTip().toStdString();
}

TEST_F(MainWindowTest, TitleShowsAPathWithPlaceholderCharactersAsItIs) {
    const fs::path path = open("a[*]b.qds", commentFile(1));
    EXPECT_EQ(title().toStdString(),
              "Quendra Script Editor  -  " + (editor.folder / "a[*][*]b.qds").string())
        << "doubled is how Qt is told to show it once";
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(MainWindowTest, HoverShowsStatusHelpAndThenTheCountAgain) {
    open("a.qds", commentFile(2));
    auto& button = widget<QToolButton>("toolButton301");
    QTest::mouseMove(&button);
    QStatusTipEvent enter(action(301).statusTip());
    QCoreApplication::sendEvent(&button, &enter);
    EXPECT_EQ(window.statusBar()->currentMessage(), QStringLiteral("Opens an existing script."));
    EXPECT_FALSE(widget<QLabel>("statusLine").isVisible());
    QStatusTipEvent leave{QString()};
    QCoreApplication::sendEvent(&button, &leave);
    EXPECT_TRUE(widget<QLabel>("statusLine").isVisible());
    EXPECT_EQ(status(), QStringLiteral("2 entries"));
}

TEST_F(MainWindowTest, KeysCutCopyPasteAndDelete) {
    open("a.qds", commentFile(4));
    select({0, 2}, 0);
    pressInList(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(state.entryClipboard.size(), 2U);
    EXPECT_FALSE(title().endsWith(QLatin1Char('*'))) << "copying changes nothing";
    pressInList(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(lines(), (std::vector<std::string>{"2", "4"}));
    EXPECT_EQ(state.currentIndex, 1);
    pressInList(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(lines(), (std::vector<std::string>{"2", "4", "1", "3"}));
    EXPECT_EQ(window.pane().selectedEntries(), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(window.pane().focusedEntry(), 3);
    answers.toMessages = {MessageAnswer::No, MessageAnswer::Yes};
    pressInList(Qt::Key_Delete);
    EXPECT_EQ(state.script.entryCount(), 4U);
    EXPECT_EQ(window.pane().selectedEntries(), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(answers.messages.back().text, "Delete 2 entries?");
    EXPECT_EQ(answers.messages.back().title, state.language.loadText(13224));
    EXPECT_EQ(answers.messages.back().buttons, MessageButtons::YesNo);
    pressInList(Qt::Key_Delete);
    EXPECT_EQ(lines(), (std::vector<std::string>{"2", "4"}));
    EXPECT_EQ(state.currentIndex, 1);
}

TEST_F(MainWindowTest, KeysWithoutSelectionDoNothing) {
    open("a.qds", commentFile(2));
    select({1}, 1);
    pressInList(Qt::Key_C, Qt::ControlModifier);
    select({}, -1);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_C, Qt::Key_V}) {
        pressInList(key, Qt::ControlModifier);
    }
    pressInList(Qt::Key_Delete);
    EXPECT_EQ(state.script.entryCount(), 2U);
    EXPECT_EQ(state.entryClipboard.size(), 1U);
    EXPECT_FALSE(title().endsWith(QLatin1Char('*')));
}

TEST_F(MainWindowTest, InsertsAreRefusedAtTheLimitAndTheRestStillWorks) {
    open("full.qds", commentFile(4096));
    select({0}, 0);
    action(306).trigger();
    choosePaletteRow("scriptEventsPalette", 0);
    choosePaletteRow("luFunctionsPalette", 0);
    choosePaletteRow("menuCommandsPalette", 0);
    state.dropPending = true;
    for (const int command : {307, 308, 309, 310}) {
        answers.messages.clear();
        action(command).trigger();
        ASSERT_EQ(answers.messages.size(), 1U) << command;
        EXPECT_EQ(answers.messages[0].text, "Max limit of 4096 script entries reached.");
        EXPECT_EQ(answers.messages[0].title, "Quendra Script Editor");
        EXPECT_EQ(answers.messages[0].icon, MessageIcon::Information);
        EXPECT_FALSE(state.dropPending) << "a later insert would take a stale position";
    }
    EXPECT_FALSE(title().endsWith(QLatin1Char('*')));
    action(305).trigger();
    EXPECT_EQ(state.script.entryCount(), 4095U);
    action(307).trigger();
    EXPECT_EQ(state.script.entryCount(), 4096U);
}

TEST_F(MainWindowTest, PasteStopsAtTheLimit) {
    open("a.qds", commentFile(4090));
    std::vector<std::size_t> ten = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    window.pane().selectEntries(ten, 9);
    action(306).trigger();
    action(307).trigger();
    EXPECT_EQ(state.script.entryCount(), 4096U);
    EXPECT_EQ(state.currentIndex, 15);
    EXPECT_EQ(window.pane().selectedEntries().size(), 10U);
}

TEST_F(MainWindowTest, AboutBoxNamesTheVersionAndIgnoresEscape) {
    bool stillOpen = false;
    std::string version;
    QTimer::singleShot(0, &window, [&] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        version = box->findChild<QLabel*>(QStringLiteral("aboutVersion"))->text().toStdString();
        QTest::keyClick(box, Qt::Key_Escape);
        stillOpen = box->isVisible();
        QTest::mouseClick(box->findChild<QPushButton*>(QStringLiteral("aboutOk")), Qt::LeftButton);
    });
    action(320).trigger();
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(version, "Quendra Script Editor v6.1.4.1982");
}

TEST_F(MainWindowTest, DoubleClickRunsTheInsertOfItsPalette) {
    int inserted = 0;
    EditingCommands editing;
    editing.insertScriptEvent = [&inserted] { ++inserted; };
    window.setEditingCommands(std::move(editing));
    Q_EMIT window.pane().commandRequested(308);
    QCoreApplication::processEvents();
    EXPECT_EQ(inserted, 1);
}

TEST_F(MainWindowTest, EveryControlHasANameForScreenReaders) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus && !qobject_cast<QToolButton*>(control)) continue;
        if (qobject_cast<QMenu*>(control)) continue;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(seen, nullptr);
        EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty())
            << control->metaObject()->className() << ' ' << control->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, EveryWidgetOfOursHasAnObjectName) {
    for (QWidget* control : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
    }
}

TEST(MainWindowLanguageTest, MnemonicsAreUniqueWithinAMenu) {
    const auto mnemonics = [](const QList<QAction*>& items) {
        QStringList keys;
        for (const QAction* item : items) {
            const qsizetype at = item->text().indexOf(QLatin1Char('&'));
            if (at >= 0) keys << item->text().mid(at + 1, 1).toLower();
        }
        return keys;
    };
    for (const char* language : {"qdstring", "qdstring_de"}) {
        EditorState editor(language);
        const MainWindow window(editor.state);
        EXPECT_EQ(mnemonics(window.menuBar()->actions()).removeDuplicates(), 0) << language;
        for (const QAction* entry : window.menuBar()->actions()) {
            EXPECT_EQ(mnemonics(entry->menu()->actions()).removeDuplicates(), 0)
                << entry->text().toStdString();
        }
    }
}

}  // namespace
}  // namespace quendra::test
