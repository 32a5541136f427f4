#include "app/script_editor.h"

#include "analysis/script_changes.h"
#include "app/insert_panel.h"
#include "app/main_window.h"
#include "scriptfile/entry_codec.h"
#include "session/command_rules.h"
#include "session/document.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/file_dialogs.h"
#include "widgets/message_box.h"
#include "widgets/ui_text.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

constexpr bool (*insertOperations[])(EditingState&, EditingView&) = {
    insertScriptEvent, insertLuFunction, insertMenuCommand};

StringId refusalText(EditRefusal refusal) {
    switch (refusal) {
        case EditRefusal::MenuCommandNotInVt: return textid::refusedMenuCommand;
        case EditRefusal::HiddenTextTooLong: return textid::hiddenTextOfEntryTooLong;
        case EditRefusal::CannotEncipher: return textid::hiddenTextNeedsKey;
    }
    return 0;
}

}  // namespace

ScriptEditor::ScriptEditor(ApplicationState& state, MainWindow& window, EditParameters dialog)
    : state_(state), window_(window), dialog_(std::move(dialog)) {
    connect(&window_.pane(), &EditorPane::entriesAboutToMove, this,
            [this] { beforeMove_ = currentView(); });
    connect(&window_.pane(), &EditorPane::entriesMoved, this, &ScriptEditor::recordMove);
}

void ScriptEditor::undo() {
    takeStep(&UndoHistory::undo);
}

void ScriptEditor::redo() {
    takeStep(&UndoHistory::redo);
}

void ScriptEditor::cut() {
    removeSelected(textid::cutStep, quendra::cutEntries);
}

void ScriptEditor::deleteSelected() {
    removeSelected(textid::deleteStep, quendra::deleteEntries);
}

void ScriptEditor::editEntry() {
    change([this] { return quendra::editCurrentEntry(state_, *this); },
           [this] { return libraryText(state_.language, textid::editStep); });
}

void ScriptEditor::applyFix(const QuickFix& fix) {
    bool isDone = false;
    change([&] { return isDone = applyQuickFix(state_, *this, fix); },
           [&] { return quickFixName(fix, state_.language); });
    // The secret is out of sight, and no more than that.
    if (isDone && fix.kind == QuickFix::Kind::HidePassword && state_.cipher.onlyObscures())
        window_.showNote(libraryText(state_.language, textid::checkHiddenWithoutKey));
}

void ScriptEditor::apply(const ScriptChanges& changes, const std::string& stepName) {
    change(
        [&] {
            const EntrySelection selection = currentView().selection;
            applyChanges(state_.script, changes);
            state_.currentIndex = selection.focused;
            showScript(selection);
            return !changes.steps.empty();
        },
        [&] { return stepName; });
}

void ScriptEditor::change(const std::function<bool()>& operation,
                          const std::function<std::string()>& name) {
    const ScriptView before = currentView();
    if (!operation()) return;
    state_.history.record(before, currentView(), name());
    window_.scriptChanged();
}

void ScriptEditor::insertFrom(Palette palette) {
    const auto operation = insertOperations[static_cast<std::size_t>(palette)];
    const std::size_t before = state_.script.entryCount();
    change([&] { return operation(state_, *this); },
           [&] {
               const int row = selectedRow(palette);
               return libraryText(state_.language, paletteInfo(palette).insertTextId,
                                  {window_.pane().paletteText(palette, row).toStdString()});
           });
    if (state_.script.entryCount() > before)
        window_.insertPanel().noteInserted({palette, selectedRow(palette)});
}

void ScriptEditor::copy() {
    quendra::copyEntries(state_, *this);
    window_.updateCommandStates();
}

void ScriptEditor::paste() {
    const std::size_t before = state_.script.entryCount();
    const auto pasted = [&] { return state_.script.entryCount() - before; };
    change([this] { return quendra::pasteEntries(state_, *this); },
           [&] { return countedName(textid::pasteStep, pasted()); });
    if (pasted() == 0) return;
    if (const auto note = cutNote(pasted(), state_.entryClipboard.size())) window_.showNote(*note);
}

void ScriptEditor::duplicate() {
    const std::size_t offered = selectedEntries().size();
    const std::size_t before = state_.script.entryCount();
    const auto inserted = [&] { return state_.script.entryCount() - before; };
    change([this] { return duplicateEntries(state_, *this); },
           [&] { return countedName(textid::duplicateStep, inserted()); });
    if (const auto note = cutNote(inserted(), offered)) window_.showNote(*note);
}

void ScriptEditor::copyAsText() {
    std::string text;
    EntryUnpacker unpacker(state_.cipher);
    for (const std::size_t index : selectedEntries()) {
        const ScriptEntry& entry = unpacker.unpack(state_.script.entries[index]);
        text += escapeControlCharacters(formatEntryLine(entry, state_.displayNames())) + '\n';
    }
    if (!text.empty()) QGuiApplication::clipboard()->setText(qtText(text));
}

void ScriptEditor::insertOtherScript() {
    const auto path = chooseFile(
        &window_, {FileDialogMode::Open, libraryText(state_.language, textid::insertScriptToolTip),
                   "Quendra Script Files(*.qds)", "qds", state_.settings.scriptsDir});
    if (!path) return;
    const OtherScript other = readOtherScript(state_, *path);
    if (other.refusal) return showMessage(&window_, *other.refusal);
    std::size_t inserted = 0;
    change(
        [&] {
            inserted = quendra::insertScript(state_, *this, other.script.entries);
            return inserted > 0;
        },
        [this] { return libraryText(state_.language, textid::insertScriptToolTip); });
    window_.showNote(insertedNote(other, inserted));
}

std::string ScriptEditor::insertedNote(const OtherScript& other, std::size_t inserted) const {
    std::string note = other.note;
    const auto add = [&note](const std::string& text) {
        note += (note.empty() ? "" : "; ") + text;
    };
    if (const auto cut = cutNote(inserted, other.script.entryCount())) add(*cut);
    if (other.hostType != state_.currentHostType) {
        add(libraryText(state_.language, textid::insertedScriptOfOtherMode,
                        {std::string(hostTypeInfo(other.hostType).name)}));
    }
    return note;
}

std::optional<std::string> ScriptEditor::cutNote(std::size_t inserted, std::size_t offered) const {
    if (inserted >= offered) return std::nullopt;
    return libraryText(state_.language, textid::scriptInsertedUntilFull,
                       {std::to_string(inserted), std::to_string(offered)});
}

void ScriptEditor::removeSelected(StringId name, bool (*operation)(EditingState&, EditingView&)) {
    const std::size_t before = state_.script.entryCount();
    change([&] { return operation(state_, *this); },
           [&] { return countedName(name, before - state_.script.entryCount()); });
}

void ScriptEditor::takeStep(std::optional<EntrySelection> (UndoHistory::*step)(Script&)) {
    const auto selection = (state_.history.*step)(state_.script);
    if (!selection) return;
    state_.currentIndex = selection->focused;
    showScript(*selection);
    window_.scriptChanged();
}

void ScriptEditor::recordMove(bool goesOn) {
    const ScriptView after = currentView();
    // A move past entries that are just the same was no step that could go on.
    moveIsStep_ =
        goesOn && moveIsStep_
            ? state_.history.extend(beforeMove_, after)
            : state_.history.record(beforeMove_, after,
                                    countedName(textid::moveStep, after.selection.entries.size()));
    beforeMove_ = {};
    window_.scriptChanged();
}

void ScriptEditor::replaceScript(Script script, std::size_t entry, StringId stepName) {
    change(
        [&] {
            const std::size_t count = script.entryCount();
            state_.script = std::move(script);
            state_.currentIndex = static_cast<int>(std::min(entry + 1, count)) - 1;
            EntrySelection selection{{}, state_.currentIndex};
            if (count > 0) selection.entries.push_back(std::min(entry, count - 1));
            showScript(selection);
            return true;
        },
        [&] { return libraryText(state_.language, stepName); });
}

ScriptView ScriptEditor::currentView() const {
    return {state_.script, {selectedEntries(), focusedEntry()}};
}

std::string ScriptEditor::countedName(StringId name, std::size_t count) const {
    LanguageLibrary& language = state_.language;
    // A step's name stands in a menu: in English with capitals, unlike the count in a sentence.
    const std::string entries =
        count == 1 ? libraryText(language, textid::oneEntryInStep)
                   : libraryText(language, textid::entriesInStep, {std::to_string(count)});
    return libraryText(language, name, {entries});
}

std::vector<std::size_t> ScriptEditor::selectedEntries() const {
    return window_.pane().selectedEntries();
}

int ScriptEditor::focusedEntry() const {
    return window_.pane().focusedEntry();
}

int ScriptEditor::selectedRow(Palette palette) const {
    return window_.pane().selectedRow(palette);
}

void ScriptEditor::showScript(const EntrySelection& selection) {
    window_.pane().showScript(selection);
}

bool ScriptEditor::editParameters(ScriptEntry& entry) {
    return dialog_ && dialog_({state_, &window_}, {entry});
}

bool ScriptEditor::confirmDelete(std::size_t count) {
    const Message question{deleteText(state_.language, count) + "?",
                           libraryText(state_.language, textid::confirmDeleteTitle),
                           MessageIcon::Question, MessageButtons::YesNo, false};
    return askMessage(&window_, question) == MessageAnswer::Yes;
}

void ScriptEditor::refuse(EditRefusal refusal, const ScriptEntry& entry) {
    std::string text = libraryText(state_.language, refusalText(refusal));
    if (refusal != EditRefusal::MenuCommandNotInVt) {
        text += "\n\n" + escapeControlCharacters(formatEntryLine(entry, state_.displayNames()));
    }
    const bool cipherFails = refusal == EditRefusal::CannotEncipher;
    showMessage(&window_, {text, libraryText(state_.language, textid::refusedMenuCommandTitle),
                           cipherFails ? MessageIcon::Stop : MessageIcon::Information,
                           MessageButtons::Ok, false});
}

void ScriptEditor::askForRow(Palette palette) {
    window_.askForRow(palette);
}

}  // namespace quendra
