// A plain pane that shows the lists.
#include "app/editor_pane.h"

#include "app/symbol_icon.h"
#include "app/ui_text.h"
#include "scriptfile/entry_codec.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace quendra {

class EditorPane::Private {
  public:
    ApplicationState& state;
    QListView* lists[4] = {};
    QStandardItemModel* models[4] = {};
};

EditorPane::EditorPane(ApplicationState& state, QWidget* parent)
    : QWidget(parent), d_(new Private{state}) {
    auto* row = new QHBoxLayout(this);
    auto* column = new QVBoxLayout;
    const char* names[] = {"scriptList", "scriptEventsPalette", "luFunctionsPalette",
                           "menuCommandsPalette"};
    for (int i = 0; i < 4; ++i) {
        d_->lists[i] = new QListView;
        d_->lists[i]->setObjectName(QLatin1String(names[i]));
        d_->lists[i]->setAccessibleName(QLatin1String(names[i]));
        d_->models[i] = new QStandardItemModel(this);
        d_->lists[i]->setModel(d_->models[i]);
        d_->lists[i]->setUniformItemSizes(true);
        d_->lists[i]->setEditTriggers(QAbstractItemView::NoEditTriggers);
        connect(d_->lists[i]->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &EditorPane::selectionChanged);
        if (i == 0) {
            d_->lists[i]->setSelectionMode(QAbstractItemView::ExtendedSelection);
            row->addWidget(d_->lists[i], 2);
            row->addLayout(column, 1);
            connect(d_->lists[0]->selectionModel(), &QItemSelectionModel::currentChanged, this,
                    [this] {
                        d_->state.currentIndex = focusedEntry();
                        Q_EMIT selectionChanged();
                    });
            continue;
        }
        column->addWidget(new QLabel(qtText(libraryText(state.language, 11202 + i))));
        column->addWidget(d_->lists[i]);
    }
    const auto add = [this](int list, const QString& text, int icon) {
        d_->models[list]->appendRow(new QStandardItem(bitmapIcon(icon), text));
    };
    for (const auto& event : scriptEvents())
        add(1, qtText(event.keyword), event.bitmapId);
    for (std::size_t i = 0; i < menuCommandCount; ++i)
        add(3, qtText(state.menuCommands.names[i]), static_cast<int>(201 + i));
    refillLuPalette();
}

EditorPane::~EditorPane() {
    delete d_;
}

void EditorPane::rebuildScriptList() {
    const int wanted = d_->state.currentIndex;
    d_->models[0]->clear();
    for (const auto& handle : d_->state.script.entries) {
        const auto entry = unpackEntry(handle, d_->state.cipher);
        d_->models[0]->appendRow(
            new QStandardItem(qtText(formatEntryLine(entry, d_->state.displayNames()))));
    }
    d_->state.currentIndex = wanted;
    if (wanted >= 0) d_->lists[0]->setCurrentIndex(d_->models[0]->index(wanted, 0));
}

void EditorPane::refillLuPalette() {
    d_->models[2]->clear();
    for (const auto& row : d_->state.luCatalogues.of(d_->state.currentHostType).rows) {
        d_->models[2]->appendRow(new QStandardItem(bitmapIcon(103), qtText(row.name)));
    }
}

std::vector<std::size_t> EditorPane::selectedEntries() const {
    std::vector<std::size_t> rows;
    for (const auto& index : d_->lists[0]->selectionModel()->selectedIndexes())
        rows.push_back(static_cast<std::size_t>(index.row()));
    std::sort(rows.begin(), rows.end());
    return rows;
}

int EditorPane::focusedEntry() const {
    return d_->lists[0]->currentIndex().row();
}

void EditorPane::selectEntries(std::span<const std::size_t> entries, int focused) {
    QItemSelection selection;
    for (const auto entry : entries) {
        const auto index = d_->models[0]->index(static_cast<int>(entry), 0);
        selection.select(index, index);
    }
    d_->lists[0]->selectionModel()->setCurrentIndex(d_->models[0]->index(focused, 0),
                                                    QItemSelectionModel::NoUpdate);
    d_->lists[0]->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

int EditorPane::selectedRow(Palette palette) const {
    const auto rows = d_->lists[1 + static_cast<int>(palette)]->selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.front().row();
}

QString EditorPane::paletteText(Palette palette, int row) const {
    return d_->models[1 + static_cast<int>(palette)]->item(row)->text();
}

QString EditorPane::entryText(int entry) const {
    return d_->models[0]->item(entry)->text();
}

void EditorPane::takeFocus() {
    d_->lists[0]->setFocus();
}

}  // namespace quendra
