#include "editors/map/pastetool.h"

#include "editors/map/mapclipboard.h"
#include "editors/map/mappainter.h"

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>

namespace MapEditor {

bool PasteTool::activate()
{
    const QSize size = MapClipboard::sizeFor(map());
    surface()->setPasteArea({});
    if (size.isEmpty())
        return false;
    surface()->setPasteArea({QPoint(0, 0), size});
    surface()->refreshCursor();
    return true;
}

void PasteTool::mouseMoved(QMouseEvent *event)
{
    const QPoint cell = viewport().snappedCellAt(event->position().toPoint());
    const QSize size = surface()->pasteArea().size();
    pointer().cell = cell;
    surface()->setPasteArea({cell - QPoint(size.width() / 2, size.height() / 2), size});
    surface()->repaintSoon();
}

bool PasteTool::mousePressed(QMouseEvent *)
{
    const QPointer<TileMap> layer = map() ? map()->tileLayer() : nullptr;
    const QRect area = surface()->pasteArea();
    if (!layer || !layer->isVisible() || area.isEmpty())
        return false;
    if (MapClipboard::sizeFor(map()) != area.size()) // it is not what the outline promised
        return false;
    surface()->beginEdit();
    map()->pasteTiles(area.topLeft(), QApplication::clipboard()->mimeData());
    surface()->endEdit(tr("Paste"));
    surface()->repaintSoon();
    return true;
}

void PasteTool::paintOver(QPainter &painter) const
{
    if (!surface()->pasteArea().isEmpty())
        MapPainter::paintSelection(painter, viewport().rectOfCells(surface()->pasteArea()));
}

} // namespace MapEditor
