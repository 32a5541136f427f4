// Getting the keyboard for a window when another program asks for it.
#pragma once

#include <string>

class QWidget;

namespace quendra {

/// Brings a shown window in front of all others and asks for the keyboard. A desktop grants that to
/// whoever the user is working with, and otherwise by a token: what the started program found in
/// XDG_ACTIVATION_TOKEN or DESKTOP_STARTUP_ID. Empty, or not understood, it asks without.
void bringToFront(QWidget& window, const std::string& token);

}  // namespace quendra
