#include "widgets/radio_focus.h"

#include <QButtonGroup>
#include <QRadioButton>

#include <algorithm>
#include <map>
#include <vector>

namespace quendra {

void leadTabToChosenButtons(const QWidget& dialog) {
    // By their group, or the widget that they share.
    std::map<const QObject*, std::vector<QRadioButton*>> groups;
    for (auto* button : dialog.findChildren<QRadioButton*>()) {
        const QObject* group = button->group();
        groups[group != nullptr ? group : button->parentWidget()].push_back(button);
    }
    for (const auto& [group, buttons] : groups) {
        const auto chosen = std::ranges::find_if(
            buttons, [](const auto* button) { return button->isChecked() && button->isEnabled(); });
        for (QRadioButton* button : buttons) {
            const bool leads = chosen == buttons.end() || button == *chosen;
            button->setFocusPolicy(leads ? Qt::StrongFocus : Qt::ClickFocus);
        }
    }
}

}  // namespace quendra
