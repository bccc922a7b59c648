#pragma once

#include <QPoint>
#include <QRect>
#include <Qt>

namespace MapEditor {

/// What the pointer is over on a map, and what was pressed there.
struct MapPointer
{
    static constexpr QPoint Nowhere{-1, -1};

    QPoint cell = Nowhere; ///< which a tool would use; Nowhere when there is none
    QRect highlight; ///< the cells of the placed animation under the pointer
    int sprite = -1; ///< the placed sprite under the pointer, or -1
    QPoint press; ///< in the widget; moves along with what was pressed
    Qt::MouseButtons held; ///< since the press

    [[nodiscard]] bool hasCell() const { return cell.x() >= 0 && cell.y() >= 0; }
    void clearCell() { cell = Nowhere; }
    /// Nothing is under the pointer any more.
    void leaveAll()
    {
        cell = Nowhere;
        highlight = {};
        sprite = -1;
    }
};

} // namespace MapEditor
