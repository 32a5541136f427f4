// An editor pane in a window of its own, over a script of remarks, driven with the mouse and keys.
#pragma once

#include "app/pane/editor_pane.h"
#include "support/editor_fixture.h"

#include <QMainWindow>
#include <QTest>
#include <QWindow>

#include <array>
#include <utility>

namespace quendra::test {

using Rows = std::vector<std::size_t>;

class PaneFixture : public testing::Test {
  protected:
    PaneFixture() {
        window.setCentralWidget(pane);
        QObject::connect(pane, &EditorPane::commandRequested, pane,
                         [this](EditorCommand command) { commands.push_back(command); });
        QObject::connect(pane, &EditorPane::selectionChanged, pane, [this] { ++selectionChanges; });
        QObject::connect(pane, &EditorPane::entriesMoved, pane, [this] { ++moves; });
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        pane->takeFocus();
    }

    [[nodiscard]] PaneList* listNamed(const char* name) const {
        return pane->findChild<PaneList*>(QLatin1String(name));
    }
    /// A script of remarks "e0", "e1", ..., shown without a focused entry.
    void fillScript(int entries) {
        state.script.entries.clear();
        for (int i = 0; i < entries; ++i)
            state.script.entries.push_back(storeRecord(commentRecord("e" + std::to_string(i))));
        state.currentIndex = -1;
        pane->rebuildScriptList();
        selectionChanges = moves = 0;
    }
    /// The lines of the script, as the list shows them.
    [[nodiscard]] std::string lines() const {
        std::string all;
        for (int row = 0; row < script->model()->rowCount(); ++row)
            all += (row > 0 ? " " : "") + pane->entryText(row).toStdString();
        return all;
    }
    [[nodiscard]] Rows selected() const { return pane->selectedEntries(); }
    void select(const Rows& entries, int focused) { pane->selectEntries(entries, focused); }
    void expectCurrent(const Rows& entries, int focused) const {
        EXPECT_EQ(selected(), entries);
        EXPECT_EQ(pane->focusedEntry(), focused);
        EXPECT_EQ(state.currentIndex, focused);
    }

    /// Points of the window.
    [[nodiscard]] QPoint onRow(const PaneList& list, int row) const {
        return list.viewport()->mapTo(&window, list.rowRect(row).center() - QPoint(40, 0));
    }
    [[nodiscard]] QPoint belowRows(const PaneList& list) const {
        const QPoint corner = list.viewport()->rect().bottomLeft();
        return list.viewport()->mapTo(&window, corner + QPoint(50, -3));
    }

    void press(QPoint at, Qt::KeyboardModifiers held = {}) {
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, held, at);
    }
    void moveTo(QPoint to) { QTest::mouseMove(window.windowHandle(), to); }
    void release(QPoint at, Qt::KeyboardModifiers held = {}) {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, held, at);
    }
    void click(QPoint at, Qt::KeyboardModifiers held = {}) {
        press(at, held);
        release(at, held);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers held = {}) {
        press(from, held);
        moveTo(from + (to - from) / 2);
        moveTo(to);
        release(to, held);
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.windowHandle(), key, held);
    }
    /// Lets what was posted happen.
    static void settle() { QCoreApplication::processEvents(); }

    EditorState editor;
    ApplicationState& state = editor.state;
    QMainWindow window;
    EditorPane* pane = new EditorPane(state);
    PaneList* script = listNamed("scriptList");
    PaneList* events = listNamed("scriptEventsPalette");
    PaneList* luFunctions = listNamed("luFunctionsPalette");
    PaneList* menuCommands = listNamed("menuCommandsPalette");
    /// Each list and the command that it asks for, the script first.
    const std::array<std::pair<PaneList*, EditorCommand>, 4> lists{
        {{script, EditorCommand::EditEntry},
         {events, EditorCommand::InsertScriptEvent},
         {luFunctions, EditorCommand::InsertLuFunction},
         {menuCommands, EditorCommand::InsertMenuCommand}}};

    /// What the pane has told so far.
    std::vector<EditorCommand> commands;
    int selectionChanges = 0;
    int moves = 0;
};

}  // namespace quendra::test
