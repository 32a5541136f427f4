// The one line that an entry shows in the script list, and the action lines of the dialogs.
#pragma once

#include "hosts/host_type.h"
#include "hosts/lu_catalogue.h"
#include "model/menu_commands.h"
#include "model/script.h"
#include "model/script_entry.h"
#include "scriptfile/hidden_text.h"
#include "transfer/command_builder.h"

#include <optional>
#include <string>

namespace quendra {

/// What display text depends on beside the entry. The catalogues outlive it.
struct DisplayNames {
    const LuCatalogue& luFunctions;
    const MenuCommandCatalogue& menuCommands;
    /// Hidden texts show as they are, for whoever asks for them in so many words.
    bool revealHidden = false;
};

/// The line of an entry in UTF-8, of any length and with any control characters that its texts
/// hold. A hidden text shows as one asterisk per character unless
/// `names` reveals it; an LU key that the host type lacks as "<Lu Function 4/31>"; an entry without
/// a command as the empty line.
[[nodiscard]] std::string formatEntryLine(const ScriptEntry& entry, const DisplayNames& names);

/// Whether the line shows a hidden text as if it were empty, because the present key does not open
/// it.
[[nodiscard]] bool showsSealedText(const ScriptEntry& entry);

/// The two action lines of the Wait_For and If_Input_Is dialogs.
struct ActionSummaries {
    /// "If Found Then " or "If Equal Then " and the then action's line, or the prefix alone.
    std::string thenLine;
    /// "If Not Found Then " or "If Not Equal Then " and the line; none when no else action is
    /// chosen, and then the dialog leaves its text as it is.
    std::optional<std::string> elseLine;
};
[[nodiscard]] ActionSummaries actionSummaries(const ScriptEntry& entry, bool isCompare,
                                              const DisplayNames& names);

/// The settings of the last file transfer that the lines of this script show, actions included:
/// what a new transfer starts from once the list has been shown. None when no line shows a
/// transfer.
[[nodiscard]] std::optional<TransferInputs> lastTransferShown(const Script& script,
                                                              const HiddenTextCipher& cipher);

}  // namespace quendra
