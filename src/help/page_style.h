// How a page of the manual looks, as a style sheet in the colours and the size of the window.
#pragma once

#include <QFont>
#include <QPalette>

class QTextDocument;

namespace quendra {

struct PageStyle {
    QPalette palette;
    /// The font of the text, in points; everything else is measured by it.
    QFont font;
};

/// Replaces what `document` shows by the page. Its pictures are asked of the document's parent, and
/// are as wide as the page at most.
void showHtml(QTextDocument& document, const QString& html, const PageStyle& style);

/// The name under which links find a heading: its text in lower case, blanks as "-", without
/// punctuation.
[[nodiscard]] QString headingAnchor(const QString& heading);

}  // namespace quendra
