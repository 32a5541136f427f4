// The window as its user meets it: menus, keys, titles, prompts and what stands in the status bar.
#include "session/command_rules.h"
#include "session/commands.h"
#include "support/editor_fixture.h"
#include "text/text_ids.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <filesystem>
#include <map>
#include <set>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;
using enum MessageAnswer;
using enum EditorCommand;

const Bytes letter = bytesOf("dear all");
const std::string program = "Quendra Script Editor  -  ";
const Bytes untitled = scriptFile("QD7DSCR=", {commentRecord("1")});

using MainWindowTest = EditorTest;

TEST_F(MainWindowTest, OpenShowsScriptTitleCountAndHostType) {
    const Bytes bytes = scriptFile("QDTDSCR=", {commentRecord("one"), commentRecord("two")});
    const fs::path path = open("a.qds", bytes);
    EXPECT_EQ(title(), program + path.string());
    EXPECT_EQ(status(), "2 entries");
    EXPECT_EQ(state.currentHostType, HostType::T27);
    expectScript("one|two", {0}, 0);
    EXPECT_EQ(readBytes(path), bytes) << "a current file is not written by opening it";
    EXPECT_EQ(answers.fileDialogs.at(0).filterDescription, "Quendra Script Files(*.qds)");
    EXPECT_EQ(answers.fileDialogs.at(0).initialFolder, state.settings.scriptsDir);
    open("a[*]b.qds", scriptFile("QDMDSCR=", {commentRecord("<b>bold</b>"), Bytes{6, 40}}));
    EXPECT_TRUE(status().starts_with("1 entry loaded: ")) << status();
    EXPECT_NE(title().find("a[*][*]b.qds"), std::string::npos)
        << "doubled is how Qt is told to show it once";
    EXPECT_TRUE(action(EditEntry).toolTip().contains(QStringLiteral("&lt;b&gt;bold&lt;/b&gt;")));
    deleteFirstEntry();
    run(NewScript);
    EXPECT_TRUE(isMarked()) << "New of an empty script does nothing";
}

TEST_F(MainWindowTest, CancelledAndFailedOpenLeaveScriptAndTitle) {
    const fs::path path = open("a.qds", commentFile(3));
    run(Open, std::nullopt);
    const fs::path refused = open("letter.qds", letter);
    EXPECT_EQ(title(), program + path.string());
    EXPECT_EQ(answers.messages.at(0).title, state.language.loadText(textid::openScriptErrorTitle));
    run(Save);
    EXPECT_EQ(readBytes(refused), letter) << "a later Save must not reach the refused file";
    EXPECT_EQ(readBytes(path), commentFile(3));
}

TEST_F(MainWindowTest, FailedSaveIsShownAndTheMarkStays) {
    fs::create_directory(editor.folder / "sub");
    open("sub/a.qds", commentFile(2));
    deleteFirstEntry();
    fs::remove_all(editor.folder / "sub");
    run(Save);
    EXPECT_EQ(answers.messages.size(), 1U);
    EXPECT_TRUE(isMarked());
    answers.toMessages.push_back(Yes);
    EXPECT_FALSE(window.close()) << "a Yes that fails does not throw the script away";
    EXPECT_EQ(lines(), "2");
}

TEST_F(MainWindowTest, UntitledSaveIsSaveAsAndClosingGoesOnWhenThatIsCancelled) {
    open("a.qds", untitled);
    run(Copy);
    run(NewScript);
    EXPECT_EQ(title(), program + "Untitled");
    run(Paste);
    run(Save, std::nullopt);
    EXPECT_EQ(title(), program + "Untitled *") << "cancelling leaves it modified";
    answers.toMessages.push_back(Yes);
    answers.toFileDialogs.emplace_back(std::nullopt);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(answers.messages.at(0).text,
              state.language.loadText(textid::saveUntitledScriptQuestion));
    EXPECT_EQ(readBytes(editor.folder / "Untitled (unsaved).qds"), untitled) << "Yes was to save";
    writeBytes(editor.folder / "b.qds", letter);
    run(Save, editor.folder / "b.qds");
    EXPECT_EQ(answers.messages.size(), 1U) << "a name that was chosen is not asked about";
    EXPECT_EQ(title(), program + (editor.folder / "b.qds").string());
    EXPECT_EQ(readBytes(editor.folder / "b.qds"), untitled);
    EXPECT_EQ(readBytes(editor.folder / "b.qds.bak"), letter);
}

TEST_F(MainWindowTest, OverwritingAChangedFileAndLosingEntriesBothNeedAYes) {
    const fs::path path = open(
        "a.qds", scriptFile("QDMDSCR=", {commentRecord("a"), menuRecord(213), menuRecord(201)}));
    writeBytes(path, letter);
    run(modeCommand(HostType::VT));
    run(Save, No);
    EXPECT_NE(answers.messages.back().text.find(path.string()), std::string::npos);
    EXPECT_TRUE(answers.messages.back().defaultsToNo);
    answers.toMessages.push_back(Yes);
    run(Save, No);
    EXPECT_EQ(readBytes(path), letter);
    const Message lost = answers.messages.back();
    EXPECT_NE(lost.text.find("2:  " + state.menuCommands.names[12]), std::string::npos);
    EXPECT_EQ(lost.text.find("3:  "), std::string::npos) << lost.text;
    EXPECT_TRUE(lost.defaultsToNo);
    answers.toMessages.push_back(Yes);
    run(Save, Yes);
    EXPECT_EQ(readBytes(path).at(2), 'V');
    EXPECT_EQ(readBytes(path.string() + ".bak"), letter);
    EXPECT_EQ(status(), "The old file is kept as a.qds.bak");
    // The window shows what opening the file would show, and the rest is not lost.
    const std::string stored = lines();
    EXPECT_FALSE(isMarked());
    run(Undo);
    EXPECT_NE(lines(), stored);
    EXPECT_TRUE(isMarked());
    answers.toFileDialogs.emplace_back(path);
    run(Open, No);
    EXPECT_EQ(lines(), stored);
}

TEST_F(MainWindowTest, AsksBeforeNewOpenAndExitDiscardChanges) {
    for (const EditorCommand command : {NewScript, Open, Exit}) {
        for (const MessageAnswer answer : {Yes, No, Cancel}) {
            SCOPED_TRACE(std::to_string(commandNumber(command)) + ' ' +
                         std::to_string(static_cast<int>(answer)));
            const bool goesOn = answer != Cancel;
            const fs::path path = open("a.qds", commentFile(2));
            deleteFirstEntry();
            if (command == Open && goesOn) answers.toFileDialogs.emplace_back(std::nullopt);
            run(command, answer);
            QCoreApplication::processEvents();
            EXPECT_EQ(lines(), command == NewScript && goesOn ? "" : "2");
            EXPECT_TRUE(answers.toFileDialogs.empty());
            EXPECT_EQ(window.isVisible(), command != Exit || !goesOn);
            window.show();
            ASSERT_EQ(answers.messages.size(), 1U);
            const Message& prompt = answers.messages[0];
            EXPECT_EQ(prompt.buttons, MessageButtons::YesNoCancel);
            EXPECT_NE(prompt.text.find(path.string()), std::string::npos);
            EXPECT_EQ(prompt.title,
                      state.language.loadText(command == Exit ? textid::exitTitle
                                                              : textid::saveChangesTitle));
            EXPECT_EQ(readBytes(path), answer == Yes ? scriptFile("QDMDSCR=", {commentRecord("2")})
                                                     : commentFile(2));
            state.document.modified = false;
            answers.messages.clear();
        }
    }
}

TEST_F(MainWindowTest, EndOfTheSessionClosesWithoutAQuestionAndKeepsTheChanges) {
    const fs::path path = open("a.qds", commentFile(3));
    const fs::path kept = editor.folder / "a (unsaved).qds";
    deleteFirstEntry();
    window.endSession();
    EXPECT_TRUE(isMarked());
    deleteFirstEntry();
    answers.toMessages.push_back(Cancel);
    EXPECT_FALSE(window.close()) << "it was called off, and the user went on";
    answers.messages.clear();
    fs::remove(kept);
    window.endSession();
    QCloseEvent byHand;
    QSpontaneKeyEvent::setSpontaneous(&byHand);
    answers.toMessages.push_back(Cancel);
    qApp->notify(&window, &byHand);
    EXPECT_FALSE(byHand.isAccepted()) << "a user who closes the window is there to be asked";
    answers.messages.clear();
    window.endSession();
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(answers.messages.empty());
    EXPECT_EQ(readBytes(path), commentFile(3));
    EXPECT_EQ(readBytes(kept), scriptFile("QDMDSCR=", {commentRecord("3")}));
    EXPECT_FALSE(fs::exists(editor.folder / "a (unsaved 2).qds")) << "asked twice, kept once";
}

TEST_F(MainWindowTest, ModeSwitchRenamesKeysAndChangesNothingElse) {
    const Bytes bytes = scriptFile("QDMDSCR=", {Bytes{1, 4, 31}, Bytes{1, 1, 1}});
    const fs::path path = open("a.qds", bytes);
    const std::string before = lines();
    window.showNote("told by something else");
    run(modeCommand(HostType::VT));
    EXPECT_EQ(status(), "2 entries");
    EXPECT_EQ(state.currentHostType, HostType::VT);
    EXPECT_EQ(list("luFunctionsPalette").model()->rowCount(), 142);
    EXPECT_NE(lines(), before);
    for (const HostType type : allHostTypes)
        EXPECT_EQ(action(modeCommand(type)).isChecked(), type == HostType::VT)
            << hostTypeInfo(type).name;
    EXPECT_TRUE(script().hasFocus());
    toolButton(modeCommand(HostType::Mainframe)).click();
    EXPECT_EQ(lines(), before);
    run(Save);
    EXPECT_EQ(readBytes(path), bytes);
}

const CommandFacts event = {.selectedRows = {"Beep"}};
const CommandFacts luFunction = {.selectedRows = {std::nullopt, "Enter"}};
const CommandFacts menuCommand = {.selectedRows = {std::nullopt, std::nullopt, "Zoom In"}};

CommandFacts focusedOn(EditSource source, CommandFacts facts = {}) {
    facts.entryCount = 3;
    facts.editSource = source;
    return facts;
}

TEST(CommandStates, ConditionalCommandsFollowScriptAndSelections) {
    const EditSource dialog = {EditSource::Kind::Dialog};
    const auto rowOf = [](Palette palette) { return EditSource{EditSource::Kind::Row, palette}; };
    const EditSource events = rowOf(Palette::ScriptEvents);
    const EditSource luFunctions = rowOf(Palette::LuFunctions);
    const EditSource menuCommands = rowOf(Palette::MenuCommands);
    const auto filled = [](std::set<EditorCommand> more) {
        more.insert({Save, SaveAs, Find, FindNext, FindPrevious, Replace, GoToStep, NextProblem,
                     PreviousProblem});
        return more;
    };
    const std::pair<CommandFacts, std::set<EditorCommand>> rows[] = {
        {{}, {}},
        {{.selectedCount = 2}, {Cut, Copy, DeleteEntries, CopyAsText, Duplicate, MoveUp, MoveDown}},
        {{.clipboardCount = 1}, {Paste}},
        {focusedOn(dialog), filled({EditEntry})},
        {focusedOn(events), filled({})},
        {focusedOn(events, event), filled({InsertScriptEvent, EditEntry})},
        {focusedOn(events, luFunction), filled({InsertLuFunction})},
        {focusedOn(luFunctions, luFunction), filled({InsertLuFunction, EditEntry})},
        {focusedOn(menuCommands, event), filled({InsertScriptEvent})},
        {focusedOn(menuCommands, menuCommand), filled({InsertMenuCommand, EditEntry})},
        {{.namesLabel = true}, {RenameLabel, FindUses}},
        {{.hasGoto = true}, {GoToLabel}},
        {{.canGoBack = true}, {GoBack}},
        {{.undoStep = "Cut 1 Entry"}, {Undo}},
        {{.redoStep = "Cut 1 Entry"}, {Redo}},
        {{.quickFix = "Remove Label a"}, {ApplyQuickFix}},
        {{.hasSavedForm = true}, {CompareWithSaved}},
        {{.hasFile = true}, {Reload}},
        {{.hasConflicts = true}, {ResolveConflicts}},
    };
    const std::set<EditorCommand> always = {NewScript,
                                            Open,
                                            Exit,
                                            Help,
                                            About,
                                            InsertScript,
                                            ShowProblems,
                                            ShowGutter,
                                            HelpOnSelection,
                                            CompareWithFile,
                                            InsertByName,
                                            NextList,
                                            PreviousList};
    for (const auto& [facts, enabled] : rows)
        for (const CommandInfo& info : commands())
            EXPECT_EQ(isCommandEnabled(info, facts),
                      enabled.contains(info.id) || always.contains(info.id) || info.hostType)
                << testing::PrintToString(enabled) << ' ' << commandNumber(info.id);
}

// Their numbers, with "|" for a separator.
std::string shown(const CommandItems& items) {
    std::string all;
    for (const auto& item : items)
        all += (all.empty() ? "" : " ") + (item ? std::to_string(commandNumber(*item)) : "|");
    return all;
}

TEST(CommandTable, ANewCommandLeavesTheOthersOfItsMenuAndTheToolbarWhereTheyAre) {
    const std::pair<EditorMenu, std::string> rows[] = {
        {EditorMenu::File, "300 301 302 303 370 | 350 351 352 | 304"},
        {EditorMenu::Edit, "321 322 | 305 306 324 307 | 323 340 341 342 335 | 360 | 333"},
        {EditorMenu::View, "330 334 | 331 332 | 361 362"},
        {EditorMenu::Entry, "308 309 310 325 | 311 | 312 327 328 329 | 343 344 345 346"},
        {EditorMenu::Mode, "313 314 315 316 317 318"},
        {EditorMenu::Help, "319 326 | 320"},
    };
    for (const auto& [menu, items] : rows)
        EXPECT_EQ(shown(menuItems(menu)), items);
    EXPECT_EQ(shown(toolbarItems()),
              "301 302 | 305 306 307 | 321 322 | 308 309 310 | 311 | 312 | "
              "313 314 315 316 317 318 | 319 320");
}

TEST_F(MainWindowTest, CommandStatesFollowSelectionsInTheLists) {
    open("a.qds", commentFile(2));
    choosePaletteRow("scriptEventsPalette", 0);
    EXPECT_EQ(action(InsertScriptEvent).toolTip(), QStringLiteral("Insert Script Event Beep"));
    EXPECT_FALSE(toolButton(InsertLuFunction).isEnabled());
    EXPECT_EQ(action(EditEntry).toolTip(), QStringLiteral("Edit 1"));
    select({0, 1}, 1);
    EXPECT_EQ(action(DeleteEntries).toolTip(), QStringLiteral("Delete 2 entries"));
    QTest::keyClick(&script(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(isEnabled(Paste));
    EXPECT_FALSE(isMarked()) << "copying changes nothing";
    select({}, -1);
    for (const EditorCommand command : {Cut, Copy, EditEntry, DeleteEntries, CopyAsText})
        EXPECT_FALSE(isEnabled(command)) << commandNumber(command);
}

TEST_F(MainWindowTest, InsertsAreRefusedAtTheLimitAndTheRestStillWorks) {
    open("full.qds", commentFile(4096));
    run(Copy);
    for (const char* palette : {"scriptEventsPalette", "luFunctionsPalette", "menuCommandsPalette"})
        choosePaletteRow(palette, 0);
    for (const EditorCommand command :
         {Paste, InsertScriptEvent, InsertLuFunction, InsertMenuCommand, InsertScript}) {
        answers.messages.clear();
        state.dropPending = true;
        state.currentIndex = 9;
        run(command);
        ASSERT_EQ(answers.messages.size(), 1U) << commandNumber(command);
        EXPECT_EQ(answers.messages[0].text, "Max limit of 4096 script entries reached.");
        EXPECT_FALSE(state.dropPending) << "a later insert would take a stale position";
        EXPECT_EQ(state.currentIndex, 0) << "the position is where the focus is";
    }
    run(Cut);
    EXPECT_EQ(state.script.entryCount(), 4095U);
    run(Paste);
    EXPECT_EQ(state.script.entryCount(), 4096U);
}

TEST_F(MainWindowTest, AboutBoxNamesTheVersionAndIgnoresEscape) {
    QTimer::singleShot(0, &window, [] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->findChild<QLabel*>(QStringLiteral("aboutVersion"))->text(),
                  QStringLiteral("Quendra Script Editor v6.1.4.1982"));
        QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_TRUE(box->isVisible());
        QTest::mouseClick(box->findChild<QPushButton*>(QStringLiteral("aboutOk")), Qt::LeftButton);
    });
    run(About);
}

// Counts the controls by their roles in `found`; those without a name fail the test.
void walkAccessibleTree(QAccessibleInterface& seen, std::map<QAccessible::Role, int>& found) {
    if (found.contains(seen.role()) && !seen.state().invisible) {
        EXPECT_FALSE(seen.text(QAccessible::Name).isEmpty())
            << seen.role() << ' ' << (seen.object() ? qPrintable(seen.object()->objectName()) : "");
        ++found[seen.role()];
    }
    for (int i = 0; i < seen.childCount(); ++i)
        if (QAccessibleInterface* child = seen.child(i)) walkAccessibleTree(*child, found);
}

TEST_F(MainWindowTest, EveryControlHasANameForScreenReaders) {
    open("a.qds", commentFile(5));
    run(Find);
    window.resize(window.minimumSize());
    QCoreApplication::processEvents();
    using enum QAccessible::Role;
    std::map<QAccessible::Role, int> found = {{Button, 0},       {ButtonMenu, 0}, {CheckBox, 0},
                                              {EditableText, 0}, {List, 0},       {ListItem, 0},
                                              {MenuItem, 0},     {Window, 0},     {ToolBar, 0}};
    walkAccessibleTree(*QAccessible::queryAccessibleInterface(&window), found);
    EXPECT_EQ(found[List], 4);
    EXPECT_GT(found[ListItem], 4);
    EXPECT_GT(found[Button], 10);
    EXPECT_GE(found[MenuItem], 5);
    EXPECT_EQ(found[ToolBar], 2);
    for (const QMenu* menu : window.findChildren<QMenu*>())
        for (QAction* item : menu->actions()) {
            const QString name = item->text();
            EXPECT_TRUE(name == name.trimmed() && !name.contains(u'\t')) << qPrintable(name);
        }
}

}  // namespace
}  // namespace quendra::test
