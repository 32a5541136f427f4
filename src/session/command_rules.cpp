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

bool canEdit(const CommandFacts& facts) {
    switch (facts.editSource.kind) {
        case EditSource::Kind::None: return false;
        case EditSource::Kind::Dialog: return true;
        case EditSource::Kind::Row: return facts.selectedRow(facts.editSource.palette).has_value();
    }
    return false;
}

bool namesLabel(const CommandFacts& facts) {
    return facts.namesLabel;
}

bool hasGoto(const CommandFacts& facts) {
    return facts.hasGoto;
}

bool canGoBack(const CommandFacts& facts) {
    return facts.canGoBack;
}

bool canUndo(const CommandFacts& facts) {
    return facts.undoStep.has_value();
}

bool canRedo(const CommandFacts& facts) {
    return facts.redoStep.has_value();
}

bool hasQuickFix(const CommandFacts& facts) {
    return facts.quickFix.has_value();
}

bool showsProblems(const CommandFacts& facts) {
    return facts.problemsAreShown;
}

bool showsGutter(const CommandFacts& facts) {
    return facts.gutterIsShown;
}

bool hasSavedForm(const CommandFacts& facts) {
    return facts.hasSavedForm;
}

bool hasFile(const CommandFacts& facts) {
    return facts.hasFile;
}
bool hasConflicts(const CommandFacts& facts) {
    return facts.hasConflicts;
}

CommandText insertTip(Palette palette, const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(paletteInfo(palette).insertTextId, facts.selectedRow(palette), language);
}

CommandText editTip(const CommandFacts& facts, LanguageLibrary& language) {
    const EditSource::Kind kind = facts.editSource.kind;
    if (kind == EditSource::Kind::None) return std::nullopt;
    return itemText(
        kind == EditSource::Kind::Dialog ? textid::editNamedEntry : textid::replaceNamedEntry,
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

CommandText quickFixTip(const CommandFacts& facts, LanguageLibrary& language) {
    if (facts.quickFix) return itemText(textid::quickFixStepToolTip, facts.quickFix, language);
    return facts.whyNoQuickFix.empty() ? CommandText() : facts.whyNoQuickFix;
}

CommandText quickFixItem(const CommandFacts& facts, LanguageLibrary& language) {
    return itemText(textid::quickFixStepMenuText, forMenu(facts.quickFix), language);
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
