#include "help/page_style.h"

#include "help/fitted_picture.h"
#include "widgets/editor_style.h"

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextDocument>

#include <cmath>
#include <utility>

namespace quendra {

namespace {

// In em of the text, whatever the element, and with names for what the window rules: the toolkit's
// style sheets have neither. The sizes of headings are the toolkit's, which no style sheet changes.
constexpr const char* styleSheet = R"(
body { line-height: 130%; }
h1, h2, h3, h4 { font-weight: 600; line-height: 100%; }
h1 { margin: 0em 0em 0.8em 0em; }
h2 { margin: 2em 0em 0.6em 0em; }
h3, h4 { margin: 1.4em 0em 0.5em 0em; }
p, ul, ol { margin: 0em 0em 0.7em 0em; }
li { margin: 0em 0em 0.25em 0em; }
.picture { line-height: 100%; }
a { color: @link; text-decoration: none; }
code, pre { font-family: '@codeFamily'; font-size: @codeSize; white-space: pre-wrap; }
code { background-color: @ground; }
pre { line-height: 115%; margin: 0em; }
table { margin: 0.3em 0em 1em 0em; border-collapse: collapse; }
th, td { border: 1px solid @line; padding: 0.4em; }
th { background-color: @ground; font-weight: 600; text-align: left; }
.code { margin: 0.2em 0em 0.7em 0em; }
.code td { background-color: @ground; padding: 0.6em; }
)";

// A part of the way from the page to its text.
QString shade(const QPalette& palette, double part) {
    const QColor page = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [part](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * part));
    };
    return QColor(mixed(page.red(), text.red()), mixed(page.green(), text.green()),
                  mixed(page.blue(), text.blue()))
        .name();
}

void replaceEm(QString& sheet, double em) {
    static const QRegularExpression length(QStringLiteral("([0-9.]+)em"));
    for (auto found = length.match(sheet); found.hasMatch(); found = length.match(sheet)) {
        const auto pixels = std::lround(found.captured(1).toDouble() * em);
        sheet.replace(found.capturedStart(), found.capturedLength(),
                      QStringLiteral("%1px").arg(pixels));
    }
}

QString sheetFor(const PageStyle& style, double em) {
    constexpr double codeSize = 0.94;
    const std::pair<const char*, QString> values[] = {
        {"@link", style.palette.color(QPalette::Link).name()},
        {"@ground", shade(style.palette, 0.07)},
        {"@line", shade(style.palette, 0.2)},
        {"@codeFamily", QFontDatabase::systemFont(QFontDatabase::FixedFont).family()},
        {"@codeSize", QStringLiteral("%1pt").arg(style.font.pointSizeF() * codeSize)}};
    QString sheet = QLatin1String(styleSheet);
    for (const auto& [name, value] : values)
        sheet.replace(QLatin1String(name), value);
    replaceEm(sheet, em);
    return sheet;
}

// The toolkit gives no room around code but in a table's cell, and knows of no selector for what
// holds a picture, below which the height of a line would leave a gap.
QString withHooks(QString html) {
    html.replace(QLatin1String("<pre>"),
                 QLatin1String("<table class=\"code\" width=\"100%\"><tr><td><pre>"));
    html.replace(QLatin1String("\n</code></pre>"),
                 QLatin1String("</code></pre></td></tr></table>"));
    return html.replace(QLatin1String("<p><img"), QLatin1String("<p class=\"picture\"><img"));
}

}  // namespace

void showHtml(QTextDocument& document, const QString& html, const PageStyle& style) {
    const double em = QFontMetricsF(style.font).height() * 0.8;
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(style.font);
    document.setIndentWidth(em * 1.7);
    document.setDefaultStyleSheet(sheetFor(style, em));
    document.documentLayout()->registerHandler(
        QTextFormat::ImageObject, new FittedPicture(document, isDark(style.palette) ? 0.85 : 1));
    document.setHtml(withHooks(html));
}

QString headingAnchor(const QString& heading) {
    QString anchor;
    for (const QChar c : heading.trimmed().toLower()) {
        if (c.isLetterOrNumber() || c == u'-' || c == u'_') anchor += c;
        if (c.isSpace()) anchor += u'-';
    }
    return anchor;
}

}  // namespace quendra
