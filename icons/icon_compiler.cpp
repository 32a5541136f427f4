// Compiles the icons for the program: "icon-compiler OUTPUT.cpp NAME.svg..." writes the drawings as
// the tables that drawings() gives.
#include "widgets/drawing.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdio>

namespace quendra {
namespace {

QByteArray colourAttribute(QRgb colour) {
    return "color=\"" + QColor(colour).name(QColor::HexRgb).toLatin1() + '"';
}

// The drawings stroke with "currentColor"; elements of class "accent" inherit that stroke from the
// root element, so they must name it again beside their own colour.
QByteArray withMarkers(QByteArray drawing) {
    drawing.replace("<svg ", "<svg " + colourAttribute(inkMarker) + ' ');
    drawing.replace("class=\"accent\"", colourAttribute(accentMarker) + " stroke=\"currentColor\"");
    return drawing;
}

QByteArray number(double value) {
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

QByteArray number(int value) {
    return QByteArray::number(value);
}

QByteArray colourOf(bool isPainted, const QColor& colour) {
    return isPainted ? "0x" + QByteArray::number(colour.rgba(), 16) : QByteArray("noColour");
}

// Three tables of the output and how many rows they have.
struct Tables {
    QByteArray steps;
    int stepCount = 0;
    QByteArray shapes;
    int shapeCount = 0;
    QByteArray drawings;
};

QByteArray typeName(QPainterPath::ElementType type) {
    switch (type) {
        case QPainterPath::MoveToElement: return "QPainterPath::MoveToElement";
        case QPainterPath::LineToElement: return "QPainterPath::LineToElement";
        case QPainterPath::CurveToElement: return "QPainterPath::CurveToElement";
        case QPainterPath::CurveToDataElement: return "QPainterPath::CurveToDataElement";
    }
    return {};
}

void addShape(Tables& tables, const QPen& pen, const QBrush& brush, const QPainterPath& path) {
    tables.shapes += "    {" + colourOf(pen.style() != Qt::NoPen, pen.color()) + ", " +
                     number(pen.widthF()) + ", Qt::PenCapStyle(" + number(pen.capStyle()) +
                     "), Qt::PenJoinStyle(" + number(pen.joinStyle()) + "), " +
                     colourOf(brush.style() != Qt::NoBrush, brush.color()) + ", Qt::FillRule(" +
                     number(path.fillRule()) + "), std::span(steps).subspan(" +
                     number(tables.stepCount) + ", " + number(path.elementCount()) + ")},\n";
    ++tables.shapeCount;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        tables.steps += "    {" + typeName(element.type) + ", " + number(element.x) + ", " +
                        number(element.y) + "},\n";
    }
    tables.stepCount += path.elementCount();
}

// Notes what is painted instead of painting it.
class ShapeRecorder : public QPaintEngine {
  public:
    explicit ShapeRecorder(Tables& tables)
        : QPaintEngine(QPaintEngine::AllFeatures), tables_(tables) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    Type type() const override { return QPaintEngine::User; }
    void drawPath(const QPainterPath& path) override {
        const QPainter& by = *painter();
        // Where a shape has an outline only, its filling comes first all the same.
        if (by.pen().style() == Qt::NoPen && by.brush().style() == Qt::NoBrush) return;
        addShape(tables_, by.pen(), by.brush(), by.transform().map(path));
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {
        qFatal("a drawing holds a picture");
    }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {
        qFatal("a drawing holds a polygon");
    }

  private:
    Tables& tables_;
};

// One unit of the drawing's grid is one pixel, so that pens are as wide as the drawing says.
class ShapeSheet : public QPaintDevice {
  public:
    ShapeSheet(Tables& tables, double side) : side_(side), recorder_(tables) {}

    QPaintEngine* paintEngine() const override { return &recorder_; }

  protected:
    int metric(PaintDeviceMetric wanted) const override {
        switch (wanted) {
            case PdmWidth:
            case PdmHeight: return qRound(side_);
            case PdmDevicePixelRatioScaled:
                return qRound(QPaintDevice::devicePixelRatioFScale());
            case PdmDevicePixelRatio: return 1;
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY: return 96;
            default: return 0;
        }
    }

  private:
    double side_;
    mutable ShapeRecorder recorder_;
};

bool addDrawing(Tables& tables, const QString& file) {
    QFile source(file);
    QSvgRenderer renderer;
    if (!source.open(QIODevice::ReadOnly) || !renderer.load(withMarkers(source.readAll()))) {
        std::fprintf(stderr, "%s: not an SVG drawing\n", qPrintable(file));
        return false;
    }
    const int firstShape = tables.shapeCount;
    const double side = renderer.viewBoxF().width();
    ShapeSheet sheet(tables, side);
    QPainter painter(&sheet);
    renderer.render(&painter, renderer.viewBoxF());
    painter.end();
    tables.drawings += "    {\"" + QFileInfo(file).completeBaseName().toUtf8() + "\", " +
                       number(side) + ", std::span(shapes).subspan(" + number(firstShape) + ", " +
                       number(tables.shapeCount - firstShape) + ")},\n";
    return true;
}

bool write(const Tables& tables, const QString& output) {
    QFile file(output);
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.write("#include \"widgets/drawing.h\"\n\nnamespace quendra {\nnamespace {\n\n");
    file.write("constexpr PathStep steps[] = {\n" + tables.steps + "};\n\n");
    file.write("constexpr DrawnShape shapes[] = {\n" + tables.shapes + "};\n\n");
    file.write("constexpr Drawing rows[] = {\n" + tables.drawings + "};\n\n}  // namespace\n\n");
    file.write("std::span<const Drawing> drawings() {\n    return rows;\n}\n\n");
    file.write("}  // namespace quendra\n");
    return file.flush() && file.error() == QFileDevice::NoError;
}

int compile(const QStringList& arguments) {
    if (arguments.size() < 3) {
        std::fputs("usage: icon-compiler OUTPUT.cpp NAME.svg...\n", stderr);
        return 2;
    }
    QStringList files = arguments.sliced(2);
    std::ranges::sort(files, {}, [](const QString& file) { return QFileInfo(file).baseName(); });
    Tables tables;
    for (const QString& file : files) {
        if (!addDrawing(tables, file)) return 1;
    }
    if (write(tables, arguments[1])) return 0;
    std::fprintf(stderr, "%s: not written\n", qPrintable(arguments[1]));
    return 1;
}

}  // namespace
}  // namespace quendra

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quendra::compile(QCoreApplication::arguments());
}
