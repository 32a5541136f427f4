#include "app/pane/pane_lists.h"

#include "app/pane/pane_layout.h"
#include "app/pane/script_list_model.h"
#include "widgets/palette_model.h"
#include "widgets/pane_list.h"
#include "text/text_ids.h"

#include <QLabel>

#include <algorithm>

namespace quendra {
namespace {

struct PaletteParts {
    StringId labelId;
    const char* labelName;
    const char* listName;
};
constexpr std::array<PaletteParts, PaneLists::paletteCount> paletteParts = {
    {{textid::scriptEventsLabel, "scriptEventsLabel", "scriptEventsPalette"},
     {textid::luFunctionsLabel, "luFunctionsLabel", "luFunctionsPalette"},
     {textid::menuCommandsLabel, "menuCommandsLabel", "menuCommandsPalette"}}};

std::vector<PaletteRow> currentLuFunctions(const ApplicationState& state) {
    return luFunctionRows(state.luCatalogues.of(state.currentHostType));
}

}  // namespace

PaneLists::PaneLists(QWidget& pane, ApplicationState& state)
    : pane_(pane),
      state_(state),
      scriptModel_(new ScriptListModel(state, &pane)),
      luModel_(new PaletteModel(currentLuFunctions(state), &pane)) {
    lists_[0] =
        addList("scriptList", QString::fromStdString(state.language.loadText(textid::scriptListName)), scriptModel_);
    lists_[0]->setSelectionMode(QAbstractItemView::ExtendedSelection);
    addPalette(Palette::ScriptEvents, new PaletteModel(scriptEventRows(), &pane));
    addPalette(Palette::LuFunctions, luModel_);
    addPalette(Palette::MenuCommands, new PaletteModel(menuCommandRows(state.menuCommands), &pane));
    for (std::size_t i = 1; i < lists_.size(); ++i) {
        QWidget::setTabOrder(lists_[i - 1], lists_[i]);
    }
}

PaneList* PaneLists::addList(const char* name, const QString& accessibleName,
                             QAbstractItemModel* model) {
    auto* list = new PaneList(&pane_);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    list->setModel(model);
    return list;
}

void PaneLists::addPalette(Palette palette, PaletteModel* model) {
    const auto number = static_cast<std::size_t>(palette);
    const PaletteParts& parts = paletteParts[number];
    const QString text = QString::fromStdString(state_.language.loadText(parts.labelId));
    PaneList* list = addList(parts.listName, text, model);
    auto* label = new QLabel(text, &pane_);
    label->setObjectName(QLatin1String(parts.labelName));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(list);
    labels_[number] = label;
    lists_[1 + number] = list;
}

std::size_t PaneLists::numberOf(const QObject* list) const {
    return static_cast<std::size_t>(std::ranges::find(lists_, list) - lists_.begin());
}

void PaneLists::refillLuFunctions() {
    luModel_->setRows(currentLuFunctions(state_));
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
