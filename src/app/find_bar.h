// The bar under the lists that finds entries by their texts while one is typed.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/application_state.h"

#include <QToolBar>

#include <vector>

class QLabel;
class QLineEdit;
class QShortcut;

namespace quendra {

/// Hidden until it is opened. While it shows, the entries with the text are marked in the script
/// list, and follow every change of the script.
class FindBar : public QToolBar {
    Q_OBJECT

  public:
    /// `state` and `pane` outlive the bar.
    FindBar(ApplicationState& state, EditorPane& pane, QWidget* parent = nullptr);

    /// Shows the bar with its last text selected, ready to be typed over. A script without entries
    /// has nothing to find.
    void open();
    /// Takes the marks away and gives the focus back to the pane.
    void close();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void addButton(const char* name, StringId toolTip, Qt::ArrowType arrow, void (FindBar::*act)());
    void typed();
    void search();
    void goToNext();
    void goToPrevious();
    void goTo(std::size_t entry);
    void selectionMoved();
    [[nodiscard]] std::size_t currentEntry() const;
    void showCount();
    [[nodiscard]] QString text(StringId id) const;

    ApplicationState& state_;
    EditorPane& pane_;
    QLineEdit* edit_;
    QLabel* count_;
    std::vector<std::size_t> matches_;
    QShortcut* escape_;
    /// The current entry when the search that is being typed began: more letters look from here on,
    /// fewer go back.
    std::size_t origin_ = 0;
    /// The bar itself is changing the current entry.
    bool goes_ = false;
};

}  // namespace quendra
