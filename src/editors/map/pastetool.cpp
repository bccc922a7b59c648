#include "editors/map/pastetool.h"

#include "editors/map/cellpreview.h"
#include "editors/map/mapclipboard.h"
#include "editors/map/mappainter.h"
#include "model/cellruns.h"
#include "model/plural.h"
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
    m_copied = {};
    m_first.reset();
    if (size.isEmpty())
        return surface()->pastesPictures() && takePicture();
    if (brush().doesMore)
        m_copied = Stamp::fromClipboard(QApplication::clipboard()->mimeData(), map()->tileSetId());
    m_orientation = brush().tile;
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
    PictureCells cells = PictureCells::of(
        picture, tileSet,
        {.clearPixel = map()->tileTransparencyIndex(), .freeTiles = PictureCells::blankTiles(tileSet)});
    if (cells.size.isEmpty()) {
        surface()->tell(tr("The picture is smaller than a tile, which has 8 × 8 pixels"));
    } else if (!cells.hasRoom()) {
        surface()->tell(tr("The picture needs %n more tiles, and the tile set has room for %1", nullptr,
                           plural(cells.additions.size()))
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
    if (pointer().held == Qt::NoButton)
        m_first.reset(); // another window took the release
    const QPoint cell = viewport().snappedCellAt(event->position().toPoint());
    const QSize size = m_copied.isEmpty() ? surface()->pasteArea().size() : ink().stamp.size();
    const QPoint before = pointer().hasCell() ? pointer().cell : cell;
    pointer().cell = cell;
    if (m_first) {
        stroke(before, cell);
        return;
    }
    surface()->setPasteArea({cell - QPoint(size.width() / 2, size.height() / 2), size});
    surface()->repaintSoon();
}

/// What is pasted, turned as far as the brush was turned since.
CellInk PasteTool::ink() const
{
    const TileMap::TileData &now = brush().tile;
    CellInk ink;
    ink.part = CellInk::Everything;
    ink.useTilesOf(map());
    ink.stamp = m_copied.oriented(now.rotate != m_orientation.rotate, now.flip != m_orientation.flip,
                                  now.mirror != m_orientation.mirror);
    return ink;
}

/// Whether the clipboard still holds what the outline promised.
bool PasteTool::isOnClipboard() const
{
    const QSize copied = MapClipboard::sizeFor(map());
    return !copied.isEmpty() && copied == (m_copied.isEmpty() ? surface()->pasteArea().size() : m_copied.size());
}

bool PasteTool::mousePressed(QMouseEvent *event)
{
    const QPointer<TileMap> layer = map() ? map()->tileLayer() : nullptr;
    const QRect area = surface()->pasteArea();
    if (!layer || !layer->isVisible() || area.isEmpty())
        return false;
    if (!m_picture.isNull())
        return putPictureDown(area.topLeft());
    if (!isOnClipboard())
        return false;
    surface()->beginEdit();
    if (!m_copied.isEmpty() && event->buttons() & Qt::LeftButton) {
        m_first = area.topLeft();
        const QPoint cell = pointer().hasCell() ? pointer().cell : *m_first;
        stroke(cell, cell);
        return true;
    }
    map()->pasteTiles(area.topLeft(), QApplication::clipboard()->mimeData());
    surface()->endEdit(tr("Paste"));
    surface()->repaintSoon();
    return true;
}

/// Pastes into the places of the first one's grid that lie on the way.
void PasteTool::stroke(QPoint from, QPoint to)
{
    CellInk pasted = ink();
    pasted.origin = *m_first;
    QRect place = pasted.stamp.slotOf(from, *m_first);
    pasted.paint(*map(), place);
    for (const TileMap::Run &run : CellRuns::line(from, to, QRect(QPoint(0, 0), map()->size()))) {
        for (int x = run.column; x < run.column + run.count; ++x) {
            if (place.contains(x, run.row))
                continue;
            place = pasted.stamp.slotOf({x, run.row}, *m_first);
            pasted.paint(*map(), place);
        }
    }
    surface()->setPasteArea(pasted.stamp.slotOf(to, *m_first));
    surface()->repaintSoon();
}

void PasteTool::mouseReleased(QMouseEvent *)
{
    if (!m_first)
        return;
    m_first.reset();
    surface()->endEdit(tr("Paste"));
}

void PasteTool::paintUnder(QPainter &painter) const
{
    if (m_copied.isEmpty() || m_first || !map() || !pointer().hasCell())
        return;
    CellInk pasted = ink();
    pasted.origin = surface()->pasteArea().topLeft();
    CellPreview::paint(painter, *map(), viewport(), surface()->pasteArea(), pasted);
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
