#include "app/command_states.h"

#include "app/commands.h"
#include "app/document.h"
#include "app/ui_text.h"
#include "scriptfile/entry_codec.h"

namespace quendra {

namespace {

std::optional<std::string> selectedText(const EditorPane& pane, Palette palette) {
    const int row = pane.selectedRow(palette);
    if (row < 0) return std::nullopt;
    return pane.paletteText(palette, row).toStdString();
}

bool canEdit(const CommandFacts& facts) {
    switch (facts.editSource) {
        case EditSource::None: return false;
        case EditSource::Dialog: return true;
        case EditSource::ScriptEvents: return facts.selectedEvent.has_value();
        case EditSource::LuFunctions: return facts.selectedLuFunction.has_value();
        case EditSource::MenuCommands: return facts.selectedMenuCommand.has_value();
    }
    return false;
}

std::string insertText(StringId id, const std::optional<std::string>& item, StringId plainId,
                       LanguageLibrary& language) {
    return item ? libraryText(language, id, {*item}) : libraryText(language, plainId);
}

}  // namespace

EditSource editSource(const EntryHandle& entry, const HiddenTextCipher& cipher) {
    switch (entry.code()) {
        case CommandCode::LuFunction: return EditSource::LuFunctions;
        case CommandCode::MenuCommand:
            return menuCommandTakesParameters(unpackEntry(entry, cipher).commandId)
                       ? EditSource::Dialog
                       : EditSource::MenuCommands;
        case CommandCode::Beep:
        case CommandCode::ClearWatch:
        case CommandCode::Return: return EditSource::ScriptEvents;
        default: return EditSource::Dialog;
    }
}

CommandFacts commandFacts(const ApplicationState& state, const EditorPane& pane) {
    CommandFacts facts;
    facts.entryCount = state.script.entryCount();
    facts.selectedCount = pane.selectedEntries().size();
    facts.clipboardCount = state.entryClipboard.size();
    const int focused = pane.focusedEntry();
    if (focused >= 0 && static_cast<std::size_t>(focused) < facts.entryCount) {
        const auto index = static_cast<std::size_t>(focused);
        facts.editSource = editSource(state.script.entries[index], state.cipher);
        facts.focusedLine = pane.entryText(focused).toStdString();
    }
    facts.selectedEvent = selectedText(pane, Palette::ScriptEvents);
    facts.selectedLuFunction = selectedText(pane, Palette::LuFunctions);
    facts.selectedMenuCommand = selectedText(pane, Palette::MenuCommands);
    return facts;
}

bool isCommandEnabled(int id, const CommandFacts& facts) {
    switch (id) {
        case command::save:
        case command::saveAs: return facts.entryCount > 0;
        case command::cut:
        case command::copy:
        case command::deleteEntries: return facts.selectedCount > 0;
        case command::paste: return facts.clipboardCount > 0;
        case command::insertScriptEvent: return facts.selectedEvent.has_value();
        case command::insertLuFunction: return facts.selectedLuFunction.has_value();
        case command::insertMenuCommand: return facts.selectedMenuCommand.has_value();
        case command::editEntry: return canEdit(facts);
        default: return true;
    }
}

std::string commandToolTip(int id, const CommandFacts& facts, LanguageLibrary& language) {
    const StringId plain = commandInfo(id).toolTipId;
    switch (id) {
        case command::insertScriptEvent:
            return insertText(13701, facts.selectedEvent, plain, language);
        case command::insertLuFunction:
            return insertText(13702, facts.selectedLuFunction, plain, language);
        case command::insertMenuCommand:
            return insertText(13703, facts.selectedMenuCommand, plain, language);
        case command::editEntry:
            if (facts.editSource == EditSource::None) break;
            return libraryText(language, facts.editSource == EditSource::Dialog ? 13705 : 13704,
                               {facts.focusedLine});
        case command::deleteEntries:
            if (facts.selectedCount == 0) break;
            return deleteText(language, facts.selectedCount);
        default: break;
    }
    return libraryText(language, plain);
}

std::string deleteText(LanguageLibrary& language, std::size_t count) {
    return formatText("%s %s", {libraryText(language, 12159), entryCountText(language, count)});
}

}  // namespace quendra
