#include "help/page_style.h"

#include "widgets/editor_style.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPixmap>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <vector>

namespace quendra {

namespace {

// Sizes of headings 1 to 4 in those of the text; deeper ones are as the last.
constexpr std::array<double, 4> headingSizes = {1.7, 1.3, 1.1, 1.0};
// Space above and below them in their own size.
constexpr std::array<double, 4> headingSpace = {0.0, 1.5, 1.3, 1.1};
constexpr double belowHeading = 0.45;
// In the size of the text.
constexpr double betweenParagraphs = 0.7;
constexpr double betweenItems = 0.25;
constexpr double lineHeightPercent = 130;
constexpr double codeSize = 0.94;

class Styler {
  public:
    Styler(QTextDocument& document, const PageStyle& style)
        : document_(document),
          style_(style),
          em_(QFontMetricsF(style.font).height() * 0.8),
          codeFont_(QFontDatabase::systemFont(QFontDatabase::FixedFont)) {
        codeFont_.setPointSizeF(style.font.pointSizeF() * codeSize);
    }

    void run() {
        // One layout at the end instead of one per change.
        QTextCursor edit(&document_);
        edit.beginEditBlock();
        styleLists();
        for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
            styleBlock(block);
        }
        for (QTextFrame* frame : document_.rootFrame()->childFrames()) {
            if (auto* table = qobject_cast<QTextTable*>(frame)) styleTable(*table);
        }
        frameCode();
        edit.endEditBlock();
    }

  private:
    static bool isCode(const QTextBlock& block) {
        return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence) ||
               block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage) ||
               block.blockFormat().nonBreakableLines();
    }
    static bool holdsPicture(const QTextBlock& block) {
        return block.text().contains(QChar::ObjectReplacementCharacter);
    }
    static bool isInTable(const QTextBlock& block) {
        return QTextCursor(block).currentTable() != nullptr;
    }

    [[nodiscard]] QColor text() const { return style_.palette.color(QPalette::Text); }
    // Between the page and its text: 0 is the page.
    [[nodiscard]] QColor shade(double part) const {
        const QColor page = style_.palette.color(QPalette::Base);
        const auto mixed = [part](int from, int to) {
            return static_cast<int>(std::lround(from + (to - from) * part));
        };
        return {mixed(page.red(), text().red()), mixed(page.green(), text().green()),
                mixed(page.blue(), text().blue())};
    }

    void styleLists() {
        for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
            QTextList* list = block.textList();
            if (list == nullptr || list->itemNumber(block) != 0) continue;
            QTextListFormat format = list->format();
            if (format.style() == QTextListFormat::ListCircle ||
                format.style() == QTextListFormat::ListSquare) {
                format.setStyle(QTextListFormat::ListDisc);
            }
            list->setFormat(format);
        }
        document_.setIndentWidth(em_ * 1.7);
    }

    void styleBlock(const QTextBlock& block) {
        restyle(block,
                [&](QTextCharFormat& characters) { styleCharacters(characters, isCode(block)); });
        QTextBlockFormat format = block.blockFormat();
        const int level = format.headingLevel();
        if (level > 0) {
            styleHeading(block, format, std::min<std::size_t>(static_cast<std::size_t>(level), 4));
        } else if (isCode(block)) {
            format.setTopMargin(0);
            format.setBottomMargin(0);
            format.setLineHeight(115, QTextBlockFormat::ProportionalHeight);
            // Long lines go on below instead of out of the page.
            format.setNonBreakableLines(false);
            format.setProperty(QTextFormat::BlockCodeFence, QStringLiteral("`"));
        } else {
            styleParagraph(block, format);
        }
        QTextCursor(block).setBlockFormat(format);
    }

    void styleHeading(const QTextBlock& block, QTextBlockFormat& format, std::size_t level) {
        const double size = headingSizes[level - 1];
        format.setTopMargin(em_ * size * headingSpace[level - 1]);
        format.setBottomMargin(em_ * size * belowHeading);
        restyle(block, [&](QTextCharFormat& characters) {
            // The importer's own measure, which would win.
            characters.clearProperty(QTextFormat::FontSizeAdjustment);
            characters.setFontPointSize(style_.font.pointSizeF() * size);
            characters.setFontWeight(QFont::DemiBold);
        });
    }

    void styleParagraph(const QTextBlock& block, QTextBlockFormat& format) {
        const bool isItem = block.textList() != nullptr;
        const bool inTable = isInTable(block);
        format.setTopMargin(0);
        format.setBottomMargin(inTable ? 0 : em_ * (isItem ? betweenItems : betweenParagraphs));
        // After the last item the text goes on at the distance of a paragraph.
        if (isItem && block.next().isValid() && block.next().textList() == nullptr) {
            format.setBottomMargin(em_ * betweenParagraphs);
        }
        // In proportion to a picture it would leave a gap below.
        if (!holdsPicture(block)) {
            format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
        }
        const int quoted = format.intProperty(QTextFormat::BlockQuoteLevel);
        if (quoted > 0) {
            format.setLeftMargin(em_ * 1.2 * quoted);
            format.setRightMargin(em_);
            restyle(block, [&](QTextCharFormat& characters) {
                if (!characters.isAnchor()) characters.setForeground(shade(0.75));
            });
        }
    }

    // Changing a format makes fragments anew, so where they are is found out first.
    void restyle(const QTextBlock& block, const std::function<void(QTextCharFormat&)>& change) {
        struct Part {
            int from;
            int to;
            QTextCharFormat format;
        };
        std::vector<Part> parts;
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (fragment.charFormat().isImageFormat()) continue;
            parts.push_back({fragment.position(), fragment.position() + fragment.length(),
                             fragment.charFormat()});
        }
        QTextCursor cursor(&document_);
        for (Part& part : parts) {
            change(part.format);
            cursor.setPosition(part.from);
            cursor.setPosition(part.to, QTextCursor::KeepAnchor);
            cursor.setCharFormat(part.format);
        }
    }

    void styleCharacters(QTextCharFormat& format, bool inCodeBlock) const {
        if (format.isAnchor()) {
            format.setForeground(style_.palette.color(QPalette::Link));
            format.setFontUnderline(false);
        }
        if (format.fontFixedPitch() || inCodeBlock) {
            format.setFontFamilies({codeFont_.family()});
            format.setFontPointSize(codeFont_.pointSizeF());
            if (!inCodeBlock) format.setBackground(shade(0.08));
        }
    }

    void styleTable(QTextTable& table) {
        QTextTableFormat format = table.format();
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(shade(0.22));
        format.setBorderCollapse(true);
        format.setCellSpacing(0);
        format.setCellPadding(em_ * 0.4);
        format.setTopMargin(em_ * 0.3);
        format.setBottomMargin(em_);
        table.setFormat(format);
        separateCells(table);
        for (int column = 0; column < table.columns(); ++column) {
            QTextTableCell cell = table.cellAt(0, column);
            QTextTableCellFormat header = cell.format().toTableCellFormat();
            header.setBackground(shade(0.07));
            cell.setFormat(header);
            for (auto part = cell.begin(); !part.atEnd(); ++part) {
                restyle(part.currentBlock(), [](QTextCharFormat& characters) {
                    characters.setFontWeight(QFont::DemiBold);
                });
            }
        }
    }

    // The importer takes an empty cell as part of the one before it.
    static void separateCells(QTextTable& table) {
        for (int row = 0; row < table.rows(); ++row) {
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.columnSpan() > 1) table.splitCell(row, column, 1, 1);
            }
        }
    }

    // Lines of code that belong together stand on one ground.
    void frameCode() {
        QTextFrameFormat format;
        format.setBackground(shade(0.06));
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(shade(0.12));
        format.setPadding(em_ * 0.6);
        format.setTopMargin(em_ * 0.2);
        format.setBottomMargin(em_ * betweenParagraphs);
        QTextBlock block = document_.begin();
        while (block.isValid()) {
            if (!isCode(block) || isInTable(block)) {
                block = block.next();
                continue;
            }
            QTextBlock last = block;
            while (last.next().isValid() && isCode(last.next()))
                last = last.next();
            QTextCursor cursor(block);
            cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
            format.setLeftMargin(block.blockFormat().indent() * document_.indentWidth());
            const QTextFrame* frame = cursor.insertFrame(format);
            // A frame leaves an empty line before itself and behind.
            hide(document_.findBlock(frame->firstPosition() - 1));
            block = document_.findBlock(frame->lastPosition() + 1);
            hide(block);
        }
    }

    static void hide(const QTextBlock& line) {
        if (!line.isValid() || line.length() > 1) return;
        QTextBlockFormat format;
        format.setLineHeight(1, QTextBlockFormat::FixedHeight);
        QTextCharFormat characters;
        characters.setFontPointSize(1);
        QTextCursor cursor(line);
        cursor.setBlockFormat(format);
        cursor.setBlockCharFormat(characters);
    }

    QTextDocument& document_;
    const PageStyle& style_;
    const double em_;
    QFont codeFont_;
};

struct Picture {
    int position;
    QTextImageFormat format;
};

// Once painted, the document keeps a picture as a pixmap.
QSizeF sizeOf(const QVariant& picture) {
    if (picture.typeId() == QMetaType::QPixmap) {
        return picture.value<QPixmap>().deviceIndependentSize();
    }
    return picture.value<QImage>().deviceIndependentSize();
}

std::vector<Picture> picturesOf(const QTextDocument& document) {
    std::vector<Picture> pictures;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!fragment.charFormat().isImageFormat()) continue;
            for (int i = 0; i < fragment.length(); ++i) {
                pictures.push_back(
                    {fragment.position() + i, fragment.charFormat().toImageFormat()});
            }
        }
    }
    return pictures;
}

}  // namespace

void fitPictures(QTextDocument& document, int widest) {
    for (Picture& picture : picturesOf(document)) {
        const QSizeF size =
            sizeOf(document.resource(QTextDocument::ImageResource, QUrl(picture.format.name())));
        if (size.isEmpty()) continue;
        const double width = std::min(size.width(), double(widest));
        picture.format.setWidth(width);
        picture.format.setHeight(width * size.height() / size.width());
        QTextCursor cursor(&document);
        cursor.setPosition(picture.position);
        cursor.setPosition(picture.position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture.format);
    }
}

void showMarkdown(QTextDocument& document, const QString& markdown, const PageStyle& style) {
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(style.font);
    document.setMarkdown(markdown);
    Styler(document, style).run();
    fitPictures(document, style.widest);
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
