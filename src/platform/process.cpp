#include "platform/process.h"

#include <QFile>
#include <QProcess>
#include <QStringList>

#include <cerrno>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quendra {

namespace {

// Our own descriptors stay here anyway. Those that this process was started with do too from now
// on: a viewer that outlives the editor would keep a pipe or a lock of whoever started it.
void keepDescriptors() {
    constexpr unsigned firstBehindStandard = 3;
    ::close_range(firstBehindStandard, ~0U, CLOSE_RANGE_CLOEXEC);
}

QString fromSystem(const std::string& text) {
    return QFile::decodeName(QByteArray::fromStdString(text));
}

}  // namespace

std::filesystem::path programFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

void forbidCoreFile() {
    // Not by prctl(PR_SET_DUMPABLE): that would also close /dev/stdin to everybody but root.
    const rlimit noCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
}

bool runApart(const std::function<void()>& work) {
    const pid_t process = ::fork();
    if (process < 0) return false;
    if (process == 0) {
        forbidCoreFile();
        work();
        ::_exit(0);
    }
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::optional<std::string> startDetached(const std::string& program,
                                         const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list.append(fromSystem(argument));
    QProcess process;
    process.setProgram(fromSystem(program));
    process.setArguments(list);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    keepDescriptors();
    if (process.startDetached()) return std::nullopt;
    return process.errorString().toStdString();
}

std::optional<std::string> openWebPage(const std::string& address) {
    if (address.empty() || address.front() == '-') {
        return "not a web address: \"" + address + "\"";
    }
    if (!startDetached("xdg-open", {address})) return std::nullopt;
    return startDetached("gio", {"open", address});
}

}  // namespace quendra
