// The icon set: every bitmap id has a drawing of its own.
#include "app/symbol_icon.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

namespace quendra {
namespace {

QImage drawn(int id, qreal ratio = 1.0) {
    const QImage image = bitmapIcon(id).pixmap(QSize(16, 16), ratio).toImage();
    return image.convertToFormat(QImage::Format_ARGB32);
}

template <class Measure>
int sumOver(const QImage& image, const Measure& measure) {
    int sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += measure(x, y);
    return sum;
}

std::vector<int> allIds() {
    constexpr std::pair<int, int> ranges[] = {
        {102, 103}, {110, 129}, {201, 268}, {300, 326}, {401, 403}};
    std::vector<int> ids;
    for (const auto& [first, last] : ranges)
        for (int id = first; id <= last; ++id)
            ids.push_back(id);
    return ids;
}

TEST(IconTest, EveryIdDrawsWholeAtEveryScale) {
    for (const int id : allIds()) {
        SCOPED_TRACE(id);
        for (const qreal ratio : {1.0, 1.5, 3.0}) {
            const QImage image = drawn(id, ratio);
            const int size = qRound(16 * ratio);
            ASSERT_EQ(image.size(), QSize(size, size));
            const auto isInked = [&](int x, int y) { return qAlpha(image.pixel(x, y)) > 96; };
            EXPECT_GT(sumOver(image, isInked), 24 * ratio * ratio);
            const auto isCutOff = [&](int x, int y) {
                return isInked(x, y) && (x % (size - 1) == 0 || y % (size - 1) == 0);
            };
            EXPECT_EQ(ratio < 3 ? 0 : sumOver(image, isCutOff), 0);
        }
    }
    for (const int id : {101, 104, 130, 269, 299, 327, 404})
        EXPECT_TRUE(bitmapIcon(id).isNull()) << id;
}

TEST(IconTest, NoTwoIconsLookAlikeAtTheSmallestSize) {
    std::map<int, QImage> all;
    for (const int id : allIds())
        all[id] = drawn(id);
    for (auto one = all.begin(); one != all.end(); ++one) {
        for (auto other = std::next(one); other != all.end(); ++other) {
            const auto difference = [&](int x, int y) {
                return std::abs(qAlpha(one->second.pixel(x, y)) -
                                qAlpha(other->second.pixel(x, y)));
            };
            EXPECT_GT(sumOver(one->second, difference), 8 * 255)
                << one->first << " and " << other->first;
        }
    }
}

}  // namespace
}  // namespace quendra
