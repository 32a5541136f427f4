// Names of steps, and what a new change drops. Random edits undone and redone: see
// editing_property_test.cpp.
#include "model/undo_history.h"

#include "support/fixtures.h"

#include <gtest/gtest.h>

namespace quendra::test {

TEST(UndoHistory, namesItsStepsAndDropsWhatWasUndoneWithANewChange) {
    UndoHistory history;
    ScriptView view;
    const auto change = [&](std::uint8_t code, const char* name) {
        const ScriptView before = view;
        view.script.entries.push_back(storeRecord(Bytes{code}));
        history.record(before, view, name);
    };
    history.record(view, view, "no change");
    EXPECT_EQ(history.undoName(), "");
    change(4, "first");
    change(4, "second");
    EXPECT_EQ(history.undoName(), "second");
    history.undo(view.script);
    EXPECT_EQ(history.redoName(), "second");
    change(5, "third");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), "third");
    history.clear();
    EXPECT_FALSE(history.canUndo());
}

}  // namespace quendra::test
