#include "platform/crash/process.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <elf.h>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/ptrace.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>

namespace quendra {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto patience = 3s;

std::string folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

// A thread in a system call that nothing interrupts, say on a dead network drive, does not stop.
bool waitForStop(pid_t thread) {
    const auto giveUp = std::chrono::steady_clock::now() + patience;
    for (;;) {
        int status = 0;
        const pid_t waited = ::waitpid(thread, &status, __WALL | WNOHANG);
        if (waited == thread) return WIFSTOPPED(status);
        if (waited < 0 || std::chrono::steady_clock::now() > giveUp) return false;
        std::this_thread::sleep_for(200us);
    }
}

template <class Registers>
bool readRegisters(pid_t thread, int set, Registers& registers) {
    iovec place = {&registers, sizeof(registers)};
    return ::ptrace(PTRACE_GETREGSET, thread, set, &place) == 0;
}

std::optional<StoppedThread> stopThread(pid_t id) {
    if (::ptrace(PTRACE_SEIZE, id, nullptr, nullptr) != 0) return std::nullopt;
    if (::ptrace(PTRACE_INTERRUPT, id, nullptr, nullptr) != 0 || !waitForStop(id)) {
        ::ptrace(PTRACE_DETACH, id, nullptr, nullptr);
        return std::nullopt;
    }
    StoppedThread thread;
    thread.id = id;
    if (!readRegisters(id, NT_PRSTATUS, thread.general)) return std::nullopt;
    return thread;
}

std::vector<pid_t> threadsOf(pid_t process) {
    std::vector<pid_t> threads;
    std::error_code error;
    fs::directory_iterator entry(folderOf(process) + "/task", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        pid_t thread = 0;
        const auto end = std::from_chars(name.data(), name.data() + name.size(), thread);
        if (end.ec == std::errc()) threads.push_back(thread);
    }
    return threads;
}

}  // namespace

StoppedProcess::StoppedProcess(pid_t process) : process_(process) {
    // Threads that run may start others.
    while (attachNewThreads()) {
    }
    memory_ = Descriptor(::open((folderOf(process) + "/mem").c_str(), O_RDONLY | O_CLOEXEC));
}

StoppedProcess::~StoppedProcess() {
    for (const StoppedThread& thread : threads_)
        ::ptrace(PTRACE_DETACH, thread.id, nullptr, nullptr);
}

bool StoppedProcess::attachNewThreads() {
    bool foundNew = false;
    for (const pid_t id : threadsOf(process_)) {
        if (std::ranges::find(tried_, id) != tried_.end()) continue;
        foundNew = true;
        tried_.push_back(id);
        if (const auto thread = stopThread(id)) threads_.push_back(*thread);
    }
    return foundNew;
}

std::size_t StoppedProcess::read(std::uintptr_t address, std::span<std::byte> buffer) const {
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t got = ::pread(memory_.get(), buffer.data() + done, buffer.size() - done,
                                    static_cast<off_t>(address + done));
        if (got <= 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

}  // namespace quendra
