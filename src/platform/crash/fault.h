// What went wrong, in the numbers by which faults are known to those who read the messages.
#pragma once

#include "platform/crash/record.h"

#include <cstdint>
#include <optional>

namespace quendra {

inline constexpr std::uint32_t accessViolation = 0xC0000005;

struct Fault {
    struct Access {
        bool isWrite = false;
        std::uintptr_t address = 0;
    };

    /// A status code of the NT family.
    std::uint32_t code = 0;
    /// The instruction that faulted.
    std::uintptr_t address = 0;
    /// Of an access violation only.
    std::optional<Access> access;
};

/// The fault behind a signal. A signal that somebody sent, and a trap that no status code is made
/// for, gives the customer's code 0xE0000000 plus the signal's number, so that no sent signal looks
/// like a fault of the program. SIGABRT (abort, a failed assertion, an exception that nobody
/// caught) is 0x40000015, "fatal application exit": the program itself chose to end.
[[nodiscard]] Fault faultOf(const CrashRecord& record);

}  // namespace quendra
