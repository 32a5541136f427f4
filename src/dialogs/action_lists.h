// The three lists that an action is chosen from, side by side: Script Events, LU Functions of the
// host type, Menu Commands.
#pragma once

#include "dialogs/action_rules.h"
#include "session/application_state.h"

#include <QWidget>

#include <array>

class QAbstractItemModel;

namespace quendra {

class PaneList;

class ActionLists : public QWidget {
    Q_OBJECT

  public:
    ActionLists(ApplicationState& state, QWidget* parent);

    /// The active list is the one in which a row was selected last; no other list then has a
    /// selection, so what is seen as selected is what is chosen.
    [[nodiscard]] PaletteChoice choice() const;

    /// Makes a list the active one and selects, focuses and shows its row; nothing for row -1.
    void select(const PaletteChoice& choice);

    /// Gives the keyboard to the active list.
    void focusActiveList();

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    /// After the double-click itself was handled, so a dialog may be opened.
    void doubleClicked(const quendra::PaletteChoice& choice);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    PaneList* addList(Palette palette, const QString& title, QAbstractItemModel* model);
    void selectionChanged(Palette palette);
    [[nodiscard]] PaneList& list(Palette palette) const {
        return *lists_[static_cast<std::size_t>(palette)];
    }

    std::array<PaneList*, allPalettes.size()> lists_{};
    Palette active_ = Palette::ScriptEvents;
};

}  // namespace quendra
