#include "text/string_ids.h"

#include "text/text_ids.h"

namespace quendra {

std::span<const StringId> stringIds() {
    return textid::all;
}

}  // namespace quendra
