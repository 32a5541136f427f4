#include "cli/loss_report.h"

#include "analysis/entry_display.h"
#include "platform/registry.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_writer.h"
#include "text/text_encoding.h"

namespace quendra::cli {

bool reportLoss(Environment& environment, const std::string& file, const Script& script,
                HostType source, HostType target) {
    const auto indexes = unstorableEntries(script, target);
    if (indexes.empty()) return false;
    const EntryNames names(environment, NamesFor::User);
    const HiddenTextCipher cipher(userIdentity());
    const DisplayNames display = {names.luFunctions.of(source), names.menuCommands};
    for (const std::size_t index : indexes) {
        const std::string line =
            formatEntryLine(unpackEntry(script.entries[index], cipher), display);
        report(environment, file,
               "entry " + std::to_string(index + 1) + " cannot be stored in a " +
                   std::string(hostTypeInfo(target).name) +
                   " script: " + escapeControlCharacters(line));
    }
    return true;
}

}  // namespace quendra::cli
