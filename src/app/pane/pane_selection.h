// What is selected and focused in the pane's lists, and the script shown anew without losing it.
#pragma once

#include "session/application_state.h"

#include <QObject>

#include <span>

namespace quendra {

class PaneList;
class PaneLists;

class PaneSelection : public QObject {
    Q_OBJECT

  public:
    /// While one lives, changes of selection and focus are the pane's own: nothing is told and
    /// currentIndex stays. The outermost tells of all of them at once.
    class QuietChange {
      public:
        explicit QuietChange(PaneSelection& selection);
        ~QuietChange();
        QuietChange(const QuietChange&) = delete;
        QuietChange& operator=(const QuietChange&) = delete;

      private:
        PaneSelection& selection_;
    };

    /// `state` and `lists` outlive it.
    PaneSelection(ApplicationState& state, PaneLists& lists);

    /// Shows the script anew, with the entry at currentIndex selected and focused.
    void rebuild();
    /// Selects exactly these entries and focuses `focused`, -1 for none.
    void select(std::span<const std::size_t> entries, int focused);
    /// Both, told of once.
    void show(const EntrySelection& selection);

    /// The list that has the focus or had it last; the script list at first.
    [[nodiscard]] PaneList& lastFocused() const { return *lastFocused_; }

  Q_SIGNALS:
    /// Rows are going to be selected anew: no drag outlives that.
    void aboutToChange();
    /// A selection or the focused entry changed in any of the lists.
    void changed();
    /// The script list shows the script anew.
    void rebuilt();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watch(PaneList& list);

    ApplicationState& state_;
    PaneLists& lists_;
    PaneList* lastFocused_;
    int quietChanges_ = 0;
};

}  // namespace quendra
