#include "editors/map/pastetool.h"

#include "editors/map/mapgrid.h"
#include "model/tileset.h"

#include <QApplication>
#include <QClipboard>

#include <QMouseEvent>

namespace MapEditor {

namespace {

/// The size of what the clipboard holds for a map; empty when that is nothing, damaged, or made of other tiles.
QSize sizeOnClipboard(const Map *map)
{
    if (!map)
        return {};
    const TileMap::Selection selection = TileMap::readSelection(QApplication::clipboard()->mimeData());
    const QUuid tiles = map->tileSet() ? map->tileSet()->id() : QUuid();
    return selection.tileSetId == tiles ? selection.size : QSize();
}

} // namespace

bool PasteTool::activate()
{
    const QSize size = sizeOnClipboard(grid()->map());
    grid()->setPasteArea({});
    if (size.isEmpty())
        return false;
    grid()->setPasteArea({QPoint(0, 0), size});
    grid()->refreshCursor();
    return true;
}

void PasteTool::mouseMoved(QMouseEvent *event)
{
    const QPoint cell = grid()->viewport().snappedCellAt(event->position().toPoint());
    const QSize size = grid()->pasteArea().size();
    grid()->setHoverCell(cell);
    grid()->setPasteArea({cell - QPoint(size.width() / 2, size.height() / 2), size});
    grid()->update();
}

bool PasteTool::mousePressed(QMouseEvent *)
{
    const QPointer<Map> map = grid()->map();
    const QRect area = grid()->pasteArea();
    if (!map || area.isEmpty() || !map->tileLayer() || !map->tileLayer()->isVisible())
        return false;
    if (sizeOnClipboard(map) != area.size()) // it is not what the outline promised
        return false;
    grid()->beginEdit();
    map->pasteTiles(area.topLeft(), QApplication::clipboard()->mimeData());
    grid()->endEdit(MapGrid::tr("Paste"));
    grid()->update();
    return true;
}

void PasteTool::paintOver(QPainter &painter) const
{
    if (!grid()->pasteArea().isEmpty())
        MapGrid::paintOutline(painter, grid()->viewport().rectOfCells(grid()->pasteArea()));
}

} // namespace MapEditor
