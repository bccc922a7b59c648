#pragma once

class QColor;
class QPainter;
class QRect;

/// How the choosers of colours show which two are chosen.
namespace ColourMarks {

/// The foreground's swatch overlapping the background's, as in most paint programs.
void paintSwatches(QPainter &painter, const QRect &area, const QColor &fore, const QColor &back, const QColor &frame);

/// Frames that are seen on any colour and beside any: solid around the foreground's cell, dashed around the
/// background's. They lie on the edge of the cell, two pixels to its outside.
void paintFore(QPainter &painter, const QRect &cell);
void paintBack(QPainter &painter, const QRect &cell);

/// A stroke through the cell of a colour that is not drawn, seen on any colour.
void paintClear(QPainter &painter, const QRect &cell);

} // namespace ColourMarks
