#include "app/pane/script_gutter.h"

#include "widgets/contrast.h"
#include "widgets/problem_sign.h"

#include <QPainter>

#include <algorithm>
#include <bit>
#include <memory>

namespace quendra {

namespace {

constexpr int gutterMargin = 4;
constexpr int laneWidth = 5;
/// Between the first lane and the row's icon: the arrow heads.
constexpr int headWidth = 7;
constexpr int headHeight = 3;

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a * share + b * (1 - share));
    };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

QColor faintLine(const QPalette& palette) {
    return mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.4);
}

int outermost(std::uint8_t lanes) {
    return std::bit_width(lanes) - 1;
}

}  // namespace

QColor quietText(const QPalette& palette) {
    return mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.72);
}

void ScriptGutter::refit() {
    const int rows = list_.model()->rowCount();
    // At least two digits, so that a script that grows does not move its lines too often.
    const auto digits = std::max<qsizetype>(QString::number(rows).size(), 2);
    const QFontMetrics metrics = list_.fontMetrics();
    digitWidth_ = metrics.horizontalAdvance(QLatin1Char('0'));
    digitHeight_ = metrics.height();
    numbers_.clear();
    numberWidth_ = static_cast<int>(digits) * digitWidth_;
    const int lanes = check_ ? check_->lanes().laneCount() : 0;
    width_ = gutterMargin + numberWidth_ + gutterMargin + lanes * laneWidth + headWidth;
}

int ScriptGutter::laneX(const QRect& area, int lane) const {
    return area.right() - headWidth - lane * laneWidth;
}

void ScriptGutter::paint(QPainter& painter, const QRect& area, int row) const {
    painter.fillRect(area, list_.palette().alternateBase());
    paintNumber(painter, area, row);
    if (!check_) return;
    const auto step = static_cast<std::size_t>(row);
    const StepJumps jumps = check_->lanes().at(step);
    paintJumps(painter, area, jumps, faintLine(list_.palette()));
    const int focused = list_.focusedRow();
    if (focused >= 0) {
        const StepJumps strong =
            check_->lanes().ofStep(check_->outline(), static_cast<std::size_t>(focused), step);
        if (strong != StepJumps()) paintJumps(painter, area, strong, accentColor(list_.palette()));
    }
    paintFaults(painter, area, jumps);
}

const QStaticText& ScriptGutter::laidOut(int number) const {
    if (const QStaticText* kept = numbers_.object(number)) return *kept;
    auto text = std::make_unique<QStaticText>(QString::number(number));
    text->setTextFormat(Qt::PlainText);
    text->setPerformanceHint(QStaticText::AggressiveCaching);
    text->prepare({}, list_.font());
    const QStaticText& made = *text;
    numbers_.insert(number, text.release());
    return made;
}

void ScriptGutter::paintNumber(QPainter& painter, const QRect& area, int row) const {
    const QPalette& palette = list_.palette();
    const bool isCurrent = row == list_.focusedRow();
    painter.setPen(isCurrent ? palette.color(QPalette::Text) : quietText(palette));
    const QStaticText& number = laidOut(row + 1);
    const int width = static_cast<int>(number.text().size()) * digitWidth_;
    painter.drawStaticText(area.left() + gutterMargin + numberWidth_ - width,
                           area.top() + (area.height() - digitHeight_) / 2, number);
}

void ScriptGutter::paintJumps(QPainter& painter, const QRect& area, const StepJumps& jumps,
                              const QColor& colour) const {
    const int middle = area.center().y();
    for (int lane = 0; lane < mostJumpLanes; ++lane) {
        const auto bit = static_cast<std::uint8_t>(1U << static_cast<unsigned>(lane));
        const int top = (jumps.above & bit) != 0 ? area.top() : middle;
        const int bottom = (jumps.below & bit) != 0 ? area.bottom() : middle;
        if (top < bottom) painter.fillRect(laneX(area, lane), top, 1, bottom - top + 1, colour);
    }
    const std::uint8_t level = jumps.leaves | jumps.arrives;
    if (level == 0) return;
    const int left = laneX(area, outermost(level));
    painter.fillRect(left, middle, area.right() - 1 - left, 1, colour);
    if (jumps.arrives == 0) return;
    for (int i = 0; i <= headHeight; ++i)
        painter.fillRect(area.right() - 1 - i, middle - i, 1, 2 * i + 1, colour);
}

// A Goto that leads nowhere ends in a cross; a Label that nothing uses has an arrow head without an
// arrow, hollow.
void ScriptGutter::paintFaults(QPainter& painter, const QRect& area, const StepJumps& jumps) const {
    if (!jumps.isLost && !jumps.isUnused) return;
    const QPalette& palette = list_.palette();
    const QPointF end(area.right() - headWidth / 2.0, area.center().y() + 0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (jumps.isLost) {
        painter.setPen(QPen(problemColour(Severity::Error, palette), 1.4));
        painter.drawLine(end + QPointF(-2.5, -2.5), end + QPointF(2.5, 2.5));
        painter.drawLine(end + QPointF(-2.5, 2.5), end + QPointF(2.5, -2.5));
    } else {
        painter.setPen(QPen(problemColour(Severity::Warning, palette), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(
            QPolygonF{{end + QPointF(-2, -3), end + QPointF(2, 0), end + QPointF(-2, 3)}});
    }
    painter.restore();
}

}  // namespace quendra
