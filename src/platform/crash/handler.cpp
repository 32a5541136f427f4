#include "platform/crash/handler.h"

#include "platform/descriptor.h"
#include "platform/secret_memory.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quendra {

namespace {

constexpr std::array reportedSignals = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS};
// No faults of this program, but the system writes a core file for them too.
constexpr std::array coreSignals = {SIGQUIT, SIGXCPU, SIGXFSZ};
constexpr const char* programFile = "/proc/self/exe";
constexpr std::size_t signalStackSize = std::size_t{128} * 1024;
constexpr unsigned int waitSeconds = 10;

// Made when there is still memory and descriptors to make it from, for a handler can get neither.
struct Reporting {
    std::vector<std::string> strings;
    std::vector<char*> arguments;
    std::vector<char*> environment;
    int ourEnd = -1;
    int reportersEnd = -1;
    CrashRecord record;
    std::atomic_flag inProgress;
};

Reporting* reporting = nullptr;

[[noreturn]] void becomeReporter() {
    ::dup2(reporting->reportersEnd, STDIN_FILENO);
    ::syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0U);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::execve(programFile, reporting->arguments.data(), reporting->environment.data());
    ::_exit(127);
}

// The socket ends when the reporter does. Its process id would be no good to wait for: whoever else
// waits for children may have taken it away.
void waitForEnd(int socket) {
    for (;;) {
        char byte = 0;
        const ssize_t got = ::read(socket, &byte, 1);
        if (got == 0 || (got < 0 && errno != EINTR)) return;
    }
}

// The system's own core file has what ours leaves out, and goes wherever the machine's settings
// send it. While none may be made the system lets no reporter look in either.
void allowCoreFile(bool allowed) {
    ::prctl(PR_SET_DUMPABLE, allowed ? 1 : 0, 0, 0, 0);
}

void runReporter() {
    // fork() would wait for locks that the faulting thread may hold.
    const pid_t reporter = ::_Fork();
    if (reporter == 0) becomeReporter();
    ::close(reporting->reportersEnd);
    if (reporter < 0) return;
    // Where only ancestors may look into a process, the reporter is let in before it is told whom
    // to look into.
    ::prctl(PR_SET_PTRACER, reporter, 0, 0, 0);
    allowCoreFile(true);
    const CrashRecord& record = reporting->record;
    if (::send(reporting->ourEnd, &record, sizeof(record), MSG_NOSIGNAL) == sizeof(record)) {
        waitForEnd(reporting->ourEnd);
    }
}

// The signal as it came, once more, and with nothing in its way but this handler's mask: it ends
// the process in the state of the fault as soon as the handler returns.
void dieOfSignal(siginfo_t* info) {
    const int signal = info->si_signo;
    allowCoreFile(false);
    wipeMarkedMemory();
    struct sigaction usual = {};
    usual.sa_handler = SIG_DFL;
    ::sigaction(signal, &usual, nullptr);
    const auto thread = ::gettid();
    if (::syscall(SYS_rt_tgsigqueueinfo, ::getpid(), thread, signal, info) != 0) {
        ::syscall(SYS_tgkill, ::getpid(), thread, signal);
    }
}

void onFault(int /*signal*/, siginfo_t* info, void* context) {
    const int error = errno;
    // From here on also for a fault in this handler.
    allowCoreFile(false);
    wipeVectorRegisters(*static_cast<const ucontext_t*>(context));
    if (reporting->inProgress.test_and_set()) {
        for (;;)
            ::sleep(waitSeconds);
    }
    // Of the calling thread; only the privileged may.
    ::setpriority(PRIO_PROCESS, 0, -20);
    CrashRecord& record = reporting->record;
    record.process = ::getpid();
    record.thread = ::gettid();
    record.signal = *info;
    record.registers = faultRegisters(*static_cast<const ucontext_t*>(context));
    record.secretMarks = SecretMark::listAddress();
    runReporter();
    dieOfSignal(info);
    errno = error;
}

void onCoreSignal(int /*signal*/, siginfo_t* info, void* /*context*/) {
    const int error = errno;
    dieOfSignal(info);
    errno = error;
}

class SignalStack {
  public:
    SignalStack()
        : memory_(static_cast<std::byte*>(mmap(nullptr, guardSize + signalStackSize,
                                               PROT_READ | PROT_WRITE,
                                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0))) {
        if (memory_ == MAP_FAILED) throw std::bad_alloc();
        // Nobody else's memory then lies right below it.
        mprotect(memory_, guardSize, PROT_NONE);
        const stack_t stack = {
            .ss_sp = memory_ + guardSize, .ss_flags = 0, .ss_size = signalStackSize};
        ::sigaltstack(&stack, &before_);
    }
    ~SignalStack() {
        ::sigaltstack(&before_, nullptr);
        munmap(memory_, guardSize + signalStackSize);
    }
    SignalStack(const SignalStack&) = delete;
    SignalStack& operator=(const SignalStack&) = delete;

  private:
    static constexpr std::size_t guardSize = std::size_t{64} * 1024;
    std::byte* memory_;
    stack_t before_ = {};
};

std::vector<char*> pointersTo(std::vector<std::string>::iterator begin,
                              std::vector<std::string>::iterator end) {
    std::vector<char*> pointers;
    for (auto text = begin; text != end; ++text)
        pointers.push_back(text->data());
    pointers.push_back(nullptr);
    return pointers;
}

// Descriptors above the three that every program has, whatever this one has closed of those.
int aboveStandard(int descriptor) {
    const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::close(descriptor);
    return moved;
}

bool prepare(Reporting& prepared, const std::vector<std::string>& reporterArguments) {
    prepared.strings = reporterArguments;
    const auto arguments = static_cast<std::ptrdiff_t>(prepared.strings.size());
    for (char** variable = environ; variable && *variable; ++variable)
        prepared.strings.emplace_back(*variable);
    const auto begin = prepared.strings.begin();
    prepared.arguments = pointersTo(begin, begin + arguments);
    prepared.environment = pointersTo(begin + arguments, prepared.strings.end());
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return false;
    prepared.ourEnd = aboveStandard(ends[0]);
    prepared.reportersEnd = aboveStandard(ends[1]);
    return prepared.ourEnd >= 0 && prepared.reportersEnd >= 0;
}

using Action = void (*)(int, siginfo_t*, void*);

// Leaves a signal alone that somebody handles already.
void handle(int signal, Action handler) {
    struct sigaction before = {};
    ::sigaction(signal, nullptr, &before);
    const bool isFree = (before.sa_flags & SA_SIGINFO) == 0 && before.sa_handler == SIG_DFL;
    if (!isFree) return;
    struct sigaction action = {};
    action.sa_sigaction = handler;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    // A fault in the handler then ends the process at once.
    for (const int reported : reportedSignals)
        ::sigaddset(&action.sa_mask, reported);
    for (const int other : coreSignals)
        ::sigaddset(&action.sa_mask, other);
    ::sigaction(signal, &action, nullptr);
}

// What a program writes to a descriptor that is not there would go into the next file it opens.
void openStandardDescriptors() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) >= 0) continue;
        static_cast<void>(::open("/dev/null", O_RDWR));
    }
}

}  // namespace

void installCrashHandler(const std::vector<std::string>& reporterArguments) {
    static Reporting prepared;
    if (reporting) return;
    for (const int signal : coreSignals)
        handle(signal, onCoreSignal);
    if (!prepare(prepared, reporterArguments)) return;
    reporting = &prepared;
    useOwnSignalStack();
    for (const int signal : reportedSignals)
        handle(signal, onFault);
}

void useOwnSignalStack() {
    thread_local const SignalStack stack;
}

std::optional<CrashRecord> takeCrashRecord() {
    struct stat status = {};
    if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISSOCK(status.st_mode)) return std::nullopt;
    // Never closed: its end is this process's end.
    const int socket = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    CrashRecord record;
    const ssize_t got = ::recv(socket, &record, sizeof(record), MSG_WAITALL);
    if (got != sizeof(record) || record.magic != CrashRecord::currentMagic) return std::nullopt;
    ::close(STDIN_FILENO);
    openStandardDescriptors();
    return record;
}

}  // namespace quendra
