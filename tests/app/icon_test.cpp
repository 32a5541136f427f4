// The icon set: every bitmap id has a drawing of its own, in the colours of the palette, crisp at
// every scale.
#include "app/symbol_icon.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

namespace quendra {
namespace {

constexpr int programBitmap = 102;
constexpr int aBitmap = 110;
constexpr int aCommand = 302;

// Colours that cannot be mixed up, so a pixel tells which role painted it.
constexpr QRgb textOnLight = 0x101010;
constexpr QRgb textOnDark = 0xe0e0e0;

QPalette paletteOf(QRgb base, QRgb text) {
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Base, base);
    palette.setColor(QPalette::All, QPalette::Text, text);
    palette.setColor(QPalette::Disabled, QPalette::Text, 0x909090);
    palette.setColor(QPalette::All, QPalette::Highlight, 0x0050c0);
    palette.setColor(QPalette::All, QPalette::HighlightedText, 0xfff0f0);
    return palette;
}

const QPalette light = paletteOf(0xffffff, textOnLight);
const QPalette dark = paletteOf(0x202020, textOnDark);

QImage drawn(const QIcon& icon, int size, qreal ratio = 1.0, QIcon::Mode mode = QIcon::Normal) {
    const QImage image = icon.pixmap(QSize(size, size), ratio, mode).toImage();
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

// Whole pixels of ink that one picture has and the other, of the same size, lacks.
double distance(const QImage& a, const QImage& b) {
    return sumOver(a,
                   [&](int x, int y) {
                       return std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y)));
                   }) /
           255.0;
}

bool uses(const QImage& image, QRgb colour) {
    const auto isNear = [](int a, int b) { return std::abs(a - b) < 6; };
    const auto matches = [&](int x, int y) {
        const QRgb pixel = image.pixel(x, y);
        return qAlpha(pixel) > 200 && isNear(qRed(pixel), qRed(colour)) &&
               isNear(qGreen(pixel), qGreen(colour)) && isNear(qBlue(pixel), qBlue(colour));
    };
    return sumOver(image, matches) > 0;
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

struct IconTest : testing::Test {
    IconTest() { QGuiApplication::setPalette(light); }
};

TEST_F(IconTest, EveryIdDrawsWholeAtEveryScale) {
    for (const int id : allIds()) {
        SCOPED_TRACE(id);
        const QIcon icon = bitmapIcon(id);
        ASSERT_FALSE(icon.isNull());
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            const QImage image = drawn(icon, 16, ratio);
            ASSERT_EQ(image.size(), QSize(qRound(16 * ratio), qRound(16 * ratio)));
            const auto isInked = [&](int x, int y) { return qAlpha(image.pixel(x, y)) > 96; };
            EXPECT_GT(sumOver(image, isInked), 24 * ratio * ratio);
        }
        const QImage large = drawn(icon, 48);
        const auto inkAtTheEdge = [&](int x, int y) {
            return x % 47 == 0 || y % 47 == 0 ? qAlpha(large.pixel(x, y)) : 0;
        };
        EXPECT_EQ(sumOver(large, inkAtTheEdge), 0) << "a line is cut off";
    }
}

TEST_F(IconTest, NoTwoIconsLookAlikeAtTheSmallestSize) {
    std::map<int, QImage> all;
    for (const int id : allIds())
        all[id] = drawn(bitmapIcon(id), 16);
    for (auto one = all.begin(); one != all.end(); ++one)
        for (auto other = std::next(one); other != all.end(); ++other)
            EXPECT_GT(distance(one->second, other->second), 8.0)
                << one->first << " and " << other->first;
}

TEST_F(IconTest, UnknownIdsHaveNoIcon) {
    for (const int id : {-1, 0, 101, 104, 109, 130, 200, 269, 299, 327, 400, 404, 6300})
        EXPECT_TRUE(bitmapIcon(id).isNull()) << id;
    for (const int id : {0, 103, 110, 268, 299, 327, 401, 6300})
        EXPECT_TRUE(toolbarIcon(id).isNull()) << id;
}

TEST_F(IconTest, ColoursFollowThePaletteOfTheMoment) {
    const QIcon icon = bitmapIcon(aBitmap);
    const QImage onLight = drawn(icon, 48);
    EXPECT_TRUE(uses(onLight, textOnLight));
    EXPECT_TRUE(uses(onLight, accentColor(light).rgb()));
    QGuiApplication::setPalette(dark);
    const QImage onDark = drawn(icon, 48);
    EXPECT_TRUE(uses(onDark, textOnDark));
    EXPECT_TRUE(uses(onDark, accentColor(dark).rgb()));
    EXPECT_FALSE(uses(onDark, textOnLight));
}

// An accent left in a selected row would vanish on the highlight.
TEST_F(IconTest, SelectedAndDisabledUseOneColourThroughout) {
    const std::pair<QIcon::Mode, QRgb> rows[] = {{QIcon::Selected, 0xfff0f0},
                                                 {QIcon::Disabled, 0x909090}};
    for (const auto& [mode, colour] : rows) {
        for (const QIcon& icon : {bitmapIcon(aBitmap), toolbarIcon(aCommand)}) {
            const QImage image = drawn(icon, 48, 1.0, mode);
            EXPECT_TRUE(uses(image, colour)) << mode;
            EXPECT_FALSE(uses(image, textOnLight)) << mode;
            EXPECT_FALSE(uses(image, accentColor(light).rgb())) << mode;
        }
    }
}

TEST_F(IconTest, EveryCommandHasAHotFormOfTheSameShape) {
    for (int id = 300; id <= 326; ++id) {
        SCOPED_TRACE(id);
        const QImage normal = drawn(toolbarIcon(id), 24);
        const QImage hot = drawn(toolbarIcon(id), 24, 1.0, QIcon::Active);
        EXPECT_LT(distance(normal, hot), 1.0);
        EXPECT_TRUE(uses(normal, textOnLight));
        EXPECT_FALSE(uses(hot, textOnLight));
    }
    EXPECT_EQ(drawn(bitmapIcon(aCommand), 24), drawn(bitmapIcon(aCommand), 24, 1.0, QIcon::Active));
}

// At a scale of 1.5 an odd coordinate lies between two device pixels; painting there must not
// resample the icon.
TEST_F(IconTest, PaintingBetweenDevicePixelsStaysCrisp) {
    constexpr qreal ratio = 1.5;
    const QIcon icon = bitmapIcon(aBitmap);
    QPixmap canvas(60, 60);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        icon.paint(&painter, QRect(3, 5, 16, 16));
    }
    const QImage all = canvas.toImage().convertToFormat(QImage::Format_ARGB32);
    EXPECT_LT(distance(all.copy(5, 8, 24, 24), drawn(icon, 16, ratio)), 0.01);
}

// The desktop takes the window's icon in every size that it offers.
TEST_F(IconTest, TheProgramIconOffersSizesAndHoldsThem) {
    const QList<QSize> sizes = bitmapIcon(programBitmap).availableSizes();
    ASSERT_TRUE(sizes.contains(QSize(16, 16)) && sizes.contains(QSize(256, 256)));
    for (const QSize& size : sizes) {
        const QImage image = drawn(bitmapIcon(programBitmap), size.width());
        EXPECT_EQ(image.size(), size);
        EXPECT_TRUE(uses(image, 0x1f4e8c)) << size.width();
    }
}

TEST(AccentColor, StandsOutOnTheBaseWhateverTheHighlight) {
    const auto accentOn = [](QRgb base, QRgb highlight) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(base));
        palette.setColor(QPalette::Highlight, QColor(highlight));
        return accentColor(palette).rgb();
    };
    const std::pair<QRgb, QRgb> rows[] = {{0x202020, 0x003080},
                                          {0xffffff, 0xffffb0},
                                          {0x000000, 0x000000},
                                          {0xffffff, 0xffffff},
                                          {0x808080, 0x909090}};
    for (const auto& [base, highlight] : rows)
        EXPECT_GT(std::abs(qGray(accentOn(base, highlight)) - qGray(base)), 60) << highlight;
    EXPECT_EQ(accentOn(0xffffff, 0x0050c0), 0xff0050c0) << "far enough already";
}

}  // namespace
}  // namespace quendra
