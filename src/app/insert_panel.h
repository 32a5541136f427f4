// The panel over the script list that finds what can be inserted by its name.
#pragma once

#include "app/pane/editor_pane.h"
#include "session/application_state.h"
#include "session/insert_search.h"

#include <QFrame>
#include <QTimer>

#include <initializer_list>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QListView;

namespace quendra {

class InsertRows;

/// Hidden until it is opened, and as soon as the focus goes elsewhere. What is inserted most is
/// offered first, and remembered from run to run.
class InsertPanel : public QFrame {
    Q_OBJECT

  public:
    /// Lies over the pane. `state` and `pane` outlive it.
    InsertPanel(ApplicationState& state, EditorPane& pane);
    ~InsertPanel() override;
    InsertPanel(const InsertPanel&) = delete;
    InsertPanel& operator=(const InsertPanel&) = delete;

    /// Shows the panel with everything that can be inserted, and an empty field.
    void open();
    /// This row of a palette has been inserted, in whatever way.
    void noteInserted(const PaletteChoice& choice);

  Q_SIGNALS:
    /// The user wants this row inserted. The panel is closed, the script list has the focus, and
    /// the event that said so has been handled.
    void chosen(const quendra::PaletteChoice& choice);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void search();
    void place();
    void setRow(int row);
    /// True for a key that goes to another row.
    bool goToRow(int key);
    bool pressKey(int key);
    void choose(int row);
    void leave();
    [[nodiscard]] QString text(StringId id,
                               std::initializer_list<std::string> arguments = {}) const;

    ApplicationState& state_;
    EditorPane& pane_;
    QLineEdit* edit_;
    QListView* list_;
    QLabel* nothing_;
    InsertRows* rows_;
    InsertionCounts counts_;
    /// Writing waits until the inserted entry is seen.
    QTimer saving_;
};

}  // namespace quendra
