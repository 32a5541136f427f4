#include "app/pane/script_list_model.h"

#include "app/pane/script_gutter.h"
#include "scriptfile/entry_codec.h"
#include "session/live_check.h"
#include "text/text_encoding.h"
#include "text/text_ids.h"
#include "widgets/contrast.h"
#include "widgets/pane_list.h"
#include "widgets/symbol_icon.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace quendra {
namespace {

QString lineOf(const ScriptEntry& entry, const ApplicationState& state) {
    return QString::fromStdString(
        escapeControlCharacters(formatEntryLine(entry, state.displayNames())));
}

// Faint enough for the text of either palette to stay readable on it.
QBrush markBrush() {
    QColor colour = accentColor(QGuiApplication::palette());
    colour.setAlpha(56);
    return colour;
}

}  // namespace

ScriptListModel::ScriptListModel(ApplicationState& state, QObject* parent)
    : QAbstractListModel(parent),
      state_(state),
      rows_(static_cast<int>(state.script.entryCount())) {}

void ScriptListModel::reload() {
    beginResetModel();
    rows_ = static_cast<int>(state_.script.entryCount());
    endResetModel();
}

void ScriptListModel::markRows(std::vector<std::size_t> rows) {
    if (rows == marked_) return;
    marked_ = std::move(rows);
    if (rows_ > 0) Q_EMIT dataChanged(index(0), index(rows_ - 1), {Qt::BackgroundRole});
}

void ScriptListModel::showFindings(const LiveCheck* check) {
    check_ = check;
    if (rows_ > 0) Q_EMIT dataChanged(index(0), index(rows_ - 1), {PaneList::ProblemRole});
}

int ScriptListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ScriptListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= state_.script.entryCount()) return {};
    if (role != Qt::DisplayRole && role != Qt::DecorationRole && role != Qt::ToolTipRole &&
        role != PaneList::MoreInToolTip) {
        return lookOf(row, role);
    }
    const ScriptEntry entry = unpackEntry(state_.script.entries[row], state_.cipher);
    switch (role) {
        case Qt::DisplayRole: return lineOf(entry, state_);
        case Qt::ToolTipRole: return toolTipOf(entry, findingsOf(row));
        case PaneList::MoreInToolTip:
            return showsSealedText(entry) || (check_ && check_->worstOf(row));
        default: return bitmapIcon(bitmapIdOf(entry.code, entry.commandId));
    }
}

// What needs no entry to be unpacked: every row that is painted asks for it.
QVariant ScriptListModel::lookOf(std::size_t row, int role) const {
    const CommandCode code = state_.script.entries[row].code();
    switch (role) {
        case Qt::BackgroundRole:
            return std::ranges::binary_search(marked_, row) ? QVariant(markBrush()) : QVariant();
        case Qt::ForegroundRole:
            if (code != CommandCode::Comment) return {};
            return QBrush(quietText(QGuiApplication::palette()));
        case Qt::FontRole: {
            if (code != CommandCode::Label) return {};
            QFont font;
            font.setBold(true);
            return font;
        }
        case PaneList::ProblemRole: {
            const auto worst = check_ ? check_->worstOf(row) : std::nullopt;
            if (!worst) return {};
            return static_cast<int>(*worst);
        }
        case Qt::AccessibleDescriptionRole: return findingsOf(row);
        default: return {};
    }
}

QString ScriptListModel::findingsOf(std::size_t row) const {
    return check_ ? qtText(check_->toldOf(row)) : QString();
}

QString ScriptListModel::toolTipOf(const ScriptEntry& entry, const QString& findings) const {
    QString text = lineOf(entry, state_);
    if (showsSealedText(entry)) {
        text += u'\n' + qtText(libraryText(state_.language, textid::hiddenUnderOtherIdentity));
    }
    if (!findings.isEmpty()) text += u'\n' + findings;
    return wrappingToolTip(text);
}

}  // namespace quendra
