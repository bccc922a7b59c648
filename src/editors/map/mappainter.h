#pragma once

#include "editors/map/mapcontent.h"
#include "editors/map/mapdisplay.h"
#include "editors/map/mapviewport.h"
#include "model/cellruns.h"

#include <QBrush>
#include <QImage>

class QPainter;

namespace MapEditor {

/// Paints a map where a viewport shows it. It is made for one painting, of a map that is there.
class MapPainter
{
public:
    MapPainter(const MapContent &content, const MapViewport &viewport, const MapDisplay &display)
        : m_content(content)
        , m_viewport(viewport)
        , m_display(display)
    { }

    /// The layers and placed sprites over what lies beneath, as far as they are in an area of the widget.
    void paintContent(QPainter &painter, const QRect &dirty) const;
    void paintGridLines(QPainter &painter) const;

    /// How a tile looks in a cell; null when the map's tile set does not have it.
    [[nodiscard]] static QImage tilePicture(const QPointer<Map> &map, const TileMap::TileData &cell);
    /// Outlines an area inside its edge with a light and a dark line, so that it is seen on every ground.
    static void paintOutline(QPainter &painter, const QRect &area, int thickness = 1);
    /// The same for what is selected or about to be pasted: lines that are found at a glance.
    static void paintSelection(QPainter &painter, const QRect &area);
    /// The same for selected cells that are no rectangle.
    static void paintRuns(QPainter &painter, const MapViewport &viewport, const CellRuns::Runs &runs);
    /// Where the pointer is and how long the painting took.
    static void paintStatus(QPainter &painter, QPoint cell, qint64 milliseconds);

private:
    QBrush background() const;

    const MapContent &m_content;
    const MapViewport &m_viewport;
    const MapDisplay &m_display;
};

} // namespace MapEditor
