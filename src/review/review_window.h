// The window that shows two scripts side by side, or both sides of the conflicts of a merge.
#pragma once

#include "review/review_model.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QAction;
class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace quendra {

class ReviewHeading;
class ReviewList;
class StatusLine;

/// What the script in the editor is to become, as one step for Undo.
struct ReviewedScript {
    Script script;
    /// The entry to go to.
    std::size_t entry = 0;
    StringId stepName = 0;
};

/// A window of its own beside the editor's; it changes no script itself.
class ReviewWindow : public QWidget {
    Q_OBJECT

  public:
    /// Gives false when the script could not be changed, and is as it was.
    using Editor = std::function<bool(ReviewedScript)>;

    /// `state` outlives the window; its script is not looked at.
    explicit ReviewWindow(ApplicationState& state);
    ~ReviewWindow() override;

    /// Shows two scripts, at their first change. `editor` is what makes changes in the right one;
    /// without it, nothing can be taken over.
    void compare(ReviewSide left, ReviewSide right, Editor editor = {});
    /// Shows the conflicts of a script, at the first; `editor` makes changes in it.
    void resolve(ReviewSide script, Editor editor);
    /// Shows what the sides have become since, in the same place.
    void follow(ReviewSide left, ReviewSide right);
    void follow(ReviewSide script);

    [[nodiscard]] const ReviewSide& left() const { return model_->side(Side::Left); }

    /// Shows the window, and brings it to the front.
    void present();

  Q_SIGNALS:
    /// The keys of Undo and Redo were pressed here.
    void undoAsked();
    void redoAsked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void build();
    QWidget* buildHeadings();
    QWidget* buildBar();
    QToolButton* addArrow(const char* name, StringId toolTip, Qt::ArrowType arrow,
                          const QKeySequence& key, void (ReviewWindow::*act)());
    QPushButton* addButton(const char* name, StringId caption, const QKeySequence& key,
                           const std::function<void()>& act);
    void begin(Editor editor);
    void fill(ReviewSide left, ReviewSide right, AlignedScripts aligned);
    void keepPlace(const std::function<void()>& show);
    void showSides(ReviewSide left, ReviewSide right);
    void showConflicts(ReviewSide script);
    void showCurrent();
    void showConflictNames();
    void showSummary(const QString& remark);
    void goToNext();
    void goToPrevious();
    void goToChange(std::size_t change, StringId remark);
    /// The change in the focused row or the first one behind it.
    void goToChangeFromHere();
    void addKeys(const QList<QKeySequence>& keys, void (ReviewWindow::*act)());
    void takeOver();
    void keep(ConflictChoice choice);
    /// The changes of the selected rows, ascending.
    [[nodiscard]] std::vector<std::size_t> selectedChanges() const;
    [[nodiscard]] std::optional<std::size_t> currentChange() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString consequence() const;
    [[nodiscard]] QString text(StringId id, std::initializer_list<std::string> args = {}) const;

    ApplicationState& state_;
    ReviewModel* model_;
    Editor editor_;
    bool isConflicts_ = false;
    /// The script of the conflicts.
    ReviewSide resolved_;
    std::vector<MergeConflict> conflicts_;
    bool hasStrayMarks_ = false;

    ReviewHeading* left_ = nullptr;
    ReviewHeading* right_ = nullptr;
    QLabel* note_ = nullptr;
    ReviewList* list_ = nullptr;
    QPlainTextEdit* details_ = nullptr;
    StatusLine* consequence_ = nullptr;
    StatusLine* summary_ = nullptr;
    QBoxLayout* bar_ = nullptr;
    QWidget* buttons_ = nullptr;
    QToolButton* previous_ = nullptr;
    QToolButton* next_ = nullptr;
    QPushButton* takeOver_ = nullptr;
    std::vector<QPushButton*> keep_;
};

}  // namespace quendra
