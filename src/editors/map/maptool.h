#pragma once

#include "editors/map/mapbrush.h"
#include "editors/map/mappointer.h"
#include "editors/map/mapsurface.h"
#include "editors/map/mapviewport.h"
#include "ui/enums.h"

#include <QCursor>
#include <QtGlobal>

class QMouseEvent;
class QPainter;

namespace MapEditor {

/// What happens on a map between a press of the mouse and its release.
///
/// Tools are made once for a surface, which outlives them and holds what they share. They may be called
/// when it shows no map.
class MapTool
{
public:
    explicit MapTool(MapSurface *surface) : m_surface(surface) { }
    virtual ~MapTool();

    virtual Quenmora::Ui::ToolButton mode() const = 0;
    /// Called when the tool becomes the current one; false refuses.
    virtual bool activate() = 0;
    virtual QCursor cursor() const;
    /// Whether the layer that the tool edits is hidden.
    virtual bool isUnavailable() const;

    /// A press before the modifiers are looked at; true consumes it.
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
    MapSurface *surface() const { return m_surface; }
    const QPointer<Map> &map() const { return m_surface->map(); }
    const MapViewport &viewport() const { return m_surface->viewport(); }
    const MapBrush &brush() const { return m_surface->brush(); }
    MapPointer &pointer() const { return m_surface->pointer(); }
    void paintSelection(QPainter &painter) const;

private:
    Q_DISABLE_COPY_MOVE(MapTool)

    MapSurface *const m_surface;
};

} // namespace MapEditor
