#include "app/pane/editor_pane.h"

#include "app/pane/drag_controller.h"
#include "app/pane/pane_gestures.h"
#include "app/pane/pane_lists.h"
#include "app/pane/pane_selection.h"
#include "app/pane/script_gutter.h"
#include "app/pane/script_list_model.h"
#include "session/drop_rules.h"
#include "text/text_ids.h"
#include "widgets/palette_model.h"
#include "widgets/pane_list.h"
#include "widgets/ui_text.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QPainter>

#include <utility>

namespace quendra {

/// The parts of a pane, in the order in which they are made: the last one sees every event first.
class EditorPane::Private {
  public:
    Private(EditorPane& pane, ApplicationState& state);

    PaneLists lists_;
    PaneSelection selection_;
    PaneGestures gestures_;
    DragController drag_;
    std::optional<ScriptGutter> gutter_;
    const LiveCheck* check_ = nullptr;
};

EditorPane::Private::Private(EditorPane& pane, ApplicationState& state)
    : lists_(pane, state),
      selection_(state, lists_),
      gestures_(state, lists_, selection_),
      drag_(pane, lists_.all()) {
    connect(&selection_, &PaneSelection::aboutToChange, &drag_, &DragController::cancel);
    connect(&drag_, &DragController::dropped, &gestures_, &PaneGestures::drop);
    drag_.setOtherUse([this](PaneList& list, const QMouseEvent& event) {
        return gestures_.goesToLabel(list, event);
    });
    connect(&selection_, &PaneSelection::changed, &pane, &EditorPane::selectionChanged);
    connect(&selection_, &PaneSelection::rebuilt, &pane, &EditorPane::listRebuilt);
    connect(&lists_.scriptModel(), &QAbstractItemModel::modelReset, &pane, [this] {
        if (gutter_) gutter_->refit();
    });
    connect(lists_.script().selectionModel(), &QItemSelectionModel::currentChanged, &pane, [this] {
        // The jumps of the focused step stand out, wherever they lead.
        if (gutter_) lists_.script().viewport()->update();
    });
    connect(&gestures_, &PaneGestures::commandRequested, &pane, &EditorPane::commandRequested);
    connect(&gestures_, &PaneGestures::entriesAboutToMove, &pane, &EditorPane::entriesAboutToMove);
    connect(&gestures_, &PaneGestures::entriesMoved, &pane, &EditorPane::entriesMoved);
    for (PaneList* list : lists_.all()) {
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(list, &QWidget::customContextMenuRequested, &pane, [this, &pane, list](QPoint at) {
            const std::size_t number = lists_.numberOf(list);
            std::optional<Palette> palette;
            if (number > 0) palette = allPalettes[number - 1];
            Q_EMIT pane.menuRequested(palette, list->viewport()->mapToGlobal(at));
        });
    }
    lists_.script().setHint(qtText(libraryText(state.language, textid::emptyScriptHint)));
}

EditorPane::EditorPane(ApplicationState& state, QWidget* parent)
    : QWidget(parent), d_(std::make_unique<Private>(*this, state)) {
    setObjectName(QStringLiteral("editorPane"));
}

EditorPane::~EditorPane() = default;

void EditorPane::rebuildScriptList() {
    d_->selection_.rebuild();
}

void EditorPane::showScript(const EntrySelection& selection) {
    d_->selection_.show(selection);
}

void EditorPane::refillLuPalette() {
    d_->drag_.cancel();
    d_->lists_.refillLuFunctions();
    Q_EMIT selectionChanged();
}

std::vector<std::size_t> EditorPane::selectedEntries() const {
    return d_->lists_.script().selectedRows();
}

int EditorPane::focusedEntry() const {
    return d_->lists_.script().focusedRow();
}

void EditorPane::selectEntries(std::span<const std::size_t> entries, int focused) {
    d_->selection_.select(entries, focused);
}

void EditorPane::markEntries(std::vector<std::size_t> entries) {
    d_->lists_.scriptModel().markRows(std::move(entries));
}

void EditorPane::showFindings(const LiveCheck& check) {
    const bool isNew = std::exchange(d_->check_, &check) != &check;
    d_->lists_.scriptModel().showFindings(&check);
    if (!d_->gutter_) return;
    if (isNew) return showGutter(true);
    d_->gutter_->refit();
    d_->lists_.script().viewport()->update();
}

void EditorPane::showGutter(bool shown) {
    PaneList& list = d_->lists_.script();
    list.setGutter(nullptr);
    d_->gutter_.reset();
    if (!shown) return;
    d_->gutter_.emplace(list, d_->check_);
    d_->gutter_->refit();
    list.setGutter(&*d_->gutter_);
}

void EditorPane::moveSelected(bool up) {
    d_->gestures_.moveByOne(up, false);
}

int EditorPane::selectedRow(Palette palette) const {
    const std::vector<std::size_t> rows = d_->lists_.of(palette).selectedRows();
    return rows.empty() ? -1 : static_cast<int>(rows.front());
}

std::optional<Palette> EditorPane::focusedPalette() const {
    for (const Palette palette : allPalettes) {
        if (&d_->lists_.of(palette) == &d_->selection_.lastFocused()) return palette;
    }
    return std::nullopt;
}

QString EditorPane::paletteText(Palette palette, int row) const {
    return d_->lists_.of(palette).model()->index(row, 0).data().toString();
}

QString EditorPane::entryText(int entry) const {
    return d_->lists_.scriptModel().index(entry, 0).data().toString();
}

void EditorPane::takeFocus() {
    d_->selection_.lastFocused().setFocus();
}

void EditorPane::focusScript() {
    d_->lists_.script().setFocus(Qt::ShortcutFocusReason);
}

void EditorPane::focusNextList(ListStep step) {
    const auto& lists = d_->lists_.all();
    PaneList& last = d_->selection_.lastFocused();
    if (!last.hasFocus()) return last.setFocus(Qt::ShortcutFocusReason);
    const std::size_t way = step == ListStep::Forward ? 1 : lists.size() - 1;
    lists[(d_->lists_.numberOf(&last) + way) % lists.size()]->setFocus(Qt::ShortcutFocusReason);
}

void EditorPane::selectRow(const PaletteChoice& choice) {
    PaneList& list = d_->lists_.of(choice.palette);
    list.setCurrentIndex(list.model()->index(choice.row, 0));
}

QRect EditorPane::scriptArea() const {
    return d_->lists_.script().geometry();
}

QSize EditorPane::sizeHint() const {
    return {626, 326};
}

QSize EditorPane::minimumSizeHint() const {
    return d_->lists_.leastSize();
}

void EditorPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    d_->lists_.place();
}

void EditorPane::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    const QColor window = palette().color(QPalette::Window);
    const bool dark = window.lightness() < 128;
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, dark ? window.darker(160) : QColor(128, 128, 128));
    painter.fillRect(0, 1, width(), 1, dark ? window.lighter(140) : QColor(255, 255, 255));
}

void EditorPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    d_->lists_.place();
    if (d_->gutter_) d_->gutter_->refit();
    updateGeometry();
}

}  // namespace quendra
