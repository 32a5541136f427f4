// The rows of the three palettes.
#pragma once

#include "hosts/lu_catalogue.h"
#include "model/menu_catalogue.h"

#include <QAbstractListModel>

#include <vector>

namespace quendra {

struct PaletteRow {
    QString text;
    int bitmapId;
};

/// The twenty Script Events in catalogue order.
[[nodiscard]] std::vector<PaletteRow> scriptEventRows();
/// The keys of a host type in catalogue order.
[[nodiscard]] std::vector<PaletteRow> luFunctionRows(const LuCatalogue& catalogue);
/// Row n is menu command 201 + n.
[[nodiscard]] std::vector<PaletteRow> menuCommandRows(const MenuCommandCatalogue& catalogue);

class PaletteModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit PaletteModel(std::vector<PaletteRow> rows, QObject* parent = nullptr);

    void setRows(std::vector<PaletteRow> rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<PaletteRow> rows_;
};

}  // namespace quendra
