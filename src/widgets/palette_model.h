// The rows of the three palettes.
#pragma once

#include "hosts/palettes.h"
#include "model/menu_commands.h"

#include <QAbstractListModel>

#include <vector>

namespace quendra {

struct PaletteRow {
    QString text;
    int bitmapId;
};

/// The rows of a palette by their numbers, for a host type with these keys.
[[nodiscard]] std::vector<PaletteRow> paletteRows(Palette palette, const LuCatalogue& luFunctions,
                                                  const MenuCommandCatalogue& menuCommands);

/// The object name of a part of a palette: "luFunctionsLabel" of "Label".
[[nodiscard]] QString paletteObjectName(Palette palette, const char* part);

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
