#include "app/command_menu.h"

#include "widgets/ui_text.h"

#include <QAction>
#include <QStyleOption>

#include <algorithm>

namespace quendra {

namespace {

constexpr const char* blanksProperty = "blanksBefore";

}  // namespace

void setMenuText(QAction& action, const std::string& menuText) {
    const QString text = qtText(menuText).section(u'\t', 0, 0);
    const auto word = std::ranges::find_if_not(text, [](QChar c) { return c.isSpace(); });
    const auto blanks = word - text.begin();
    action.setProperty(blanksProperty, text.first(blanks));
    action.setText(text.sliced(blanks));
}

void CommandMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenu::initStyleOption(option, action);
    option->text.prepend(action->property(blanksProperty).toString());
}

}  // namespace quendra
