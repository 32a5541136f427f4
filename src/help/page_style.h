// How a page of the manual looks: spacing, tables, code and links, set on the document after its
// Markdown was read, which by itself gives all lines the same distance and tables no room.
#pragma once

#include <QFont>
#include <QPalette>

class QTextDocument;

namespace quendra {

struct PageStyle {
    QPalette palette;
    /// The font of the text; everything else is measured by it.
    QFont font;
    /// The widest that a picture may be, in device-independent pixels.
    int widest = 0;
};

/// Replaces what `document` shows by the page.
void showMarkdown(QTextDocument& document, const QString& markdown, const PageStyle& style);

/// Fits the pictures into a new width of the page.
void fitPictures(QTextDocument& document, int widest);

/// The name under which links find a heading: its text in lower case, blanks as "-", without
/// punctuation.
[[nodiscard]] QString headingAnchor(const QString& heading);

}  // namespace quendra
