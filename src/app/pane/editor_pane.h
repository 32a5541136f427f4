// The editor pane: the script list on the left, the three palettes on the right, and the gestures
// between them.
#pragma once

#include "session/application_state.h"
#include "session/commands.h"

#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quendra {

class LiveCheck;

/// Which way round the lists of the pane.
enum class ListStep : std::uint8_t { Forward, Back };

class EditorPane : public QWidget {
    Q_OBJECT

  public:
    /// `state` outlives the pane. Its catalogues are built already; the palettes are filled from
    /// them at once.
    explicit EditorPane(ApplicationState& state, QWidget* parent = nullptr);
    ~EditorPane() override;

    /// Shows the script anew and selects and focuses the entry at the state's currentIndex,
    /// scrolled into view. Every change of the script ends with this. The working transfer settings
    /// become those of the last transfer shown, if there is one.
    void rebuildScriptList();
    /// The same with a selection of one's own; told of once.
    void showScript(const EntrySelection& selection);
    /// Shows the LU functions of the current host type.
    void refillLuPalette();

    /// Selected entries of the script list, ascending.
    [[nodiscard]] std::vector<std::size_t> selectedEntries() const;
    /// The focused entry of the script list, -1 for none.
    [[nodiscard]] int focusedEntry() const;
    /// Selects exactly these entries in one change and focuses `focused` (-1 for none), scrolled
    /// into view.
    void selectEntries(std::span<const std::size_t> entries, int focused);
    /// Marks these entries (ascending), and no others, as found by a search.
    void markEntries(std::vector<std::size_t> entries);
    /// Marks what a check of the script has found, and its jumps. To be told anew whenever it has
    /// changed; `check` outlives the pane.
    void showFindings(const LiveCheck& check);
    /// Shows numbers and jumps of the steps at the left of the script list, or takes them away.
    void showGutter(bool shown);
    /// Moves the selected entries up or down by one.
    void moveSelected(bool up);

    /// The selected row of a palette, -1 for none.
    [[nodiscard]] int selectedRow(Palette palette) const;
    /// The palette that has the focus or had it last; none while that is the script list.
    [[nodiscard]] std::optional<Palette> focusedPalette() const;
    [[nodiscard]] QString paletteText(Palette palette, int row) const;
    [[nodiscard]] QString entryText(int entry) const;
    /// Gives the keyboard focus back to the list of the pane that had it last (the script list at
    /// first).
    void takeFocus();
    /// Gives it to the script list.
    void focusScript();
    /// Gives it to the next list, after the last palette to the script list; from elsewhere in the
    /// window, to the list that had it last.
    void focusNextList(ListStep step);
    /// Selects a row of a palette, as a click does.
    void selectRow(const PaletteChoice& choice);
    /// Where the script list stands in the pane.
    [[nodiscard]] QRect scriptArea() const;

    [[nodiscard]] QSize sizeHint() const override;
    /// Room for a few rows in each list, with the text as large as it is.
    [[nodiscard]] QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// A gesture asks to edit the focused entry or to insert from a palette. Emitted after the
    /// gesture's own event has been handled, never from inside it.
    void commandRequested(quendra::EditorCommand command);
    /// A selection or the focused entry changed in any of the four lists.
    void selectionChanged();
    /// The script list shows the script anew; its marks stand where they stood.
    void listRebuilt();
    /// A drag or Ctrl with an arrow key is going to move entries.
    void entriesAboutToMove();
    /// It has moved them; script, selection and currentIndex are as they end. `goesOn`: a key that
    /// is held down has moved them once more.
    void entriesMoved(bool goesOn);

    /// A menu is asked for in a list, by the mouse or a key, at a place of the screen. None: in the
    /// script list.
    void menuRequested(std::optional<quendra::Palette> palette, QPoint at);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    class Private;
    const std::unique_ptr<Private> d_;
};

}  // namespace quendra
