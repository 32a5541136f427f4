#include "app/crash_reporter.h"

#include "app/appearance.h"
#include "app/crash_message.h"
#include "app/message_box.h"
#include "platform/crash_dump.h"
#include "platform/crash_handler.h"

#include <QApplication>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quendra {

namespace {

// The arguments of a reporter, behind the program: what it is, program name, dump folder, where the
// message goes.
constexpr std::string_view reporterOption = "--report-crash";
constexpr std::string_view toScreen = "screen";
constexpr std::string_view toStandardError = "stderr";
constexpr int argumentCount = 5;

bool hasScreen() {
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

void withoutReturns(std::string& text) {
    std::erase(text, '\r');
}

[[noreturn]] void showBox(int& argc, char** argv, const std::string& text) {
    // The toolkit ends a program that finds no display, and that is no second crash.
    const rlimit noCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("quendra-script-editor"));
    applyAppearance({});
    showMessage(nullptr,
                {text, "Program Exception", MessageIcon::Exclamation, MessageButtons::Ok, false});
    ::_exit(0);
}

// In a process of its own, for the toolkit may end it.
bool showOnScreen(int& argc, char** argv, const std::string& text) {
    const pid_t box = ::fork();
    if (box == 0) showBox(argc, argv, text);
    if (box < 0) return false;
    int status = 0;
    while (::waitpid(box, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::tm localTimeNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    ::localtime_r(&now, &local);
    return local;
}

}  // namespace

void installCrashReporter(const std::filesystem::path& programFile,
                          const std::filesystem::path& dumpFolder) {
    std::error_code error;
    const auto folder = std::filesystem::absolute(dumpFolder, error);
    installCrashHandler({programFile.string(), std::string(reporterOption),
                         programFile.filename().string(), (error ? dumpFolder : folder).string(),
                         std::string(hasScreen() ? toScreen : toStandardError)});
}

std::optional<int> reportCrash(int& argc, char** argv) {
    if (argc != argumentCount || argv[1] != reporterOption) return std::nullopt;
    const std::string program = argv[2];
    const std::filesystem::path folder = argv[3];
    const bool screen = argv[4] == toScreen;
    const auto record = takeCrashRecord();
    if (!record) return std::nullopt;

    const auto dump = crashDumpPath(folder, program, localTimeNow());
    if (const auto reason = writeCrashDump(*record, dump)) {
        std::fprintf(stderr, "%s: no crash dump: %s\n", program.c_str(), reason->c_str());
    }
    std::string text = crashMessage(program, faultOf(*record), dump);
    withoutReturns(text);
    // The arguments are no business of the toolkit's.
    argc = 1;
    if (!screen || !showOnScreen(argc, argv, text)) std::fprintf(stderr, "%s\n", text.c_str());
    return 0;
}

}  // namespace quendra
