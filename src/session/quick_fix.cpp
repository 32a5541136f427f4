#include "session/quick_fix.h"

#include "model/new_command.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"

#include <algorithm>
#include <utility>

namespace quendra {

namespace {

using enum QuickFix::Kind;

const std::string& labelAt(const Finding& finding, const ScriptOutline& outline) {
    const StepOutline& step = outline.steps[finding.place.step];
    return outline.labels[slotOutline(step, finding.place.slot).label].name;
}

QuickFixOffer offered(QuickFix fix) {
    return {std::move(fix), 0};
}

QuickFixOffer forMissingLabel(const Finding& finding, const ScriptOutline& outline,
                              const Script& script) {
    const std::string& name = labelAt(finding, outline);
    if (const LabelOutline* nearest = nearestLabel(outline, name))
        return offered({ChangeLabel, finding.place, nearest->name});
    if (script.isFull()) return {std::nullopt, textid::fixNeedsRoom};
    return offered({AddLabel, finding.place, name});
}

// Whether a Goto that leads nowhere has nearly this name.
bool mayBeMeant(const LabelOutline& label, const ScriptOutline& outline) {
    ScriptOutline alone;
    alone.labels.push_back(label);
    return std::ranges::any_of(outline.labels, [&](const LabelOutline& other) {
        return other.definitions.empty() && nearestLabel(alone, other.name) != nullptr;
    });
}

QuickFixOffer forUnusedLabel(const Finding& finding, const ScriptOutline& outline) {
    const std::string& name = labelAt(finding, outline);
    const auto label = std::ranges::find(outline.labels, name, &LabelOutline::name);
    if (finding.place.slot != Slot::Entry || mayBeMeant(*label, outline))
        return {std::nullopt, textid::fixNeedsDecision};
    return offered({RemoveLabel, finding.place, name});
}

bool storeChanged(EditingState& state, EditingView& view, const QuickFix& fix,
                  const ScriptEntry& entry) {
    PackResult packed = packEntry(entry, state.cipher);
    if (!packed.ok()) {
        view.refuse(packed.fault == WriteFault::HiddenTextTooLong ? EditRefusal::HiddenTextTooLong
                                                                  : EditRefusal::CannotEncipher,
                    entry);
        return false;
    }
    replaceEntry(state.script, fix.place.step, std::move(packed.entry));
    return true;
}

bool changeStep(EditingState& state, EditingView& view, const QuickFix& fix) {
    ScriptEntry entry = unpackEntry(state.script.entries[fix.place.step], state.cipher);
    Step& fields = slotFields(entry, fix.place.slot);
    if (fix.kind == ChangeLabel) {
        setText(fields, fix.label);
    } else {
        fields.hidden = 1;
    }
    return storeChanged(state, view, fix, entry);
}

bool addLabel(EditingState& state, const QuickFix& fix) {
    ScriptEntry label = newCommand(CommandCode::Label);
    setText(label, fix.label);
    const PackResult packed = packEntry(label, state.cipher);
    return packed.ok() &&
           insertEntries(state.script, state.script.entryCount(), {&packed.entry, 1}) == 1;
}

bool removeLabel(EditingState& state, const QuickFix& fix) {
    const std::size_t removed[] = {fix.place.step};
    removeEntries(state.script, removed);
    return true;
}

bool makeChange(EditingState& state, EditingView& view, const QuickFix& fix) {
    switch (fix.kind) {
        case AddLabel: return addLabel(state, fix);
        case RemoveLabel: return removeLabel(state, fix);
        case ChangeLabel:
        case HidePassword: break;
    }
    return changeStep(state, view, fix);
}

}  // namespace

QuickFixOffer quickFixFor(const Finding& finding, const ScriptOutline& outline,
                          const Script& script) {
    switch (finding.rule) {
        case Rule::LabelMissing: return forMissingLabel(finding, outline, script);
        case Rule::LabelUnused: return forUnusedLabel(finding, outline);
        case Rule::PasswordInClear:
            // That of a transfer's host file cannot be hidden.
            if (finding.text == textid::checkPasswordInClear)
                return offered({HidePassword, finding.place, {}});
            break;
        default: break;
    }
    return {std::nullopt, textid::fixNeedsDecision};
}

std::string quickFixName(const QuickFix& fix, LanguageLibrary& language) {
    constexpr std::size_t longestShown = 40;
    const std::string label =
        shortened(escapeControlCharacters(utf8FromWindows1252(fix.label)), longestShown);
    switch (fix.kind) {
        case ChangeLabel: return libraryText(language, textid::fixChangeLabel, {label});
        case AddLabel: return libraryText(language, textid::fixAddLabel, {label});
        case RemoveLabel: return libraryText(language, textid::fixRemoveLabel, {label});
        case HidePassword: break;
    }
    return language.loadText(textid::fixHidePassword);
}

bool applyQuickFix(EditingState& state, EditingView& view, const QuickFix& fix) {
    if (fix.place.step >= state.script.entryCount() || !makeChange(state, view, fix)) return false;
    const std::size_t count = state.script.entryCount();
    EntrySelection shown;
    if (count > 0) {
        const std::size_t step =
            fix.kind == AddLabel ? count - 1 : std::min(fix.place.step, count - 1);
        shown = {{step}, static_cast<int>(step)};
    }
    state.currentIndex = shown.focused;
    view.showScript(shown);
    return true;
}

}  // namespace quendra
