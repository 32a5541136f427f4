// The program itself as other programs meet it: a second start, the end of a session, a picture of
// its window.
#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <QImage>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace quendra::test {
namespace {

namespace fs = std::filesystem;

class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        fs::create_directory(folder / "run");
        fs::permissions(folder / "run", fs::perms(0700));
        writeBytes(folder / "a.qds", bytesOf("QDVTSCR="));
    }

    [[nodiscard]] QString at(const char* name) const {
        return QString::fromStdString((folder / name).string());
    }
    void start(QProcess& program, const QStringList& arguments) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), at("run"));
        // A program that lies in the temporary folder works in another one.
        environment.insert(QStringLiteral("TMPDIR"), at(""));
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(at(""));
        program.start(editor, arguments);
        ASSERT_TRUE(program.waitForStarted());
    }
    /// -1 for any end but an exit.
    static int exitCodeOf(QProcess& program) {
        const bool ended =
            program.waitForFinished() && program.exitStatus() == QProcess::NormalExit;
        return ended ? program.exitCode() : -1;
    }
    int run(const char* arguments) {
        QProcess program;
        start(program, QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        const int code = exitCodeOf(program);
        said = program.readAllStandardError().toStdString();
        return code;
    }

    std::ptrdiff_t sockets() {
        std::error_code ignored;
        const fs::directory_iterator entries(folder / "run/quendra-script-editor", ignored);
        return std::count_if(begin(entries), end(entries),
                             [](const auto& entry) { return entry.is_socket(); });
    }

    const QString editor =
        QCoreApplication::applicationDirPath() + QStringLiteral("/quendra-script-editor");
    const TemporaryFolder folder;
    /// On standard error, by the last run.
    std::string said;
};

TEST_F(ProgramTest, EndsInOrderWhenTheSystemAsksItTo) {
    QProcess first;
    start(first, {QStringLiteral("a.qds")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return sockets() > 0; }, 10'000));
    // Starts of the same script end with 0 as soon as this one answers from its event loop; until
    // then they show the script themselves.
    bool ended = false;
    for (int i = 0; i < 5 && !ended; ++i) {
        QProcess other;
        start(other, {QStringLiteral("./a.qds")});
        ended = other.waitForFinished(4000) && other.exitCode() == 0;
        other.kill();
        other.waitForFinished();
    }
    EXPECT_TRUE(ended);
    first.terminate();
    EXPECT_EQ(exitCodeOf(first), 0);
    EXPECT_EQ(sockets(), 0);
}

TEST_F(ProgramTest, DrawsItsWindowAsAskedAndRefusesWhatItCannotDo) {
    EXPECT_EQ(run("--dark a.qds --screenshot picture.png --size 700x500 --scale 2 /t1"), 0);
    EXPECT_EQ(QImage(at("picture.png")).size(), QSize(1400, 1000));
    EXPECT_EQ(run("--screenshot picture.png --scale 3"), 0);
    EXPECT_EQ(QImage(at("picture.png")).size(), QSize(1878, 1230)) << "not cut to the screen";
    EXPECT_EQ(run("--screenshot missing/picture.png"), 1);
    EXPECT_NE(said.find("missing/picture.png"), std::string::npos) << said;
    writeBytes(folder / "letter.qds", bytesOf("dear all"));
    EXPECT_EQ(run("letter.qds --screenshot refused.png"), 0) << "no box waits for anybody";
    for (const char* wrong : {"--screenshot", "--screenshot p.png --size 0x5",
                              "--screenshot p.png --scale nan", "--bogus"})
        EXPECT_EQ(run(wrong), 2) << wrong;
}

}  // namespace
}  // namespace quendra::test
