// Programs that a test starts; none of them outlives it.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quendra::test {

/// How long anything may take on a slow machine that has much else to do.
inline constexpr std::chrono::seconds patience{40};

/// Looks again and again until the condition holds; throws std::runtime_error, naming what was
/// awaited, when that takes too long.
void waitUntil(const std::function<bool()>& condition, const std::string& what);

using Command = std::vector<std::string>;

class ChildProcess {
  public:
    /// Variables that the child has beside those of the test itself.
    using Variables = std::map<std::string, std::string>;

    /// Starts `command`, whose first word is looked for on the path, with standard output and error
    /// in the file `output`. `passed` becomes its descriptor 3 when it is one.
    ChildProcess(const Command& command, const Variables& variables,
                 const std::filesystem::path& workingFolder, const std::filesystem::path& output,
                 int passed = -1);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    [[nodiscard]] bool runs();
    /// Waits for its end: the exit code, or minus the signal that ended it.
    [[nodiscard]] int exitCode();
    void signal(int number) const;

  private:
    pid_t pid_ = -1;
    std::optional<int> status_;
};

/// Runs a command to its end and gives what it wrote to standard output; none when it failed.
/// What it says on standard error is dropped: windows come and go while it asks for them.
[[nodiscard]] std::optional<std::string> outputOf(const Command& command);

}  // namespace quendra::test
