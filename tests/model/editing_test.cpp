// The editing operations over plain lists and prepared dialog answers.
#include "model/editing.h"

#include "model/fake_view.h"
#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace quendra::test {
namespace {

using enum CommandCode;
using enum Palette;

const Dialog ok = [](ScriptEntry&) { return true; };
const Dialog cancel = [](ScriptEntry&) { return false; };

Dialog typing(const std::string& text, bool hidden = false) {
    return [text, hidden](ScriptEntry& entry) {
        entry.hidden = hidden ? 1 : 0;
        setText(slotFields(entry, Slot::Entry), text);
        return true;
    };
}

int rowOf(CommandCode code) {
    const auto events = scriptEvents();
    return static_cast<int>(std::ranges::find(events, code, &ScriptEventInfo::code) -
                            events.begin());
}

constexpr int menuRow(std::uint32_t commandId) {
    return static_cast<int>(commandId - firstMenuCommand);
}

ScriptEntry entryOf(CommandCode code, std::uint32_t commandId = 0) {
    ScriptEntry entry;
    entry.commandCode = code;
    entry.commandId = commandId;
    return entry;
}

class EditingTest : public testing::Test {
  protected:
    EditingTest() { state.luCatalogues = NumberedNames().luFunctions; }

    // Comments "1", "2", ...; nothing selected or focused.
    void fill(std::size_t count) {
        state.script = {};
        for (std::size_t i = 1; i <= count; ++i)
            state.script.entries.push_back(comment(std::to_string(i)));
        state.currentIndex = -1;
        view.select({}, -1);
        view.shows = 0;
        view.opened.clear();
    }
    [[nodiscard]] EntryHandle comment(std::string_view text) const {
        ScriptEntry entry = entryOf(Comment);
        setText(slotFields(entry, Slot::Entry), text);
        return packEntry(entry, state.cipher).entry;
    }
    // The only entry, and focused.
    void have(const ScriptEntry& entry) {
        fill(0);
        state.script.entries = {packEntry(entry, state.cipher).entry};
        view.select({0}, 0);
    }
    [[nodiscard]] ScriptEntry onlyEntry() const {
        EXPECT_EQ(state.script.entryCount(), 1U);
        return unpackEntry(state.script.entries[0], state.cipher);
    }
    [[nodiscard]] std::string lines() const {
        std::string all;
        for (const std::string& line : linesOf(state.script, state.currentHostType, state.cipher))
            all += (all.empty() ? "" : " ") + line;
        return all;
    }
    void expectSelected(const Indexes& entries, int focused) const {
        EXPECT_EQ(view.selection, (EntrySelection{entries, focused}));
        EXPECT_EQ(state.currentIndex, focused);
    }

    EditingState state;
    FakeView view;
};

TEST_F(EditingTest, InsertsBehindTheFocusOrTheSelectionOrAtTheEndAndAtTheDrop) {
    view.choose(ScriptEvents, rowOf(Beep));
    const auto expectInsert = [&](std::size_t entries, const EntrySelection& selection,
                                  std::optional<int> drop, std::size_t at) {
        SCOPED_TRACE(testing::Message() << "at " << at << " of " << entries);
        fill(entries);
        view.selection = selection;
        state.currentIndex = drop.value_or(selection.focused);
        state.dropPending = drop.has_value();
        EXPECT_TRUE(insertScriptEvent(state, view));
        ASSERT_EQ(state.script.entryCount(), entries + 1);
        EXPECT_EQ(state.script.entries[at].code(), Beep);
        expectSelected({at}, static_cast<int>(at));
        EXPECT_FALSE(state.dropPending);
        EXPECT_EQ(view.shows, 1);
    };
    expectInsert(4, {}, {}, 4);
    expectInsert(6, {{0, 1, 5}, 2}, {}, 3);
    expectInsert(6, {{2, 4}, -1}, {}, 3);
    expectInsert(4, {{3}, 3}, 0, 0);
    expectInsert(2, {}, 9, 2);  // the script has shrunk since
}

TEST_F(EditingTest, DropIsUsedUpByTheNextInsertWhateverBecomesOfIt) {
    view.dialog = cancel;
    for (const int chosen : {rowOf(Wait), -1}) {
        for (const int focused : {4, -1}) {
            fill(5);
            view.select({4}, focused);
            state.currentIndex = 1;
            state.dropPending = true;
            view.choose(ScriptEvents, chosen);
            EXPECT_FALSE(insertScriptEvent(state, view));
            EXPECT_EQ(lines(), "1 2 3 4 5");
            EXPECT_FALSE(state.dropPending);
            EXPECT_EQ(state.currentIndex, focused) << "the position is where the focus is";
        }
    }
}

TEST_F(EditingTest, NewEntriesOpenTheirDialogOnTheirDefaultsWhereTheyHaveParameters) {
    view.dialog = ok;
    for (const ScriptEventInfo& event : scriptEvents()) {
        fill(0);
        view.choose(ScriptEvents, rowOf(event.code));
        EXPECT_TRUE(insertScriptEvent(state, view));
        EXPECT_EQ(onlyEntry().commandCode, event.code);
        const bool plain = event.code == Beep || event.code == Return || event.code == ClearWatch;
        EXPECT_EQ(view.opened, std::vector(plain ? 0 : 1, newScriptEvent(event.code)));
    }
    const std::set<std::uint32_t> withParameters = {202, 204, 219, 236, 237, 254, 257};
    for (std::uint32_t id = 201; id <= 268; ++id) {
        fill(0);
        view.choose(MenuCommands, menuRow(id));
        EXPECT_TRUE(insertMenuCommand(state, view));
        EXPECT_EQ(onlyEntry().commandId, id);
        EXPECT_EQ(view.opened.size(), withParameters.count(id)) << id;
    }
}

TEST_F(EditingTest, TransferSheetOpensOnTheWorkingOrOwnOrDefaultSettings) {
    const auto expectSheet = [&](auto& operation, std::string_view hostFile, auto direction) {
        view.dialog = [&](ScriptEntry&) {
            EXPECT_EQ(transferText(state.workingTransfer.settings, transfer::hostFileName),
                      hostFile);
            EXPECT_EQ(state.workingTransfer.direction, direction);
            setTransferText(state.workingTransfer.settings, transfer::hostFileName, "EDITED");
            return false;
        };
        EXPECT_FALSE(operation(state, view));
    };
    setTransferText(state.workingTransfer.settings, transfer::hostFileName, "SHOWN");
    view.choose(MenuCommands, menuRow(receiveFileCommand));
    expectSheet(insertMenuCommand, "SHOWN", TransferDirection::Receive);
    expectSheet(insertMenuCommand, "EDITED", TransferDirection::Receive);
    ScriptEntry entry = entryOf(MenuCommand, sendFileCommand);
    setTransferText(entry.transferSettings, transfer::hostFileName, "OWN");
    have(entry);
    expectSheet(editCurrentEntry, "OWN", TransferDirection::Send);
    entry = entryOf(MenuCommand, 203);
    entry.commandData = 77;
    have(entry);
    view.choose(MenuCommands, menuRow(sendFileCommand));
    expectSheet(editCurrentEntry, "", TransferDirection::Send);
    view.dialog = ok;
    EXPECT_TRUE(editCurrentEntry(state, view));
    EXPECT_EQ(onlyEntry().transferSettings, defaultTransferSettings());
    EXPECT_EQ(onlyEntry().commandData, 77U) << "the second word is carried unchanged";
}

TEST_F(EditingTest, EntriesWithoutParametersAreReplacedFromTheirPalette) {
    const auto expectReplaced = [&](const ScriptEntry& before, Palette palette, int row, bool opens,
                                    const ScriptEntry& after) {
        SCOPED_TRACE(testing::Message() << "row " << row);
        have(before);
        view.askedFor.clear();
        view.choose(palette, row);
        view.dialog = cancel;
        EXPECT_FALSE(opens && editCurrentEntry(state, view));
        EXPECT_EQ(onlyEntry(), before) << "Cancel leaves it";
        view.dialog = ok;
        EXPECT_EQ(editCurrentEntry(state, view), before != after);
        EXPECT_EQ(view.opened.size(), opens ? 2U : 0U);
        EXPECT_EQ(onlyEntry().commandCode, after.commandCode);
        EXPECT_EQ(onlyEntry().commandId, after.commandId);
        EXPECT_EQ(view.askedFor, std::vector(row < 0 ? 1 : 0, palette));
    };
    expectReplaced(entryOf(Beep), ScriptEvents, rowOf(Return), false, entryOf(Return));
    expectReplaced(entryOf(Return), ScriptEvents, rowOf(Wait), true, entryOf(Wait));
    expectReplaced(entryOf(Beep), ScriptEvents, rowOf(Beep), false, entryOf(Beep));
    expectReplaced(entryOf(ClearWatch), ScriptEvents, -1, false, entryOf(ClearWatch));
    const ScriptEntry menu = entryOf(MenuCommand, 201);
    expectReplaced(menu, MenuCommands, menuRow(268), false, entryOf(MenuCommand, 268));
    expectReplaced(menu, MenuCommands, menuRow(254), true, entryOf(MenuCommand, 254));
    expectReplaced(menu, MenuCommands, -1, false, menu);
    expectReplaced(entryOf(LuFunction), LuFunctions, -1, false, entryOf(LuFunction));
}

TEST_F(EditingTest, LuFunctionsComeFromThePaletteOfTheHostType) {
    state.currentHostType = HostType::VT;
    const auto& rows = state.luCatalogues.of(HostType::VT).rows;
    view.choose(LuFunctions, 0);
    EXPECT_TRUE(insertLuFunction(state, view));
    EXPECT_EQ(lines(), rows[0].name);
    view.choose(LuFunctions, static_cast<int>(rows.size()) - 1);
    EXPECT_TRUE(editCurrentEntry(state, view));
    EXPECT_EQ(lines(), rows.back().name);
}

TEST_F(EditingTest, EditTakesTheFocusedEntryAndItsFlagIsSetAsLongAsTheDialogIsOpen) {
    fill(4);
    view.select({0, 1}, 2);
    for (const bool accepted : {false, true}) {
        view.dialog = [&](ScriptEntry& entry) {
            EXPECT_TRUE(state.editing);
            return typing("x")(entry) && accepted;
        };
        EXPECT_EQ(editCurrentEntry(state, view), accepted);
        EXPECT_FALSE(state.editing);
        EXPECT_EQ(lines(), accepted ? "1 2 x 4" : "1 2 3 4");
    }
    expectSelected({2}, 2);
    view.dialog = [](ScriptEntry&) -> bool { throw std::bad_alloc(); };
    EXPECT_THROW(editCurrentEntry(state, view), std::bad_alloc);
    EXPECT_FALSE(state.editing);
    view.select({0}, -1);
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(state.currentIndex, -1);
    view.dialog = [&](ScriptEntry&) { return !state.editing; };
    view.choose(ScriptEvents, rowOf(Type));
    EXPECT_TRUE(insertScriptEvent(state, view)) << "an insert is not an edit";
}

TEST_F(EditingTest, WhatVtLacksAndHiddenTextsThatCannotBeStoredAreRefusedAndNothingChanges) {
    state.currentHostType = HostType::VT;
    view.choose(MenuCommands, menuRow(menuCommandRefusedInVt));
    view.choose(ScriptEvents, rowOf(Type));
    view.dialog = typing(std::string(247, 'x'), true);
    for (const ScriptEntry& before : {entryOf(MenuCommand, 201), entryOf(Type)}) {
        have(before);
        EXPECT_FALSE(insertMenuCommand(state, view));
        EXPECT_FALSE(insertScriptEvent(state, view));
        EXPECT_FALSE(editCurrentEntry(state, view));
        EXPECT_EQ(onlyEntry(), before);
        EXPECT_EQ(view.shows, 0);
    }
    using enum EditRefusal;
    EXPECT_EQ(view.refusals,
              (std::vector{MenuCommandNotInVt, HiddenTextTooLong, MenuCommandNotInVt,
                           MenuCommandNotInVt, HiddenTextTooLong, HiddenTextTooLong}));
}

TEST_F(EditingTest, DeleteAndCutLeaveTheFollowerCurrent) {
    const auto expectRemoved = [&](std::size_t entries, const Indexes& selected,
                                   const std::string& left, const Indexes& current) {
        for (const bool cuts : {false, true}) {
            SCOPED_TRACE((cuts ? "cut, left: " : "deleted, left: ") + left);
            fill(entries);
            std::vector<EntryHandle> taken;
            for (const std::size_t index : selected)
                taken.push_back(state.script.entries[index]);
            view.select(selected, static_cast<int>(selected.back()));
            view.asked.clear();
            state.entryClipboard.clear();
            EXPECT_TRUE(cuts ? cutEntries(state, view) : deleteEntries(state, view));
            EXPECT_EQ(lines(), left);
            expectSelected(current, current.empty() ? -1 : static_cast<int>(current[0]));
            EXPECT_EQ(view.shows, 1);
            EXPECT_EQ(view.asked, Indexes(cuts ? 0 : 1, selected.size()));
            EXPECT_EQ(state.entryClipboard, cuts ? taken : std::vector<EntryHandle>());
        }
    };
    expectRemoved(4, {3}, "1 2 3", {2});
    expectRemoved(5, {0, 2, 3}, "2 5", {1});
    expectRemoved(3, {0, 1, 2}, "", {});
}

TEST_F(EditingTest, WithoutASelectionOrAYesNothingHappens) {
    fill(3);
    state.entryClipboard = {comment("kept")};
    copyEntries(state, view);
    EXPECT_FALSE(cutEntries(state, view) || deleteEntries(state, view));
    EXPECT_TRUE(view.asked.empty());
    EXPECT_EQ(state.entryClipboard, std::vector{comment("kept")});
    view.select({0, 2}, 0);
    view.agrees = false;
    EXPECT_FALSE(deleteEntries(state, view));
    copyEntries(state, view);
    EXPECT_EQ(state.entryClipboard, (std::vector{comment("1"), comment("3")}));
    EXPECT_EQ(lines(), "1 2 3");
    EXPECT_EQ(view.selection, (EntrySelection{{0, 2}, 0}));
    EXPECT_EQ(view.shows, 0);
}

TEST_F(EditingTest, PasteGoesBehindTheFocusElseTheFirstSelectedElseNowhere) {
    state.entryClipboard = {comment("a"), comment("b")};
    const auto expectPaste = [&](std::size_t entries, const EntrySelection& selection,
                                 const char* expected, const Indexes& pasted) {
        SCOPED_TRACE(expected);
        fill(entries);
        view.selection = selection;
        const bool changes = !pasted.empty();
        EXPECT_EQ(pasteEntries(state, view), changes);
        EXPECT_EQ(lines(), expected);
        expectSelected(pasted, changes ? static_cast<int>(pasted.back()) : -1);
        EXPECT_EQ(view.shows, changes ? 1 : 0);
        EXPECT_EQ(state.entryClipboard.size(), 2U);
    };
    expectPaste(0, {}, "a b", {0, 1});
    expectPaste(3, {{0}, 1}, "1 2 a b 3", {2, 3});
    expectPaste(3, {{0, 2}, -1}, "1 a b 2 3", {1, 2});
    expectPaste(2, {{1}, 1}, "1 2 a b", {2, 3});
    expectPaste(3, {}, "1 2 3", {});
}

TEST_F(EditingTest, PasteAndInsertStopAtTheLimitAndPasteSelectsAsManyAsWereOffered) {
    fill(4090);
    state.entryClipboard.assign(10, comment("x"));
    view.select({0}, 0);
    EXPECT_TRUE(pasteEntries(state, view));
    EXPECT_EQ(state.script.entryCount(), 4096U);
    expectSelected({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 6);
    const EntrySelection before = view.selection;
    EXPECT_FALSE(pasteEntries(state, view));
    view.choose(ScriptEvents, rowOf(Beep));
    EXPECT_FALSE(insertScriptEvent(state, view));
    EXPECT_EQ(view.selection, before);
    EXPECT_EQ(state.script.entryCount(), 4096U);
}

}  // namespace
}  // namespace quendra::test
