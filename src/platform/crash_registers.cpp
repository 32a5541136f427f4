#include "platform/crash_record.h"

#include <bit>
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
    static_assert(sizeof(*context.uc_mcontext.fpregs) == sizeof(elf_fpregset_t));
    const gregset_t& saved = context.uc_mcontext.gregs;
    FaultRegisters fault;
    fault.known = true;
    fault.instruction = static_cast<std::uintptr_t>(saved[REG_RIP]);
    fault.isWrite = saved[REG_TRAPNO] == pageFault && (saved[REG_ERR] & writeBit) != 0;
    const user_regs_struct general = generalRegisters(saved);
    std::memcpy(&fault.general, &general, sizeof(general));
    if (context.uc_mcontext.fpregs) {
        std::memcpy(&fault.floating, context.uc_mcontext.fpregs, sizeof(fault.floating));
    }
    return fault;
}

void placeFaultRegisters(const FaultRegisters& fault, elf_gregset_t& general,
                         elf_fpregset_t& floating) {
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
    floating = fault.floating;
}

#else

FaultRegisters faultRegisters(const ucontext_t& /*context*/) noexcept {
    return {};
}

void placeFaultRegisters(const FaultRegisters& /*fault*/, elf_gregset_t& /*general*/,
                         elf_fpregset_t& /*floating*/) {}

#endif

}  // namespace quendra
