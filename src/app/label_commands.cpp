#include "app/label_commands.h"

#include "analysis/script_changes.h"
#include "analysis/script_outline.h"
#include "app/main_window.h"
#include "app/script_editor.h"
#include "dialogs/entry_list_dialog.h"
#include "dialogs/rename_label_dialog.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <QStringList>

#include <algorithm>
#include <set>

namespace quendra {

namespace {

/// Of a name in a message of one line.
constexpr std::size_t longestShown = 60;

std::string shownName(std::string_view windows1252) {
    return shortened(escapeControlCharacters(utf8FromWindows1252(windows1252)), longestShown);
}

std::string shownNames(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) {
        all += (all.empty() ? "" : ", ") + shownName(name);
    }
    return all;
}

const LabelOutline* labelOf(const ScriptOutline& outline, const std::string& name) {
    const auto label = std::ranges::find(outline.labels, name, &LabelOutline::name);
    return label == outline.labels.end() ? nullptr : &*label;
}

}  // namespace

std::vector<std::string> LabelCommands::names(bool jumpsOnly) const {
    const int focused = window_.pane().focusedEntry();
    if (focused < 0) return {};
    const ScriptEntry entry =
        unpackSealedEntry(state_.script.entries[static_cast<std::size_t>(focused)]);
    std::vector<std::string> names;
    for (const LabelName& label : labelNamesOf(entry)) {
        if (jumpsOnly && label.code != CommandCode::Goto) continue;
        std::string name(label.name);
        if (std::ranges::find(names, name) == names.end()) names.push_back(std::move(name));
    }
    return names;
}

QString LabelCommands::lineOf(std::size_t step) const {
    return QStringLiteral("%1   %2").arg(step + 1).arg(
        window_.pane().entryText(static_cast<int>(step)));
}

void LabelCommands::rename() {
    const auto names = this->names(false);
    if (names.empty()) return;
    const ScriptOutline outline = outlineOf(state_.script);
    const auto renaming = askForLabelName(state_.language, &window_, outline, names);
    if (!renaming) return;
    editor_.apply(renameLabel(state_.script, utf8FromWindows1252(renaming->before),
                              utf8FromWindows1252(renaming->after)),
                  libraryText(state_.language, textid::renameLabelToolTip));
}

void LabelCommands::goToLabel() {
    const auto names = this->names(true);
    const ScriptOutline outline = outlineOf(state_.script);
    std::vector<std::size_t> targets;
    QStringList lines;
    for (const std::string& name : names) {
        const LabelOutline* label = labelOf(outline, name);
        if (label == nullptr || label->definitions.empty()) continue;
        targets.push_back(label->definitions.front().step);
        lines << lineOf(targets.back());
    }
    if (targets.empty()) {
        if (!names.empty()) tellMissing(outline, names.front());
        return;
    }
    if (targets.size() == 1) return jump(targets.front());
    const QString title = qtText(libraryText(state_.language, textid::goToLabelToolTip));
    const auto chosen = chooseEntryLine(state_.language, &window_, title, lines, 0);
    if (chosen) jump(targets[static_cast<std::size_t>(*chosen)]);
}

void LabelCommands::tellMissing(const ScriptOutline& outline, const std::string& name) {
    std::string note = libraryText(state_.language, textid::checkLabelMissing, {shownName(name)});
    if (const LabelOutline* nearest = nearestLabel(outline, name)) {
        const std::size_t step = nearest->definitions.front().step;
        note += libraryText(state_.language, textid::checkNearestLabel,
                            {shownName(nearest->name), std::to_string(step + 1)});
    }
    window_.showNote(note);
}

void LabelCommands::findUses() {
    const auto names = this->names(false);
    if (names.empty()) return;
    const ScriptOutline outline = outlineOf(state_.script);
    std::set<std::size_t> steps;
    for (const std::string& name : names) {
        const LabelOutline* label = labelOf(outline, name);
        if (label == nullptr) continue;
        for (const StepPlace& place : label->uses) {
            steps.insert(place.step);
        }
    }
    if (steps.empty()) {
        return window_.showNote(
            libraryText(state_.language, textid::nothingUses, {shownNames(names)}));
    }
    const std::vector<std::size_t> uses(steps.begin(), steps.end());
    QStringList lines;
    for (const std::size_t step : uses) {
        lines << lineOf(step);
    }
    const auto focused = static_cast<std::size_t>(window_.pane().focusedEntry());
    const auto here = std::ranges::find(uses, focused);
    const auto current = here == uses.end() ? 0 : static_cast<int>(here - uses.begin());
    const QString title =
        qtText(libraryText(state_.language, textid::usesTitle, {shownNames(names)}));
    const auto chosen = chooseEntryLine(state_.language, &window_, title, lines, current);
    if (chosen) jump(uses[static_cast<std::size_t>(*chosen)]);
}

void LabelCommands::jump(std::size_t step) {
    const int focused = window_.pane().focusedEntry();
    if (focused == static_cast<int>(step)) return;
    if (focused >= 0) state_.jumps.leave(state_.script, static_cast<std::size_t>(focused));
    select(step);
}

void LabelCommands::goBack() {
    if (const auto step = state_.jumps.goBack(state_.script)) return select(*step);
    window_.updateCommandStates();
}

void LabelCommands::select(std::size_t step) {
    const std::size_t entries[] = {step};
    window_.pane().selectEntries(entries, static_cast<int>(step));
    window_.updateCommandStates();
}

}  // namespace quendra
