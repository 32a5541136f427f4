// The icon set: every bitmap id has a drawing of its own, in the colours of the palette, crisp at
// every scale.
#include "app/icon_catalogue.h"
#include "app/symbol_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace quendra {
namespace {

constexpr int aBitmap = 110;
constexpr int aCommand = 302;

// Colours that cannot be mixed up, so a pixel tells which role painted it.
QPalette lightPalette() {
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Base, Qt::white);
    palette.setColor(QPalette::All, QPalette::Text, QColor(0x101010));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x909090));
    palette.setColor(QPalette::All, QPalette::Highlight, QColor(0x0050c0));
    palette.setColor(QPalette::All, QPalette::HighlightedText, QColor(0xfff0f0));
    return palette;
}

QPalette darkPalette() {
    QPalette palette = lightPalette();
    palette.setColor(QPalette::All, QPalette::Base, QColor(0x202020));
    palette.setColor(QPalette::All, QPalette::Text, QColor(0xe0e0e0));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x707070));
    return palette;
}

QImage drawn(const QIcon& icon, int size, qreal ratio = 1.0, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(size, size), ratio, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

int inkedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 96 ? 1 : 0;
    return count;
}

// How far two pictures of one size lie apart in shape: whole pixels of ink that one has and the
// other lacks.
double distance(const QImage& a, const QImage& b) {
    int sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y)));
    return sum / 255.0;
}

bool uses(const QImage& image, const QColor& colour) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) > 200 && std::abs(qRed(pixel) - colour.red()) < 6 &&
                std::abs(qGreen(pixel) - colour.green()) < 6 &&
                std::abs(qBlue(pixel) - colour.blue()) < 6)
                return true;
        }
    }
    return false;
}

struct IdRange {
    const char* name;
    int first;
    int last;
    friend void PrintTo(const IdRange& range, std::ostream* out) { *out << range.name; }
};

constexpr IdRange idRanges[] = {
    {"Program", 102, 102},      {"LuFunction", 103, 103}, {"ScriptEvents", 110, 129},
    {"MenuCommands", 201, 268}, {"Commands", 300, 320},   {"LaterCommands", 321, 325},
};

class IconTest : public testing::Test {
  protected:
    void SetUp() override { QGuiApplication::setPalette(lightPalette()); }
};

class IconRange : public IconTest, public testing::WithParamInterface<IdRange> {};

TEST_P(IconRange, EveryIdDrawsAtEveryScale) {
    for (int id = GetParam().first; id <= GetParam().last; ++id) {
        SCOPED_TRACE(id);
        const QIcon icon = bitmapIcon(id);
        ASSERT_FALSE(icon.isNull());
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            const QImage image = drawn(icon, 16, ratio);
            ASSERT_EQ(image.size(), QSize(qRound(16 * ratio), qRound(16 * ratio)));
            EXPECT_GT(inkedPixels(image), 24 * ratio * ratio);
        }
    }
}

// Ink in the outermost pixels is a line that the edge of the drawing cuts off.
TEST_P(IconRange, NothingIsCutOffAtTheEdge) {
    for (int id = GetParam().first; id <= GetParam().last; ++id) {
        const QImage image = drawn(bitmapIcon(id), 48);
        int edge = 0;
        for (int i = 0; i < image.width(); ++i)
            for (const QPoint point : {QPoint(i, 0), QPoint(i, 47), QPoint(0, i), QPoint(47, i)})
                edge = std::max(edge, qAlpha(image.pixel(point)));
        EXPECT_EQ(edge, 0) << id;
    }
}

INSTANTIATE_TEST_SUITE_P(Ids, IconRange, testing::ValuesIn(idRanges),
                         [](const auto& range) { return std::string(range.param.name); });

TEST_F(IconTest, CatalogueHoldsTheRangesAndNothingElse) {
    std::vector<int> expected;
    for (const IdRange& range : idRanges)
        for (int id = range.first; id <= range.last; ++id)
            expected.push_back(id);
    std::vector<int> found;
    for (const IconRow& row : iconCatalogue()) {
        found.push_back(row.bitmapId);
        EXPECT_TRUE(QFile::exists(iconFile(row.bitmapId))) << row.name;
    }
    EXPECT_EQ(found, expected);
}

TEST_F(IconTest, NoTwoIconsLookAlikeAtTheSmallestSize) {
    struct Drawn {
        int id;
        QImage image;
    };
    std::vector<Drawn> all;
    for (const IconRow& row : iconCatalogue())
        all.push_back({row.bitmapId, drawn(bitmapIcon(row.bitmapId), 16)});
    for (std::size_t i = 0; i < all.size(); ++i)
        for (std::size_t j = i + 1; j < all.size(); ++j)
            EXPECT_GT(distance(all[i].image, all[j].image), 8.0)
                << all[i].id << " and " << all[j].id;
}

TEST_F(IconTest, UnknownIdsHaveNoIcon) {
    for (const int id : {-1, 0, 3, 101, 104, 109, 130, 200, 269, 299, 326, 6300})
        EXPECT_TRUE(bitmapIcon(id).isNull()) << id;
    for (const int id : {0, 103, 110, 268, 299, 326, 6300})
        EXPECT_TRUE(toolbarIcon(id).isNull()) << id;
}

// Lists ask for an icon per row and per repaint.
TEST_F(IconTest, AskingAgainRendersNothingAnew) {
    EXPECT_EQ(bitmapIcon(aBitmap).cacheKey(), bitmapIcon(aBitmap).cacheKey());
    EXPECT_EQ(toolbarIcon(aCommand).cacheKey(), toolbarIcon(aCommand).cacheKey());
    const QPixmap once = bitmapIcon(aBitmap).pixmap(QSize(16, 16), 2.0);
    const QPixmap again = bitmapIcon(aBitmap).pixmap(QSize(16, 16), 2.0);
    EXPECT_EQ(once.cacheKey(), again.cacheKey());
}

TEST_F(IconTest, ColoursFollowThePaletteOfTheMoment) {
    const QIcon icon = bitmapIcon(aBitmap);
    const QImage onLight = drawn(icon, 48);
    EXPECT_TRUE(uses(onLight, QColor(0x101010)));
    EXPECT_TRUE(uses(onLight, accentColor(lightPalette())));

    QGuiApplication::setPalette(darkPalette());
    const QImage onDark = drawn(icon, 48);
    EXPECT_TRUE(uses(onDark, QColor(0xe0e0e0)));
    EXPECT_TRUE(uses(onDark, accentColor(darkPalette())));
    EXPECT_FALSE(uses(onDark, QColor(0x101010)));
}

struct ModeRow {
    const char* name;
    QIcon::Mode mode;
    QRgb colour;
};

// The whole drawing takes the colour: an accent left in a selected row would vanish on the
// highlight.
TEST_F(IconTest, SelectedAndDisabledUseOneColourThroughout) {
    const ModeRow rows[] = {{"selected", QIcon::Selected, 0xfff0f0},
                            {"disabled", QIcon::Disabled, 0x909090}};
    for (const ModeRow& row : rows) {
        for (const QIcon& icon : {bitmapIcon(aBitmap), toolbarIcon(aCommand)}) {
            const QImage image = drawn(icon, 48, 1.0, row.mode);
            EXPECT_TRUE(uses(image, QColor(row.colour))) << row.name;
            EXPECT_FALSE(uses(image, QColor(0x101010))) << row.name;
            EXPECT_FALSE(uses(image, accentColor(lightPalette()))) << row.name;
        }
    }
}

TEST_F(IconTest, EveryCommandHasAHotFormOfTheSameShape) {
    for (int id = 300; id <= 325; ++id) {
        SCOPED_TRACE(id);
        const QImage normal = drawn(toolbarIcon(id), 24);
        const QImage hot = drawn(toolbarIcon(id), 24, 1.0, QIcon::Active);
        EXPECT_NE(normal, hot);
        EXPECT_LT(distance(normal, hot), 1.0);
        EXPECT_TRUE(uses(normal, QColor(0x101010)));
        EXPECT_FALSE(uses(hot, QColor(0x101010)));
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
    const QImage painted =
        canvas.toImage().convertToFormat(QImage::Format_ARGB32).copy(5, 8, 24, 24);
    EXPECT_LT(distance(painted, drawn(icon, 16, ratio)), 0.01);
}

struct AccentRow {
    const char* name;
    QRgb base;
    QRgb highlight;
};

TEST(AccentColor, StandsOutOnTheBaseWhateverTheHighlight) {
    const AccentRow rows[] = {
        {"dark blue on dark", 0x202020, 0x003080}, {"pale yellow on white", 0xffffff, 0xffffb0},
        {"blue on white", 0xffffff, 0x0050c0},     {"black on black", 0x000000, 0x000000},
        {"white on white", 0xffffff, 0xffffff},    {"grey on middle grey", 0x808080, 0x909090},
    };
    for (const AccentRow& row : rows) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(row.base));
        palette.setColor(QPalette::Highlight, QColor(row.highlight));
        const QColor accent = accentColor(palette);
        EXPECT_GT(std::abs(qGray(accent.rgb()) - qGray(row.base)), 60) << row.name;
    }
    QPalette enough = lightPalette();
    EXPECT_EQ(accentColor(enough).rgb(), QColor(0x0050c0).rgb());
}

}  // namespace
}  // namespace quendra

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
