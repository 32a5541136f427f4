// The options of the picture maker: taken out of the command line whole, and refused when wrong;
// and the program itself, started with them.
#include "app/screenshot.h"

#include "support/fixtures.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <QImage>
#include <QProcess>

#include <filesystem>
#include <gtest/gtest.h>

namespace quendra {
namespace {

int runProgram(const QStringList& arguments) {
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/quendra-script-editor"),
                  arguments);
    return program.waitForFinished() && program.exitStatus() == QProcess::NormalExit
               ? program.exitCode()
               : -1;
}

QString textOf(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

TEST(PictureOptionsTest, AreTakenOutAndTheRestIsLeftInOrder) {
    std::vector<std::string> arguments = {"/t1", "--size", "800x600",      "--dark",  "--scale",
                                          "1.5", "a.qds",  "--screenshot", "out.png", "--other"};
    const auto options = takePictureOptions(arguments);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->file, QStringLiteral("out.png"));
    EXPECT_EQ(options->size, QSize(800, 600));
    EXPECT_EQ(options->scale, "1.5");
    EXPECT_EQ(options->appearance, Appearance::Dark);
    EXPECT_EQ(arguments, (std::vector<std::string>{"/t1", "a.qds", "--other"}));
}

TEST(PictureOptionsTest, NamesBehindTwoDashesAreNoOptions) {
    std::vector<std::string> arguments = {"--light", "--", "--dark"};
    EXPECT_EQ(takePictureOptions(arguments)->appearance, Appearance::Light);
    EXPECT_EQ(arguments, (std::vector<std::string>{"--", "--dark"}));
}

TEST(ProgramTest, DrawsItsWindowInTheSizeAndScaleAskedForAndEnds) {
    const test::TemporaryFolder folder;
    test::writeBytes(folder / "a.qds", test::bytesOf("QDVTSCR="));
    const QString picture = textOf(folder / "picture.png");
    ASSERT_EQ(runProgram({textOf(folder / "a.qds"), QStringLiteral("--screenshot"), picture,
                          QStringLiteral("--size"), QStringLiteral("700x500"),
                          QStringLiteral("--scale"), QStringLiteral("2")}),
              0);
    const QImage image(picture);
    EXPECT_EQ(image.size(), QSize(1400, 1000));
}

TEST(ProgramTest, TellsOfPicturesItCannotMakeAndOptionsItDoesNotKnow) {
    const test::TemporaryFolder folder;
    EXPECT_EQ(
        runProgram({QStringLiteral("--screenshot"), textOf(folder / "missing" / "picture.png")}),
        1);
    EXPECT_EQ(runProgram({QStringLiteral("--screenshot")}), 2);
    EXPECT_EQ(runProgram({QStringLiteral("--bogus")}), 2);
}

TEST(PictureOptionsTest, WrongValuesAreRefused) {
    const std::vector<std::string> rows[] = {
        {"--screenshot"},     {"--screenshot", ""}, {"--size", "800"},  {"--size", "0x5"},
        {"--size", "ax5"},    {"--size", "1x2x3"},  {"--size"},         {"--size", "99999x5"},
        {"--scale", "large"}, {"--scale", "0"},     {"--scale", "100"}, {"--scale", "nan"},
    };
    for (std::vector<std::string> arguments : rows) {
        EXPECT_FALSE(takePictureOptions(arguments)) << arguments.front() << arguments.size();
    }
}

}  // namespace
}  // namespace quendra
