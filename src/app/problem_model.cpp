#include "app/problem_model.h"

#include "widgets/problem_sign.h"
#include "widgets/tool_tip.h"
#include "widgets/ui_text.h"

namespace quendra {

ProblemModel::ProblemModel(const LiveCheck& check, QObject* parent)
    : QAbstractListModel(parent), check_(check) {}

void ProblemModel::reload() {
    beginResetModel();
    rows_ = static_cast<int>(check_.findings().size());
    endResetModel();
}

int ProblemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ProblemModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= check_.findings().size()) return {};
    const Finding& finding = check_.findings()[row];
    switch (role) {
        case Qt::DisplayRole: return qtText(check_.line(finding));
        case Qt::DecorationRole: return problemIcon(ruleInfo(finding.rule).severity);
        case Qt::ToolTipRole: return wrappingToolTip(qtText(check_.told(finding)));
        // The sign is not heard.
        case Qt::AccessibleDescriptionRole: return qtText(check_.told(finding));
        default: return {};
    }
}

}  // namespace quendra
