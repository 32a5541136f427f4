#include "review/change_texts.h"

#include "compare/script_diff.h"
#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/ui_text.h"

namespace quendra {

namespace {

std::string shownValue(const ComparedValue& value, LanguageLibrary& language) {
    switch (value.kind) {
        case ComparedValue::Kind::None: break;
        case ComparedValue::Kind::Number: return value.text;
        case ComparedValue::Kind::Sealed: return libraryText(language, textid::reviewHidden);
        case ComparedValue::Kind::Text:
            return '"' + escapeControlCharacters(utf8FromWindows1252(value.text)) + '"';
    }
    return libraryText(language, textid::reviewNoValue);
}

QString fieldLine(const FieldDifference& field, LanguageLibrary& language) {
    std::string line = field.name + ' ';
    using enum ComparedValue::Kind;
    if (field.left.kind == Sealed && field.right.kind == Sealed) {
        line += libraryText(language, textid::reviewHidden) + ", " +
                libraryText(language, textid::reviewChanged);
    } else {
        line += shownValue(field.left, language) + " \u2192 " + shownValue(field.right, language);
    }
    return qtText(line);
}

QString fieldLines(const ReviewModel& model, const AlignedRow& row, LanguageLibrary& language) {
    const auto entryOf = [&](Side side) {
        return unpackSealedEntry(model.side(side).script.entries[stepOf(row, side).value_or(0)]);
    };
    QStringList lines;
    for (const FieldDifference& field : fieldDifferences(entryOf(Side::Left), entryOf(Side::Right)))
        lines.append(fieldLine(field, language));
    return lines.join(u'\n');
}

// Both sides have a step of the same command.
bool hasFieldsToCompare(const ReviewModel& model, const AlignedRow& row) {
    return row.left && row.right &&
           model.side(Side::Left).script.entries[*row.left].code() ==
               model.side(Side::Right).script.entries[*row.right].code();
}

QString bothLines(const ReviewModel& model, int row, LanguageLibrary& language) {
    QStringList lines;
    const auto add = [&](Side side, StringId id) {
        const std::string line = model.line(row, side).toStdString();
        const auto step = stepOf(model.row(row), side);
        if (step) lines.append(qtText(libraryText(language, id, {shownNumber(*step), line})));
    };
    add(Side::Left, textid::reviewLeftEntry);
    add(Side::Right, textid::reviewRightEntry);
    return lines.join(u'\n');
}

}  // namespace

QString changeText(const ReviewModel& model, int row, LanguageLibrary& language) {
    const AlignedRow& aligned = model.row(row);
    if (aligned.kind == RowKind::Same) return {};
    if (hasFieldsToCompare(model, aligned)) {
        const QString fields = fieldLines(model, aligned, language);
        if (!fields.isEmpty()) return fields;
    }
    if (aligned.kind == RowKind::Conflict || (aligned.left && aligned.right)) {
        return bothLines(model, row, language);
    }
    const Side side = aligned.left ? Side::Left : Side::Right;
    return model.fate(row) + QStringLiteral(": ") + model.line(row, side);
}

QString takeOverText(const AlignedRow& row, LanguageLibrary& language) {
    const auto text = [&language](StringId id, std::initializer_list<std::string> args) {
        return qtText(libraryText(language, id, args));
    };
    switch (row.kind) {
        case RowKind::Same:
        case RowKind::Conflict: break;
        case RowKind::Changed:
            return text(textid::reviewTakesChanged,
                        {shownNumber(*row.left), shownNumber(*row.right)});
        case RowKind::Gone: return text(textid::reviewTakesGone, {shownNumber(*row.left)});
        case RowKind::New: return text(textid::reviewTakesNew, {shownNumber(*row.right)});
        case RowKind::MovedAway:
            return text(textid::reviewTakesMoved, {shownNumber(row.counterpart)});
        case RowKind::MovedHere: return text(textid::reviewTakesMoved, {shownNumber(*row.right)});
    }
    return {};
}

}  // namespace quendra
