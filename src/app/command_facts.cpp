#include "app/command_facts.h"

#include "analysis/script_outline.h"
#include "scriptfile/entry_codec.h"

#include <algorithm>

namespace quendra {

namespace {

std::optional<std::string> selectedText(const EditorPane& pane, Palette palette) {
    const int row = pane.selectedRow(palette);
    if (row < 0) return std::nullopt;
    return pane.paletteText(palette, row).toStdString();
}

}  // namespace

CommandFacts commandFacts(const ApplicationState& state, const EditorPane& pane) {
    CommandFacts facts;
    facts.hostType = state.currentHostType;
    facts.entryCount = state.script.entryCount();
    facts.selectedCount = pane.selectedEntries().size();
    facts.clipboardCount = state.entryClipboard.size();
    const int focused = pane.focusedEntry();
    if (focused >= 0 && static_cast<std::size_t>(focused) < facts.entryCount) {
        const auto index = static_cast<std::size_t>(focused);
        facts.editSource = editSource(state.script.entries[index], state.cipher);
        facts.focusedLine = pane.entryText(focused).toStdString();
        const ScriptEntry entry = unpackSealedEntry(state.script.entries[index]);
        const auto names = labelNamesOf(entry);
        facts.namesLabel = !names.empty();
        facts.hasGoto =
            std::ranges::find(names, CommandCode::Goto, &LabelName::code) != names.end();
    }
    facts.canGoBack = state.jumps.canGoBack();
    if (state.history.canUndo()) facts.undoStep = state.history.undoName();
    if (state.history.canRedo()) facts.redoStep = state.history.redoName();
    facts.hasFile = !state.document.fileName.empty();
    facts.hasSavedForm = !state.document.fileName.empty() || state.document.modified;
    std::ranges::transform(allPalettes, facts.selectedRows.begin(),
                           [&pane](Palette palette) { return selectedText(pane, palette); });
    return facts;
}

std::optional<CommandCode> selectedCommand(const ApplicationState& state, const EditorPane& pane) {
    const std::optional<Palette> palette = pane.focusedPalette();
    if (!palette) {
        const int entry = pane.focusedEntry();
        if (entry < 0 || pane.selectedEntries().empty()) return std::nullopt;
        return state.script.entries[static_cast<std::size_t>(entry)].code();
    }
    const int row = pane.selectedRow(*palette);
    if (row < 0) return std::nullopt;
    return commandOf({*palette, row});
}

}  // namespace quendra
