// The one way in which the editor asks and refuses. Everything that shows a message box goes
// through here, so tests can answer and record instead.
#pragma once

#include "platform/message.h"

#include <functional>

class QWidget;

namespace quendra {

/// Shows a message over `owner` (none: on its own, where the screen's middle is), in the
/// foreground, and gives the answer. Closing the box answers Cancel where there is Cancel, else No,
/// else Ok.
[[nodiscard]] MessageAnswer askMessage(QWidget* owner, const Message& message);

/// The same for a message that has nothing to answer.
void showMessage(QWidget* owner, const Message& message);

/// Puts `handler` in the place of the message box and gives what was there; an empty one stands for
/// the box itself.
using MessageHandler = std::function<MessageAnswer(QWidget* owner, const Message& message)>;
MessageHandler replaceMessageHandler(MessageHandler handler);

}  // namespace quendra
