#include "platform/crash/fault.h"

namespace quendra {

namespace {

constexpr std::uint32_t customerCodes = 0xE0000000;

struct StatusCode {
    int signal;
    /// 0 for any reason that has no row of its own before.
    int reason;
    std::uint32_t code;
};

constexpr StatusCode statusCodes[] = {
    {SIGSEGV, 0, accessViolation},     {SIGBUS, BUS_ADRALN, 0x80000002},  // misaligned data
    {SIGBUS, 0, 0xC0000006},  // a page that could not be brought in
    {SIGFPE, FPE_INTDIV, 0xC0000094},  {SIGFPE, FPE_INTOVF, 0xC0000095},
    {SIGFPE, FPE_FLTDIV, 0xC000008E},  {SIGFPE, FPE_FLTOVF, 0xC0000091},
    {SIGFPE, FPE_FLTUND, 0xC0000093},  {SIGFPE, FPE_FLTRES, 0xC000008F},
    {SIGFPE, FPE_FLTINV, 0xC0000090},  {SIGFPE, FPE_FLTSUB, 0xC000008C},
    {SIGILL, ILL_PRVOPC, 0xC0000096},  // privileged instruction
    {SIGILL, ILL_PRVREG, 0xC0000096},  {SIGILL, 0, 0xC000001D},
    {SIGTRAP, TRAP_TRACE, 0x80000004},  // single step
    {SIGTRAP, 0, 0x80000003},           // breakpoint
};

std::uint32_t statusCode(const siginfo_t& signal) {
    if (signal.si_signo == SIGABRT) return 0x40000015;
    // A positive reason is the system's own; any other says that some process sent the signal.
    for (const StatusCode& row : statusCodes) {
        if (signal.si_code <= 0 || row.signal != signal.si_signo) continue;
        if (row.reason == 0 || row.reason == signal.si_code) return row.code;
    }
    return customerCodes + static_cast<std::uint32_t>(signal.si_signo);
}

// Of an address that no pointer can have the processor tells nothing but that.
std::uintptr_t accessedAddress(const siginfo_t& signal) {
    if (signal.si_code == SI_KERNEL) return ~std::uintptr_t{0};
    return reinterpret_cast<std::uintptr_t>(signal.si_addr);
}

}  // namespace

Fault faultOf(const CrashRecord& record) {
    Fault fault;
    fault.code = statusCode(record.signal);
    if (record.registers.known) {
        fault.address = record.registers.instruction;
    } else if (record.signal.si_code > 0) {
        fault.address = reinterpret_cast<std::uintptr_t>(record.signal.si_addr);
    }
    if (fault.code == accessViolation) {
        fault.access = {record.registers.isWrite, accessedAddress(record.signal)};
    }
    return fault;
}

}  // namespace quendra
