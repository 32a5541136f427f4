// Pictures of a page, which become smaller with it; by itself a document shows them in full size.
#pragma once

#include <QTextObjectInterface>

namespace quendra {

/// Of the pictures of one document; register it for QTextFormat::ImageObject.
class FittedPicture : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

  public:
    /// Belongs to `document`. `strength`, 0 to 1, is how little of the page's ground shines
    /// through.
    FittedPicture(QTextDocument& document, double strength);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;

  private:
    double strength_;
};

}  // namespace quendra
