// The options of the picture maker: taken out of the command line whole, and refused when wrong.
#include "app/screenshot.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

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
