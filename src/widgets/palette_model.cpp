#include "widgets/palette_model.h"

#include "model/command_catalogue.h"
#include "widgets/symbol_icon.h"
#include "widgets/tool_tip.h"

#include <utility>

namespace quendra {

namespace {

std::vector<PaletteRow> scriptEventRows() {
    std::vector<PaletteRow> rows;
    for (const ScriptEventInfo& event : scriptEvents()) {
        rows.push_back(
            {QString::fromUtf8(event.keyword.data(), std::ssize(event.keyword)), event.bitmapId});
    }
    return rows;
}

std::vector<PaletteRow> luFunctionRows(const LuCatalogue& catalogue) {
    std::vector<PaletteRow> rows;
    for (const LuFunction& function : catalogue.rows) {
        rows.push_back({QString::fromStdString(function.name), luFunctionBitmapId});
    }
    return rows;
}

std::vector<PaletteRow> menuCommandRows(const MenuCommandCatalogue& catalogue) {
    std::vector<PaletteRow> rows;
    for (const MenuCommandInfo& info : menuCommandTable) {
        rows.push_back({QString::fromStdString(menuCommandName(catalogue, info.code)),
                        bitmapIdOf(CommandCode::MenuCommand, info.code)});
    }
    return rows;
}

}  // namespace

std::vector<PaletteRow> paletteRows(Palette palette, const LuCatalogue& luFunctions,
                                    const MenuCommandCatalogue& menuCommands) {
    switch (palette) {
        case Palette::ScriptEvents: return scriptEventRows();
        case Palette::LuFunctions: return luFunctionRows(luFunctions);
        case Palette::MenuCommands: return menuCommandRows(menuCommands);
    }
    return {};
}

QString paletteObjectName(Palette palette, const char* part) {
    const std::string_view name = paletteInfo(palette).name;
    return QString::fromUtf8(name.data(), std::ssize(name)) + QLatin1String(part);
}

PaletteModel::PaletteModel(std::vector<PaletteRow> rows, QObject* parent)
    : QAbstractListModel(parent), rows_(std::move(rows)) {}

void PaletteModel::setRows(std::vector<PaletteRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int PaletteModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant PaletteModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= rows_.size()) return {};
    switch (role) {
        case Qt::DisplayRole: return rows_[row].text;
        case Qt::DecorationRole: return bitmapIcon(rows_[row].bitmapId);
        case Qt::ToolTipRole: return wrappingToolTip(rows_[row].text);
        default: return {};
    }
}

}  // namespace quendra
