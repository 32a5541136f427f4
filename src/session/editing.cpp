#include "session/editing.h"

#include "model/entry_fields.h"
#include "model/menu_commands.h"
#include "model/new_command.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace quendra {

namespace {

void show(EditingState& state, EditingView& view, const EntrySelection& selection) {
    state.currentIndex = selection.focused;
    view.showScript(selection);
}

void showOne(EditingState& state, EditingView& view, std::size_t entry) {
    show(state, view, {{entry}, static_cast<int>(entry)});
}

std::vector<std::size_t> indexRange(std::size_t first, std::size_t count) {
    std::vector<std::size_t> indexes(count);
    std::iota(indexes.begin(), indexes.end(), first);
    return indexes;
}

// The stored form of a working copy, or none after telling why there is none.
std::optional<EntryHandle> store(const EditingState& state, EditingView& view,
                                 const ScriptEntry& entry) {
    PackResult packed = packEntry(entry, state.cipher);
    if (packed.ok()) return std::move(packed.entry);
    view.refuse(packed.fault == WriteFault::HiddenTextTooLong ? EditRefusal::HiddenTextTooLong
                                                              : EditRefusal::CannotEncipher,
                entry);
    return std::nullopt;
}

bool storeAt(EditingState& state, EditingView& view, const ScriptEntry& entry, std::size_t at) {
    const auto stored = store(state, view, entry);
    if (!stored || insertEntries(state.script, at, {&*stored, 1}) == 0) return false;
    showOne(state, view, at);
    return true;
}

// One palette insert; `make` gives the entry, or none when the user has thought better of it.
template <class Make>
bool insertMade(EditingState& state, EditingView& view, const Make& make) {
    const bool dropped = state.dropPending;
    const std::size_t at = insertionPoint(state, view);
    const std::optional<ScriptEntry> entry = make();
    if (entry && storeAt(state, view, *entry, at)) return true;
    // A drop has moved the current position to its target, and now nothing comes to lie there.
    if (dropped) state.currentIndex = view.focusedEntry();
    return false;
}

bool refused(const EditingState& state, EditingView& view, const ScriptEntry& entry) {
    if (!refusesMenuCommand(state.currentHostType, entry.commandId)) return false;
    view.refuse(EditRefusal::MenuCommandNotInVt, entry);
    return true;
}

// The sheet works on the working settings; those of a new transfer are used as they are.
void aimTransfer(EditingState& state, const ScriptEntry& entry) {
    state.workingTransfer.host = entry.transferHost;
    state.workingTransfer.direction = transferDirection(entry.commandId);
}

bool editMenuParameters(EditingState& state, EditingView& view, ScriptEntry& entry) {
    if (!menuCommandTakesParameters(entry.commandId)) return true;
    if (isFileTransfer(entry.commandId)) aimTransfer(state, entry);
    return view.editParameters(entry);
}

PaletteChoice selectedIn(const EditingView& view, Palette palette) {
    return {palette, view.selectedRow(palette)};
}

void takeRow(const EditingState& state, ScriptEntry& entry, const PaletteChoice& choice) {
    takeCommand(slotFields(entry, Slot::Entry), choice,
                state.luCatalogues.of(state.currentHostType));
}

bool hasDialog(const ScriptEntry& entry) {
    return editSource(entry).kind == EditSource::Kind::Dialog;
}

std::optional<ScriptEntry> makeScriptEvent(EditingView& view) {
    const PaletteChoice choice = selectedIn(view, Palette::ScriptEvents);
    if (choice.row < 0) return std::nullopt;
    ScriptEntry entry = newCommand(commandOf(choice));
    if (hasDialog(entry) && !view.editParameters(entry)) return std::nullopt;
    return entry;
}

std::optional<ScriptEntry> makeLuFunction(const EditingState& state, const EditingView& view) {
    const PaletteChoice choice = selectedIn(view, Palette::LuFunctions);
    if (choice.row < 0) return std::nullopt;
    ScriptEntry entry;
    takeRow(state, entry, choice);
    return entry;
}

std::optional<ScriptEntry> makeMenuCommand(EditingState& state, EditingView& view) {
    const PaletteChoice choice = selectedIn(view, Palette::MenuCommands);
    if (choice.row < 0) return std::nullopt;
    ScriptEntry entry;
    takeRow(state, entry, choice);
    if (refused(state, view, entry)) return std::nullopt;
    if (!editMenuParameters(state, view, entry)) return std::nullopt;
    return entry;
}

// The row that is to take an entry's place; none after telling where to select one.
PaletteChoice replacing(EditingView& view, Palette palette) {
    const PaletteChoice choice = selectedIn(view, palette);
    if (choice.row < 0) view.askForRow(palette);
    return choice;
}

bool replaceLuFunction(const EditingState& state, EditingView& view, ScriptEntry& entry) {
    const PaletteChoice choice = replacing(view, Palette::LuFunctions);
    if (choice.row < 0) return false;
    takeRow(state, entry, choice);
    return true;
}

bool replaceMenuCommand(EditingState& state, EditingView& view, ScriptEntry& entry) {
    const PaletteChoice choice = replacing(view, Palette::MenuCommands);
    if (choice.row < 0) return false;
    takeRow(state, entry, choice);
    if (refused(state, view, entry)) return false;
    if (isFileTransfer(entry.commandId)) {
        entry.transferSettings = defaultTransferSettings();
        state.workingTransfer.settings = entry.transferSettings;
    }
    return editMenuParameters(state, view, entry);
}

bool replaceScriptEvent(const EditingState& state, EditingView& view, ScriptEntry& entry) {
    const PaletteChoice choice = replacing(view, Palette::ScriptEvents);
    if (choice.row < 0 || commandOf(choice) == entry.code) return false;
    takeRow(state, entry, choice);
    return !hasDialog(entry) || view.editParameters(entry);
}

bool editInDialog(EditingState& state, EditingView& view, ScriptEntry& entry) {
    if (entry.code != CommandCode::MenuCommand) return view.editParameters(entry);
    if (isFileTransfer(entry.commandId)) state.workingTransfer.settings = entry.transferSettings;
    return editMenuParameters(state, view, entry);
}

bool replaceFrom(Palette palette, EditingState& state, EditingView& view, ScriptEntry& entry) {
    switch (palette) {
        case Palette::ScriptEvents: return replaceScriptEvent(state, view, entry);
        case Palette::LuFunctions: return replaceLuFunction(state, view, entry);
        case Palette::MenuCommands: return replaceMenuCommand(state, view, entry);
    }
    return false;
}

bool editWorkingCopy(EditingState& state, EditingView& view, ScriptEntry& entry) {
    const EditSource source = editSource(entry);
    switch (source.kind) {
        case EditSource::Kind::Dialog: return editInDialog(state, view, entry);
        case EditSource::Kind::Row: return replaceFrom(source.palette, state, view, entry);
        case EditSource::Kind::None: break;
    }
    return false;
}

// Set as long as it lives, whatever way out is taken.
class EditingFlag {
  public:
    explicit EditingFlag(EditingState& state) : state_(state) { state_.editing = true; }
    ~EditingFlag() { state_.editing = false; }
    EditingFlag(const EditingFlag&) = delete;
    EditingFlag& operator=(const EditingFlag&) = delete;

  private:
    EditingState& state_;
};

void copySelected(EditingState& state, const std::vector<std::size_t>& selected) {
    state.entryClipboard.clear();
    state.entryClipboard.reserve(selected.size());
    for (const std::size_t index : selected) {
        state.entryClipboard.push_back(state.script.entries[index]);
    }
}

// The position goes to the entry that followed the last removed one, or to the new last entry.
void removeSelected(EditingState& state, EditingView& view,
                    const std::vector<std::size_t>& selected) {
    const std::size_t follower = selected.back() + 1 - selected.size();
    removeEntries(state.script, selected);
    const std::size_t count = state.script.entryCount();
    if (count == 0) return show(state, view, {});
    showOne(state, view, std::min(follower, count - 1));
}

// Inserts copies at `at` and selects as many entries from there as were offered, so that the
// entries behind a paste that the limit cut short are selected too.
std::size_t insertCopies(EditingState& state, EditingView& view, std::size_t at,
                         std::span<const EntryHandle> copies) {
    const std::size_t inserted = insertEntries(state.script, at, copies);
    if (inserted == 0) return 0;
    const std::size_t reached = std::min(copies.size(), state.script.entryCount() - at);
    show(state, view, {indexRange(at, reached), static_cast<int>(at + inserted - 1)});
    return inserted;
}

std::optional<std::size_t> pastePoint(const EditingState& state, const EditingView& view) {
    if (state.script.entryCount() == 0) return 0;
    if (const int focused = view.focusedEntry(); focused >= 0) {
        return static_cast<std::size_t>(focused) + 1;
    }
    const auto selected = view.selectedEntries();
    if (selected.empty()) return std::nullopt;
    return selected.front() + 1;
}

}  // namespace

EditSource editSource(const ScriptEntry& entry) {
    using enum EditSource::Kind;
    switch (entry.code) {
        case CommandCode::None: return {None};
        case CommandCode::LuFunction: return {Row, Palette::LuFunctions};
        case CommandCode::MenuCommand:
            if (menuCommandTakesParameters(entry.commandId)) return {Dialog};
            return {Row, Palette::MenuCommands};
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: return {Row, Palette::ScriptEvents};
        case CommandCode::Comment:
        case CommandCode::Goto:
        case CommandCode::Input:
        case CommandCode::IfInputIs:
        case CommandCode::Label:
        case CommandCode::Message:
        case CommandCode::Run:
        case CommandCode::SetCursor:
        case CommandCode::Type:
        case CommandCode::Wait:
        case CommandCode::WaitFor:
        case CommandCode::WaitReady:
        case CommandCode::WaitUntil:
        case CommandCode::WatchFor:
        case CommandCode::ExpressLogon:
        case CommandCode::Copy:
        case CommandCode::Paste: return {Dialog};
    }
    return {None};
}

EditSource editSource(const EntryHandle& entry, const HiddenTextCipher& cipher) {
    if (entry.code() == CommandCode::MenuCommand) return editSource(unpackEntry(entry, cipher));
    ScriptEntry bare;
    bare.code = entry.code();
    return editSource(bare);
}

std::size_t insertionPoint(EditingState& state, const EditingView& view) {
    const bool dropped = std::exchange(state.dropPending, false);
    const std::size_t count = state.script.entryCount();
    if (dropped) {
        return static_cast<std::size_t>(std::clamp(state.currentIndex, 0, static_cast<int>(count)));
    }
    return pastePoint(state, view).value_or(count);
}

bool insertScriptEvent(EditingState& state, EditingView& view) {
    return insertMade(state, view, [&] { return makeScriptEvent(view); });
}

bool insertLuFunction(EditingState& state, EditingView& view) {
    return insertMade(state, view, [&] { return makeLuFunction(state, view); });
}

bool insertMenuCommand(EditingState& state, EditingView& view) {
    return insertMade(state, view, [&] { return makeMenuCommand(state, view); });
}

bool editCurrentEntry(EditingState& state, EditingView& view) {
    if (state.script.entryCount() == 0) return false;
    state.currentIndex = view.focusedEntry();
    if (state.currentIndex < 0) return false;
    const auto index = static_cast<std::size_t>(state.currentIndex);
    const EditingFlag editing(state);
    ScriptEntry entry = unpackEntry(state.script.entries[index], state.cipher);
    if (!editWorkingCopy(state, view, entry)) return false;
    auto stored = store(state, view, entry);
    if (!stored) return false;
    replaceEntry(state.script, index, std::move(*stored));
    showOne(state, view, index);
    return true;
}

bool deleteEntries(EditingState& state, EditingView& view) {
    const auto selected = view.selectedEntries();
    if (selected.empty() || !view.confirmDelete(selected.size())) return false;
    removeSelected(state, view, selected);
    return true;
}

bool cutEntries(EditingState& state, EditingView& view) {
    const auto selected = view.selectedEntries();
    if (selected.empty()) return false;
    copySelected(state, selected);
    removeSelected(state, view, selected);
    return true;
}

void copyEntries(EditingState& state, const EditingView& view) {
    const auto selected = view.selectedEntries();
    if (!selected.empty()) copySelected(state, selected);
}

bool pasteEntries(EditingState& state, EditingView& view) {
    const auto at = pastePoint(state, view);
    return at && insertCopies(state, view, *at, state.entryClipboard) > 0;
}

bool duplicateEntries(EditingState& state, EditingView& view) {
    const std::vector<std::size_t> selected = view.selectedEntries();
    if (selected.empty()) return false;
    std::vector<EntryHandle> copies;
    std::ranges::transform(selected, std::back_inserter(copies),
                           [&](std::size_t entry) { return state.script.entries[entry]; });
    return insertCopies(state, view, selected.back() + 1, copies) > 0;
}

std::size_t insertScript(EditingState& state, EditingView& view,
                         std::span<const EntryHandle> entries) {
    return insertCopies(state, view, insertionPoint(state, view), entries);
}

}  // namespace quendra
