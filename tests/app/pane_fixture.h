// An editor pane in a window of its own, over a script of remarks, driven with the mouse and keys.
#pragma once

#include "app/application_state.h"
#include "app/editor_pane.h"
#include "app/pane_list.h"

#include <QMainWindow>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quendra {

/// One entry that shows `text` as its line.
[[nodiscard]] EntryHandle remark(const std::string& text, const HiddenTextCipher& cipher);

class PaneFixture : public testing::Test {
  protected:
    PaneFixture();

    /// A script of remarks "e0", "e1", ...; shown without a focused entry.
    void fillScript(int entries);
    /// The lines of the script, as the list shows them.
    [[nodiscard]] std::string lines() const;
    [[nodiscard]] std::vector<std::size_t> selected() const { return pane->selectedEntries(); }
    void select(const std::vector<std::size_t>& entries, int focused) {
        pane->selectEntries(entries, focused);
    }

    /// Points of the window.
    [[nodiscard]] QPoint onRow(const PaneList& list, int row) const;
    [[nodiscard]] QPoint belowRows(const PaneList& list) const;

    void press(QPoint point, Qt::KeyboardModifiers held = {});
    void moveTo(QPoint point);
    void release(QPoint point, Qt::KeyboardModifiers held = {});
    void click(QPoint point, Qt::KeyboardModifiers held = {});
    void doubleClick(QPoint point);
    void key(int key, Qt::KeyboardModifiers held = {});
    /// Press, two moves, release.
    void drag(QPoint from, QPoint to);
    /// Lets what was posted happen.
    static void settle();

    [[nodiscard]] bool dragShows() const;

    ApplicationState state;
    QMainWindow window;
    EditorPane* pane = nullptr;
    PaneList* script = nullptr;
    PaneList* events = nullptr;
    PaneList* luFunctions = nullptr;
    PaneList* menuCommands = nullptr;

    /// What the pane has told so far.
    std::vector<int> commands;
    int selectionChanges = 0;
    int moves = 0;
};

}  // namespace quendra
