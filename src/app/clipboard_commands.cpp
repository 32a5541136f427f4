#include "app/clipboard_commands.h"

#include "app/command_states.h"
#include "app/main_window.h"
#include "app/ui_text.h"

#include <algorithm>
#include <numeric>

namespace quendra {

namespace {

void copySelected(ApplicationState& state, const std::vector<std::size_t>& selected) {
    state.entryClipboard.clear();
    for (const std::size_t index : selected) {
        state.entryClipboard.push_back(state.script.entries[index]);
    }
}

// The position goes to the entry that followed the last removed one, or to the new last entry.
void removeSelected(ApplicationState& state, MainWindow& window,
                    const std::vector<std::size_t>& selected) {
    const auto follower = static_cast<int>(selected.back() + 1 - selected.size());
    removeEntries(state.script, selected);
    state.currentIndex = std::min(follower, static_cast<int>(state.script.entryCount()) - 1);
    window.pane().rebuildScriptList();
    window.scriptChanged();
}

void cutEntries(ApplicationState& state, MainWindow& window) {
    const auto selected = window.pane().selectedEntries();
    if (selected.empty()) return;
    copySelected(state, selected);
    removeSelected(state, window, selected);
}

void copyEntries(ApplicationState& state, MainWindow& window) {
    const auto selected = window.pane().selectedEntries();
    if (selected.empty()) return;
    copySelected(state, selected);
    window.updateCommandStates();
}

// The entry behind which the clipboard goes; -1 for the start of an empty script, none when a
// filled script has no place.
std::optional<int> pastePoint(const ApplicationState& state, const EditorPane& pane) {
    if (state.script.entryCount() == 0) return -1;
    if (const int focused = pane.focusedEntry(); focused >= 0) return focused;
    const auto selected = pane.selectedEntries();
    if (selected.empty()) return std::nullopt;
    return static_cast<int>(selected.front());
}

void pasteEntries(ApplicationState& state, MainWindow& window) {
    const auto point = pastePoint(state, window.pane());
    if (state.entryClipboard.empty() || !point) return;
    const auto first = static_cast<std::size_t>(*point + 1);
    const std::size_t inserted = insertEntries(state.script, first, state.entryClipboard);
    state.currentIndex = *point + static_cast<int>(inserted);
    window.pane().rebuildScriptList();
    std::vector<std::size_t> pasted(
        std::min(state.entryClipboard.size(), state.script.entryCount() - first));
    std::iota(pasted.begin(), pasted.end(), first);
    window.pane().selectEntries(pasted, state.currentIndex);
    window.scriptChanged();
}

void deleteEntries(ApplicationState& state, MainWindow& window) {
    const auto selected = window.pane().selectedEntries();
    if (selected.empty()) return;
    const Message question{deleteText(state.language, selected.size()) + "?",
                           libraryText(state.language, 13224), MessageIcon::Question,
                           MessageButtons::YesNo, false};
    if (askMessage(&window, question) != MessageAnswer::Yes) return;
    removeSelected(state, window, selected);
}

}  // namespace

void addClipboardCommands(EditingCommands& commands, ApplicationState& state, MainWindow& window) {
    commands.cutEntries = [&] { cutEntries(state, window); };
    commands.copyEntries = [&] { copyEntries(state, window); };
    commands.pasteEntries = [&] { pasteEntries(state, window); };
    commands.deleteEntries = [&] { deleteEntries(state, window); };
}

}  // namespace quendra
