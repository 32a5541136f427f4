// The bar under the lists that finds fields and lines of entries while one is typed, and replaces
// texts in them.
#pragma once

#include "analysis/script_changes.h"
#include "analysis/script_search.h"
#include "app/pane/editor_pane.h"
#include "session/application_state.h"

#include <QToolBar>

#include <optional>
#include <string>
#include <vector>

class QGridLayout;
class QLineEdit;
class QShortcut;
class QToolButton;

namespace quendra {

class StatusLine;

/// Hidden until it is opened. While it shows, the entries with what is looked for are marked in the
/// script list, and follow every change of the script. What was typed and chosen is remembered as
/// long as the bar lives, and nowhere else.
class FindBar : public QToolBar {
    Q_OBJECT

  public:
    /// `state` and `pane` outlive the bar.
    FindBar(ApplicationState& state, EditorPane& pane, QWidget* parent = nullptr);

    /// Shows the bar with its last text selected, ready to be typed over. A script without entries
    /// has nothing to find.
    void open();
    /// The same with the row for replacing.
    void openReplace();
    /// Takes the marks away and gives the focus back to the pane.
    void close();

    /// Go to the next or previous hit, round the end of the script; they open the bar first.
    void goToNext();
    void goToPrevious();

  Q_SIGNALS:
    /// The user has asked for these changes of the script; who hears it makes them, as one step of
    /// this name.
    void changesAgreed(const quendra::ScriptChanges& changes, const std::string& stepName);
    /// Something to tell in the status bar, in UTF-8.
    void noted(const std::string& note);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* makeEdit(const char* name, StringId description);
    QToolButton* makeButton(const char* name, StringId description, void (FindBar::*act)());
    QToolButton* makeOption(const char* name, StringId description, const char* sign,
                            const char* key);
    void buildFindRow(QGridLayout& grid);
    void buildReplaceRow(QGridLayout& grid);
    void showReplaceRow(bool shows);

    void typed();
    /// Looks anew for what the bar says; what cannot be looked for leaves all hits as they were.
    void search();
    void readPattern();
    void setHits(std::vector<SearchHit> hits);
    void goTo(std::size_t hit);
    void goBack();
    /// The first hit from an entry on, round the end.
    [[nodiscard]] std::size_t hitFrom(std::size_t entry) const;
    /// The same behind a hit, which may be gone.
    [[nodiscard]] std::size_t hitBehind(const SearchHit& hit) const;
    void followSelection();
    void selectionMoved();
    [[nodiscard]] std::size_t currentEntry() const;

    void replaceHit();
    void replaceAll();
    /// False after telling that the present text cannot be replaced.
    [[nodiscard]] bool canReplace();

    void showCount();
    /// Beside the field, or on a line of its own where that is too narrow.
    void placeCount();
    [[nodiscard]] QString countText() const;
    [[nodiscard]] QString titleOf(const SearchHit& hit) const;
    [[nodiscard]] QString text(StringId id) const;

    ApplicationState& state_;
    EditorPane& pane_;
    QGridLayout* grid_ = nullptr;
    QLineEdit* edit_ = nullptr;
    QToolButton* matchCase_ = nullptr;
    QToolButton* wholeWords_ = nullptr;
    QToolButton* expression_ = nullptr;
    StatusLine* count_ = nullptr;
    bool countIsBelow_ = false;
    QLineEdit* replacement_ = nullptr;
    std::vector<QWidget*> replaceRow_;
    QShortcut* escape_;

    ScriptSearch search_;
    /// None while there is nothing to look for, or it is no valid expression: `fault_` then says
    /// what is wrong.
    std::optional<TextPattern> pattern_;
    std::optional<PatternFault> fault_;
    std::vector<SearchHit> hits_;
    /// The hit that is current, which lies in the current entry.
    std::optional<std::size_t> current_;
    /// The current entry when the search that is being typed began: more letters look from here on,
    /// fewer go back.
    std::size_t origin_ = 0;
    /// The bar itself is changing the current entry.
    bool goes_ = false;
};

}  // namespace quendra
