#include "widgets/tool_tip.h"

namespace quendra {

QString wrappingToolTip(const QString& text) {
    // Lines hold anything a user types, "<b>" too, and a tool tip guesses from such signs whether
    // it is rich text.
    return QStringLiteral("<p style=\"white-space: pre-wrap; margin: 0\">%1</p>")
        .arg(text.toHtmlEscaped());
}

}  // namespace quendra
