// Calls of the system that fail as a test wants them to: this program has them before the library.
#pragma once

#include <string_view>
#include <vector>

namespace quendra::test {

/// In place of an error: the process stops there until somebody goes on with it.
constexpr int stopsHere = -1;

struct FailingCall {
    std::string_view name;
    /// The first is 1; 0 stands for all.
    int which = 0;
    int error = 0;
};

/// Has these calls fail while it lives; at most one does at a time.
struct FailingCalls {
    explicit FailingCalls(const std::vector<FailingCall>& calls);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
};

}  // namespace quendra::test
