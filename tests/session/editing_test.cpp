// The editing operations over plain lists and prepared dialog answers.
#include "session/editing.h"

#include "model/new_command.h"
#include "scriptfile/entry_codec.h"
#include "session/fake_view.h"
#include "support/fixtures.h"
#include "text/text_ids.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace quendra::test {
namespace {

using enum CommandCode;
using enum Palette;

const Dialog ok = [](ScriptEntry&) { return true; };

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
    entry.code = code;
    entry.commandId = commandId;
    return entry;
}

class EditingTest : public testing::Test {
  protected:
    EditingTest() { state.luCatalogues = NumberedNames().luFunctions; }

    // The only entries; the first is focused if there is but one.
    void have(const std::vector<ScriptEntry>& entries) {
        state.script = {};
        for (const ScriptEntry& entry : entries)
            state.script.entries.push_back(packEntry(entry, state.cipher).entry);
        view.selection = {};
        if (entries.size() == 1) view.selection = {{0}, 0};
        state.currentIndex = view.selection.focused;
        view.shows = 0;
        view.opened.clear();
    }
    // Comments "1", "2", ...
    void fill(std::size_t count) {
        std::vector<ScriptEntry> comments(count, entryOf(Comment));
        for (std::size_t i = 0; i < count; ++i)
            setText(slotFields(comments[i], Slot::Entry), std::to_string(i + 1));
        have(comments);
    }
    [[nodiscard]] std::string lines() const {
        std::string all;
        for (const std::string& line : linesOf(state.script, state.currentHostType, state.cipher))
            all += (all.empty() ? "" : " ") + line;
        return all;
    }
    void expectScript(const std::string& expected, const Indexes& selected, int focused) const {
        EXPECT_EQ(lines(), expected);
        EXPECT_EQ(view.selection, (EntrySelection{selected, focused}));
        EXPECT_EQ(state.currentIndex, focused);
    }

    EditingState state;
    FakeView view;
};

TEST_F(EditingTest, InsertsBehindTheFocusOrTheSelectionOrAtTheEndAndAtTheDrop) {
    view.choose(ScriptEvents, rowOf(Beep));
    const auto expectInsert = [&](const EntrySelection& selection, std::optional<int> drop,
                                  const std::string& expected, std::size_t at) {
        fill(4);
        view.selection = selection;
        state.currentIndex = drop.value_or(selection.focused);
        state.dropPending = drop.has_value();
        EXPECT_TRUE(insertScriptEvent(state, view));
        expectScript(expected, {at}, static_cast<int>(at));
        EXPECT_FALSE(state.dropPending);
        EXPECT_EQ(view.shows, 1);
    };
    expectInsert({}, {}, "1 2 3 4 Beep", 4);
    expectInsert({{0, 3}, 1}, {}, "1 2 Beep 3 4", 2);
    expectInsert({{2, 3}, -1}, {}, "1 2 3 Beep 4", 3);
    expectInsert({{3}, 3}, 0, "Beep 1 2 3 4", 0);
    expectInsert({}, 9, "1 2 3 4 Beep", 4);  // the script has shrunk since
}

TEST_F(EditingTest, DropIsUsedUpByTheNextInsertWhateverBecomesOfIt) {
    for (const int chosen : {rowOf(Wait), -1}) {
        for (const int focused : {3, -1}) {
            fill(4);
            view.select({3}, focused);
            state.currentIndex = 1;
            state.dropPending = true;
            view.choose(ScriptEvents, chosen);
            EXPECT_FALSE(insertScriptEvent(state, view));
            EXPECT_FALSE(state.dropPending);
            expectScript("1 2 3 4", {3}, focused);
        }
    }
}

TEST_F(EditingTest, NewEntriesOpenTheirDialogOnTheirDefaultsWhereTheyHaveParameters) {
    view.dialog = ok;
    for (const ScriptEventInfo& event : scriptEvents()) {
        have({});
        view.choose(ScriptEvents, rowOf(event.code));
        EXPECT_TRUE(insertScriptEvent(state, view));
        EXPECT_EQ(state.script.entries[0].code(), event.code);
        const bool plain = event.code == Beep || event.code == Return || event.code == ClearWatch;
        EXPECT_EQ(view.opened, std::vector(plain ? 0 : 1, newCommand(event.code)));
    }
    const std::set<std::uint32_t> withParameters = {202, 204, 219, 236, 237, 254, 257};
    for (std::uint32_t id = 201; id <= 268; ++id) {
        have({});
        view.choose(MenuCommands, menuRow(id));
        EXPECT_TRUE(insertMenuCommand(state, view));
        EXPECT_EQ(unpackEntry(state.script.entries[0], state.cipher).commandId, id);
        EXPECT_EQ(view.opened.size(), withParameters.count(id)) << id;
    }
}

TEST_F(EditingTest, TransferSheetOpensOnTheWorkingOrOwnOrDefaultSettings) {
    const auto expectSheet = [&](auto& operation, std::string_view hostFile, auto direction) {
        view.dialog = [&](ScriptEntry&) {
            const auto& [settings, host, shownDirection] = state.workingTransfer;
            EXPECT_EQ(transferText(settings, transfer::hostFileName), hostFile);
            EXPECT_EQ(shownDirection, direction);
            return false;
        };
        EXPECT_FALSE(operation(state, view));
    };
    setTransferText(state.workingTransfer.settings, transfer::hostFileName, "SHOWN");
    view.choose(MenuCommands, menuRow(receiveFileCommand));
    expectSheet(insertMenuCommand, "SHOWN", TransferDirection::Receive);
    ScriptEntry entry = entryOf(MenuCommand, sendFileCommand);
    setTransferText(entry.transferSettings, transfer::hostFileName, "OWN");
    have({entry});
    expectSheet(editCurrentEntry, "OWN", TransferDirection::Send);
    have({entryOf(MenuCommand, 203)});
    expectSheet(editCurrentEntry, "", TransferDirection::Receive);
}

TEST_F(EditingTest, EntriesWithoutParametersAreReplacedFromTheirPalette) {
    const auto expectReplaced = [&](const ScriptEntry& before, Palette palette, int row, bool opens,
                                    const std::string& after) {
        have({before});
        const std::string line = lines();
        view.askedFor.clear();
        view.choose(palette, row);
        view.dialog = {};
        EXPECT_FALSE(opens && editCurrentEntry(state, view));
        expectScript(line, {0}, 0);
        view.dialog = ok;
        EXPECT_EQ(editCurrentEntry(state, view), line != after);
        EXPECT_EQ(view.opened.size(), opens ? 2U : 0U);
        expectScript(after, {0}, 0);
        EXPECT_EQ(view.askedFor, std::vector(row < 0 ? 1 : 0, palette));
    };
    const ScriptEntry menu = entryOf(MenuCommand, 201);
    expectReplaced(entryOf(Beep), ScriptEvents, rowOf(Return), false, "Return");
    expectReplaced(entryOf(Return), ScriptEvents, rowOf(Wait), true, "Wait 0");
    expectReplaced(entryOf(Beep), ScriptEvents, rowOf(Beep), false, "Beep");
    expectReplaced(entryOf(ClearWatch), ScriptEvents, -1, false, "Clear_Watch");
    expectReplaced(menu, MenuCommands, menuRow(268), false,
                   numberedName(textid::menuCommandAboutQuendra));
    expectReplaced(menu, MenuCommands, menuRow(254), true,
                   numberedName(textid::menuCommandRunMacro) + " \"\"");
    expectReplaced(menu, MenuCommands, -1, false, numberedName(textid::menuCommandNewSession));
}

TEST_F(EditingTest, LuFunctionsComeFromThePaletteOfTheHostType) {
    state.currentHostType = HostType::VT;
    const auto& rows = state.luCatalogues.of(HostType::VT).rows;
    view.choose(LuFunctions, 0);
    EXPECT_TRUE(insertLuFunction(state, view));
    expectScript(rows[0].name, {0}, 0);
    view.choose(LuFunctions, static_cast<int>(rows.size()) - 1);
    EXPECT_TRUE(editCurrentEntry(state, view));
    expectScript(rows.back().name, {0}, 0);
    view.choose(LuFunctions, -1);
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(view.askedFor, std::vector{LuFunctions});
}

TEST_F(EditingTest, EditTakesTheFocusedEntryAndItsFlagIsSetAsLongAsTheDialogIsOpen) {
    fill(4);
    view.select({0, 1}, 2);
    for (const bool accepted : {false, true}) {
        view.dialog = [&](ScriptEntry& entry) {
            setText(slotFields(entry, Slot::Entry), "x");
            return state.editing && accepted;
        };
        EXPECT_EQ(editCurrentEntry(state, view), accepted);
        EXPECT_FALSE(state.editing);
        EXPECT_EQ(lines(), accepted ? "1 2 x 4" : "1 2 3 4");
    }
    expectScript("1 2 x 4", {2}, 2);
    view.dialog = [](ScriptEntry&) -> bool { throw std::bad_alloc(); };
    EXPECT_THROW(editCurrentEntry(state, view), std::bad_alloc);
    EXPECT_FALSE(state.editing);
    view.select({0}, -1);
    EXPECT_FALSE(editCurrentEntry(state, view));
    expectScript("1 2 x 4", {0}, -1);
}

TEST_F(EditingTest, WhatVtLacksAndHiddenTextsThatCannotBeStoredAreRefusedAndNothingChanges) {
    using enum EditRefusal;
    state.currentHostType = HostType::VT;
    view.choose(MenuCommands, menuRow(213));
    view.choose(ScriptEvents, rowOf(Type));
    view.dialog = [](ScriptEntry& entry) {
        entry.hidden = 1;
        setText(slotFields(entry, Slot::Entry), std::string(247, 'x'));
        return true;
    };
    have({entryOf(MenuCommand, 201)});
    EXPECT_FALSE(insertMenuCommand(state, view) || editCurrentEntry(state, view));
    expectScript(numberedName(textid::menuCommandNewSession), {0}, 0);
    have({entryOf(Type)});
    EXPECT_FALSE(insertScriptEvent(state, view) || editCurrentEntry(state, view));
    expectScript("Type \"\"", {0}, 0);
    EXPECT_EQ(view.refusals, (std::vector{MenuCommandNotInVt, MenuCommandNotInVt, HiddenTextTooLong,
                                          HiddenTextTooLong}));
}

TEST_F(EditingTest, DeleteAndCutLeaveTheFollowerCurrent) {
    const auto expectRemoved = [&](const Indexes& selected, const std::string& left,
                                   const Indexes& current) {
        for (auto* operation : {deleteEntries, cutEntries}) {
            fill(4);
            view.select(selected, 0);
            EXPECT_TRUE(operation(state, view));
            expectScript(left, current, current.empty() ? -1 : static_cast<int>(current[0]));
        }
        EXPECT_EQ(view.asked, Indexes{selected.size()}) << "deleting asks, cutting does not";
        EXPECT_EQ(state.entryClipboard.size(), selected.size());
        view.asked.clear();
    };
    expectRemoved({3}, "1 2 3", {2});
    expectRemoved({0, 2}, "2 4", {1});
    expectRemoved({0, 1, 2, 3}, "", {});
}

TEST_F(EditingTest, WithoutASelectionOrAYesNothingHappens) {
    fill(3);
    state.entryClipboard.resize(1);
    copyEntries(state, view);
    EXPECT_FALSE(cutEntries(state, view) || deleteEntries(state, view));
    EXPECT_EQ(state.entryClipboard.size(), 1U);
    view.select({0, 2}, -1);
    view.agrees = false;
    EXPECT_FALSE(deleteEntries(state, view));
    copyEntries(state, view);
    EXPECT_EQ(state.entryClipboard,
              (std::vector{state.script.entries[0], state.script.entries[2]}));
    expectScript("1 2 3", {0, 2}, -1);
    EXPECT_EQ(view.shows, 0);
}

TEST_F(EditingTest, PasteGoesBehindTheFocusElseTheFirstSelectedElseNowhere) {
    have({entryOf(Beep), entryOf(Return)});
    view.select({0, 1}, 0);
    EXPECT_TRUE(cutEntries(state, view));
    EXPECT_TRUE(pasteEntries(state, view));
    expectScript("Beep Return", {0, 1}, 1);
    fill(3);
    EXPECT_FALSE(pasteEntries(state, view));
    expectScript("1 2 3", {}, -1);
    view.select({0}, 1);
    EXPECT_TRUE(pasteEntries(state, view));
    expectScript("1 2 Beep Return 3", {2, 3}, 3);
    view.select({0, 2}, -1);
    EXPECT_TRUE(pasteEntries(state, view));
    expectScript("1 Beep Return 2 Beep Return 3", {1, 2}, 2);
}

TEST_F(EditingTest, PasteAndInsertStopAtTheLimitAndPasteSelectsAsManyAsWereOffered) {
    fill(4090);
    state.entryClipboard.assign(10, state.script.entries[0]);
    view.select({0}, 0);
    EXPECT_TRUE(pasteEntries(state, view));
    EXPECT_EQ(state.script.entryCount(), 4096U);
    const EntrySelection pasted = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 6};
    EXPECT_EQ(view.selection, pasted);
    view.choose(ScriptEvents, rowOf(Beep));
    EXPECT_FALSE(pasteEntries(state, view) || insertScriptEvent(state, view));
    EXPECT_EQ(view.selection, pasted);
    EXPECT_EQ(state.script.entryCount(), 4096U);
}

}  // namespace
}  // namespace quendra::test
