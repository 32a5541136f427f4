// The signals by which a system asks a program to end: at the end of a session, at a shutdown, when
// its terminal closes.
#pragma once

#include "platform/descriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace quendra {

/// Turns the first SIGTERM, SIGHUP or SIGINT into a call of `end` from the event loop, while it
/// lives; at most one does at a time. A second signal of the kind ends the process at once, so that
/// one that hangs can still be ended, and a signal that was ignored before (nohup) stays ignored.
class EndSignals {
  public:
    explicit EndSignals(std::function<void()> end);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    Descriptor wakeUp_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quendra
