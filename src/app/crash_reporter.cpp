#include "app/crash_reporter.h"

#include "platform/crash/dump.h"
#include "platform/crash/handler.h"
#include "platform/process.h"
#include "session/crash_message.h"
#include "widgets/appearance.h"
#include "widgets/message_box.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>

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

void showBox(int& argc, char** argv, const std::string& text) {
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("quendra-script-editor"));
    applyAppearance({});
    showMessage(nullptr,
                {text, "Program Exception", MessageIcon::Exclamation, MessageButtons::Ok, false});
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
    const auto noDump = writeCrashDump(*record, dump);
    std::string text = crashMessage(program, faultOf(*record), dump, noDump);
    withoutReturns(text);
    // The arguments are no business of the toolkit's.
    argc = 1;
    const bool shown = screen && runApart([&] { showBox(argc, argv, text); });
    if (!shown) std::fprintf(stderr, "%s\n", text.c_str());
    return 0;
}

}  // namespace quendra
