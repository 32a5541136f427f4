// The system's request to end, while an event loop runs.
#include "app/end_signals.h"

#include <QCoreApplication>

#include <csignal>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

void (*actionOf(int signal))(int) {
    struct sigaction action {};
    EXPECT_EQ(::sigaction(signal, nullptr, &action), 0);
    return action.sa_handler;
}

TEST(EndSignalsTest, EndOnceFromTheEventLoopAndThenAtOnce) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        int ended = 0;
        const EndSignals signals([&ended] { ++ended; });
        ASSERT_NE(actionOf(signal), SIG_DFL);
        ::raise(signal);
        EXPECT_EQ(ended, 0) << "a signal handler is no place to work in";
        QCoreApplication::processEvents();
        EXPECT_EQ(actionOf(signal), SIG_DFL) << "the next one ends a program that hangs";
        QCoreApplication::processEvents();
        EXPECT_EQ(ended, 1);
    }
}

TEST(EndSignalsTest, LeaveASignalAloneThatIsIgnored) {
    ::signal(SIGHUP, SIG_IGN);
    {
        const EndSignals signals([] { FAIL(); });
        ::raise(SIGHUP);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(actionOf(SIGTERM), SIG_DFL);
}

}  // namespace
}  // namespace quendra::test
