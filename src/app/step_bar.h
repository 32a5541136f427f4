// The number of the current step: in the status bar, and in a bar under the lists that goes to the
// step of a number.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/application_state.h"

#include <QToolBar>

class QLabel;
class QLineEdit;
class QMainWindow;

namespace quendra {

class StatusLine;

/// Hidden until it is opened; Return goes to the step, and what is no step is told and stays to be
/// corrected.
class StepBar : public QToolBar {
    Q_OBJECT

  public:
    /// `state` and `pane` outlive the bar.
    StepBar(ApplicationState& state, EditorPane& pane, QMainWindow& window);

    /// Shows the bar with the number of the focused entry selected, ready to be typed over.
    void open();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void close();
    void go();
    void showPosition();

    ApplicationState& state_;
    EditorPane& pane_;
    QLabel* prompt_;
    QLineEdit* edit_;
    StatusLine* refusal_;
    QLabel* position_;
};

}  // namespace quendra
