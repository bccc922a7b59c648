#include "editors/map/pastetool.h"

#include "editors/map/mapclipboard.h"
#include "editors/map/mappainter.h"
#include "model/tileset.h"

#include <QApplication>
#include <QClipboard>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

namespace MapEditor {

bool PasteTool::activate()
{
    const QSize size = MapClipboard::sizeFor(map());
    surface()->setPasteArea({});
    m_picture = {};
    if (size.isEmpty())
        return surface()->pastesPictures() && takePicture();
    surface()->setPasteArea({QPoint(0, 0), size});
    surface()->refreshCursor();
    return true;
}

bool PasteTool::takePicture()
{
    const QImage picture = MapClipboard::picture();
    if (picture.isNull() || !map() || !map()->tileSet())
        return false;
    const PictureCells cells = cellsOf(picture);
    if (cells.size.isEmpty())
        return false;
    m_picture = picture;
    surface()->setPasteArea({QPoint(0, 0), cells.size});
    surface()->refreshCursor();
    QString told = tr("Picture of %1 × %2 cells; tiles to be added: %3")
                       .arg(cells.size.width())
                       .arg(cells.size.height())
                       .arg(cells.additions.size());
    if (cells.lostPixels > 0)
        told += tr("; pixels that take the nearest colour: %1").arg(QLocale().toString(cells.lostPixels));
    surface()->tell(told);
    return true;
}

PictureCells PasteTool::cellsOf(const QImage &picture) const
{
    const TileSet &tileSet = *map()->tileSet();
    PictureCells cells =
        PictureCells::of(picture, tileSet, map()->tileTransparencyIndex(), PictureCells::blankTiles(tileSet));
    if (cells.size.isEmpty()) {
        surface()->tell(tr("The picture is smaller than a tile, which has 8 × 8 pixels"));
    } else if (!cells.hasRoom()) {
        surface()->tell(tr("The picture needs %1 more tiles, and the tile set has room for %2")
                            .arg(cells.additions.size())
                            .arg(cells.places.size()));
        return {};
    }
    return cells;
}

bool PasteTool::putPictureDown(QPoint at)
{
    const QPointer<TileSet> tileSet = map()->tileSet();
    // tiles for what lies beside the map would be in vain
    const QRect inside = QRect(at, surface()->pasteArea().size()) & QRect(QPoint(), map()->size());
    if (!tileSet || inside.isEmpty())
        return false;
    const QRect part((inside.topLeft() - at) * PictureCells::Side, inside.size() * PictureCells::Side);
    PictureCells cells = cellsOf(m_picture.copy(part & m_picture.rect()));
    if (cells.size.isEmpty())
        return false;
    emit tileSet->structureAboutToChange();
    cells.addTo(*tileSet);
    for (size_t i = 0; i < cells.cells.size(); ++i) {
        const QPoint cell(int(i) % cells.size.width(), int(i) / cells.size.width());
        if (cells.cells[i].used)
            map()->setTile(inside.topLeft() + cell, cells.cells[i]);
    }
    emit tileSet->structureChanged(tr("Paste Picture"));
    QString told = tr("Tiles added: %1").arg(cells.additions.size());
    if (cells.lostPixels > 0)
        told += tr("; pixels that took the nearest colour: %1").arg(QLocale().toString(cells.lostPixels));
    surface()->tell(told);
    surface()->repaintSoon();
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
    if (!m_picture.isNull())
        return putPictureDown(area.topLeft());
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
    const QRect area = surface()->pasteArea();
    if (area.isEmpty())
        return;
    if (!m_picture.isNull()) {
        constexpr qreal OnItsWay = 0.7; // one sees what it will cover
        painter.save();
        painter.setOpacity(OnItsWay);
        painter.drawImage(viewport().rectOfPixels({area.topLeft() * PictureCells::Side, m_picture.size()}), m_picture);
        painter.restore();
    }
    MapPainter::paintSelection(painter, viewport().rectOfCells(area));
}

} // namespace MapEditor
