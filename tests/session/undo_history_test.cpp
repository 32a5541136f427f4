// The history of steps. Random edits undone and redone: see editing_property_test.cpp.
#include "session/undo_history.h"

#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

TEST(UndoHistory, namesItsStepsAndDropsWhatWasUndoneWithANewChange) {
    UndoHistory history;
    ScriptView view;
    const auto change = [&](const char* name) {
        const ScriptView before = view;
        view.script.entries.push_back(storeRecord(commentRecord("step")));
        history.record(before, view, name);
    };
    history.record(view, view, "no change");
    EXPECT_FALSE(history.canUndo());
    change("first");
    change("second");
    EXPECT_EQ(history.undoName(), "second");
    history.undo(view.script);
    EXPECT_EQ(history.redoName(), "second");
    change("third");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), "third");
    history.undo(view.script);
    history.undo(view.script);
    EXPECT_EQ(view.script, Script());
    EXPECT_FALSE(history.canUndo());
    history.clear();
    EXPECT_FALSE(history.canRedo());
}

}  // namespace
}  // namespace quendra::test
