#include "widgets/tool_tip.h"

#include <QFontMetrics>
#include <QToolTip>

#include <algorithm>

namespace quendra {

namespace {

constexpr int longestLine = 80;

// Left to itself, a tool tip that wraps aims at the shape of a page, and is as narrow as a column.
int widthOf(const QString& text) {
    const QFontMetrics metrics(QToolTip::font());
    const int needed = metrics.size(Qt::TextExpandTabs, text).width() + 1;
    return std::min(needed, longestLine * metrics.averageCharWidth());
}

}  // namespace

QString wrappingToolTip(const QString& text) {
    // Lines hold anything a user types, "<b>" too, and a tool tip guesses from such signs whether
    // it is rich text.
    return QStringLiteral(
               "<table width=\"%1\" cellspacing=\"0\" cellpadding=\"0\"><tr>"
               "<td style=\"white-space: pre-wrap\">%2</td></tr></table>")
        .arg(QString::number(widthOf(text)), text.toHtmlEscaped());
}

}  // namespace quendra
