// Another process, held still to be looked into.
#pragma once

#include "platform/descriptor.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <sys/procfs.h>
#include <sys/types.h>
#include <vector>

namespace quendra {

struct StoppedThread {
    pid_t id = 0;
    elf_gregset_t general = {};
};

/// All threads of a process, stopped until this value goes; then they run on as if nothing had
/// been, and so they do when this process ends early. A thread that the system does not let go
/// within a few seconds is left out and runs on. Used from one thread.
class StoppedProcess {
  public:
    explicit StoppedProcess(pid_t process);
    ~StoppedProcess();
    StoppedProcess(const StoppedProcess&) = delete;
    StoppedProcess& operator=(const StoppedProcess&) = delete;

    [[nodiscard]] pid_t id() const { return process_; }

    /// Empty when the system does not allow to look into the process.
    [[nodiscard]] const std::vector<StoppedThread>& threads() const { return threads_; }
    [[nodiscard]] std::vector<StoppedThread>& threads() { return threads_; }

    /// Reads memory from `address` on and gives how many bytes of `buffer` it filled: fewer, or
    /// none, where the memory cannot be read.
    [[nodiscard]] std::size_t read(std::uintptr_t address, std::span<std::byte> buffer) const;

  private:
    bool attachNewThreads();

    pid_t process_;
    Descriptor memory_;
    std::vector<pid_t> tried_;
    std::vector<StoppedThread> threads_;
};

}  // namespace quendra
