// The program's icons. The drawings carry no colours of their own: they take those of the
// application's palette at the moment of painting, so one drawing serves light and dark, selected
// and disabled rows, and every scale. What was rendered is kept, so a list may ask for an icon per
// row and repaint.
//
// These functions belong to the user-interface thread.
#pragma once

#include <QIcon>

namespace quendra {

// The icon of a bitmap id (see iconCatalogue), for list rows. Text colour with the accent where the
// drawing asks for it; highlighted-text colour for QIcon::Selected and the disabled text colour for
// QIcon::Disabled throughout. A null icon for an id without a drawing. The same id always gives the
// same icon.
[[nodiscard]] QIcon bitmapIcon(int bitmapId);

// The icon of one of the editor's commands (300..359), for toolbar buttons: as bitmapIcon, and
// wholly in the accent colour (hot) for QIcon::Active, which is how a flat tool button paints under
// the mouse. A menu paints its current item with QIcon::Active too, but on the highlight colour, so
// actions that use these icons should keep them out of menus (QAction::setIconVisibleInMenu). A
// null icon for any other id.
[[nodiscard]] QIcon toolbarIcon(int commandId);

// The program's own full-colour icon, for windows and the About box.
[[nodiscard]] QIcon programIcon();

}  // namespace quendra
