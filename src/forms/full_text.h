// The full text form of a script, for review: the lines of the script list, and below each the
// fields that it does not tell.
//
//     hostType Mainframe
//     Wait_For "READY" If Found Then Goto main
//         hasTimeout 1
//         timeoutSeconds 30
//
// Two scripts print alike only when a file would store them alike, so that no change hides; and a
// change of one field changes at most two lines. Entries have no numbers, for an insert would move
// them all.
#pragma once

#include "analysis/entry_display.h"
#include "hosts/host_type.h"
#include "model/script.h"
#include "scriptfile/hidden_text.h"

#include <iosfwd>

namespace quendra {

/// Prints the form. Of a hidden text only the first digits of a fingerprint of its enciphered bytes
/// are printed; the cipher is for the asterisks of the lines.
void printFullText(std::ostream& out, const Script& script, HostType hostType,
                   const DisplayNames& names, const HiddenTextCipher& cipher);

}  // namespace quendra
