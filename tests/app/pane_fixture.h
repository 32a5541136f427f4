// An editor pane in a window of its own, over a script of remarks, driven with the mouse and keys.
#pragma once

#include "app/application_state.h"
#include "app/editor_pane.h"
#include "app/pane_list.h"

#include <QMainWindow>
#include <QTest>
#include <QWindow>

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace quendra {

using Rows = std::vector<std::size_t>;

class PaneFixture : public testing::Test {
  protected:
    PaneFixture();

    /// A script of remarks "e0", "e1", ..., or of these texts; shown without a focused entry.
    void fillScript(int entries);
    void showRemarks(const std::vector<std::string>& texts);
    /// The lines of the script, as the list shows them.
    [[nodiscard]] std::string lines() const;
    [[nodiscard]] Rows selected() const { return pane->selectedEntries(); }
    void select(const Rows& entries, int focused) { pane->selectEntries(entries, focused); }
    void expectCurrent(const Rows& entries, int focused) const;
    [[nodiscard]] bool isInSight(int row) const {
        return script->viewport()->rect().contains(script->rowRect(row));
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
    void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.windowHandle(), key, held);
    }
    /// Press, two moves, release.
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers held = {});
    /// Lets what was posted happen.
    static void settle() { QCoreApplication::processEvents(); }

    ApplicationState state;
    QMainWindow window;
    EditorPane* pane = nullptr;
    PaneList* script = nullptr;
    PaneList* events = nullptr;
    PaneList* luFunctions = nullptr;
    PaneList* menuCommands = nullptr;

    /// Each list and the command that it asks for, the script first.
    std::array<std::pair<PaneList*, int>, 4> lists{};

    /// What the pane has told so far.
    std::vector<int> commands;
    int selectionChanges = 0;
    int moves = 0;
};

/// One entry that shows `text` as its line.
[[nodiscard]] EntryHandle remark(const std::string& text, const HiddenTextCipher& cipher);

}  // namespace quendra
