// What the mnemonics of a dialog's buttons do.
#pragma once

class QWidget;

namespace quendra {

/// Makes every button that is in the dialog now act at once when its mnemonic is typed. Left to
/// itself it looks pressed for a tenth of a second first, and what a quick hand types in that time
/// goes to a field that is about to change, or to a dialog that is about to be covered.
void actAtOnceOnMnemonics(QWidget& dialog);

}  // namespace quendra
