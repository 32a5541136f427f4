// The menus of the menu bar: what they show is the language's, what screen readers say is not
// cluttered by it.
#pragma once

#include <QMenu>

#include <string>

namespace quendra {

/// Gives an action the menu text of a command, in UTF-8. What screen readers say of an item is its
/// action's text, so that is without the blanks that stand before it and without the keys behind a
/// tab: the action's shortcut tells those.
void setMenuText(QAction& action, const std::string& menuText);

/// Shows texts with the blanks that setMenuText took away.
class CommandMenu : public QMenu {
    Q_OBJECT

  public:
    using QMenu::QMenu;

  protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
};

}  // namespace quendra
