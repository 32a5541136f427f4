// The list of problems below the lists of the pane, which can be shown and hidden.
#pragma once

#include "app/problem_model.h"

#include <QDockWidget>

#include <optional>

class QAction;
class QLabel;
class QListView;

namespace quendra {

class ProblemsPanel : public QDockWidget {
    Q_OBJECT

  public:
    /// All outlive it. The actions have a button or an item of the menu of a row.
    ProblemsPanel(const LiveCheck& check, LanguageLibrary& language, QAction& quickFix,
                  QWidget* parent);

    /// Shows the findings as they are now, `current` of them current.
    void reload(std::optional<std::size_t> current);
    /// Makes a finding the current one, in sight, and tells nobody.
    void setCurrent(std::optional<std::size_t> finding);
    void takeFocus();

  Q_SIGNALS:
    /// The user chose a finding; `leaves`: to work on its step.
    void chosen(std::size_t finding, bool leaves);
    void closeRequested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildTitle(QAction& quickFix);
    void buildList();
    void choose(const QModelIndex& index, bool leaves);
    void showMenu(QPoint at);
    void showHelp();
    [[nodiscard]] QString text(StringId id) const;

    const LiveCheck& check_;
    LanguageLibrary& language_;
    QAction& quickFix_;
    ProblemModel* model_;
    QListView* list_;
    QLabel* count_;
    /// The panel itself changes the current row.
    bool isSetting_ = false;
};

}  // namespace quendra
