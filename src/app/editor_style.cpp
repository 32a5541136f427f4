#include "app/editor_style.h"

#include <QAbstractItemView>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace quendra {

namespace {

struct MessageSign {
    QRgb colour;
    char16_t sign;
    bool triangle;
};

constexpr MessageSign informationSign = {0xff2463c5, u'i', false};
constexpr MessageSign questionSign = {0xff2463c5, u'?', false};
constexpr MessageSign warningSign = {0xffc77700, u'!', true};
constexpr MessageSign stopSign = {0xffc4302b, u'\u00d7', false};

// Drawn at whatever size and scale is asked for.
class MessageIconEngine : public QIconEngine {
  public:
    explicit MessageIconEngine(const MessageSign& sign) : sign_(sign) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const qreal side = std::min(rect.width(), rect.height());
        const QRectF box(rect.x() + (rect.width() - side) / 2,
                         rect.y() + (rect.height() - side) / 2, side, side);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor::fromRgb(sign_.colour));
        painter->drawPath(shape(box.adjusted(side / 16, side / 16, -side / 16, -side / 16)));
        QFont font = painter->font();
        font.setBold(true);
        font.setPixelSize(static_cast<int>(side * (sign_.triangle ? 0.5 : 0.62)));
        painter->setFont(font);
        painter->setPen(Qt::white);
        const qreal down = sign_.triangle ? side * 0.22 : 0;
        painter->drawText(box.adjusted(0, down, 0, 0), Qt::AlignCenter, QString(QChar(sign_.sign)));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new MessageIconEngine(*this); }

  private:
    [[nodiscard]] QPainterPath shape(const QRectF& box) const {
        QPainterPath path;
        if (sign_.triangle) {
            path.addPolygon(QPolygonF{{QPointF(box.center().x(), box.top()), box.bottomRight(),
                                       box.bottomLeft(), QPointF(box.center().x(), box.top())}});
        } else {
            path.addEllipse(box);
        }
        return path;
    }

    MessageSign sign_;
};

QIcon messageIcon(const MessageSign& sign) {
    return QIcon(new MessageIconEngine(sign));
}

void drawListEdge(const QStyleOption& option, QPainter& painter, bool focused) {
    const QPalette& palette = option.palette;
    const QPalette::ColorRole plain = isDark(palette) ? QPalette::Light : QPalette::Mid;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette.color(QPalette::Active, focused ? QPalette::Highlight : plain));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

}  // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

EditorStyle::EditorStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void EditorStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element == CE_ToolBar) return;
    const bool unfocusedList =
        qobject_cast<const QAbstractItemView*>(widget) && !widget->hasFocus();
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && item && unfocusedList) {
        QStyleOptionViewItem quiet = *item;
        quiet.state &= ~State_Active;
        QProxyStyle::drawControl(element, &quiet, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ShapedFrame && qobject_cast<const QAbstractItemView*>(widget)) {
        drawListEdge(*option, *painter, !unfocusedList);
    }
}

int EditorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation: return messageIcon(informationSign);
        case SP_MessageBoxQuestion: return messageIcon(questionSign);
        case SP_MessageBoxWarning: return messageIcon(warningSign);
        case SP_MessageBoxCritical: return messageIcon(stopSign);
        default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

}  // namespace quendra
