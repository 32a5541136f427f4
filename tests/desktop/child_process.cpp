#include "desktop/child_process.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quendra::test {
namespace {

constexpr std::chrono::milliseconds lookEvery{20};
constexpr int cannotStart = 127;

std::vector<char*> pointersTo(const Command& command) {
    std::vector<char*> pointers;
    pointers.reserve(command.size() + 1);
    for (const std::string& word : command)
        pointers.push_back(const_cast<char*>(word.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

// Only in the new process; whatever fails ends it.
[[noreturn]] void become(const Command& command, int output) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::dup2(output, STDOUT_FILENO);
    const std::vector<char*> words = pointersTo(command);
    ::execvp(words[0], words.data());
    ::_exit(cannotStart);
}

int codeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

void waitUntil(const std::function<bool()>& condition, const std::string& what) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("waited in vain until " + what);
        std::this_thread::sleep_for(lookEvery);
    }
}

ChildProcess::ChildProcess(const Command& command, const Variables& variables,
                           const std::filesystem::path& workingFolder,
                           const std::filesystem::path& output, int passed)
    : pid_(::fork()) {
    if (pid_ != 0) return;
    for (const auto& [name, value] : variables)
        ::setenv(name.c_str(), value.c_str(), 1);
    const int file = ::open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    ::dup2(file, STDERR_FILENO);
    if (passed >= 0) ::dup2(passed, 3);
    if (file < 0 || ::chdir(workingFolder.c_str()) != 0) ::_exit(cannotStart);
    become(command, file);
}

ChildProcess::~ChildProcess() {
    if (!runs()) return;
    signal(SIGKILL);
    ::waitpid(pid_, nullptr, 0);
}

bool ChildProcess::runs() {
    int status = 0;
    if (!status_ && ::waitpid(pid_, &status, WNOHANG) == pid_) status_ = status;
    return !status_;
}

int ChildProcess::exitCode() {
    waitUntil([this] { return !runs(); }, "a program ended");
    return codeOf(*status_);
}

void ChildProcess::signal(int number) const {
    ::kill(pid_, number);
}

std::optional<std::string> outputOf(const Command& command) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
        become(command, ends[1]);
    }
    ::close(ends[1]);
    std::string output;
    std::array<char, 512> part{};
    for (ssize_t size = 0; (size = ::read(ends[0], part.data(), part.size())) > 0;)
        output.append(part.data(), static_cast<std::size_t>(size));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (codeOf(status) == cannotStart) throw std::runtime_error("cannot start " + command.front());
    if (codeOf(status) != 0) return std::nullopt;
    return output;
}

}  // namespace quendra::test
