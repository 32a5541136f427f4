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

struct ListParts {
    StringId titleId;
    const char* listName;
    const char* labelName;
};
constexpr std::array<ListParts, 3> listParts = {
    {{textid::scriptEventsLabel, "scriptEventsList", "scriptEventsLabel"},
     {textid::luFunctionsLabel, "luFunctionsList", "luFunctionsLabel"},
     {textid::menuCommandsLabel, "menuCommandsList", "menuCommandsLabel"}}};

}  // namespace

ActionLists::ActionLists(ApplicationState& state, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("actionLists"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setRowStretch(1, 1);
    const std::array<PaletteModel*, 3> models = {
        new PaletteModel(scriptEventRows(), this),
        new PaletteModel(luFunctionRows(state.luCatalogues.of(state.currentHostType)), this),
        new PaletteModel(menuCommandRows(state.menuCommands), this)};
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        const QString title = qtText(libraryText(state.language, listParts[i].titleId));
        lists_[i] = addList(static_cast<ActionList>(i), title, models[i]);
        auto* label = new QLabel(title, this);
        label->setObjectName(QLatin1String(listParts[i].labelName));
        label->setBuddy(lists_[i]);
        const int column = static_cast<int>(i);
        grid->addWidget(label, 0, column);
        grid->addWidget(lists_[i], 1, column);
        grid->setColumnStretch(column, 1);
    }
}

PaneList* ActionLists::addList(ActionList number, const QString& title, QAbstractItemModel* model) {
    auto* list = new PaneList(this);
    list->setObjectName(QLatin1String(listParts[static_cast<std::size_t>(number)].listName));
    list->setAccessibleName(title);
    list->setModel(model);
    list->setMinimumSize(smallestListWidth, smallestListHeight);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this, number] { selectionChanged(number); });
    // Queued: a dialog opened in the middle of the double-click would swallow its release.
    connect(
        list, &QAbstractItemView::doubleClicked, this,
        [this, number](const QModelIndex& row) {
            Q_EMIT doubleClicked({number, row.row()});
        },
        Qt::QueuedConnection);
    return list;
}

void ActionLists::selectionChanged(ActionList number) {
    if (!list(number).selectionModel()->hasSelection()) return;
    active_ = number;
    for (PaneList* other : lists_) {
        if (other != lists_[static_cast<std::size_t>(number)]) other->clearSelection();
    }
}

ActionChoice ActionLists::choice() const {
    const auto rows = list(active_).selectedRows();
    return {active_, rows.empty() ? -1 : static_cast<int>(rows.front())};
}

void ActionLists::select(const ActionChoice& choice) {
    active_ = choice.list;
    for (PaneList* each : lists_) {
        each->clearSelection();
    }
    PaneList& shown = list(choice.list);
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
