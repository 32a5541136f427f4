// What has to be seen is measured, in both appearances, on what is really painted.
#include "widgets/contrast.h"

#include "support/fixtures.h"
#include "widgets/appearance.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <tuple>

namespace quendra::test {
namespace {

constexpr double textNeeds = 4.5;
constexpr double shapesNeed = 3.0;

class Contrast : public testing::TestWithParam<Appearance> {
  protected:
    void SetUp() override { applyAppearance(GetParam()); }
    void TearDown() override { applyAppearance(Appearance::Light); }
};

TEST_P(Contrast, TextCanBeReadOnEveryGroundThatItHas) {
    const QPalette palette = QApplication::palette();
    using enum QPalette::ColorRole;
    const std::tuple<QPalette::ColorGroup, QPalette::ColorRole, QPalette::ColorRole, double>
        pairs[] = {{QPalette::Active, WindowText, Window, textNeeds},
                   {QPalette::Active, Text, Base, textNeeds},
                   {QPalette::Active, Text, AlternateBase, textNeeds},
                   {QPalette::Active, PlaceholderText, Base, textNeeds},
                   {QPalette::Active, ButtonText, Button, textNeeds},
                   {QPalette::Active, HighlightedText, Highlight, textNeeds},
                   {QPalette::Inactive, HighlightedText, Highlight, textNeeds},
                   {QPalette::Active, ToolTipText, ToolTipBase, textNeeds},
                   {QPalette::Active, Link, Base, textNeeds},
                   {QPalette::Active, Link, Window, textNeeds},
                   {QPalette::Disabled, WindowText, Window, shapesNeed},
                   {QPalette::Disabled, Text, Base, shapesNeed},
                   {QPalette::Disabled, ButtonText, Button, shapesNeed}};
    for (const auto& [group, text, ground, least] : pairs) {
        EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)), least)
            << group << " " << text << " on " << ground;
    }
}

// The most that any pixel on the way from the edge to the middle differs from both grounds.
double edgeContrast(const QImage& picture, QPoint from, QPoint step, int steps,
                    std::initializer_list<QColor> grounds) {
    double best = 0;
    for (int i = 0; i < steps; ++i) {
        const QColor colour = picture.pixelColor(from + i * step);
        double least = 21;
        for (const QColor& ground : grounds)
            least = std::min(least, contrast(colour, ground));
        best = std::max(best, least);
    }
    return best;
}

TEST_P(Contrast, FieldsShowWhereTheyAreAndWhichHasTheFocus) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* list = new QListView;
    const std::initializer_list<QWidget*> fields = {new QLineEdit, new QSpinBox, new QComboBox,
                                                    list, new QLineEdit};
    for (QWidget* field : fields)
        layout->addWidget(field);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    const QColor ground = window.palette().color(QPalette::Window);
    for (QWidget* field : fields) {
        for (const bool focused : {false, true}) {
            focused ? field->setFocus(Qt::TabFocusReason) : (*fields.begin())->clearFocus();
            if (!focused && field->hasFocus()) field->clearFocus();
            const QImage picture = window.grab().toImage();
            const QPoint left = field->geometry().topLeft() + QPoint(-1, field->height() / 2);
            EXPECT_GE(edgeContrast(picture, left, {1, 0}, 4,
                                   {ground, field->palette().color(QPalette::Base)}),
                      shapesNeed)
                << field->metaObject()->className() << (focused ? " with" : " without")
                << " the focus";
        }
    }
}

TEST_P(Contrast, TheHandleOfAScrollBarStandsOutFromItsGroove) {
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QScrollBar bar(orientation);
        bar.setRange(0, 100);
        bar.setPageStep(20);
        bar.resize(orientation == Qt::Horizontal ? QSize(400, 16) : QSize(16, 400));
        const QImage picture = bar.grab().toImage();
        const QPoint along = orientation == Qt::Horizontal ? QPoint(1, 0) : QPoint(0, 1);
        const QPoint across(8 - 8 * along.x(), 8 - 8 * along.y());
        EXPECT_GE(contrast(picture.pixelColor(along * 40 + across),
                           picture.pixelColor(along * 300 + across)),
                  shapesNeed);
        EXPECT_GE(contrast(picture.pixelColor(along * 8 + across),
                           picture.pixelColor(along * 300 + across)),
                  shapesNeed)
            << "the arrow";
    }
}

INSTANTIATE_TEST_SUITE_P(Both, Contrast, testing::Values(Appearance::Light, Appearance::Dark),
                         [](const testing::TestParamInfo<Appearance>& row) {
                             return row.param == Appearance::Dark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace quendra::test
