#include "dialogs/action_lists.h"

#include "text/text_ids.h"
#include "widgets/palette_model.h"
#include "widgets/pane_list.h"
#include "widgets/ui_text.h"

#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>

namespace quendra {

namespace {

constexpr int listWidth = 230;
constexpr int smallestListWidth = 150;
constexpr int smallestListHeight = 140;
/// All Script Events without scrolling.
constexpr int shownRows = 20;

}  // namespace

ActionLists::ActionLists(ApplicationState& state, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("actionLists"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setRowStretch(1, 1);
    for (const Palette palette : allPalettes) {
        const auto i = static_cast<std::size_t>(palette);
        const QString title = qtText(libraryText(state.language, paletteInfo(palette).titleId));
        const LuCatalogue& luFunctions = state.luCatalogues.of(state.currentHostType);
        lists_[i] =
            addList(palette, title,
                    new PaletteModel(paletteRows(palette, luFunctions, state.menuCommands), this));
        auto* label = new QLabel(title, this);
        label->setObjectName(paletteObjectName(palette, "Label"));
        label->setBuddy(lists_[i]);
        const int column = static_cast<int>(i);
        grid->addWidget(label, 0, column);
        grid->addWidget(lists_[i], 1, column);
        grid->setColumnStretch(column, 1);
    }
}

PaneList* ActionLists::addList(Palette palette, const QString& title, QAbstractItemModel* model) {
    auto* list = new PaneList(this);
    list->setFindsAnywhere();
    list->setObjectName(paletteObjectName(palette, "List"));
    list->setAccessibleName(title);
    list->setModel(model);
    list->setMinimumSize(smallestListWidth, smallestListHeight);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, palette] { selectionChanged(palette); });
    // Queued: a dialog opened in the middle of the double-click would swallow its release.
    connect(
        list, &QAbstractItemView::doubleClicked, this,
        [this, palette](const QModelIndex& row) {
            Q_EMIT doubleClicked({palette, row.row()});
        },
        Qt::QueuedConnection);
    return list;
}

void ActionLists::selectionChanged(Palette palette) {
    if (!list(palette).selectionModel()->hasSelection()) return;
    active_ = palette;
    for (PaneList* other : lists_) {
        if (other != lists_[static_cast<std::size_t>(palette)]) other->clearSelection();
    }
}

PaletteChoice ActionLists::choice() const {
    const auto rows = list(active_).selectedRows();
    return {active_, rows.empty() ? -1 : static_cast<int>(rows.front())};
}

void ActionLists::select(const PaletteChoice& choice) {
    active_ = choice.palette;
    for (PaneList* each : lists_) {
        each->clearSelection();
    }
    PaneList& shown = list(choice.palette);
    shown.setCurrentIndex(shown.model()->index(choice.row, 0));
}

void ActionLists::focusActiveList() {
    list(active_).setFocus();
}

QSize ActionLists::sizeHint() const {
    const int rows = shownRows * lists_[0]->sizeHintForRow(0) + 2 * lists_[0]->frameWidth();
    const int spacing = layout()->spacing();
    const int titles = fontMetrics().height() + spacing;
    return {3 * listWidth + 2 * spacing, titles + rows};
}

void ActionLists::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Only now have the lists the heights that decide what is in sight.
    PaneList& shown = list(active_);
    if (shown.currentIndex().isValid()) shown.scrollTo(shown.currentIndex());
}

}  // namespace quendra
