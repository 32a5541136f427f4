// The four lists of the editor pane with the labels of the palettes: what they are made of, and
// where they stand.
#pragma once

#include "session/application_state.h"

#include <QSize>
#include <QString>

#include <array>

class QAbstractItemModel;
class QLabel;
class QObject;
class QWidget;

namespace quendra {

class PaletteModel;
class PaneList;
class ScriptListModel;

/// Lists, labels and models are children of the pane.
class PaneLists {
  public:
    static constexpr std::size_t paletteCount = allPalettes.size();

    /// `pane` and `state` outlive it. The palettes are filled from the state's catalogues.
    PaneLists(QWidget& pane, ApplicationState& state);

    /// The script list, then the palettes: a list's number is its place here.
    [[nodiscard]] const std::array<PaneList*, 1 + paletteCount>& all() const { return lists_; }
    [[nodiscard]] PaneList& script() const { return *lists_[0]; }
    [[nodiscard]] PaneList& of(Palette palette) const {
        return *lists_[1 + static_cast<std::size_t>(palette)];
    }
    /// The number of a list; that of none is all().size().
    [[nodiscard]] std::size_t numberOf(const QObject* list) const;
    [[nodiscard]] ScriptListModel& scriptModel() const { return *scriptModel_; }

    /// Shows the LU functions of the current host type.
    void refillLuFunctions();
    /// Gives lists and labels their places at the pane's present size and font.
    void place();
    /// Room for a few rows in each list, with the text as large as it is.
    [[nodiscard]] QSize leastSize() const;

  private:
    PaneList* addList(const QString& name, const QString& accessibleName,
                      QAbstractItemModel* model);
    void addPalette(Palette palette, PaletteModel* model);

    QWidget& pane_;
    ApplicationState& state_;
    ScriptListModel* scriptModel_;
    PaletteModel* luModel_;
    std::array<PaneList*, 1 + paletteCount> lists_{};
    std::array<QLabel*, paletteCount> labels_{};
};

}  // namespace quendra
