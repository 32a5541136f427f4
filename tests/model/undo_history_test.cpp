// Random edits, undone to the start and redone to the end.
#include "model/undo_history.h"

#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace quendra::test {

namespace {

EntryHandle numbered(std::size_t number) {
    return storeRecord(joined({{16}, word(static_cast<std::uint32_t>(number))}));
}

// One random edit of any kind; entries are drawn from a few, so that equal neighbours occur.
void editAtRandom(std::mt19937& random, Script& script) {
    const auto place = [&] { return random() % (script.entryCount() + 1); };
    const std::size_t at = place();
    switch (random() % 4) {
        case 0: {
            const std::vector<EntryHandle> added(random() % 4, numbered(random() % 3));
            insertEntries(script, at, added);
            break;
        }
        case 1: {
            std::vector<std::size_t> indexes;
            for (std::size_t i = at; i < script.entryCount(); i += 1 + random() % 3) {
                indexes.push_back(i);
            }
            removeEntries(script, indexes);
            break;
        }
        case 2:
            if (at < script.entryCount()) replaceEntry(script, at, numbered(random() % 3));
            break;
        default: {
            const std::size_t to = place();
            if (at < script.entryCount() && to < script.entryCount()) {
                moveEntries(script, std::vector<EntryMove>{{at, to}});
            }
        }
    }
}

}  // namespace

TEST(UndoHistory, leadsBackToTheStartAndForthToTheEnd) {
    for (unsigned int seed = 0; seed < 200; ++seed) {
        std::mt19937 random(seed);
        UndoHistory history;
        ScriptView view;
        std::vector<ScriptView> states = {view};
        for (int step = 0; step < 30; ++step) {
            const ScriptView before = view;
            editAtRandom(random, view.script);
            view.selection = {{static_cast<std::size_t>(step)}, step};
            history.record(before, view, std::to_string(step));
            if (before.script == view.script) {
                view.selection = before.selection;
            } else {
                states.push_back(view);
            }
        }
        const Script end = view.script;
        for (std::size_t i = states.size() - 1; i > 0; --i) {
            ASSERT_EQ(history.undo(view.script), states[i - 1].selection);
            ASSERT_EQ(view.script, states[i - 1].script);
        }
        EXPECT_FALSE(history.undo(view.script));
        EXPECT_EQ(view.script, Script());
        for (std::size_t i = 1; i < states.size(); ++i) {
            ASSERT_EQ(history.redo(view.script), states[i].selection);
        }
        EXPECT_FALSE(history.redo(view.script));
        EXPECT_EQ(view.script, end);
    }
}

TEST(UndoHistory, dropsWhatWasUndoneWithANewChange) {
    UndoHistory history;
    ScriptView view;
    const auto change = [&](std::uint32_t number, const char* name) {
        const ScriptView before = view;
        view.script.entries.push_back(numbered(number));
        history.record(before, view, name);
    };
    change(1, "first");
    change(2, "second");
    EXPECT_EQ(history.undoName(), "second");
    history.undo(view.script);
    EXPECT_EQ(history.redoName(), "second");
    change(3, "third");
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(history.undoName(), "third");
    history.undo(view.script);
    history.undo(view.script);
    EXPECT_EQ(view.script, Script());
    history.clear();
    EXPECT_FALSE(history.canRedo());
}

}  // namespace quendra::test
