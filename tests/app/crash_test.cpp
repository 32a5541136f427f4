// Crashes of a whole process: what is told, what the dump holds, and how the process ends.
#include "app/crash_canaries.h"
#include "app/crash_message.h"
#include "app/ui_text.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_files.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <tuple>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

constexpr int longestRun = 120'000;

struct Ended {
    /// The number of the signal that ended the process; 0 for none.
    int signal = 0;
    std::string errors;
    std::vector<fs::path> dumps;
};

QString programPath(const char* name) {
    return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name);
}

// A sanitizer takes the signals for itself, and keeps freed blocks as they are, unless told not to.
void start(QProcess& process, const char* program, const QStringList& arguments) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("handle_segv=0:handle_sigbus=0:handle_sigfpe=0:"
                                      "handle_sigill=0:handle_abort=0:"
                                      "max_free_fill_size=65536:free_fill_byte=0"));
    process.setProcessEnvironment(environment);
    process.start(programPath(program), arguments);
}

Ended endOf(QProcess& process, const fs::path& dumpFolder) {
    EXPECT_TRUE(process.waitForFinished(longestRun)) << "the process hangs";
    Ended ended;
    if (process.exitStatus() == QProcess::CrashExit) ended.signal = process.exitCode();
    ended.errors = process.readAllStandardError().toStdString();
    std::error_code ignored;
    for (const auto& file : fs::directory_iterator(dumpFolder, ignored)) {
        if (file.path().extension() == ".dmp") ended.dumps.push_back(file.path());
    }
    return ended;
}

Ended crash(const char* way, const fs::path& dumpFolder) {
    QProcess process;
    start(process, "crash_subject", {QLatin1String(way), qtText(dumpFolder.string())});
    return endOf(process, dumpFolder);
}

std::string contentOf(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(content).str();
}

// In one byte and in two bytes a character.
std::array<bool, 2> holds(const std::string& content, Canary canary) {
    const std::string text = canaryText(canary);
    std::string wide;
    for (const char character : text)
        wide += std::string{character, '\0'};
    const auto found = [&](const std::string& part) {
        return ::memmem(content.data(), content.size(), part.data(), part.size()) != nullptr;
    };
    return {found(text), found(wide)};
}

void expectNoHiddenText(const fs::path& file) {
    const std::string dump = contentOf(file);
    EXPECT_EQ(holds(dump, Canary::Kept), (std::array{true, true})) << "the search finds nothing";
    EXPECT_EQ(holds(dump, Canary::Hidden), (std::array{false, false}));
}

std::string matching(const std::string& text, const std::string& pattern) {
    const QRegularExpression expression(qtText(pattern), QRegularExpression::MultilineOption);
    return expression.match(qtText(text)).captured().toStdString();
}

/// A name, the signal, what the message holds between its first line and its last, and the function
/// that the debugger has to name.
using Way = std::tuple<const char*, int, const char*, const char*>;

const Way ways[] = {
    {"read", SIGSEGV, "^Details = Illegal read at address 00000000\n\nA diag", "faultByReading"},
    {"write", SIGSEGV,
     "^Type = EXCEPTION_ACCESS_VIOLATION\nAddress = [0-9a-f]{8,16}\n"
     "Details = Illegal write at address 00000010\n\nA diag",
     "faultByWriting"},
    {"noncanonical", SIGSEGV, "^Details = .*read at address ffffffffffffffff\n", "faultByReading"},
    {"divide", SIGFPE, "^Type = c0000094\nAddress = [0-9a-f]{8,16}\nA diag", "faultByDividing"},
    {"instruction", SIGILL, "^Type = c000001d\n", "faultByInstruction"},
    {"page", SIGBUS, "^Type = c0000006\n", "faultByReading"},
    {"abort", SIGABRT, "^Type = 40000015\n", "abort"},
    {"recursion", SIGSEGV, "^Type = EXCEPTION_ACCESS_VIOLATION\n", "faultByRecursion"},
    {"sent", SIGSEGV, "^Type = e000000b\n", "(__GI_)?kill"},
    {"threads", SIGSEGV, "^Details = ", "faultByReading"},
    // Where copies of hidden texts may stay behind.
    {"dropped", SIGSEGV, "^Details = ", "faultByReading"},
    {"left", SIGSEGV, "^Details = ", "faultByReading"},
    {"typed", SIGSEGV, "^Details = ", "faultByReading"},
    {"hiddenLater", SIGSEGV, "^Details = ", "faultByReading"},
    {"dialog", SIGSEGV, "^Details = ", "faultByReading"},
};

class CrashWays : public ::testing::TestWithParam<Way> {};

std::string backtrace(const fs::path& dump) {
    QProcess debugger;
    QStringList arguments =
        QStringLiteral("-nx|-batch|-ex|backtrace 12|-ex|info threads").split(u'|');
    arguments << programPath("crash_subject") << qtText(dump.string());
    debugger.start(QStringLiteral("gdb"), arguments);
    EXPECT_TRUE(debugger.waitForFinished(longestRun));
    return debugger.readAllStandardOutput().toStdString();
}

TEST_P(CrashWays, IsReportedDumpedWithoutHiddenTextsAndEndsTheProcess) {
    const auto& [name, signal, lines, function] = GetParam();
    const TemporaryFolder folder;
    const Ended ended = crash(name, folder.path());
    EXPECT_EQ(ended.signal, signal);
    const std::string first = "Caught program exception in crash_subject 6.1.4.1982\n";
    const std::size_t start = ended.errors.find(first);
    ASSERT_NE(start, std::string::npos) << ended.errors;
    EXPECT_EQ(ended.errors.find(first, start + 1), std::string::npos) << "reported twice";
    EXPECT_NE(matching(ended.errors, lines), "") << ended.errors;

    ASSERT_EQ(ended.dumps.size(), 1U);
    const std::string dump = ended.dumps.front().string();
    EXPECT_NE(matching(dump, "/crash_subject\\.6\\.1\\.4\\.1982\\.[0-9]{8}\\.dmp$"), "") << dump;
    EXPECT_NE(ended.errors.find("A diagnostic file was written to: " + dump), std::string::npos);
    struct stat status = {};
    ASSERT_EQ(::stat(dump.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode, unsigned{S_IFREG} | 0600U);

    expectNoHiddenText(dump);
    const std::string trace = backtrace(dump);
    EXPECT_NE(matching(trace, "^#[0-9]+ .*\\b" + std::string(function)), "") << trace;
    EXPECT_NE(matching(trace, "^\\* 1 +(Thread|LWP)"), "") << trace;
    const bool hasMore = !matching(trace, "^  [23] +(Thread|LWP)").empty();
    EXPECT_TRUE(hasMore || name != std::string_view("threads")) << trace;
}

INSTANTIATE_TEST_SUITE_P(Crash, CrashWays, ::testing::ValuesIn(ways),
                         [](const auto& row) { return std::string(std::get<0>(row.param)); });

TEST(Crash, ADumpThatCannotBeMadeStillLeavesTheMessage) {
    const TemporaryFolder folder;
    const Ended ended = crash("read", folder / "missing");
    EXPECT_EQ(ended.signal, SIGSEGV);
    const std::string named = (folder / "missing/crash_subject.6.1.4.1982.").string();
    EXPECT_NE(ended.errors.find("A diagnostic file was written to: " + named), std::string::npos)
        << ended.errors;
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(Crash, ADumpOfTheSameMinuteIsReplacedAndALinkIsNotFollowed) {
    const TemporaryFolder folder;
    const fs::path precious = folder / "precious";
    std::ofstream(precious) << "mine";
    for (const bool link : {false, true}) {
        // The names of this minute and the next, for one may pass meanwhile.
        for (const std::time_t later : {0, 60}) {
            const std::time_t moment = std::time(nullptr) + later;
            std::tm local = {};
            ::localtime_r(&moment, &local);
            const fs::path name = crashDumpPath(folder.path(), "crash_subject", local);
            fs::remove(name);
            if (link) {
                fs::create_symlink(precious, name);
            } else {
                std::ofstream(name) << "old";
            }
        }
        const Ended ended = crash("read", folder.path());
        const auto isNew = [](const fs::path& dump) {
            return !fs::is_symlink(dump) && contentOf(dump).starts_with("\177ELF");
        };
        EXPECT_EQ(std::ranges::count_if(ended.dumps, isNew), 1);
        EXPECT_EQ(fs::file_size(precious), 4U);
    }
}

// A script with a hidden text, under a name that the window's title shows.
fs::path scriptWithHiddenText(const fs::path& folder) {
    ScriptEntry entry;
    entry.commandCode = CommandCode::Type;
    setText(slotFields(entry, Slot::Entry), canaryText(Canary::Hidden));
    entry.hidden = 1;
    Script script;
    script.entries.push_back(packEntry(entry, HiddenTextCipher("")).entry);
    const fs::path path = folder / (canaryText(Canary::Kept) + ".qds");
    EXPECT_FALSE(saveScriptFile(path, script, HostType::Mainframe, OldFile::Drop).failure);
    return path;
}

// Waits until the process has its handlers and then sleeps for half a second on end.
bool isUpAndIdle(qint64 id) {
    const std::string folder = "/proc/" + std::to_string(id);
    int idleLooks = 0;
    for (int look = 0; look < 1200 && idleLooks < 10; ++look) {
        const std::string caught = matching(contentOf(folder + "/status"), "(?<=^SigCgt:\\t).*");
        const bool reports =
            !caught.empty() && (std::stoull(caught, nullptr, 16) >> (SIGSEGV - 1)) & 1;
        const bool sleeps = matching(contentOf(folder + "/stat"), "(?<=\\) ).") == "S";
        idleLooks = reports && sleeps ? idleLooks + 1 : 0;
        QTest::qWait(50);
    }
    return idleLooks == 10;
}

TEST(Crash, TheEditorLeavesADumpWithoutTheHiddenTextOfItsScript) {
    const TemporaryFolder folder;
    const fs::path script = scriptWithHiddenText(folder.path());
    QProcess process;
    process.setWorkingDirectory(qtText(folder.path().string()));
    start(process, "quendra-script-editor", {qtText(script.string())});
    ASSERT_TRUE(process.waitForStarted());
    ASSERT_TRUE(isUpAndIdle(process.processId()));
    ::kill(static_cast<pid_t>(process.processId()), SIGSEGV);
    const Ended ended = endOf(process, folder.path());
    EXPECT_EQ(ended.signal, SIGSEGV) << ended.errors;
    ASSERT_EQ(ended.dumps.size(), 1U) << ended.errors;
    expectNoHiddenText(ended.dumps.front());
}

}  // namespace
}  // namespace quendra::test
