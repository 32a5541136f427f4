#include "text/format_text.h"

namespace quendra {

std::string formatText(std::string_view format, std::initializer_list<std::string> args) {
    std::string text;
    auto arg = args.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char kind = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
        if (kind == '%') {
            text += '%';
            ++i;
        } else if ((kind == 's' || kind == 'd' || kind == 'u') && arg != args.end()) {
            text += *arg++;
            ++i;
        } else {
            text += format[i];
        }
    }
    return text;
}

}  // namespace quendra
