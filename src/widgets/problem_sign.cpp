#include "widgets/problem_sign.h"

#include "widgets/editor_style.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace quendra {

namespace {

// On a square of 16.
constexpr qreal signSide = 16;

QPainterPath signOutline(Severity severity) {
    QPainterPath path;
    if (severity == Severity::Error) {
        path.addEllipse(QRectF(1, 1, 14, 14));
    } else {
        path.addPolygon(QPolygonF{{QPointF(8, 1), QPointF(15.5, 14.5), QPointF(0.5, 14.5)}});
        path.closeSubpath();
    }
    return path;
}

QPainterPath signInk(Severity severity) {
    QPainterPath path;
    if (severity == Severity::Error) {
        path.moveTo(5.2, 5.2);
        path.lineTo(10.8, 10.8);
        path.moveTo(10.8, 5.2);
        path.lineTo(5.2, 10.8);
    } else {
        path.moveTo(8, 5.8);
        path.lineTo(8, 9.4);
        path.moveTo(8, 12.2);
        path.lineTo(8, 12.3);
    }
    return path;
}

class SignEngine : public QIconEngine {
  public:
    explicit SignEngine(Severity severity) : severity_(severity) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int extent = std::min(rect.width(), rect.height());
        QRectF box(0, 0, extent, extent);
        box.moveCenter(QRectF(rect).center());
        drawProblemSign(*painter, box, severity_, QGuiApplication::palette());
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new SignEngine(*this); }

  private:
    Severity severity_;
};

}  // namespace

QColor problemColour(Severity severity, const QPalette& palette) {
    const bool dark = isDark(palette);
    if (severity == Severity::Error) return QColor::fromRgb(dark ? 0xffff7268 : 0xffc4302b);
    return QColor::fromRgb(dark ? 0xfff0b040 : 0xffb06800);
}

void drawProblemSign(QPainter& painter, const QRectF& box, Severity severity,
                     const QPalette& palette) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.topLeft());
    painter.scale(box.width() / signSide, box.height() / signSide);
    const QPainterPath outline = signOutline(severity);
    painter.strokePath(outline, QPen(base, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, problemColour(severity, palette));
    painter.strokePath(signInk(severity),
                       QPen(base, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

QIcon problemIcon(Severity severity) {
    return QIcon(new SignEngine(severity));
}

}  // namespace quendra
