#pragma once

#include "ui/enums.h"

#include <QCursor>
#include <QtGlobal>

class QMouseEvent;
class QPainter;

namespace MapEditor {

class MapGrid;

/// What happens on a map grid between a press of the mouse and its release.
///
/// Tools are made once by their grid, which outlives them and holds what they share. They may be called
/// when the grid shows no map.
class MapTool
{
public:
    explicit MapTool(MapGrid *grid) : m_grid(grid) { }
    virtual ~MapTool();

    virtual Quenmora::Ui::ToolButton mode() const = 0;
    /// Called when the tool becomes the current one; false refuses.
    virtual bool activate() = 0;
    virtual QCursor cursor() const;
    /// Whether the layer that the tool edits is hidden.
    virtual bool isUnavailable() const;

    /// A press before the grid looks at the modifiers; true consumes it.
    virtual bool mousePressedFirst(QMouseEvent *event);
    /// A press; true consumes it.
    virtual bool mousePressed(QMouseEvent *event);
    /// The pointer moved over the cells.
    virtual void mouseMoved(QMouseEvent *event);
    virtual void mouseReleased(QMouseEvent *event);

    /// Draws what lies under the grid lines.
    virtual void paintUnder(QPainter &painter) const;
    /// Draws what lies over everything else.
    virtual void paintOver(QPainter &painter) const;

protected:
    MapGrid *grid() const { return m_grid; }

private:
    Q_DISABLE_COPY_MOVE(MapTool)

    MapGrid *const m_grid;
};

} // namespace MapEditor
