#include "help/fitted_picture.h"

#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QTextFormat>
#include <QUrl>

namespace quendra {

namespace {

QImage pictureOf(const QTextDocument& document, const QTextFormat& format) {
    const QUrl name(format.toImageFormat().name());
    return document.resource(QTextDocument::ImageResource, name).value<QImage>();
}

}  // namespace

FittedPicture::FittedPicture(QTextDocument& document, double strength)
    : QObject(&document), strength_(strength) {}

QSizeF FittedPicture::intrinsicSize(QTextDocument* document, int, const QTextFormat& format) {
    const QSizeF size = pictureOf(*document, format).deviceIndependentSize();
    const double widest = document->textWidth() - 2 * document->documentMargin();
    return size.width() > widest ? size * (widest / size.width()) : size;
}

void FittedPicture::drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int,
                               const QTextFormat& format) {
    painter->setOpacity(strength_);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(place, pictureOf(*document, format));
    painter->setOpacity(1);
}

}  // namespace quendra
