// The icon set: every bitmap id has a drawing of its own.
#include "widgets/symbol_icon.h"

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

// In whole pixels of ink.
double distance(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            sum += std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))) / 255.0;
    return sum;
}

TEST(IconTest, EveryIdDrawsAndNoTwoLookAlikeAtTheSmallestSize) {
    std::map<int, QImage> all;
    for (int id = 0; id < 1000; ++id)
        if (!bitmapIcon(id).isNull()) all[id] = drawn(id);
    EXPECT_EQ(all.size(), 129U);
    QImage nothing(16, 16, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    for (auto one = all.begin(); one != all.end(); ++one) {
        EXPECT_EQ(drawn(one->first, 1.5).size(), QSize(24, 24)) << "crisp at every scale";
        EXPECT_GT(distance(one->second, nothing), 20) << one->first;
        for (auto other = std::next(one); other != all.end(); ++other)
            EXPECT_GT(distance(one->second, other->second), 8)
                << one->first << " and " << other->first;
    }
}

}  // namespace
}  // namespace quendra
