#include "app/pane/editor_pane.h"

#include "app/pane/drag_controller.h"
#include "app/pane/pane_layout.h"
#include "app/pane/script_list_model.h"
#include "session/drop_rules.h"
#include "widgets/palette_model.h"
#include "widgets/pane_list.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace quendra {
namespace {

constexpr int insertScriptEventCommand = 308;
constexpr int editEntryCommand = 311;
constexpr std::size_t paletteCount = allPalettes.size();

std::vector<PaletteRow> rowsOf(const ApplicationState& state, Palette palette) {
    return paletteRows(palette, state.luCatalogues.of(state.currentHostType), state.menuCommands);
}

QItemSelection selectionOf(const QAbstractItemModel& model, std::span<const std::size_t> rows) {
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) {
            ++last;
        }
        selection.append(QItemSelectionRange(model.index(static_cast<int>(rows[first]), 0),
                                             model.index(static_cast<int>(rows[last]), 0)));
        first = last + 1;
    }
    return selection;
}

Qt::KeyboardModifiers heldModifiers(const QKeyEvent& event) {
    return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

class EditorPane::Private : public QObject {
  public:
    Private(EditorPane& pane, ApplicationState& state);

    void placeControls();
    void drawSeparator() const;
    void rebuild();
    void select(std::span<const std::size_t> entries, int focused);
    void show(const EntrySelection& selection);
    [[nodiscard]] const PaneList& listOf(Palette palette) const {
        return *lists_[1 + static_cast<std::size_t>(palette)];
    }

    EditorPane& pane_;
    ApplicationState& state_;
    ScriptListModel* scriptModel_;
    PaletteModel* luModel_;
    /// The script list, then the palettes.
    std::array<PaneList*, 1 + paletteCount> lists_{};
    std::array<QLabel*, paletteCount> labels_{};
    PaneList* lastFocused_ = nullptr;
    std::unique_ptr<DragController> drag_;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// While one lives, changes of selection and focus are the pane's own: nothing is told and
    /// currentIndex stays. The outermost tells of all of them at once, if there is one to tell.
    class QuietChange;

    PaneList* addList(const QString& name, const QString& accessibleName,
                      QAbstractItemModel* model);
    void addPalette(Palette palette, PaletteModel* model);
    void watchSelection(PaneList& list);
    bool pressKey(PaneList& list, QKeyEvent& event);
    bool doubleClick(PaneList& list, const QMouseEvent& event);
    void activate(const PaneList& list);
    void drop(int source, int target, bool up);
    void moveByOne(bool up);
    void applyMove(const MovePlan& plan, std::span<const EntryMove> moves);
    [[nodiscard]] std::size_t numberOf(const QObject* list) const {
        return static_cast<std::size_t>(std::find(lists_.begin(), lists_.end(), list) -
                                        lists_.begin());
    }
    [[nodiscard]] int entryCount() const { return static_cast<int>(state_.script.entryCount()); }

    int quietChanges_ = 0;
};

class EditorPane::Private::QuietChange {
  public:
    explicit QuietChange(Private& pane) : pane_(pane) { ++pane_.quietChanges_; }
    ~QuietChange() {
        if (--pane_.quietChanges_ == 0) Q_EMIT pane_.pane_.selectionChanged();
    }
    QuietChange(const QuietChange&) = delete;
    QuietChange& operator=(const QuietChange&) = delete;

  private:
    Private& pane_;
};

EditorPane::Private::Private(EditorPane& pane, ApplicationState& state)
    : pane_(pane),
      state_(state),
      scriptModel_(new ScriptListModel(state, &pane)),
      luModel_(new PaletteModel(rowsOf(state, Palette::LuFunctions), &pane)) {
    lists_[0] = addList(QStringLiteral("scriptList"),
                        QString::fromStdString(state.language.loadText(15385)), scriptModel_);
    lists_[0]->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const Palette palette : allPalettes) {
        const bool changes = palette == Palette::LuFunctions;
        addPalette(palette, changes ? luModel_ : new PaletteModel(rowsOf(state, palette), &pane));
    }
    lastFocused_ = lists_[0];
    for (std::size_t i = 1; i < lists_.size(); ++i) {
        QWidget::setTabOrder(lists_[i - 1], lists_[i]);
    }
    // Made last, so that it sees every event first.
    drag_ = std::make_unique<DragController>(pane, lists_);
    connect(drag_.get(), &DragController::dropped, this, &Private::drop);
}

PaneList* EditorPane::Private::addList(const QString& name, const QString& accessibleName,
                                       QAbstractItemModel* model) {
    auto* list = new PaneList(&pane_);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setModel(model);
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    watchSelection(*list);
    return list;
}

void EditorPane::Private::addPalette(Palette palette, PaletteModel* model) {
    const PaletteInfo& info = paletteInfo(palette);
    const auto number = static_cast<std::size_t>(palette);
    const QString text = QString::fromStdString(state_.language.loadText(info.titleId));
    PaneList* list = addList(paletteObjectName(palette, "Palette"), text, model);
    auto* label = new QLabel(text, &pane_);
    label->setObjectName(paletteObjectName(palette, "Label"));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(list);
    labels_[number] = label;
    lists_[1 + number] = list;
}

void EditorPane::Private::watchSelection(PaneList& list) {
    const QItemSelectionModel* selection = list.selectionModel();
    const auto tell = [this] {
        if (quietChanges_ == 0) Q_EMIT pane_.selectionChanged();
    };
    connect(selection, &QItemSelectionModel::selectionChanged, this, tell);
    connect(selection, &QItemSelectionModel::currentChanged, this,
            [this, tell, &list](const QModelIndex& current) {
                const bool ofScript = &list == lists_[0];
                if (ofScript && current.isValid() && quietChanges_ == 0) {
                    state_.currentIndex = current.row();
                }
                tell();
            });
}

void EditorPane::Private::placeControls() {
    const PaneGeometry geometry = paneGeometry(pane_.size(), pane_.fontMetrics().height());
    lists_[0]->setGeometry(geometry.scriptList);
    for (std::size_t i = 0; i < paletteCount; ++i) {
        labels_[i]->setGeometry(geometry.palettes[i].label);
        lists_[1 + i]->setGeometry(geometry.palettes[i].list);
    }
}

void EditorPane::Private::drawSeparator() const {
    const QColor window = pane_.palette().color(QPalette::Window);
    const bool dark = window.lightness() < 128;
    QPainter painter(&pane_);
    painter.fillRect(0, 0, pane_.width(), 1, dark ? window.darker(160) : QColor(128, 128, 128));
    painter.fillRect(0, 1, pane_.width(), 1, dark ? window.lighter(140) : QColor(255, 255, 255));
}

void EditorPane::Private::rebuild() {
    const QuietChange quiet(*this);
    drag_->cancel();
    PaneList& list = *lists_[0];
    const int scrolled = list.verticalScrollBar()->value();
    scriptModel_->reload();
    if (const auto shown = lastTransferShown(state_.script, state_.cipher)) {
        state_.workingTransfer = *shown;
    }
    list.doItemsLayout();
    list.verticalScrollBar()->setValue(scrolled);
    const QModelIndex current = scriptModel_->index(state_.currentIndex, 0);
    if (current.isValid()) {
        list.selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
        list.scrollTo(current);
    }
    Q_EMIT pane_.listRebuilt();
}

void EditorPane::Private::select(std::span<const std::size_t> entries, int focused) {
    const QuietChange quiet(*this);
    drag_->cancel();
    PaneList& list = *lists_[0];
    QItemSelectionModel& selection = *list.selectionModel();
    const QModelIndex current = scriptModel_->index(focused, 0);
    if (current.isValid()) {
        selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        state_.currentIndex = focused;
        list.scrollTo(current);
    } else {
        selection.clearCurrentIndex();
    }
    selection.select(selectionOf(*scriptModel_, entries), QItemSelectionModel::ClearAndSelect);
}

void EditorPane::Private::show(const EntrySelection& selection) {
    const QuietChange quiet(*this);
    rebuild();
    select(selection.entries, selection.focused);
}

bool EditorPane::Private::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
        case QEvent::KeyPress: {
            const std::size_t number = numberOf(watched);
            if (number == lists_.size()) return false;
            PaneList& list = *lists_[number];
            if (event->type() == QEvent::KeyPress) {
                return pressKey(list, static_cast<QKeyEvent&>(*event));
            }
            lastFocused_ = &list;
            return false;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: {
            const std::size_t number = numberOf(watched->parent());
            const auto& mouse = static_cast<QMouseEvent&>(*event);
            if (number == lists_.size() || mouse.button() != Qt::LeftButton) return false;
            PaneList& list = *lists_[number];
            if (event->type() == QEvent::MouseButtonDblClick) return doubleClick(list, mouse);
            // Beside the rows, a press chooses none, in a list of one choice too.
            if (!list.indexAt(mouse.position().toPoint()).isValid()) list.clearSelection();
            return false;
        }
        default: return false;
    }
}

bool EditorPane::Private::pressKey(PaneList& list, QKeyEvent& event) {
    const Qt::KeyboardModifiers held = heldModifiers(event);
    const bool upOrDown = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if ((event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && held == Qt::NoModifier) {
        // A key held down would insert, or open dialog after dialog.
        if (!event.isAutoRepeat() && list.focusedRow() >= 0) activate(list);
        return true;
    }
    if (upOrDown && held == Qt::ControlModifier && &list == lists_[0]) {
        moveByOne(event.key() == Qt::Key_Up);
        return true;
    }
    if (event.matches(QKeySequence::Copy)) {
        // The base class would copy the line to the system clipboard.
        event.ignore();
        return true;
    }
    return false;
}

bool EditorPane::Private::doubleClick(PaneList& list, const QMouseEvent& event) {
    const QModelIndex index = list.indexAt(event.position().toPoint());
    if (!index.isValid()) return false;
    // The two clicks may have hit neighbouring rows.
    if (list.currentIndex() != index || !list.isRowSelected(index.row())) {
        list.setCurrentIndex(index);
    }
    activate(list);
    return true;
}

void EditorPane::Private::activate(const PaneList& list) {
    const auto number = static_cast<int>(numberOf(&list));
    const int command = number == 0 ? editEntryCommand : insertScriptEventCommand + number - 1;
    QMetaObject::invokeMethod(
        &pane_, [this, command] { Q_EMIT pane_.commandRequested(command); }, Qt::QueuedConnection);
}

void EditorPane::Private::drop(int source, int target, bool up) {
    state_.currentIndex = target;
    if (target < 0) return;
    if (source != 0) {
        state_.dropPending = true;
        activate(*lists_[static_cast<std::size_t>(source)]);
        return;
    }
    state_.dropPending = false;
    const int focused = pane_.focusedEntry();
    if (focused == target) return;
    const MovePlan plan = planMove(pane_.selectedEntries(), focused, target, up, entryCount());
    applyMove(plan, movesOf(orderAfter(plan.steps, entryCount())));
}

void EditorPane::Private::moveByOne(bool up) {
    const std::vector<std::size_t> selected = pane_.selectedEntries();
    if (selected.empty()) return;
    const int lead = static_cast<int>(up ? selected.front() : selected.back());
    const int focused = pane_.focusedEntry() >= 0 ? pane_.focusedEntry() : lead;
    const MovePlan plan = planMove(selected, focused, focused + (up ? -1 : 1), up, entryCount());
    const std::vector<EntryMove> moves = movesOf(orderAfter(plan.steps, entryCount()));
    if (!moves.empty()) applyMove(plan, moves);
}

void EditorPane::Private::applyMove(const MovePlan& plan, std::span<const EntryMove> moves) {
    Q_EMIT pane_.entriesAboutToMove();
    {
        const QuietChange quiet(*this);
        moveEntries(state_.script, moves);
        state_.currentIndex = plan.current;
        rebuild();
        std::vector<std::size_t> selected;
        for (const int entry : plan.selected) {
            if (entry >= 0 && entry < entryCount()) {
                selected.push_back(static_cast<std::size_t>(entry));
            }
        }
        select(selected, plan.focused);
    }
    Q_EMIT pane_.entriesMoved();
}

EditorPane::EditorPane(ApplicationState& state, QWidget* parent)
    : QWidget(parent), d_(std::make_unique<Private>(*this, state)) {
    setObjectName(QStringLiteral("editorPane"));
}

EditorPane::~EditorPane() = default;

void EditorPane::rebuildScriptList() {
    d_->rebuild();
}

void EditorPane::showScript(const EntrySelection& selection) {
    d_->show(selection);
}

void EditorPane::refillLuPalette() {
    d_->drag_->cancel();
    d_->luModel_->setRows(rowsOf(d_->state_, Palette::LuFunctions));
    Q_EMIT selectionChanged();
}

std::vector<std::size_t> EditorPane::selectedEntries() const {
    return d_->lists_[0]->selectedRows();
}

int EditorPane::focusedEntry() const {
    return d_->lists_[0]->focusedRow();
}

void EditorPane::selectEntries(std::span<const std::size_t> entries, int focused) {
    d_->select(entries, focused);
}

void EditorPane::markEntries(std::vector<std::size_t> entries) {
    d_->scriptModel_->markRows(std::move(entries));
}

int EditorPane::selectedRow(Palette palette) const {
    const std::vector<std::size_t> rows = d_->listOf(palette).selectedRows();
    return rows.empty() ? -1 : static_cast<int>(rows.front());
}

std::optional<Palette> EditorPane::focusedPalette() const {
    for (const Palette palette : allPalettes) {
        if (&d_->listOf(palette) == d_->lastFocused_) return palette;
    }
    return std::nullopt;
}

QString EditorPane::paletteText(Palette palette, int row) const {
    return d_->listOf(palette).model()->index(row, 0).data().toString();
}

QString EditorPane::entryText(int entry) const {
    return d_->scriptModel_->index(entry, 0).data().toString();
}

void EditorPane::takeFocus() {
    d_->lastFocused_->setFocus();
}

QSize EditorPane::sizeHint() const {
    return {626, 326};
}

QSize EditorPane::minimumSizeHint() const {
    constexpr int leastRows = 3;
    const PaneList& list = d_->listOf(Palette::ScriptEvents);
    const int textHeight = fontMetrics().height();
    const int listHeight = leastRows * list.sizeHintForRow(0) + 2 * list.frameWidth();
    // What the label and the gaps take from a third of the height.
    const int around = 1000 - paneGeometry({0, 3000}, textHeight).palettes[0].list.height();
    int labelWidth = 0;
    for (const QLabel* label : d_->labels_) {
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    return {std::max(20 * textHeight, 3 * labelWidth), 3 * (listHeight + around)};
}

void EditorPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    d_->placeControls();
}

void EditorPane::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    d_->drawSeparator();
}

void EditorPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    d_->placeControls();
    updateGeometry();
}

}  // namespace quendra
