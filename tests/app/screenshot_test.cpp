// The options of the picture maker: taken out of the command line whole, and refused when wrong.
#include "app/screenshot.h"

#include <gtest/gtest.h>

namespace quendra {
namespace {

using Arguments = std::vector<std::string>;

TEST(PictureOptionsTest, AreTakenOutAndTheRestIsLeftInOrder) {
    Arguments arguments = {"/t1", "--size",  "800x600",      "--dark",  "--scale", "1.5",
                           "a",   "--other", "--screenshot", "out.png", "--",      "--light"};
    const auto options = takePictureOptions(arguments);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->file, QStringLiteral("out.png"));
    EXPECT_EQ(options->size, QSize(800, 600));
    EXPECT_EQ(options->scale, "1.5");
    EXPECT_EQ(options->appearance, Appearance::Dark);
    EXPECT_EQ(arguments, (Arguments{"/t1", "a", "--other", "--", "--light"}));
}

TEST(PictureOptionsTest, WrongValuesAreRefused) {
    const Arguments rows[] = {{"--screenshot"},      {"--screenshot", ""}, {"--size", "800"},
                              {"--size", "0x5"},     {"--size", "ax5"},    {"--size", "1x2x3"},
                              {"--size", "5x10001"}, {"--scale", "nan"},   {"--scale", "large"},
                              {"--scale", "0"},      {"--scale", "100"}};
    for (Arguments arguments : rows)
        EXPECT_FALSE(takePictureOptions(arguments)) << testing::PrintToString(arguments);
}

}  // namespace
}  // namespace quendra
