// Drawing the main window into a picture file: for the manual, and for looking at the window where
// there is no screen.
#pragma once

#include "widgets/appearance.h"

#include <QSize>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace quendra {

/// What the options --screenshot FILE, --size WxH, --scale N, --light and --dark ask for.
struct PictureOptions {
    /// Where the picture goes; empty when none is wanted.
    QString file;
    QSize size;
    /// Device pixels per unit, as text for the environment of the toolkit; empty for the screen's.
    std::string scale;
    Appearance appearance = Appearance::Platform;
};

/// Takes the options out of `arguments` (without the program's name); all others stay in their
/// order, as does whatever stands behind "--". None when an option lacks its value or has one that
/// makes no sense.
[[nodiscard]] std::optional<PictureOptions> takePictureOptions(std::vector<std::string>& arguments);

/// Has messages told on standard error from now on, and questions answered in the way that changes
/// nothing: a box would wait for somebody who only wants a picture.
void answerUnseenMessages();

/// Shows a window without a screen: as large as it is asked to be (`usualSize` where the options do
/// not say), whatever the screen and its window manager allow, and with the keyboard.
void showForPicture(QWidget& window, const PictureOptions& options, QSize usualSize);

/// Draws a window that is shown so into the file, in the format of the file's extension. False,
/// after telling why on standard error, when the file cannot be written.
[[nodiscard]] bool savePicture(QWidget& window, const PictureOptions& options);

}  // namespace quendra
