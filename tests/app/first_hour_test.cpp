// What an editor brings with it for every day: scripts that are found again, menus where the
// pointer is, examples, and a window that comes back as it was left.
#include "support/editor_fixture.h"
#include "text/text_ids.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include <filesystem>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;
using enum MessageAnswer;
using enum EditorCommand;

class FirstHour : public EditorTest {
  protected:
    // The items as they stand in a menu that is opened, "-" for a separator, "(...)" when greyed.
    static std::vector<std::string> itemsOf(QMenu& menu) {
        Q_EMIT menu.aboutToShow();
        std::vector<std::string> items;
        for (const QAction* item : menu.actions()) {
            const std::string text = item->isSeparator() ? "-" : item->text().toStdString();
            items.push_back(item->isEnabled() ? text : '(' + text + ')');
        }
        return items;
    }
    static void choose(QMenu& menu, int item) { menu.actions().at(item)->trigger(); }
    QMenu& menuAt(PaneList& list, int row) {
        const QPoint at = list.rowRect(row).center();
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, at, list.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(&list, &asked);
        return widget<QMenu>("paneMenu");
    }
    // The commands that it offers.
    static std::vector<QString> commandsOf(const QMenu& menu) {
        std::vector<QString> names;
        for (const QAction* item : menu.actions()) {
            if (!item->isSeparator()) names.push_back(item->objectName());
        }
        return names;
    }
    void drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &enter);
        QDropEvent dropped({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted()) QCoreApplication::sendEvent(&window, &dropped);
        QCoreApplication::processEvents();
    }
};

TEST_F(FirstHour, RecentScriptsAreToldApartAndGoneOnesCannotBeChosen) {
    auto& file = widget<QMenu>("fileMenu");
    auto& recent = widget<QMenu>("recentMenu");
    static_cast<void>(itemsOf(file));
    EXPECT_FALSE(recent.isEnabled()) << "none yet";
    fs::create_directories(editor.folder / "a");
    fs::create_directories(editor.folder / "b");
    const fs::path first = open("a/log on.qds", commentFile(1));
    open("b/log on.qds", commentFile(2));
    const fs::path gone = open("R&D.qds", commentFile(3));
    open("letter.qds", bytesOf("dear all"));
    run(SaveAs, editor.folder / "saved.qds");
    fs::remove(gone);
    const std::vector<std::string> expected = {"&1  saved.qds",
                                               "(&2  R&&D.qds (not there))",
                                               "&3  b/log on.qds",
                                               "&4  a/log on.qds",
                                               "(-)",
                                               "&Clear List"};
    static_cast<void>(itemsOf(file));
    EXPECT_TRUE(recent.isEnabled());
    auto items = itemsOf(recent);
    items[4] = "(-)";
    EXPECT_EQ(items, expected);
    choose(recent, 3);
    EXPECT_NE(title().find(first.string()), std::string::npos);
    expectScript("1", {0}, 0);
    EXPECT_EQ(itemsOf(recent).front(), "&1  a/log on.qds") << "the last one is the first";
    choose(recent, static_cast<int>(recent.actions().size()) - 1);
    static_cast<void>(itemsOf(file));
    EXPECT_FALSE(recent.isEnabled());
}

TEST_F(FirstHour, ReloadReadsTheFileAgainAndAsksBeforeChangesAreLost) {
    EXPECT_FALSE(isEnabled(Reload)) << "an untitled script has no file";
    const fs::path path = open("a.qds", commentFile(3));
    select({2}, 2);
    run(Reload);
    expectScript("1|2|3", {2}, 2);
    deleteFirstEntry();
    writeBytes(path, commentFile(2));
    run(Reload, No);
    expectScript("2|3", {0}, 0);
    EXPECT_EQ(answers.messages.size(), 1U);
    run(Reload, Yes);
    expectScript("1|2", {0}, 0);
    EXPECT_FALSE(isMarked());
    run(Undo);
    expectScript("2|3", {0}, 0);
    EXPECT_TRUE(isMarked()) << "what the file does not hold";
    run(Redo);
    EXPECT_FALSE(isMarked());
    writeBytes(path, bytesOf("dear all"));
    run(Reload);
    expectScript("1|2", {0}, 0);
}

TEST_F(FirstHour, AMenuOffersWhatMakesSenseAtALine) {
    open("a.qds", commentFile(3));
    select({0, 1}, 1);
    QMenu& menu = menuAt(script(), 1);
    const std::vector<QString> expected = {actionName(EditEntry),    actionName(Cut),
                                           actionName(Copy),         actionName(CopyAsText),
                                           actionName(Duplicate),    actionName(DeleteEntries),
                                           actionName(MoveUp),       actionName(MoveDown),
                                           actionName(InsertByName), actionName(HelpOnSelection)};
    EXPECT_EQ(commandsOf(menu), expected) << "nothing to paste, and no label";
    action(Duplicate).trigger();
    expectScript("1|2|1|2|3", {2, 3}, 3);
    action(MoveDown).trigger();
    expectScript("1|2|3|1|2", {3, 4}, 4);
    action(MoveUp).trigger();
    expectScript("1|2|1|2|3", {2, 3}, 3);
    run(Undo);
    run(Undo);
    run(Undo);
    expectScript("1|2|3", {0, 1}, 1);
    menu.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    choosePaletteRow("luFunctionsPalette", 0);
    list("luFunctionsPalette").setFocus();
    const std::vector<QString> inPalette = {actionName(InsertLuFunction),
                                            actionName(HelpOnSelection)};
    EXPECT_EQ(commandsOf(menuAt(list("luFunctionsPalette"), 0)), inPalette);
}

TEST_F(FirstHour, OneDroppedFileOpensAfterTheUsualQuestion) {
    open("a.qds", commentFile(2));
    writeBytes(editor.folder / "b.qds", commentFile(1));
    const QUrl other = QUrl::fromLocalFile(QString::fromStdString(editor.folder / "b.qds"));
    drop({other, other});
    drop({QUrl(QStringLiteral("https://quendra.example/b.qds"))});
    expectScript("1|2", {0}, 0);
    deleteFirstEntry();
    answers.toMessages.push_back(Cancel);
    drop({other});
    expectScript("2", {0}, 0);
    answers.toMessages.push_back(No);
    QUrl local = other;
    local.setHost(QStringLiteral("localhost"));
    drop({local});
    expectScript("1", {0}, 0);
    EXPECT_NE(title().find("b.qds"), std::string::npos);
}

TEST_F(FirstHour, AScriptThatAnotherWindowShowsIsNotOpenedASecondTime) {
    const fs::path own = open("a.qds", commentFile(2));
    std::vector<fs::path> raised;
    window.setRaiser([&raised](const fs::path& script) {
        raised.push_back(script);
        return true;
    });
    const fs::path other = open("b.qds", commentFile(1));
    expectScript("1|2", {0}, 0);
    EXPECT_EQ(raised, std::vector<fs::path>{other});
    deleteFirstEntry();
    drop({QUrl::fromLocalFile(QString::fromStdString(other))});
    expectScript("2", {0}, 0);
    EXPECT_EQ(raised.size(), 2U) << "raised before any question is asked";
}

TEST_F(FirstHour, AnExampleIsOpenedAsAnUntitledCopy) {
    state.settings.programDir = editor.folder / "bin";
    auto& help = widget<QMenu>("helpMenu");
    auto& examples = widget<QMenu>("examplesMenu");
    static_cast<void>(itemsOf(help));
    EXPECT_FALSE(examples.menuAction()->isVisible()) << "there are none";
    const fs::path folder = editor.folder / "share/quendra-script-editor/examples";
    fs::create_directories(folder);
    fs::create_directories(editor.folder / "bin");
    writeBytes(folder / "logon.qds", scriptFile("QDTDSCR=", {commentRecord("hello")}));
    writeBytes(folder / "logon.json", bytesOf("{}"));
    EXPECT_EQ(itemsOf(help).size(), help.actions().size());
    ASSERT_EQ(examples.actions().size(), 1);
    EXPECT_TRUE(examples.menuAction()->isVisible());
    choose(examples, 0);
    expectScript("hello", {0}, 0);
    EXPECT_EQ(state.currentHostType, HostType::T27);
    EXPECT_TRUE(state.document.fileName.empty());
    EXPECT_FALSE(isMarked()) << "nothing of it is the user's";
    EXPECT_NE(status().find("logon.qds"), std::string::npos);
}

TEST_F(FirstHour, TheWindowComesBackAsLargeAsItWasLeft) {
    window.show();
    window.resize(700, 500);
    window.close();
    MainWindow again(state);
    EXPECT_EQ(again.size(), QSize(700, 500));
    state.userState.setNumber({"Window", "Width"}, 15000);
    EXPECT_LT(MainWindow(state).width(), window.screen()->availableSize().width())
        << "on a smaller screen it fits, with its frame";
    window.showMaximized();
    window.close();
    EXPECT_TRUE(MainWindow(state).isMaximized());
}

}  // namespace
}  // namespace quendra::test
