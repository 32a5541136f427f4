// Random sequences of all editing operations, on entries with every kind of field: undone to the
// start they give the bytes of the start, and redone those of the end.
#include "scriptfile/script_reader.h"
#include "scriptfile/script_writer.h"
#include "session/editing.h"
#include "session/fake_view.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>
#include <random>

namespace quendra::test {
namespace {

// Host types differ in what they can store.
std::vector<Bytes> filesOf(const Script& script) {
    return {writeScript(script, HostType::Mainframe), writeScript(script, HostType::VT)};
}

class Sequence {
  public:
    explicit Sequence(unsigned int seed) : random_(seed) {
        state_.luCatalogues = names_.luFunctions;
        state_.cipher = HiddenTextCipher(frozenIdentity());
        state_.script = someScript();
        view_.dialog = [this](ScriptEntry& entry) { return fillIn(entry); };
        files_.push_back(filesOf(state_.script));
    }

    void step() {
        const ScriptView before = {state_.script, view_.selection};
        selectSome();
        operate();
        const ScriptView after = {state_.script, view_.selection};
        history_.record(before, after, "step");
        if (after.script == before.script) return;
        files_.push_back(filesOf(state_.script));
        selections_.emplace_back(before.selection, after.selection);
    }

    void expectEveryStateAgainBackwardsAndForwards() {
        const std::vector<Bytes> end = files_.back();
        ASSERT_EQ(filesOf(state_.script), end);
        for (std::size_t i = files_.size() - 1; i > 0; --i) {
            ASSERT_EQ(history_.undo(state_.script), selections_[i - 1].first);
            ASSERT_EQ(filesOf(state_.script), files_[i - 1]) << "state " << i - 1;
        }
        ASSERT_FALSE(history_.undo(state_.script));
        for (std::size_t i = 1; i < files_.size(); ++i) {
            ASSERT_EQ(history_.redo(state_.script), selections_[i - 1].second);
            ASSERT_EQ(filesOf(state_.script), files_[i]) << "state " << i;
        }
        ASSERT_FALSE(history_.redo(state_.script));
        ASSERT_EQ(readScript(end.front()).script, state_.script) << "the file holds the script";
    }

    [[nodiscard]] std::size_t changes() const { return selections_.size(); }

  private:
    [[nodiscard]] std::size_t below(std::size_t count) { return random_() % count; }
    [[nodiscard]] Script someScript() { return readScript(frozenCases()[below(150)].file).script; }

    void selectSome() {
        view_.selection = {};
        for (std::size_t i = below(4); i < state_.script.entryCount(); i += 1 + below(5))
            view_.selection.entries.push_back(i);
        view_.selection.focused = static_cast<int>(below(state_.script.entryCount() + 1)) - 1;
        // No palette has fewer rows than there are Script Events; 35 and 36 are transfers.
        for (const Palette palette : {Palette::ScriptEvents, Palette::LuFunctions})
            view_.choose(palette, static_cast<int>(below(scriptEvents().size() + 1)) - 1);
        view_.choose(Palette::MenuCommands, 30 + static_cast<int>(below(8)));
        view_.agrees = below(4) != 0;
    }

    // A dialog that is answered with anything, also for actions.
    bool fillIn(ScriptEntry& entry) {
        using enum CommandCode;
        static constexpr CommandCode actions[] = {Type, Goto, MenuCommand, Input};
        if (below(5) == 0) return false;
        for (const Slot slot : {Slot::Entry, Slot::Then, Slot::Else}) {
            Step& fields = slotFields(entry, slot);
            if (slot != Slot::Entry) setCode(fields, actions[below(std::size(actions))]);
            setText(fields, std::string(below(20), static_cast<char>('a' + below(26))));
            setPrompt(fields, std::string(below(300), 'p'));
            fields.hidden = static_cast<std::uint8_t>(below(2));
            fields.row = static_cast<std::uint8_t>(below(256));
            fields.transferHost = static_cast<std::uint8_t>(below(3));
            setTransferText(fields.transferSettings, transfer::pcFileName,
                            std::to_string(random_()));
        }
        return true;
    }

    void operate() {
        const std::size_t count = state_.script.entryCount();
        switch (below(30)) {
            case 0: state_.currentHostType = allHostTypes[below(allHostTypes.size())]; return;
            case 1: insertScript(state_, view_, someScript().entries); return;
            case 2: copyEntries(state_, view_); return;
            default: break;
        }
        if (count > 0 && below(10) == 0) {
            const EntryMove move = {below(count), below(count)};
            return moveEntries(state_.script, {&move, 1});
        }
        constexpr bool (*operations[])(EditingState&, EditingView&) = {
            insertScriptEvent, insertLuFunction, insertMenuCommand, editCurrentEntry,
            editCurrentEntry,  deleteEntries,    cutEntries,        pasteEntries};
        operations[below(std::size(operations))](state_, view_);
    }

    std::mt19937 random_;
    const NumberedNames names_;
    EditingState state_;
    FakeView view_;
    UndoHistory history_;
    std::vector<std::vector<Bytes>> files_;
    /// Before and after each change.
    std::vector<std::pair<EntrySelection, EntrySelection>> selections_;
};

TEST(EditingProperty, UndoneToTheStartGivesItsBytesAndRedoneThoseOfTheEnd) {
    std::size_t changes = 0;
    for (unsigned int seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Sequence sequence(seed);
        for (int step = 0; step < 60; ++step)
            sequence.step();
        ASSERT_NO_FATAL_FAILURE(sequence.expectEveryStateAgainBackwardsAndForwards());
        changes += sequence.changes();
    }
    EXPECT_GT(changes, 800U) << "else the sequences mean little";
}

}  // namespace
}  // namespace quendra::test
