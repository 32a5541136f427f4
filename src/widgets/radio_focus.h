// The Tab key among radio buttons.
#pragma once

class QWidget;

namespace quendra {

/// Of each group of radio buttons in the dialog, leaves to the Tab key the chosen one only, or all
/// where none is chosen or the chosen one is off. The toolkit would lead to the first one of them.
void leadTabToChosenButtons(const QWidget& dialog);

}  // namespace quendra
