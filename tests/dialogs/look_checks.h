// What is checked of every dialog's look.
#pragma once

#include <string>

class QWidget;

namespace quendra::test {

/// Of what shows, no key belongs to two captions, none leads nowhere, and those of labels, check
/// boxes and radio buttons lead to their fields, which are changed by that and come into sight.
void expectMnemonicsThatWork(const QWidget& dialog);
/// However small the screen is, OK and Cancel are on it.
void expectToFitItsScreen(const QWidget& dialog);
/// Every visible label and button has a name and its text whole. Those that cut their text
/// themselves are `eliding` (object names, parted by blanks).
void expectWholeTexts(const QWidget& dialog, const std::string& eliding = {});

}  // namespace quendra::test
