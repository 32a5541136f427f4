// Draws the whole icon set on one sheet, for those who draw icons: every icon at 16, 24 and 48
// pixels, in the light and the dark palette, with its bitmap id. "icon-sheet OUT.png [FIRST LAST]"
// limits the sheet to a range of ids.
#include "widgets/icon_catalogue.h"
#include "widgets/symbol_icon.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace quendra {
namespace {

constexpr int columns = 4;
constexpr int margin = 8;
constexpr int labelWidth = 30;
constexpr int panelWidth = 136;
constexpr int rowHeight = 56;
constexpr std::array sizes{16, 24, 48};

QPalette sheetPalette(bool dark) {
    QPalette palette;
    const QColor base = dark ? QColor(0x1e1f22) : QColor(0xffffff);
    const QColor ink = dark ? QColor(0xdfe1e5) : QColor(0x1f2328);
    for (const auto role : {QPalette::Base, QPalette::Window, QPalette::Button})
        palette.setColor(role, base);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x8a8f98));
    palette.setColor(QPalette::Highlight, QColor(0x2f6fd0));
    palette.setColor(QPalette::HighlightedText, QColor(0xffffff));
    return palette;
}

// One icon at all sizes on its palette's ground.
void drawPanel(QPainter& painter, QPoint corner, const QIcon& icon, bool dark) {
    const QPalette palette = sheetPalette(dark);
    QApplication::setPalette(palette);
    painter.fillRect(QRect(corner, QSize(panelWidth, rowHeight)), palette.base());
    int x = corner.x() + margin;
    for (const int size : sizes) {
        icon.paint(&painter, x, corner.y() + (rowHeight - size) / 2, size, size);
        x += size + 2 * margin;
    }
}

void drawCell(QPainter& painter, QPoint corner, int bitmapId) {
    painter.drawText(QRect(corner, QSize(labelWidth, rowHeight)), Qt::AlignCenter,
                     QString::number(bitmapId));
    const QIcon icon = bitmapIcon(bitmapId);
    drawPanel(painter, corner + QPoint(labelWidth, 0), icon, false);
    drawPanel(painter, corner + QPoint(labelWidth + panelWidth, 0), icon, true);
}

QImage drawSheet(const std::vector<int>& bitmapIds) {
    const int cellWidth = labelWidth + 2 * panelWidth;
    const int rows = (static_cast<int>(bitmapIds.size()) + columns - 1) / columns;
    QImage sheet(columns * cellWidth, rows * (rowHeight + 1), QImage::Format_RGB32);
    sheet.fill(QColor(0xc8c8c8));
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < bitmapIds.size(); ++i) {
        const int column = static_cast<int>(i) % columns;
        const int row = static_cast<int>(i) / columns;
        drawCell(painter, {column * cellWidth, row * (rowHeight + 1)}, bitmapIds[i]);
    }
    return sheet;
}

int run(const QStringList& arguments) {
    if (arguments.size() != 2 && arguments.size() != 4) {
        std::fputs("usage: icon-sheet OUT.png [FIRST LAST]\n", stderr);
        return 2;
    }
    const int first = arguments.size() == 4 ? arguments[2].toInt() : 0;
    const int last = arguments.size() == 4 ? arguments[3].toInt() : 9999;
    std::vector<int> bitmapIds;
    for (const IconRow& row : iconCatalogue())
        if (row.bitmapId >= first && row.bitmapId <= last) bitmapIds.push_back(row.bitmapId);
    if (bitmapIds.empty() || !drawSheet(bitmapIds).save(arguments[1])) {
        std::fputs("icon-sheet: no sheet written\n", stderr);
        return 1;
    }
    return 0;
}

}  // namespace
}  // namespace quendra

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    return quendra::run(QApplication::arguments());
}
