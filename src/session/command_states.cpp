#include "session/command_states.h"

#include "session/commands.h"
#include "session/document.h"

namespace quendra {

namespace {

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

// The text with a place for the item, or the plain one when there is no item.
std::string itemText(StringId id, const std::optional<std::string>& item, StringId plainId,
                     LanguageLibrary& language) {
    return item ? libraryText(language, id, {*item}) : libraryText(language, plainId);
}

}  // namespace

bool isCommandEnabled(int id, const CommandFacts& facts) {
    switch (id) {
        case command::save:
        case command::saveAs:
        case command::find: return facts.entryCount > 0;
        case command::cut:
        case command::copy:
        case command::copyAsText:
        case command::deleteEntries: return facts.selectedCount > 0;
        case command::paste: return facts.clipboardCount > 0;
        case command::insertScriptEvent: return facts.selectedEvent.has_value();
        case command::insertLuFunction: return facts.selectedLuFunction.has_value();
        case command::insertMenuCommand: return facts.selectedMenuCommand.has_value();
        case command::editEntry: return canEdit(facts);
        case command::undo: return facts.undoStep.has_value();
        case command::redo: return facts.redoStep.has_value();
        default: return true;
    }
}

std::string commandToolTip(int id, const CommandFacts& facts, LanguageLibrary& language) {
    const StringId plain = commandInfo(id).toolTipId;
    switch (id) {
        case command::insertScriptEvent:
            return itemText(paletteInfo(Palette::ScriptEvents).insertTextId, facts.selectedEvent,
                            plain, language);
        case command::insertLuFunction:
            return itemText(paletteInfo(Palette::LuFunctions).insertTextId,
                            facts.selectedLuFunction, plain, language);
        case command::insertMenuCommand:
            return itemText(paletteInfo(Palette::MenuCommands).insertTextId,
                            facts.selectedMenuCommand, plain, language);
        case command::editEntry:
            if (facts.editSource == EditSource::None) break;
            return libraryText(language, facts.editSource == EditSource::Dialog ? 13705 : 13704,
                               {facts.focusedLine});
        case command::deleteEntries:
            if (facts.selectedCount == 0) break;
            return deleteText(language, facts.selectedCount);
        case command::undo: return itemText(15306, facts.undoStep, plain, language);
        case command::redo: return itemText(15308, facts.redoStep, plain, language);
        default: break;
    }
    return libraryText(language, plain);
}

std::optional<std::string> commandMenuText(int id, const CommandFacts& facts,
                                           LanguageLibrary& language) {
    const StringId plain = commandInfo(id).menuTextId;
    // A menu takes an "&" in a step's name as the mark of a mnemonic.
    const auto shown = [](std::optional<std::string> step) {
        for (std::size_t at = 0; step && (at = step->find('&', at)) != step->npos; at += 2) {
            step->insert(at, 1, '&');
        }
        return step;
    };
    switch (id) {
        case command::undo: return itemText(15302, shown(facts.undoStep), plain, language);
        case command::redo: return itemText(15304, shown(facts.redoStep), plain, language);
        default: return std::nullopt;
    }
}

std::string deleteText(LanguageLibrary& language, std::size_t count) {
    return libraryText(language, 15392,
                       {libraryText(language, 12159), entryCountText(language, count)});
}

}  // namespace quendra
