// What a faulting process tells the reporter about itself.
#pragma once

#include <csignal>
#include <cstdint>
#include <optional>
#include <sys/procfs.h>
#include <sys/types.h>
#include <type_traits>
#include <ucontext.h>

namespace quendra {

/// The registers of a thread at the moment of its fault, as the system hands them to a signal
/// handler. Where this system's processor is not one whose saved form we know (x86-64), `known` is
/// false: a fault then counts as a read, its own address stands for the instruction's, and a dump
/// shows the thread inside the handler, from where debuggers find the fault's frame one further up.
struct FaultRegisters {
    bool known = false;
    bool isWrite = false;
    std::uintptr_t instruction = 0;
    elf_gregset_t general = {};
};

/// Safe to call in a signal handler.
[[nodiscard]] FaultRegisters faultRegisters(const ucontext_t& context) noexcept;

/// Puts registers of a fault over those that the thread has now, in the handler. What the system
/// does not save for a handler (the bases of the segments) stays.
void placeFaultRegisters(const FaultRegisters& fault, elf_gregset_t& general);

/// Where the stack of a thread with these registers ends: what lies below is left over from calls
/// that have returned. None where the processor's registers are not known.
[[nodiscard]] std::optional<std::uintptr_t> endOfStack(const elf_gregset_t& general);

/// Clears the floating-point and vector registers that the system saved for a signal handler:
/// strings and keys pass through them when they are copied, and stay. The thread goes on with
/// zeros when its handler returns. Safe to call in a signal handler.
void wipeVectorRegisters(const ucontext_t& context) noexcept;

/// Travels as its bytes from one process to another of the same program.
struct CrashRecord {
    static constexpr std::uint64_t currentMagic = 0x71647363'72617368;

    std::uint64_t magic = currentMagic;
    pid_t process = 0;
    pid_t thread = 0;
    siginfo_t signal = {};
    FaultRegisters registers;
    /// Where the process keeps the first of its secret marks; see secret_memory.h.
    std::uintptr_t secretMarks = 0;
};
static_assert(std::is_trivially_copyable_v<CrashRecord>);

}  // namespace quendra
