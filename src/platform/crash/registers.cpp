#include "platform/crash/record.h"
#include "platform/secret_memory.h"

#include <cstddef>
#include <cstring>
#include <sys/user.h>

namespace quendra {

#if defined(__x86_64__)

namespace {

constexpr greg_t pageFault = 14;
constexpr greg_t writeBit = 2;

user_regs_struct generalRegisters(const gregset_t& saved) {
    const auto reg = [&saved](int index) { return static_cast<unsigned long long>(saved[index]); };
    user_regs_struct general = {};
    general.r15 = reg(REG_R15);
    general.r14 = reg(REG_R14);
    general.r13 = reg(REG_R13);
    general.r12 = reg(REG_R12);
    general.rbp = reg(REG_RBP);
    general.rbx = reg(REG_RBX);
    general.r11 = reg(REG_R11);
    general.r10 = reg(REG_R10);
    general.r9 = reg(REG_R9);
    general.r8 = reg(REG_R8);
    general.rax = reg(REG_RAX);
    general.rcx = reg(REG_RCX);
    general.rdx = reg(REG_RDX);
    general.rsi = reg(REG_RSI);
    general.rdi = reg(REG_RDI);
    general.rip = reg(REG_RIP);
    general.eflags = reg(REG_EFL);
    general.rsp = reg(REG_RSP);
    // One word holds four selectors of 16 bits: code, gs, fs, stack.
    general.cs = reg(REG_CSGSFS) & 0xFFFFU;
    general.ss = reg(REG_CSGSFS) >> 48U;
    // The fault happened in no system call.
    general.orig_rax = ~0ULL;
    return general;
}

}  // namespace

FaultRegisters faultRegisters(const ucontext_t& context) noexcept {
    static_assert(sizeof(user_regs_struct) == sizeof(elf_gregset_t));
    const gregset_t& saved = context.uc_mcontext.gregs;
    FaultRegisters fault;
    fault.known = true;
    fault.instruction = static_cast<std::uintptr_t>(saved[REG_RIP]);
    fault.isWrite = saved[REG_TRAPNO] == pageFault && (saved[REG_ERR] & writeBit) != 0;
    const user_regs_struct general = generalRegisters(saved);
    std::memcpy(&fault.general, &general, sizeof(general));
    return fault;
}

void placeFaultRegisters(const FaultRegisters& fault, elf_gregset_t& general) {
    if (!fault.known) return;
    user_regs_struct now = {};
    user_regs_struct then = {};
    std::memcpy(&now, &general, sizeof(now));
    std::memcpy(&then, &fault.general, sizeof(then));
    then.fs_base = now.fs_base;
    then.gs_base = now.gs_base;
    then.ds = now.ds;
    then.es = now.es;
    then.fs = now.fs;
    then.gs = now.gs;
    std::memcpy(&general, &then, sizeof(then));
}

std::optional<std::uintptr_t> endOfStack(const elf_gregset_t& general) {
    // A function that calls no other may use that many bytes below the pointer.
    constexpr std::uintptr_t redZone = 128;
    user_regs_struct registers = {};
    std::memcpy(&registers, &general, sizeof(registers));
    return registers.rsp - redZone;
}

void wipeVectorRegisters(const ucontext_t& context) noexcept {
    // Behind the control words of the oldest part, and behind the header of the extended one, which
    // ends with a mark that has to stay.
    _libc_fpstate* const saved = context.uc_mcontext.fpregs;
    if (!saved) return;
    _fpx_sw_bytes extent = {};
    constexpr std::size_t extentAt = sizeof(*saved) - sizeof(extent);
    std::memcpy(&extent, reinterpret_cast<const std::byte*>(saved) + extentAt, sizeof(extent));
    wipeMemory(saved->_st, sizeof(saved->_st));
    wipeMemory(saved->_xmm, sizeof(saved->_xmm));
    constexpr std::size_t extendedAt = sizeof(*saved) + sizeof(_xsave_hdr);
    if (extent.magic1 == FP_XSTATE_MAGIC1 && extent.xstate_size > extendedAt) {
        wipeMemory(reinterpret_cast<std::byte*>(saved) + extendedAt,
                   extent.xstate_size - extendedAt);
    }
}

#else

FaultRegisters faultRegisters(const ucontext_t& /*context*/) noexcept {
    return {};
}

void placeFaultRegisters(const FaultRegisters& /*fault*/, elf_gregset_t& /*general*/) {}

std::optional<std::uintptr_t> endOfStack(const elf_gregset_t& /*general*/) {
    return std::nullopt;
}

void wipeVectorRegisters(const ucontext_t& /*context*/) noexcept {}

#endif

}  // namespace quendra
