#pragma once

#include <QPoint>
#include <QRect>

/// The axes through the middle of an image over which everything that is drawn is drawn once more.
struct SymmetryAxes
{
    /// Left and right are mirror images.
    bool upright = false;
    /// Top and bottom are.
    bool level = false;

    [[nodiscard]] bool any() const { return upright || level; }

    /// Visits an area of an image and its mirror images; visit takes a QRect, and whether it is mirrored left to
    /// right and top to bottom.
    template <typename Visit>
    void visit(const QRect &area, QSize image, Visit visit) const
    {
        const int across = image.width() - area.width() - area.x();
        const int down = image.height() - area.height() - area.y();
        visit(area, false, false);
        if (upright)
            visit(QRect(QPoint(across, area.y()), area.size()), true, false);
        if (level)
            visit(QRect(QPoint(area.x(), down), area.size()), false, true);
        if (upright && level)
            visit(QRect(QPoint(across, down), area.size()), true, true);
    }

    bool operator==(const SymmetryAxes &) const = default;
};
