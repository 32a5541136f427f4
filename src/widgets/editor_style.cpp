#include "widgets/editor_style.h"

#include "widgets/contrast.h"
#include "widgets/scroll_bar_look.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>

#include <algorithm>
#include <functional>
#include <utility>

namespace quendra {

namespace {

// Drawn anew at whatever size and scale is asked for, into a square box.
using Drawing = std::function<void(QPainter& painter, const QRectF& box)>;

class DrawnIconEngine : public QIconEngine {
  public:
    explicit DrawnIconEngine(Drawing drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int side = std::min(rect.width(), rect.height());
        QRectF box(0, 0, side, side);
        box.moveCenter(QRectF(rect).center());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        drawing_(*painter, box);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new DrawnIconEngine(*this); }

  private:
    Drawing drawing_;
};

struct MessageSign {
    QRgb colour;
    char16_t sign;
    bool triangle;
};

constexpr MessageSign informationSign = {0xff2463c5, u'i', false};
constexpr MessageSign questionSign = {0xff2463c5, u'?', false};
constexpr MessageSign warningSign = {0xffc77700, u'!', true};
constexpr MessageSign stopSign = {0xffc4302b, u'\u00d7', false};

void drawMessageSign(QPainter& painter, const QRectF& whole, const MessageSign& sign) {
    const qreal side = whole.width();
    const QRectF box = whole.adjusted(side / 16, side / 16, -side / 16, -side / 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(sign.colour));
    if (sign.triangle) {
        painter.drawPolygon(
            QPolygonF{{QPointF(box.center().x(), box.top()), box.bottomRight(), box.bottomLeft()}});
    } else {
        painter.drawEllipse(box);
    }
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(static_cast<int>(side * (sign.triangle ? 0.5 : 0.62)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    // The broad part of the triangle is its lower one.
    const qreal down = sign.triangle ? side * 0.22 : 0;
    painter.drawText(whole.adjusted(0, down, 0, 0), Qt::AlignCenter, QString(QChar(sign.sign)));
}

QIcon messageIcon(const MessageSign& sign) {
    return QIcon(new DrawnIconEngine(
        [sign](QPainter& painter, const QRectF& box) { drawMessageSign(painter, box, sign); }));
}

// What the toolbar has no room for is behind this arrow; Fusion's own is black in every palette.
QIcon extensionIcon() {
    return QIcon(new DrawnIconEngine([](QPainter& painter, const QRectF& box) {
        const qreal step = box.width() / 4;
        painter.setPen(QPen(QGuiApplication::palette().color(QPalette::ButtonText), step / 2));
        for (const qreal left : {box.center().x() - step, box.center().x() + step / 2}) {
            painter.drawPolyline(QPolygonF{{QPointF(left, box.center().y() - step),
                                            QPointF(left + step, box.center().y()),
                                            QPointF(left, box.center().y() + step)}});
        }
    }));
}

// Fusion derives its edges from the window's colour, too near to it to be seen by everybody. A copy
// of the option with another makes it draw edges that show; nothing else of these parts has that
// colour.
template <class Option>
Option withVisibleEdge(const Option& option) {
    constexpr int darkening = 140;
    Option visible = option;
    visible.palette.setColor(QPalette::Window, edgeColor(option.palette).lighter(darkening));
    return visible;
}

// Over Fusion's own, whose colour it makes lighter by itself.
void drawFocusedField(const QStyleOption& option, const QRect& field, QPainter& painter) {
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    constexpr qreal half = 0.5;
    constexpr qreal radius = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(focusColor(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(field).adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

void drawEdge(const QStyleOption& option, QPainter& painter, bool focused) {
    const QPalette& palette = option.palette;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(focused ? focusColor(palette) : edgeColor(palette));
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
    if (element == CE_ShapedFrame && (qobject_cast<const QAbstractItemView*>(widget) ||
                                      qobject_cast<const QPlainTextEdit*>(widget))) {
        drawEdge(*option, *painter, widget->hasFocus());
    }
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (box && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
        const auto visible = withVisibleEdge(*box);
        QProxyStyle::drawPrimitive(element, &visible, painter, widget);
    } else if (frame && element == PE_FrameLineEdit) {
        const auto visible = withVisibleEdge(*frame);
        QProxyStyle::drawPrimitive(element, &visible, painter, widget);
        drawFocusedField(*frame, frame->rect, *painter);
    } else if (element == PE_FrameFocusRect) {
        drawEdge(*option, *painter, true);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (slider && control == CC_ScrollBar) {
        drawScrollBar(*proxy(), *slider, *painter, widget);
    } else if (spin && control == CC_SpinBox) {
        const auto visible = withVisibleEdge(*spin);
        QProxyStyle::drawComplexControl(control, &visible, painter, widget);
        drawFocusedField(*spin, spin->rect.adjusted(0, 1, 0, -1), *painter);
    } else if (combo && control == CC_ComboBox) {
        const auto visible = withVisibleEdge(*combo);
        QProxyStyle::drawComplexControl(control, &visible, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

// The whole toolbar is seen in a window that is as wide as it opens.
int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    if (metric == PM_ToolBarItemSpacing) return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize EditorStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const bool inToolBar =
        type == CT_ToolButton && widget && qobject_cast<QToolBar*>(widget->parentWidget());
    return inToolBar ? size - QSize(4, 0) : size;
}

int EditorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_LineEdit_PasswordCharacter) return '*';
    // On dark, the light copy behind a greyed menu item makes it look blurred.
    if (hint == SH_EtchDisabledText) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation: return messageIcon(informationSign);
        case SP_MessageBoxQuestion: return messageIcon(questionSign);
        case SP_MessageBoxWarning: return messageIcon(warningSign);
        case SP_MessageBoxCritical: return messageIcon(stopSign);
        case SP_ToolBarHorizontalExtensionButton: return extensionIcon();
        default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

}  // namespace quendra
