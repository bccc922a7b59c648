#pragma once

class QPainter;
class QRect;

/// Frames an area along the inside of its edge with black and white dashes, width pixels thick: a mark that is
/// seen on every ground, its own colours included. The painter's brush origin and pen stay as they are.
///
/// The dashes start at the area's corner, march pixels further on, and what lies outside the painter's clip costs
/// nothing, so areas may be much larger than the screen.
void paintOutline(QPainter &painter, const QRect &area, int width = 2, int march = 0);
