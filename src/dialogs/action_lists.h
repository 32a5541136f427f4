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
    [[nodiscard]] ActionChoice choice() const;

    /// Makes a list the active one and selects, focuses and shows its row; nothing for row -1.
    void select(const ActionChoice& choice);

    /// Gives the keyboard to the active list.
    void focusActiveList();

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    /// After the double-click itself was handled, so a dialog may be opened.
    void doubleClicked(const quendra::ActionChoice& choice);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    PaneList* addList(ActionList number, const QString& title, QAbstractItemModel* model);
    void selectionChanged(ActionList number);
    [[nodiscard]] PaneList& list(ActionList number) const {
        return *lists_[static_cast<std::size_t>(number)];
    }

    std::array<PaneList*, 3> lists_{};
    ActionList active_ = ActionList::ScriptEvents;
};

}  // namespace quendra
