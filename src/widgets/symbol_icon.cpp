// A QIconEngine that renders single-colour drawings in the colours of the palette.
#include "widgets/symbol_icon.h"

#include "widgets/contrast.h"
#include "widgets/drawing.h"
#include "widgets/icon_catalogue.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace quendra {
namespace {

constexpr int programIconId = 102;
constexpr int firstCommandId = 300;
constexpr int lastCommandId = 359;

struct Colours {
    QRgb ink;
    QRgb accent;
};

// What a rendered pixmap depends on; the icon mode is in the colours.
struct RenderKey {
    QSize pixels;
    qreal devicePixelRatio;
    Colours colours;
};

bool operator==(const RenderKey& a, const RenderKey& b) {
    return a.pixels == b.pixels && qFuzzyCompare(a.devicePixelRatio, b.devicePixelRatio) &&
           a.colours.ink == b.colours.ink && a.colours.accent == b.colours.accent;
}

// The ratio is left out: keys that compare equal but differ in its last bits must hash alike.
size_t qHash(const RenderKey& key, size_t seed = 0) {
    return qHashMulti(seed, key.pixels.width(), key.pixels.height(), key.colours.ink,
                      key.colours.accent);
}

QColor inColours(QRgb drawn, Colours colours) {
    if (drawn == inkMarker) return colours.ink;
    return drawn == accentMarker ? colours.accent : drawn;
}

QPen penOf(const DrawnShape& shape, Colours colours) {
    if (shape.outline == noColour) return Qt::NoPen;
    return {inColours(shape.outline, colours), shape.outlineWidth, Qt::SolidLine, shape.cap,
            shape.join};
}

QPainterPath pathOf(const DrawnShape& shape) {
    QPainterPath path;
    path.setFillRule(shape.fillRule);
    for (auto step = shape.path.begin(); step != shape.path.end(); ++step) {
        switch (step->type) {
            case QPainterPath::MoveToElement: path.moveTo(step->x, step->y); break;
            case QPainterPath::LineToElement: path.lineTo(step->x, step->y); break;
            case QPainterPath::CurveToElement:
                path.cubicTo(step[0].x, step[0].y, step[1].x, step[1].y, step[2].x, step[2].y);
                break;
            case QPainterPath::CurveToDataElement: break;  // taken with the curve that it ends
        }
    }
    return path;
}

QPixmap render(const Drawing& drawing, QSize pixels, Colours colours) {
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(pixels.width(), pixels.height());
    painter.translate(QPoint((pixels.width() - side) / 2, (pixels.height() - side) / 2));
    painter.scale(side / drawing.side, side / drawing.side);
    for (const DrawnShape& shape : drawing.shapes) {
        painter.setPen(penOf(shape, colours));
        painter.setBrush(shape.filling == noColour ? QBrush()
                                                   : QBrush(inColours(shape.filling, colours)));
        painter.drawPath(pathOf(shape));
    }
    return pixmap;
}

enum class HotForm { No, Yes };

class SymbolIconEngine : public QIconEngine {
  public:
    SymbolIconEngine(const Drawing& drawing, HotForm hotForm)
        : drawing_(drawing), hotForm_(hotForm) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }
    // size is in device pixels.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QIconEngine* clone() const override { return new SymbolIconEngine(*this); }
    QString key() const override { return QStringLiteral("quendra-symbol"); }
    bool isNull() override { return false; }

  private:
    Colours coloursFor(QIcon::Mode mode) const;

    const Drawing& drawing_;
    HotForm hotForm_;
    QHash<RenderKey, QPixmap> rendered_;
};

// Rendered for the device's own pixels: a pixmap of another ratio would be resampled and blur.
void SymbolIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                             QIcon::State state) {
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize pixels(qRound(rect.width() * ratio), qRound(rect.height() * ratio));
    painter->drawPixmap(rect.topLeft(), scaledPixmap(pixels, mode, state, ratio));
}

QPixmap SymbolIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State,
                                       qreal scale) {
    // Enough for every mode at a few sizes; a run of palette changes must not grow it for ever.
    constexpr qsizetype keptPixmaps = 48;

    if (size.isEmpty()) return {};
    const RenderKey key{size, scale, coloursFor(mode)};
    if (const auto found = rendered_.constFind(key); found != rendered_.constEnd()) return *found;
    QPixmap pixmap = render(drawing_, size, key.colours);
    pixmap.setDevicePixelRatio(scale);
    if (rendered_.size() >= keptPixmaps) rendered_.clear();
    rendered_.insert(key, pixmap);
    return pixmap;
}

Colours SymbolIconEngine::coloursFor(QIcon::Mode mode) const {
    const QPalette palette = QGuiApplication::palette();
    const auto plain = [&palette](QPalette::ColorGroup group, QPalette::ColorRole role) {
        const QRgb colour = palette.color(group, role).rgb();
        return Colours{colour, colour};
    };
    if (mode == QIcon::Disabled) return plain(QPalette::Disabled, QPalette::Text);
    if (mode == QIcon::Selected) return plain(QPalette::Active, QPalette::HighlightedText);
    const QRgb accent = accentColor(palette).rgb();
    if (mode == QIcon::Active && hotForm_ == HotForm::Yes) return {accent, accent};
    return {palette.color(QPalette::Active, QPalette::Text).rgb(), accent};
}

QIcon symbolIcon(int bitmapId, HotForm hotForm) {
    const Drawing* drawing = iconDrawing(bitmapId);
    return drawing ? QIcon(new SymbolIconEngine(*drawing, hotForm)) : QIcon();
}

// The desktop takes all sizes that a window's icon offers; nothing is rendered before it does.
class ProgramIconEngine : public SymbolIconEngine {
  public:
    ProgramIconEngine() : SymbolIconEngine(*iconDrawing(programIconId), HotForm::No) {}

    QIconEngine* clone() const override { return new ProgramIconEngine(*this); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
            // Pixels of the screen; the pixmaps are asked for in those of the program.
            sizes.append((QSizeF(side, side) / qApp->devicePixelRatio()).toSize());
        }
        return sizes;
    }
};

// Every icon handed out so far. Pixmaps must not outlive the application object, so it empties this
// when it ends.
struct IconStore {
    QHash<int, QIcon> plain;
    QHash<int, QIcon> hot;
    QIcon program;
};

IconStore& iconStore() {
    static IconStore store;
    [[maybe_unused]] static const bool emptiedAtEnd = [] {
        qAddPostRoutine([] { store = {}; });
        return true;
    }();
    return store;
}

QIcon keptIcon(QHash<int, QIcon>& icons, int bitmapId, HotForm hotForm) {
    const auto found = icons.constFind(bitmapId);
    if (found != icons.constEnd()) return *found;
    return *icons.insert(bitmapId, symbolIcon(bitmapId, hotForm));
}

}  // namespace

QIcon bitmapIcon(int bitmapId) {
    if (bitmapId == programIconId) return programIcon();
    return keptIcon(iconStore().plain, bitmapId, HotForm::No);
}

QIcon toolbarIcon(int commandId) {
    if (commandId < firstCommandId || commandId > lastCommandId) return {};
    return keptIcon(iconStore().hot, commandId, HotForm::Yes);
}

QIcon programIcon() {
    QIcon& icon = iconStore().program;
    if (icon.isNull()) icon = QIcon(new ProgramIconEngine);
    return icon;
}

}  // namespace quendra
