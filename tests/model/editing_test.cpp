// The editing operations over plain lists and prepared dialog answers.
#include "model/editing.h"

#include "scriptfile/entry_codec.h"
#include "support/fixtures.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace quendra::test {
namespace {

using Dialog = std::function<bool(ScriptEntry&)>;
using Indexes = std::vector<std::size_t>;

// Lists, palettes and dialogs as plain values. Every call is one that the window would have to
// pay for, so it is counted.
class FakeView : public EditingView {
  public:
    [[nodiscard]] Indexes selectedEntries() const override { return selection.entries; }
    [[nodiscard]] int focusedEntry() const override { return selection.focused; }
    [[nodiscard]] int selectedRow(Palette palette) const override {
        return rows[static_cast<std::size_t>(palette)];
    }
    void showScript(const EntrySelection& shown) override {
        selection = shown;
        ++shows;
    }
    [[nodiscard]] bool editParameters(ScriptEntry& entry) override {
        opened.push_back(entry);
        return dialog && dialog(entry);
    }
    [[nodiscard]] bool confirmDelete(std::size_t count) override {
        asked.push_back(count);
        return agrees;
    }
    void refuse(EditRefusal refusal, const ScriptEntry&) override { refusals.push_back(refusal); }
    void askForRow(Palette palette) override { askedFor.push_back(palette); }

    void select(Indexes entries, int focused) { selection = {std::move(entries), focused}; }
    void choose(Palette palette, int row) { rows[static_cast<std::size_t>(palette)] = row; }

    EntrySelection selection;
    int rows[3] = {-1, -1, -1};
    Dialog dialog;
    bool agrees = true;
    int shows = 0;
    std::vector<ScriptEntry> opened;
    Indexes asked;
    std::vector<EditRefusal> refusals;
    std::vector<Palette> askedFor;
};

const Dialog ok = [](ScriptEntry&) { return true; };
const Dialog cancel = [](ScriptEntry&) { return false; };

int rowOf(CommandCode code) {
    const auto events = scriptEvents();
    const auto found = std::ranges::find(events, code, &ScriptEventInfo::code);
    return static_cast<int>(found - events.begin());
}

constexpr int menuRow(std::uint32_t commandId) {
    return static_cast<int>(commandId - firstMenuCommand);
}

class EditingTest : public testing::Test {
  protected:
    EditingTest() { state.luCatalogues = names.luFunctions; }

    // Comments "1", "2", ...; nothing selected or focused.
    void fill(std::size_t count) {
        state.script = {};
        for (std::size_t i = 1; i <= count; ++i) {
            state.script.entries.push_back(comment(std::to_string(i)));
        }
        state.currentIndex = -1;
        view.select({}, -1);
    }
    [[nodiscard]] EntryHandle comment(std::string_view text) const {
        ScriptEntry entry;
        entry.commandCode = CommandCode::Comment;
        setText(slotFields(entry, Slot::Entry), text);
        return packEntry(entry, state.cipher).entry;
    }
    void add(const ScriptEntry& entry) {
        state.script.entries.push_back(packEntry(entry, state.cipher).entry);
        const std::size_t last = state.script.entryCount() - 1;
        view.select({last}, static_cast<int>(last));
    }
    [[nodiscard]] ScriptEntry entryAt(std::size_t index) const {
        return unpackEntry(state.script.entries[index], state.cipher);
    }
    [[nodiscard]] std::string lines() const {
        std::string all;
        for (const std::string& line : linesOf(state.script, state.currentHostType, state.cipher)) {
            all += (all.empty() ? "" : " ") + line;
        }
        return all;
    }
    void expectSelected(const Indexes& entries, int focused) const {
        EXPECT_EQ(view.selection.entries, entries);
        EXPECT_EQ(view.selection.focused, focused);
        EXPECT_EQ(state.currentIndex, focused);
    }

    NumberedNames names;
    EditingState state;
    FakeView view;
};

TEST_F(EditingTest, InsertsBehindTheFocusOrTheSelectionOrAtTheEndAndAtTheDrop) {
    struct Row {
        const char* name;
        std::size_t entries;
        EntrySelection selection;
        std::optional<int> drop;
        std::size_t at;
    };
    const Row rows[] = {
        {"empty script", 0, {}, {}, 0},
        {"nothing focused or selected", 4, {}, {}, 4},
        {"fourth focused", 6, {{3}, 3}, {}, 4},
        {"focused, others selected", 6, {{0, 1, 5}, 2}, {}, 3},
        {"selected alone", 6, {{2, 4}, -1}, {}, 3},
        {"dropped on the third", 4, {{0}, 0}, 2, 2},
        {"dropped above the first", 4, {{3}, 3}, 0, 0},
        {"dropped on an empty script", 0, {}, 0, 0},
        {"drop behind a script that has shrunk", 2, {}, 9, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fill(row.entries);
        view.selection = row.selection;
        state.currentIndex = row.drop.value_or(row.selection.focused);
        state.dropPending = row.drop.has_value();
        view.choose(Palette::ScriptEvents, rowOf(CommandCode::Beep));
        view.shows = 0;
        EXPECT_TRUE(insertScriptEvent(state, view));
        ASSERT_EQ(state.script.entryCount(), row.entries + 1);
        EXPECT_EQ(state.script.entries[row.at].code(), CommandCode::Beep);
        expectSelected({row.at}, static_cast<int>(row.at));
        EXPECT_FALSE(state.dropPending);
        EXPECT_EQ(view.shows, 1);
    }
}

TEST_F(EditingTest, DropIsUsedUpByTheNextInsertWhateverBecomesOfIt) {
    using Operation = bool (*)(EditingState&, EditingView&);
    struct Row {
        const char* name;
        Operation insert;
        Palette palette;
        int chosen;
    };
    const Row rows[] = {
        {"event cancelled", insertScriptEvent, Palette::ScriptEvents, rowOf(CommandCode::Wait)},
        {"no event chosen", insertScriptEvent, Palette::ScriptEvents, -1},
        {"no LU function chosen", insertLuFunction, Palette::LuFunctions, -1},
        {"no menu command chosen", insertMenuCommand, Palette::MenuCommands, -1},
        {"file name cancelled", insertMenuCommand, Palette::MenuCommands, menuRow(202)},
        {"transfer cancelled", insertMenuCommand, Palette::MenuCommands, menuRow(236)},
        {"refused in VT", insertMenuCommand, Palette::MenuCommands, menuRow(213)},
    };
    state.currentHostType = HostType::VT;
    view.dialog = cancel;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fill(5);
        const Script before = state.script;
        view.select({4}, 4);
        state.currentIndex = 1;
        state.dropPending = true;
        view.choose(row.palette, row.chosen);
        EXPECT_FALSE(row.insert(state, view));
        EXPECT_EQ(state.script, before);
        EXPECT_FALSE(state.dropPending);
        EXPECT_EQ(state.currentIndex, 4) << "the position is where the focus is";
        EXPECT_EQ(view.shows, 0);
    }
}

TEST_F(EditingTest, NewEventsOpenTheirDialogOnTheirDefaults) {
    for (const ScriptEventInfo& event : scriptEvents()) {
        SCOPED_TRACE(event.keyword);
        fill(0);
        view.opened.clear();
        view.dialog = ok;
        view.choose(Palette::ScriptEvents, rowOf(event.code));
        EXPECT_TRUE(insertScriptEvent(state, view));
        ASSERT_EQ(state.script.entryCount(), 1U);
        EXPECT_EQ(entryAt(0).commandCode, event.code);
        ScriptEntry expected;
        expected.commandCode = event.code;
        expected.maxLength = 255;
        expected.number = 3;
        if (event.code == CommandCode::WaitReady) expected.number = 1;
        if (event.code == CommandCode::WaitFor) {
            expected.searchRow = expected.searchColumn = expected.caseSensitive = 1;
        }
        if (event.code == CommandCode::Copy) {
            expected.number = 0;
            expected.commandId = 1 | 1U << 8 | 24U << 16 | 80U << 24;
        }
        if (event.code == CommandCode::Paste) {
            expected.number = 0;
            expected.commandId = 1 | 1U << 8;
        }
        const bool plain = event.code == CommandCode::Beep || event.code == CommandCode::Return ||
                           event.code == CommandCode::ClearWatch;
        ASSERT_EQ(view.opened.size(), plain ? 0U : 1U);
        if (!plain) {
            EXPECT_EQ(view.opened[0], expected);
        }
    }
}

TEST_F(EditingTest, InsertsTheKeyOfThePaletteRowUnderTheCurrentHostType) {
    for (const HostType type : allHostTypes) {
        state.currentHostType = type;
        const auto& rows = state.luCatalogues.of(type).rows;
        for (const std::size_t row : {std::size_t{0}, rows.size() - 1}) {
            fill(0);
            view.choose(Palette::LuFunctions, static_cast<int>(row));
            EXPECT_TRUE(insertLuFunction(state, view));
            const ScriptEntry entry = entryAt(0);
            EXPECT_EQ(entry.commandCode, CommandCode::LuFunction);
            EXPECT_EQ((LuKey{entry.row, entry.column}), rows[row].key);
        }
    }
}

TEST_F(EditingTest, MenuCommandsAskForTheirParametersAndVtRefusesOne) {
    const std::vector<std::uint32_t> withFile = {202, 204, 219, 254, 257};
    for (std::uint32_t id = 201; id <= 268; ++id) {
        SCOPED_TRACE(id);
        for (const HostType type : {HostType::Mainframe, HostType::VT}) {
            fill(0);
            state.currentHostType = type;
            view.opened.clear();
            view.refusals.clear();
            view.choose(Palette::MenuCommands, menuRow(id));
            view.dialog = [](ScriptEntry& entry) {
                setText(slotFields(entry, Slot::Entry), "name");
                return true;
            };
            const bool refused = type == HostType::VT && id == 213;
            EXPECT_EQ(insertMenuCommand(state, view), !refused);
            EXPECT_EQ(view.refusals.size(), refused ? 1U : 0U);
            if (refused) continue;
            const ScriptEntry entry = entryAt(0);
            EXPECT_EQ(entry.commandId, id);
            EXPECT_EQ(entry.commandData, 0U);
            const bool file = std::ranges::find(withFile, id) != withFile.end();
            EXPECT_EQ(view.opened.size(), file || id == 236 || id == 237 ? 1U : 0U);
            EXPECT_EQ(textOf(slotFields(entry, Slot::Entry)), file ? "name" : "");
        }
    }
}

FileTransferSettings settingsFor(std::string_view hostFile) {
    FileTransferSettings settings = defaultTransferSettings();
    setTransferText(settings, transfer::hostFileName, hostFile);
    return settings;
}

ScriptEntry menuEntry(std::uint32_t commandId) {
    ScriptEntry entry;
    entry.commandCode = CommandCode::MenuCommand;
    entry.commandId = commandId;
    return entry;
}

// What the transfer sheet was opened on; OK takes the working settings over, as the sheet does.
struct TransferSheet {
    Dialog dialog(EditingState& state, bool accepted) {
        return [this, &state, accepted](ScriptEntry& entry) {
            opened = state.workingTransfer;
            ownSettings = entry.transferSettings;
            setTransferText(state.workingTransfer.settings, transfer::member, "EDITED");
            if (!accepted) return false;
            entry.transferHost = transferHostTso;
            entry.transferSettings = state.workingTransfer.settings;
            return true;
        };
    }
    TransferInputs opened;
    FileTransferSettings ownSettings;
};

TEST_F(EditingTest, NewTransferStartsFromTheWorkingSettingsAndCancelLeavesThemEdited) {
    TransferSheet sheet;
    state.workingTransfer = {settingsFor("SHOWN"), transferHostCics, TransferDirection::Send};
    view.choose(Palette::MenuCommands, menuRow(receiveFileCommand));
    view.dialog = sheet.dialog(state, false);
    EXPECT_FALSE(insertMenuCommand(state, view));
    EXPECT_EQ(sheet.opened.settings, settingsFor("SHOWN"));
    EXPECT_EQ(sheet.opened.host, transferHostVmCms);
    EXPECT_EQ(sheet.opened.direction, TransferDirection::Receive);
    FileTransferSettings edited = settingsFor("SHOWN");
    setTransferText(edited, transfer::member, "EDITED");
    view.dialog = sheet.dialog(state, true);
    EXPECT_TRUE(insertMenuCommand(state, view));
    EXPECT_EQ(sheet.opened.settings, edited) << "the next one starts from what was left there";
    EXPECT_EQ(entryAt(0).transferSettings, edited);
    EXPECT_EQ(entryAt(0).transferHost, transferHostTso);
}

TEST_F(EditingTest, EditedTransferOpensOnItsOwnSettings) {
    TransferSheet sheet;
    ScriptEntry entry = menuEntry(sendFileCommand);
    entry.transferHost = transferHostCics;
    entry.transferSettings = settingsFor("OWN");
    add(entry);
    state.workingTransfer = {settingsFor("OTHER"), transferHostVmCms, TransferDirection::Receive};
    const Script before = state.script;
    view.dialog = sheet.dialog(state, false);
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(sheet.opened.settings, settingsFor("OWN"));
    EXPECT_EQ(sheet.opened.host, transferHostCics);
    EXPECT_EQ(sheet.opened.direction, TransferDirection::Send);
    EXPECT_EQ(state.script, before);
    view.dialog = sheet.dialog(state, true);
    EXPECT_TRUE(editCurrentEntry(state, view));
    EXPECT_EQ(entryAt(0).transferHost, transferHostTso);
}

TEST_F(EditingTest, EntryReplacedByATransferStartsFromTheProgramDefaults) {
    TransferSheet sheet;
    ScriptEntry entry = menuEntry(203);
    entry.commandData = 77;
    add(entry);
    state.workingTransfer.settings = settingsFor("OTHER");
    view.choose(Palette::MenuCommands, menuRow(sendFileCommand));
    view.dialog = sheet.dialog(state, true);
    EXPECT_TRUE(editCurrentEntry(state, view));
    EXPECT_EQ(sheet.opened.settings, defaultTransferSettings());
    EXPECT_EQ(sheet.ownSettings, defaultTransferSettings()) << "an edit starts from its entry's";
    EXPECT_EQ(sheet.opened.host, transferHostVmCms);
    EXPECT_EQ(entryAt(0).commandId, sendFileCommand);
    EXPECT_EQ(entryAt(0).commandData, 77U) << "the second word is carried unchanged";
}

struct ReplaceRow {
    const char* name;
    ScriptEntry entry;
    Palette palette;
    int row;
    /// Whether the dialog opens.
    bool opens;
    bool changed;
    CommandCode code;
    std::uint32_t commandId;
};

ScriptEntry eventEntry(CommandCode code) {
    ScriptEntry entry;
    entry.commandCode = code;
    return entry;
}

TEST_F(EditingTest, EntriesWithoutParametersAreReplacedFromTheirPalette) {
    using enum CommandCode;
    using enum Palette;
    const ReplaceRow rows[] = {
        {"Beep by Return", eventEntry(Beep), ScriptEvents, rowOf(Return), false, true, Return, 0},
        {"Beep by Wait", eventEntry(Beep), ScriptEvents, rowOf(Wait), true, true, Wait, 0},
        {"Return by Wait_For", eventEntry(Return), ScriptEvents, rowOf(WaitFor), true, true,
         WaitFor, 0},
        {"Beep by itself", eventEntry(Beep), ScriptEvents, rowOf(Beep), false, false, Beep, 0},
        {"Clear_Watch, nothing chosen", eventEntry(ClearWatch), ScriptEvents, -1, false, false,
         ClearWatch, 0},
        {"menu command by another", menuEntry(201), MenuCommands, menuRow(268), false, true,
         MenuCommand, 268},
        {"menu command by one with a file", menuEntry(201), MenuCommands, menuRow(254), true, true,
         MenuCommand, 254},
        {"menu command, nothing chosen", menuEntry(201), MenuCommands, -1, false, false,
         MenuCommand, 201},
    };
    for (const ReplaceRow& row : rows) {
        SCOPED_TRACE(row.name);
        fill(2);
        add(row.entry);
        view.opened.clear();
        view.askedFor.clear();
        view.choose(row.palette, row.row);
        view.dialog = ok;
        EXPECT_EQ(editCurrentEntry(state, view), row.changed);
        EXPECT_EQ(view.opened.size(), row.opens ? 1U : 0U);
        EXPECT_EQ(entryAt(2).commandCode, row.code);
        EXPECT_EQ(entryAt(2).commandId, row.commandId);
        EXPECT_EQ(view.askedFor,
                  row.row < 0 ? std::vector<Palette>{row.palette} : std::vector<Palette>());
        if (!row.opens) continue;
        const ScriptEntry replaced = entryAt(2);
        add(row.entry);
        view.dialog = cancel;
        EXPECT_FALSE(editCurrentEntry(state, view));
        EXPECT_EQ(entryAt(3).commandCode, row.entry.commandCode) << "Cancel leaves it";
    }
}

TEST_F(EditingTest, LuFunctionsAreReplacedFromTheirPalette) {
    ScriptEntry entry = eventEntry(CommandCode::LuFunction);
    entry.row = 200;
    add(entry);
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(view.askedFor, std::vector<Palette>{Palette::LuFunctions});
    view.choose(Palette::LuFunctions, 5);
    EXPECT_TRUE(editCurrentEntry(state, view));
    const LuKey key = state.luCatalogues.of(HostType::Mainframe).rows[5].key;
    EXPECT_EQ((LuKey{entryAt(0).row, entryAt(0).column}), key);
}

TEST_F(EditingTest, VtRefusesTheReplacementThatItCannotHold) {
    add(menuEntry(201));
    view.choose(Palette::MenuCommands, menuRow(213));
    state.currentHostType = HostType::VT;
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(view.refusals, std::vector{EditRefusal::MenuCommandNotInVt});
    EXPECT_EQ(entryAt(0).commandId, 201U);
    EXPECT_FALSE(state.editing);
}

TEST_F(EditingTest, EditFlagIsSetWhileTheDialogIsOpenAndClearedOnEveryWayOut) {
    fill(3);
    view.select({1}, 1);
    std::vector<bool> seen;
    for (const bool accepted : {true, false}) {
        view.dialog = [&](ScriptEntry& entry) {
            seen.push_back(state.editing);
            setText(slotFields(entry, Slot::Entry), "x");
            return accepted;
        };
        EXPECT_EQ(editCurrentEntry(state, view), accepted);
        EXPECT_FALSE(state.editing);
    }
    view.dialog = [](ScriptEntry&) -> bool { throw std::bad_alloc(); };
    EXPECT_THROW(editCurrentEntry(state, view), std::bad_alloc);
    EXPECT_FALSE(state.editing);
    EXPECT_EQ(seen, (std::vector<bool>{true, true}));
    view.dialog = [&](ScriptEntry&) { return !state.editing; };
    view.choose(Palette::ScriptEvents, rowOf(CommandCode::Type));
    EXPECT_TRUE(insertScriptEvent(state, view)) << "an insert is not an edit";
}

TEST_F(EditingTest, EditTakesTheFocusedEntryNotTheSelectedOne) {
    fill(4);
    view.select({0, 1}, 2);
    view.dialog = [](ScriptEntry& entry) {
        setText(slotFields(entry, Slot::Entry), "x");
        return true;
    };
    EXPECT_TRUE(editCurrentEntry(state, view));
    EXPECT_EQ(lines(), "1 2 x 4");
    expectSelected({2}, 2);
    view.select({0}, -1);
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(state.currentIndex, -1);
}

TEST_F(EditingTest, HiddenTextThatCannotBeStoredIsRefusedAndNothingChanges) {
    view.dialog = [](ScriptEntry& entry) {
        entry.hidden = 1;
        setText(slotFields(entry, Slot::Entry), std::string(247, 'x'));
        return true;
    };
    fill(2);
    view.select({0}, 0);
    const Script before = state.script;
    view.choose(Palette::ScriptEvents, rowOf(CommandCode::Type));
    EXPECT_FALSE(insertScriptEvent(state, view));
    add(eventEntry(CommandCode::Type));
    EXPECT_FALSE(editCurrentEntry(state, view));
    EXPECT_EQ(view.refusals, (std::vector(2, EditRefusal::HiddenTextTooLong)));
    state.script.entries.pop_back();
    EXPECT_EQ(state.script, before);
    EXPECT_EQ(view.shows, 0);
}

struct RemoveRow {
    const char* name;
    std::size_t entries;
    Indexes selected;
    std::string left;
    int current;
};

class RemovingTest : public EditingTest, public testing::WithParamInterface<RemoveRow> {};

TEST_P(RemovingTest, DeleteAndCutLeaveTheFollowerCurrent) {
    const RemoveRow& row = GetParam();
    fill(row.entries);
    const std::vector<EntryHandle> old = state.script.entries;
    for (const bool cuts : {false, true}) {
        SCOPED_TRACE(cuts ? "cut" : "delete");
        state.script.entries = old;
        view.select(row.selected, static_cast<int>(row.selected.back()));
        view.shows = 0;
        EXPECT_TRUE(cuts ? cutEntries(state, view) : deleteEntries(state, view));
        EXPECT_EQ(lines(), row.left);
        if (row.current < 0) {
            expectSelected({}, -1);
        } else {
            expectSelected({static_cast<std::size_t>(row.current)}, row.current);
        }
        EXPECT_EQ(view.shows, 1);
    }
    EXPECT_EQ(view.asked, Indexes{row.selected.size()}) << "one question, by Delete alone";
    ASSERT_EQ(state.entryClipboard.size(), row.selected.size());
    for (std::size_t i = 0; i < row.selected.size(); ++i) {
        EXPECT_EQ(state.entryClipboard[i], old[row.selected[i]]) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Selections, RemovingTest,
                         testing::Values(RemoveRow{"one", 4, {1}, "1 3 4", 1},
                                         RemoveRow{"last", 4, {3}, "1 2 3", 2},
                                         RemoveRow{"only", 1, {0}, "", -1},
                                         RemoveRow{"scattered", 5, {0, 2, 3}, "2 5", 1},
                                         RemoveRow{"withTheLast", 5, {1, 4}, "1 3 4", 2},
                                         RemoveRow{"all", 3, {0, 1, 2}, "", -1}),
                         [](const auto& row) { return row.param.name; });

TEST_F(EditingTest, DeleteNeedsASelectionAndAYes) {
    fill(3);
    EXPECT_FALSE(deleteEntries(state, view));
    EXPECT_TRUE(view.asked.empty());
    view.select({0, 1, 2}, 0);
    view.agrees = false;
    EXPECT_FALSE(deleteEntries(state, view));
    EXPECT_EQ(view.asked, Indexes{3});
    EXPECT_EQ(lines(), "1 2 3");
    EXPECT_EQ(view.selection, (EntrySelection{{0, 1, 2}, 0}));
}

TEST_F(EditingTest, CutAndCopyWithoutASelectionKeepTheClipboard) {
    fill(3);
    state.entryClipboard = {comment("kept")};
    copyEntries(state, view);
    EXPECT_FALSE(cutEntries(state, view));
    EXPECT_EQ(state.entryClipboard, std::vector{comment("kept")});
}

TEST_F(EditingTest, CopyTakesTheSelectionInOrderAndChangesNothing) {
    fill(4);
    view.select({0, 2, 3}, 3);
    state.entryClipboard = {comment("old")};
    copyEntries(state, view);
    EXPECT_EQ(state.entryClipboard, (std::vector{comment("1"), comment("3"), comment("4")}));
    EXPECT_EQ(lines(), "1 2 3 4");
    EXPECT_EQ(view.shows, 0);
}

struct PasteRow {
    const char* name;
    std::size_t entries;
    EntrySelection selection;
    std::string lines;
    Indexes selected;
    int current;
};

class PastingTest : public EditingTest, public testing::WithParamInterface<PasteRow> {};

TEST_P(PastingTest, GoesBehindTheFocusElseTheFirstSelectedElseNowhere) {
    const PasteRow& row = GetParam();
    fill(row.entries);
    state.entryClipboard = {comment("a"), comment("b")};
    view.selection = row.selection;
    state.currentIndex = row.selection.focused;
    const bool changes = !row.selected.empty();
    EXPECT_EQ(pasteEntries(state, view), changes);
    EXPECT_EQ(lines(), row.lines);
    expectSelected(row.selected, row.current);
    EXPECT_EQ(view.shows, changes ? 1 : 0);
    EXPECT_EQ(state.entryClipboard.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(
    Places, PastingTest,
    testing::Values(PasteRow{"emptyScript", 0, {}, "a b", {0, 1}, 1},
                    PasteRow{"focused", 3, {{0}, 1}, "1 2 a b 3", {2, 3}, 3},
                    PasteRow{"selectedAlone", 3, {{0, 2}, -1}, "1 a b 2 3", {1, 2}, 2},
                    PasteRow{"last", 2, {{1}, 1}, "1 2 a b", {2, 3}, 3},
                    PasteRow{"nowhere", 3, {}, "1 2 3", {}, -1}),
    [](const auto& row) { return row.param.name; });

TEST_F(EditingTest, CutAndPasteTwiceGivesTheEntriesTwice) {
    fill(5);
    view.select({1, 3}, 3);
    cutEntries(state, view);
    EXPECT_EQ(lines(), "1 3 5");
    pasteEntries(state, view);
    pasteEntries(state, view);
    EXPECT_EQ(lines(), "1 3 5 2 4 2 4");
    expectSelected({5, 6}, 6);
}

TEST_F(EditingTest, PasteStopsAtTheLimitAndSelectsAsManyAsWereOffered) {
    fill(4090);
    state.entryClipboard.assign(10, comment("x"));
    view.select({0}, 0);
    EXPECT_TRUE(pasteEntries(state, view));
    EXPECT_EQ(state.script.entryCount(), 4096U);
    expectSelected({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 6);
    const EntrySelection before = view.selection;
    EXPECT_FALSE(pasteEntries(state, view));
    EXPECT_EQ(view.selection, before);
}

TEST_F(EditingTest, InsertStopsAtTheLimit) {
    fill(4096);
    view.choose(Palette::ScriptEvents, rowOf(CommandCode::Beep));
    EXPECT_FALSE(insertScriptEvent(state, view));
    EXPECT_EQ(state.script.entryCount(), 4096U);
}

TEST_F(EditingTest, AnotherScriptGoesWhereAnInsertGoes) {
    fill(3);
    const std::vector<EntryHandle> other = {comment("a"), comment("b")};
    EXPECT_EQ(insertScript(state, view, other), 2U);
    EXPECT_EQ(lines(), "1 2 3 a b");
    expectSelected({3, 4}, 4);
    view.select({0}, 0);
    EXPECT_EQ(insertScript(state, view, other), 2U);
    EXPECT_EQ(lines(), "1 a b 2 3 a b");
    EXPECT_EQ(insertScript(state, view, {}), 0U);
}

}  // namespace
}  // namespace quendra::test
