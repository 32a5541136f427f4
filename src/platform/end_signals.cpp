#include "platform/end_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace quendra {

namespace {

constexpr std::array endSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal handler reaches nothing but what is static.
volatile std::sig_atomic_t wakeUpDescriptor = -1;

void wakeUp(int) {
    const int error = errno;
    const std::uint64_t one = 1;
    // Nothing can be done about a failure here; the next signal ends the process.
    [[maybe_unused]] const ssize_t written = ::write(wakeUpDescriptor, &one, sizeof one);
    errno = error;
}

// Only where the present action is `from`.
void changeAction(int signal, void (*from)(int), void (*to)(int)) {
    struct sigaction action {};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler != from) return;
    action = {};
    action.sa_handler = to;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end)
    : wakeUp_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (!wakeUp_.isOpen()) return;
    notifier_ = std::make_unique<QSocketNotifier>(wakeUp_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [notifier = notifier_.get(), end = std::move(end)] {
                         notifier->setEnabled(false);
                         end();
                     });
    wakeUpDescriptor = wakeUp_.get();
    for (const int signal : endSignals)
        changeAction(signal, SIG_DFL, wakeUp);
}

EndSignals::~EndSignals() {
    for (const int signal : endSignals)
        changeAction(signal, wakeUp, SIG_DFL);
    wakeUpDescriptor = -1;
}

}  // namespace quendra
