#include "app/pane/pane_lists.h"

#include "app/pane/pane_layout.h"
#include "app/pane/script_list_model.h"
#include "text/text_ids.h"
#include "widgets/palette_model.h"
#include "widgets/pane_list.h"

#include <QLabel>

#include <algorithm>

namespace quendra {
namespace {

std::vector<PaletteRow> rowsOf(const ApplicationState& state, Palette palette) {
    return paletteRows(palette, state.luCatalogues.of(state.currentHostType), state.menuCommands);
}

}  // namespace

PaneLists::PaneLists(QWidget& pane, ApplicationState& state)
    : pane_(pane),
      state_(state),
      scriptModel_(new ScriptListModel(state, &pane)),
      luModel_(new PaletteModel(rowsOf(state, Palette::LuFunctions), &pane)) {
    lists_[0] = addList(QStringLiteral("scriptList"),
                        QString::fromStdString(state.language.loadText(textid::scriptListName)),
                        scriptModel_);
    lists_[0]->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const Palette palette : allPalettes) {
        const bool changes = palette == Palette::LuFunctions;
        addPalette(palette, changes ? luModel_ : new PaletteModel(rowsOf(state, palette), &pane));
    }
    for (std::size_t i = 1; i < lists_.size(); ++i) {
        QWidget::setTabOrder(lists_[i - 1], lists_[i]);
    }
}

PaneList* PaneLists::addList(const QString& name, const QString& accessibleName,
                             QAbstractItemModel* model) {
    auto* list = new PaneList(&pane_);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setModel(model);
    return list;
}

void PaneLists::addPalette(Palette palette, PaletteModel* model) {
    const auto number = static_cast<std::size_t>(palette);
    const QString text =
        QString::fromStdString(state_.language.loadText(paletteInfo(palette).titleId));
    PaneList* list = addList(paletteObjectName(palette, "Palette"), text, model);
    auto* label = new QLabel(text, &pane_);
    label->setObjectName(paletteObjectName(palette, "Label"));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(list);
    list->setFindsAnywhere();
    labels_[number] = label;
    lists_[1 + number] = list;
}

std::size_t PaneLists::numberOf(const QObject* list) const {
    return static_cast<std::size_t>(std::ranges::find(lists_, list) - lists_.begin());
}

void PaneLists::refillLuFunctions() {
    luModel_->setRows(rowsOf(state_, Palette::LuFunctions));
}

void PaneLists::place() {
    const PaneGeometry geometry = paneGeometry(pane_.size(), pane_.fontMetrics().height());
    lists_[0]->setGeometry(geometry.scriptList);
    for (std::size_t i = 0; i < paletteCount; ++i) {
        labels_[i]->setGeometry(geometry.palettes[i].label);
        lists_[1 + i]->setGeometry(geometry.palettes[i].list);
    }
}

QSize PaneLists::leastSize() const {
    constexpr int leastRows = 3;
    const PaneList& list = of(Palette::ScriptEvents);
    const int textHeight = pane_.fontMetrics().height();
    const int listHeight = leastRows * list.sizeHintForRow(0) + 2 * list.frameWidth();
    // What the label and the gaps take from a third of the height.
    const int around = 1000 - paneGeometry({0, 3000}, textHeight).palettes[0].list.height();
    int labelWidth = 0;
    for (const QLabel* label : labels_) {
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    return {std::max(20 * textHeight, 3 * labelWidth), 3 * (listHeight + around)};
}

}  // namespace quendra
