// The one way in which the editor asks and refuses. Everything that shows a message box goes
// through here, so tests can answer and record instead.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class QWidget;

namespace quendra {

enum class MessageIcon : std::uint8_t { Information, Question, Exclamation, Stop };
enum class MessageButtons : std::uint8_t { Ok, YesNo, YesNoCancel };
enum class MessageAnswer : std::uint8_t { Ok, Yes, No, Cancel };

/// A message in UTF-8, shown as plain text whatever it holds.
struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::Information;
    MessageButtons buttons = MessageButtons::Ok;
    /// Return alone answers No: for questions where Yes gives something up.
    bool defaultsToNo = false;
};

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
