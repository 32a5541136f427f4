#include "app/replacement.h"

#include "app/field_titles.h"
#include "scriptfile/entry_codec.h"
#include "text/text_ids.h"
#include "widgets/message_box.h"

#include <algorithm>

namespace quendra {

namespace {

/// More would make the box larger than the screen.
constexpr std::size_t mostListed = 12;

StringId reasonOf(ChangeFault fault) {
    switch (fault) {
        case ChangeFault::Empty: return textid::changeEmpty;
        case ChangeFault::TooLong: return textid::changeTooLong;
        case ChangeFault::CannotBeStored: return textid::changeCannotBeStored;
        case ChangeFault::OutOfRange: return textid::changeOutOfRange;
        case ChangeFault::None: break;
    }
    return textid::changeEmpty;
}

std::string describe(ApplicationState& state, const FieldChange& change) {
    const std::size_t step = change.place.step;
    const ScriptEntry entry = unpackSealedEntry(state.script.entries[step]);
    const QString field = fieldTitle(state.language, entry, change.place.slot, change.path);
    return libraryText(state.language, textid::changeRefused,
                       {std::to_string(step + 1), field.toStdString(),
                        libraryText(state.language, reasonOf(change.fault))});
}

std::string listOfRefused(ApplicationState& state, const ScriptChanges& changes) {
    std::string list;
    std::size_t listed = 0;
    for (const FieldChange& change : changes.fields) {
        if (change.fault == ChangeFault::None) continue;
        if (listed == mostListed) return list + "\n\u2026";
        list += (list.empty() ? "" : "\n") + describe(state, change);
        ++listed;
    }
    return list;
}

}  // namespace

std::size_t changedFields(const ScriptChanges& changes) {
    return static_cast<std::size_t>(
        std::ranges::count(changes.fields, ChangeFault::None, &FieldChange::fault));
}

bool agreedToChanges(ApplicationState& state, QWidget* window, const ScriptChanges& changes) {
    if (changes.canAllBeMade()) return !changes.fields.empty();
    const bool hasOthers = changedFields(changes) > 0;
    const StringId text = hasOthers ? textid::replaceOthersQuestion : textid::replaceRefused;
    const Message message = {libraryText(state.language, text, {listOfRefused(state, changes)}),
                             libraryText(state.language, textid::replaceToolTip),
                             hasOthers ? MessageIcon::Question : MessageIcon::Information,
                             hasOthers ? MessageButtons::YesNo : MessageButtons::Ok, hasOthers};
    return askMessage(window, message) == MessageAnswer::Yes;
}

}  // namespace quendra
