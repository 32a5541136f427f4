// What the program asks and tells the user, as a value; who shows it is another's affair.
#pragma once

#include <cstdint>
#include <string>

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

}  // namespace quendra
