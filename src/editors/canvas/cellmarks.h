#pragma once

#include <QRect>

class QPainter;

/// The marks that the tile picker and the sprite list draw over their cells.
namespace CellMarks {

/// The cell under the pointer.
void paintHovered(QPainter &painter, const QRect &frame);
/// A solid black frame with white dots on it, which reads on any picture.
void paintDotted(QPainter &painter, const QRect &frame, int dotWidth);

} // namespace CellMarks
