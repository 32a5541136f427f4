// What is checked of every dialog's look, and pictures for those who want to see.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace quendra::test {

/// Of what shows, no key belongs to two captions, none leads nowhere, and those of labels, check
/// boxes and radio buttons lead to their fields, which are changed by that.
void expectMnemonicsThatWork(const QWidget& dialog);
/// Every visible label and button has a name and its text whole. Those that cut their text
/// themselves are `eliding` (object names, parted by blanks).
void expectWholeTexts(const QWidget& dialog, const std::string& eliding = {});

/// QUENDRA_PICTURES names a folder.
[[nodiscard]] bool wantsPictures();
/// Calls `draw` with the palette of each appearance, which it names.
void forLightAndDark(const std::function<void(const std::string& appearance)>& draw);
/// Saves a picture of the widget there, under `name`.
void savePicture(QWidget& widget, const std::string& name);

}  // namespace quendra::test
