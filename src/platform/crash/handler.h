// The faulting side of crash reporting: from a deadly signal to a reporter process, and on to the
// system's own handling of that signal.
#pragma once

#include "platform/crash/record.h"

#include <optional>
#include <string>
#include <vector>

namespace quendra {

/// Makes this process report SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP and SIGSYS, on a
/// stack of its own for the calling thread. A signal that already has a handler (a sanitizer's), or
/// is ignored, is left alone. Called once.
///
/// At the first fault the program file of this process is started again with `reporterArguments`
/// (the program's name first), this process's variables as they are now, and one end of a socket as
/// its standard input; see takeCrashRecord(). No other descriptor but output and error reaches it.
/// When it ends, this process dies of the signal that it got, with the system's handling of that
/// signal, but without a core file: that would hold hidden texts. Threads that fault meanwhile wait
/// for that; other threads go on. SIGQUIT, SIGXCPU and SIGXFSZ are no faults and are not reported;
/// they end the process without a core file too.
void installCrashHandler(const std::vector<std::string>& reporterArguments);

/// Gives the calling thread a signal stack of its own as long as it runs, so that even an
/// overflown stack is reported. Without one a thread reports its other faults on the stack that it
/// has. Throws std::bad_alloc.
void useOwnSignalStack();

/// In the reporter: what the process that crashed says. None when this process was not started by
/// one. That process waits until this one ends; children of this one do not prolong it.
[[nodiscard]] std::optional<CrashRecord> takeCrashRecord();

}  // namespace quendra
