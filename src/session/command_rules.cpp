#include "session/command_rules.h"

#include "session/document.h"
#include "text/text_ids.h"

namespace quendra {

namespace {

// The text with a place for the item.
CommandText itemText(StringId id, const std::optional<std::string>& item,
                     LanguageLibrary& language) {
    if (!item) return std::nullopt;
    return libraryText(language, id, {*item});
}

// A menu takes an "&" in a step's name as the mark of a mnemonic.
std::optional<std::string> forMenu(std::optional<std::string> step) {
    for (std::size_t at = 0; step && (at = step->find('&', at)) != step->npos; at += 2) {
        step->insert(at, 1, '&');
    }
    return step;
}

}  // namespace

bool hasEntries(const CommandFacts& facts) {
    return facts.entryCount > 0;
}

bool hasSelection(const CommandFacts& facts) {
    return facts.selectedCount > 0;
}

bool hasClipboard(const CommandFacts& facts) {
    return facts.clipboardCount > 0;
}

bool hasEvent(const CommandFacts& facts) {
    return facts.selectedEvent.has_value();
}

bool hasLuFunction(const CommandFacts& facts) {
    return facts.selectedLuFunction.has_value();
}

bool hasMenuCommand(const CommandFacts& facts) {
    return facts.selectedMenuCommand.has_value();
}

bool canEdit(const CommandFacts& facts) {
    switch (facts.editSource) {
        case EditSource::None: return false;
        case EditSource::Dialog: return true;
        case EditSource::ScriptEvents: return hasEvent(facts);
        case EditSource::LuFunctions: return hasLuFunction(facts);
        case EditSource::MenuCommands: return hasMenuCommand(facts);
    }
    return false;
}

bool canUndo(const CommandFacts& facts) {
    return facts.undoStep.has_value();
}

bool canRedo(const CommandFacts& facts) {
    return facts.redoStep.has_value();
}

CommandText insertEventTip(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(paletteInfo(Palette::ScriptEvents).insertTextId, facts.selectedEvent, language);
}

CommandText insertLuFunctionTip(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(paletteInfo(Palette::LuFunctions).insertTextId, facts.selectedLuFunction,
                    language);
}

CommandText insertMenuCommandTip(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(paletteInfo(Palette::MenuCommands).insertTextId, facts.selectedMenuCommand,
                    language);
}

CommandText editTip(const CommandFacts& facts, LanguageLibrary& language) {
    if (facts.editSource == EditSource::None) return std::nullopt;
    return itemText(
        facts.editSource == EditSource::Dialog ? textid::editNamedEntry : textid::replaceNamedEntry,
        facts.focusedLine, language);
}

CommandText deleteTip(const CommandFacts& facts, LanguageLibrary& language) {
    if (!hasSelection(facts)) return std::nullopt;
    return deleteText(language, facts.selectedCount);
}

CommandText undoTip(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(textid::undoStepToolTip, facts.undoStep, language);
}

CommandText redoTip(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(textid::redoStepToolTip, facts.redoStep, language);
}

CommandText undoItem(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(textid::undoStepMenuText, forMenu(facts.undoStep), language);
}

CommandText redoItem(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(textid::redoStepMenuText, forMenu(facts.redoStep), language);
}

std::string deleteText(LanguageLibrary& language, std::size_t count) {
    return libraryText(language, textid::deleteVerbAndObject,
                       {libraryText(language, textid::luDelete), entryCountText(language, count)});
}

}  // namespace quendra
