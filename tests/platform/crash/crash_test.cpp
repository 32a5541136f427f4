// Crashes of a whole process: what is told, what the dump holds, and how the process ends.
#include "platform/crash/crash_canaries.h"
#include "platform/crash/fault.h"
#include "scriptfile/entry_codec.h"
#include "scriptfile/script_files.h"
#include "support/temporary_folder.h"
#include "widgets/ui_text.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

TEST(CrashFault, KnowsTheCodesAndTellsSentSignalsApart) {
    const std::tuple<int, int, std::uint32_t> rows[] = {
        {SIGFPE, FPE_INTDIV, 0xC0000094},  {SIGFPE, FPE_INTOVF, 0xC0000095},
        {SIGILL, ILL_PRVOPC, 0xC0000096},  {SIGBUS, BUS_ADRALN, 0x80000002},
        {SIGBUS, BUS_ADRERR, 0xC0000006},  {SIGFPE, SI_USER, 0xE0000008},
        {SIGTRAP, TRAP_BRKPT, 0x80000003}, {SIGSYS, 1, 0xE000001F},
    };
    for (const auto& [signal, reason, code] : rows) {
        CrashRecord record;
        record.signal.si_signo = signal;
        record.signal.si_code = reason;
        const Fault fault = faultOf(record);
        EXPECT_EQ(fault.code, code) << signal << '/' << reason;
        EXPECT_FALSE(fault.access) << "only of an access violation";
    }
}

constexpr int longestRun = 120'000;

QString programPath(const char* name) {
    return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name);
}

std::string contentOf(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return std::move(content).str();
}

std::string matching(const std::string& text, const std::string& pattern) {
    const QRegularExpression expression(qtText(pattern), QRegularExpression::MultilineOption);
    return expression.match(qtText(text)).captured().toStdString();
}

// A sanitizer takes the signals for itself, and keeps freed blocks as they are, unless told not to.
constexpr const char* quietSanitizer =
    "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0:handle_abort=0:"
    "max_free_fill_size=65536:free_fill_byte=0";

class CrashTest : public ::testing::Test {
  protected:
    void start(const char* program, const QStringList& arguments) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QString::fromLatin1(quietSanitizer));
        // A program that lies in the temporary folder works in another one.
        environment.insert(QStringLiteral("TMPDIR"), qtText(folder.path().string()));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(qtText(folder.path().string()));
        process.start(programPath(program), arguments);
    }
    void expectSignal(int signal) {
        EXPECT_TRUE(process.waitForFinished(longestRun)) << "the process hangs";
        errors = process.readAllStandardError().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << errors;
        EXPECT_EQ(process.exitCode(), signal) << errors;
    }
    void crash(const char* way, const fs::path& dumpFolder, int signal = SIGSEGV) {
        start("crash_subject", {QLatin1String(way), qtText(dumpFolder.string())});
        expectSignal(signal);
    }
    [[nodiscard]] std::vector<fs::path> dumps() const {
        std::vector<fs::path> found;
        for (const auto& file : fs::directory_iterator(folder.path()))
            if (file.path().extension() == ".dmp") found.push_back(file.path());
        return found;
    }

    const TemporaryFolder folder;
    QProcess process;
    std::string errors;
};

// In one byte and in two bytes a character.
void expectNoHiddenText(const fs::path& file) {
    const std::string dump = contentOf(file);
    for (const Canary canary : {Canary::Kept, Canary::Hidden}) {
        const std::string text = canaryText(canary);
        std::string wide;
        for (const char character : text)
            wide += std::string{character, '\0'};
        const bool isKept = canary == Canary::Kept;
        EXPECT_EQ(dump.find(text) != std::string::npos, isKept) << "the search has to find one";
        EXPECT_EQ(dump.find(wide) != std::string::npos, isKept) << "the search has to find one";
    }
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
    {"instruction", SIGILL, "^Type = c000001d\nAddress = [0-9a-f]{8,16}\nA diag",
     "faultByInstruction"},
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

class CrashWays : public CrashTest, public ::testing::WithParamInterface<Way> {};

TEST_P(CrashWays, IsReportedDumpedWithoutHiddenTextsAndEndsTheProcess) {
    const auto& [name, signal, lines, function] = GetParam();
    crash(name, folder.path(), signal);
    const std::string first = "Caught program exception in crash_subject 6.1.4.1982\n";
    ASSERT_NE(errors.find(first), std::string::npos) << errors;
    EXPECT_EQ(errors.find(first), errors.rfind(first)) << "reported twice";
    EXPECT_NE(matching(errors, lines), "") << errors;

    ASSERT_EQ(dumps().size(), 1U);
    const std::string dump = dumps().front().string();
    EXPECT_NE(matching(dump, "/crash_subject\\.6\\.1\\.4\\.1982\\.[0-9]{8}\\.dmp$"), "") << dump;
    EXPECT_NE(errors.find("A diagnostic file was written to: " + dump), std::string::npos);
    EXPECT_EQ(fs::status(dump).permissions(), fs::perms(0600));
    expectNoHiddenText(dump);

    QProcess debugger;
    QStringList arguments =
        QStringLiteral("-nx|-batch|-ex|backtrace 12|-ex|info threads").split(u'|');
    arguments << programPath("crash_subject") << qtText(dump);
    debugger.start(QStringLiteral("gdb"), arguments);
    EXPECT_TRUE(debugger.waitForFinished(longestRun));
    const std::string trace = debugger.readAllStandardOutput().toStdString();
    EXPECT_NE(matching(trace, "^#[0-9]+ .*\\b" + std::string(function)), "") << trace;
    EXPECT_NE(matching(trace, "^\\* 1 +(Thread|LWP)"), "") << trace;
    const bool hasMore = !matching(trace, "^  [23] +(Thread|LWP)").empty();
    EXPECT_TRUE(hasMore || name != std::string_view("threads")) << trace;
}

INSTANTIATE_TEST_SUITE_P(Crash, CrashWays, ::testing::ValuesIn(ways),
                         [](const auto& row) { return std::string(std::get<0>(row.param)); });

// Runs a command in a folder where core files are allowed, without its output. True when it died of
// the signal and the system wrote a core file, or handed one to whoever collects them.
bool leavesCore(const fs::path& folder, const std::vector<std::string>& command, int signal) {
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit unlimited = {RLIM_INFINITY, RLIM_INFINITY};
        ::setrlimit(RLIMIT_CORE, &unlimited);
        ::setenv("ASAN_OPTIONS", quietSanitizer, 1);
        ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
        if (::chdir(folder.c_str()) == 0) ::execv(arguments[0], arguments.data());
        ::_exit(127);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << command[1] << ' ' << status;
    return WCOREDUMP(status);
}

TEST_F(CrashTest, TheSystemsCoreFileWhichHoldsHiddenTextsIsNotMade) {
    const bool allowed = leavesCore(folder.path(), {"/bin/sh", "-c", "kill -QUIT $$"}, SIGQUIT);
    if (!allowed) GTEST_SKIP() << "this system makes no core files";
    const std::pair<const char*, int> rows[] = {{"quit", SIGQUIT},      {"processorTime", SIGXCPU},
                                                {"fileSize", SIGXFSZ},  {"trap", SIGTRAP},
                                                {"systemCall", SIGSYS}, {"dialog", SIGSEGV},
                                                {"abort", SIGABRT}};
    for (const auto& [way, signal] : rows) {
        const TemporaryFolder dumpFolder;
        const std::string subject = programPath("crash_subject").toStdString();
        EXPECT_FALSE(leavesCore(dumpFolder.path(), {subject, way, dumpFolder.path()}, signal))
            << way;
        for (const auto& left : fs::directory_iterator(dumpFolder.path())) {
            EXPECT_EQ(left.path().extension(), ".dmp") << way;
            expectNoHiddenText(left.path());
        }
    }
}

TEST_F(CrashTest, ADumpThatCannotBeMadeStillLeavesTheMessage) {
    crash("read", folder / "missing");
    const std::string named = (folder / "missing/crash_subject.6.1.4.1982.").string();
    EXPECT_NE(errors.find("A diagnostic file was written to: " + named), std::string::npos);
    EXPECT_NE(errors.find("\nThis failed, and there is no such file: No such file or directory\n"),
              std::string::npos)
        << errors;
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(CrashTest, ALinkByTheNameOfTheDumpIsNotFollowedAndAnOldDumpIsReplaced) {
    const fs::path precious = folder / "precious";
    std::ofstream(precious) << "mine";
    // The names of this minute and the next, for one may pass meanwhile.
    for (const std::time_t later : {0, 60}) {
        const std::time_t moment = std::time(nullptr) + later;
        std::tm local = {};
        ::localtime_r(&moment, &local);
        char name[64] = {};
        std::strftime(name, sizeof(name), "crash_subject.6.1.4.1982.%m%d%H%M.dmp", &local);
        fs::create_symlink(precious, folder / name);
    }
    for (int run = 0; run < 2; ++run) {
        crash("read", folder.path());
        EXPECT_EQ(dumps().size(), 2U) << "another name";
        EXPECT_TRUE(std::ranges::any_of(dumps(), [](const fs::path& dump) {
            return !fs::is_symlink(dump) && contentOf(dump).starts_with("\177ELF");
        }));
        EXPECT_EQ(contentOf(precious), "mine");
    }
}

TEST_F(CrashTest, TheEditorLeavesADumpWithoutTheHiddenTextOfItsScript) {
    ScriptEntry entry;
    entry.code = CommandCode::Type;
    setText(slotFields(entry, Slot::Entry), canaryText(Canary::Hidden));
    entry.hidden = 1;
    Script script;
    script.entries.push_back(packEntry(entry, HiddenTextCipher("")).entry);
    // The window's title shows its name.
    const fs::path path = folder / (canaryText(Canary::Kept) + ".qds");
    EXPECT_FALSE(saveScriptFile(path, script, HostType::Mainframe, OldFile::Drop).failure);
    start("quendra-script-editor", {qtText(path.string())});
    ASSERT_TRUE(process.waitForStarted());
    // Until it sleeps for half a second on end.
    const std::string state = "/proc/" + std::to_string(process.processId()) + "/stat";
    for (int looks = 0, idle = 0; idle < 10; ++looks) {
        idle = matching(contentOf(state), "(?<=\\) ).") == "S" ? idle + 1 : 0;
        ASSERT_LT(looks, 1200);
        QTest::qWait(50);
    }
    ::kill(static_cast<pid_t>(process.processId()), SIGSEGV);
    expectSignal(SIGSEGV);
    ASSERT_EQ(dumps().size(), 1U) << errors;
    expectNoHiddenText(dumps().front());
}

}  // namespace
}  // namespace quendra::test
