// The one style of the program: Fusion, mended where lists, buttons and message boxes fall short.
#pragma once

#include <QProxyStyle>

namespace quendra {

/// Lists, fields and scroll bars have edges and handles that everybody can see. Lists show that
/// they have the focus, and show their selection quietly when they have not. Buttons have no
/// pictures, messages have plain ones, the toolbar no line of its own, since the pane below draws
/// one, and its buttons are close together, and a hidden text is asterisks, as in the script list.
class EditorStyle : public QProxyStyle {
    Q_OBJECT

  public:
    EditorStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

/// True for a palette of light text on dark ground.
[[nodiscard]] bool isDark(const QPalette& palette);

}  // namespace quendra
