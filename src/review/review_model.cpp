#include "review/review_model.h"

#include "scriptfile/entry_codec.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/symbol_icon.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

#include <utility>

namespace quendra {

QString signOf(RowKind kind) {
    switch (kind) {
        case RowKind::Same: break;
        case RowKind::Changed: return QStringLiteral("!");
        case RowKind::Gone: return QStringLiteral("\u2212");
        case RowKind::New: return QStringLiteral("+");
        case RowKind::MovedAway:
        case RowKind::MovedHere: return QStringLiteral(">");
        case RowKind::Conflict: return QStringLiteral("\u00d7");
    }
    return {};
}

ReviewModel::ReviewModel(ApplicationState& state, QObject* parent)
    : QAbstractListModel(parent), state_(state) {}

void ReviewModel::show(ReviewSide left, ReviewSide right, AlignedScripts aligned) {
    beginResetModel();
    left_ = std::move(left);
    right_ = std::move(right);
    aligned_ = std::move(aligned);
    endResetModel();
}

QString ReviewModel::line(int row, Side side) const {
    const auto step = stepOf(this->row(row), side);
    if (!step) return {};
    const ReviewSide& shown = this->side(side);
    const DisplayNames names = {state_.luCatalogues.of(shown.hostType), state_.menuCommands};
    const ScriptEntry entry = unpackEntry(shown.script.entries[*step], state_.cipher);
    return qtText(escapeControlCharacters(formatEntryLine(entry, names)));
}

QIcon ReviewModel::icon(int row, Side side) const {
    const auto step = stepOf(this->row(row), side);
    if (!step) return {};
    const ScriptEntry entry = unpackSealedEntry(this->side(side).script.entries[*step]);
    return bitmapIcon(bitmapIdOf(entry.code, entry.commandId));
}

QString ReviewModel::fate(int row) const {
    const AlignedRow& shown = this->row(row);
    const auto text = [this](StringId id, std::initializer_list<std::string> args = {}) {
        return qtText(libraryText(state_.language, id, args));
    };
    switch (shown.kind) {
        case RowKind::Same: break;
        case RowKind::Changed: return text(textid::reviewChanged);
        case RowKind::Gone: return text(textid::reviewGone);
        case RowKind::New: return text(textid::reviewNew);
        case RowKind::MovedAway:
            return text(textid::reviewMovedAway, {shownNumber(shown.counterpart)});
        case RowKind::MovedHere:
            return text(textid::reviewMovedHere, {shownNumber(shown.counterpart)});
        case RowKind::Conflict: return text(textid::reviewConflict);
    }
    return text(textid::reviewSameEntry);
}

QString ReviewModel::emptyText(int row) const {
    if (this->row(row).kind != RowKind::Conflict) return fate(row);
    return qtText(libraryText(state_.language, textid::reviewNothing));
}

int ReviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(aligned_.rows.size());
}

QVariant ReviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const int row = index.row();
    switch (role) {
        case Qt::DisplayRole: return line(row, this->row(row).right ? Side::Right : Side::Left);
        case Qt::AccessibleTextRole: return described(row, QStringLiteral("; "));
        case Qt::ToolTipRole: return wrappingToolTip(described(row, QStringLiteral("\n")));
        default: return {};
    }
}

QString ReviewModel::described(int row, const QString& separator) const {
    QString text = fate(row);
    const auto add = [&](Side side, StringId id) {
        if (const auto step = stepOf(this->row(row), side)) {
            text += separator +
                    qtText(libraryText(state_.language, id,
                                       {shownNumber(*step), line(row, side).toStdString()}));
        }
    };
    add(Side::Left, textid::reviewLeftEntry);
    add(Side::Right, textid::reviewRightEntry);
    return text;
}

}  // namespace quendra
