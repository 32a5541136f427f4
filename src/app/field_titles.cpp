#include "app/field_titles.h"

#include "dialogs/parameter_dialog.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

#include <algorithm>

namespace quendra {

namespace {

struct Title {
    std::string_view field;
    StringId text;
    /// The group in which a dialog has it, where the name alone would not do.
    StringId group = 0;
};

constexpr Title titles[] = {
    {"prompt", textid::inputPrompt},
    {"maxLength", textid::inputLength},
    {"compareText", textid::fieldSecondValue},
    {"searchRow", textid::waitForRow},
    {"searchColumn", textid::waitForColumn},
    {"timeoutSeconds", textid::waitForTimeout},
    {"row", textid::setCursorRow},
    {"column", textid::setCursorColumn},
    {"number", textid::fieldNumber},
    {"commandData", textid::fieldCommandData},
    {"hostFileName", textid::transferHostFileName, textid::transferHostFile},
    {"member", textid::transferMember},
    {"fileType", textid::transferFileType},
    {"fileMode", textid::transferFileMode},
    {"pcFileName", textid::transferPcFileName, textid::transferPcFile},
    {"recordLength", textid::transferRecordLength},
    {"blockSize", textid::transferBlockSize},
    {"averageBlock", textid::spaceAverageBlocks},
    {"primarySpace", textid::transferPrimarySpace},
    {"secondarySpace", textid::transferSecondarySpace},
    {"transferProgramName", textid::transferProgramName},
    {"additionalParameters", textid::transferAdditionalParameters},
};

QString captionOf(LanguageLibrary& language, StringId id) {
    QString text = plainLabel(qtText(libraryText(language, id)));
    while (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

QString ownTitle(LanguageLibrary& language, const Step& step, const EntryField& field) {
    if (field.kind == FieldKind::DatePart) return captionOf(language, textid::fieldDateAndTime);
    if (field.kind == FieldKind::FileName) return captionOf(language, textid::transferPcFileName);
    const auto* title = std::ranges::find(titles, field.name, &Title::field);
    if (title == std::end(titles)) {
        const bool isInput = step.code == CommandCode::Input;
        return captionOf(language, isInput ? textid::inputTitle : textid::fieldText);
    }
    const QString name = captionOf(language, title->text);
    if (title->group == 0) return name;
    return captionOf(language, title->group) + QStringLiteral(": ") + name;
}

StringId actionTitle(CommandCode owner, Slot slot) {
    const bool isThen = slot == Slot::Then;
    if (owner == CommandCode::WaitFor) return isThen ? textid::foundButton : textid::notFoundButton;
    if (owner == CommandCode::IfInputIs) {
        return isThen ? textid::equalButton : textid::notEqualButton;
    }
    return textid::actionGroup;
}

}  // namespace

QString fieldTitle(LanguageLibrary& language, const ScriptEntry& entry, Slot slot,
                   const EntryField& field) {
    const QString title = ownTitle(language, slotFields(entry, slot), field);
    if (slot == Slot::Entry) return title;
    return QStringLiteral("%1 (%2)").arg(title, captionOf(language, actionTitle(entry.code, slot)));
}

QString fieldTitle(LanguageLibrary& language, const ScriptEntry& entry, Slot slot,
                   std::string_view path) {
    for (const EntryField& field : fieldsOf(entry, slot)) {
        if (fieldPath(slot, field) == path) return fieldTitle(language, entry, slot, field);
    }
    return qtText(path);
}

}  // namespace quendra
