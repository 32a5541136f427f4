// qds texts: every text that the program asks the language library for.

#include "cli/qds.h"
#include "text/string_ids.h"
#include "text/text_encoding.h"

namespace quendra::cli {

int printTexts(Environment& environment) {
    EntryNames names(environment, NamesFor::User);
    for (const StringId id : stringIds()) {
        environment.out << id << '\t' << escapeControlCharacters(names.library.loadText(id))
                        << '\n';
    }
    return names.isLoaded ? statusWell : statusRefused;
}

}  // namespace quendra::cli
