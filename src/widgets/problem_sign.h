// The signs of what checks find: an error is a disc with a cross, all else a triangle with a
// stroke, so that it is not for the colour to tell them apart.
#pragma once

#include "analysis/check_rules.h"

#include <QIcon>

class QPainter;
class QPalette;
class QRectF;

namespace quendra {

/// Fills the box, which is square, in the colours that go with the palette. With a rim of the
/// palette's base colour around it, which keeps it apart from what it is drawn over.
void drawProblemSign(QPainter& painter, const QRectF& box, Severity severity,
                     const QPalette& palette);

/// The colour of a sign in a palette; stands out as a thin line on its base.
[[nodiscard]] QColor problemColour(Severity severity, const QPalette& palette);

/// The sign as an icon, in the colours of the application's palette at the moment of painting.
[[nodiscard]] QIcon problemIcon(Severity severity);

}  // namespace quendra
