// The selection of the grid, and what is done with its cells.

#include "editors/map/mapgrid.h"
#include "model/tileset.h"

#include <QApplication>
#include <QClipboard>
#include <QDebug>
#include <QMenu>
#include <QRubberBand>

#include <utility>

using namespace Quenmora::Ui;

namespace MapEditor {

namespace {

/// The most cells that go to the clipboard at once, as cells or as a picture: what 1 GiB holds of pixels.
constexpr qint64 MaxCopiedCells = (qint64(1) << 30) / (TileMap::TileSize * TileMap::TileSize);

bool canBeCopied(QSize cells)
{
    if (qint64(cells.width()) * cells.height() <= MaxCopiedCells)
        return true;
    qWarning("The selection is too large for the clipboard");
    return false;
}

} // namespace

bool MapGrid::hasSelection() const
{
    return m_map && m_map->tileLayer() && !m_selection.isEmpty();
}

void MapGrid::setSelection(const QRect &cells)
{
    m_selection = cells & QRect(QPoint(0, 0), mapSize());
    update();
}

void MapGrid::selectAll()
{
    setMode(Select);
    setSelection(QRect(QPoint(0, 0), mapSize()));
}

void MapGrid::selectNone()
{
    hideRubberBand();
    setSelection(QRect());
}

void MapGrid::showRubberBand(const QRect &area)
{
    m_rubberBand->setGeometry(area);
    m_rubberBand->show();
}

void MapGrid::hideRubberBand()
{
    m_rubberBand->hide();
}

void MapGrid::showContextMenu(QPoint globalPosition)
{
    m_buttons = Qt::NoButton; // the menu takes the release
    m_contextMenu->popup(globalPosition);
}

bool MapGrid::copyCells()
{
    if (!hasSelection() || !canBeCopied(m_selection.size()))
        return false;
    const QRect cells = m_selection;
    QApplication::clipboard()->setMimeData(m_map->tileLayer()->toMimeData(cells)); // the clipboard owns it
    setMode(m_savedMode);
    m_selection = m_pasteArea = cells; // choosing a tool cleared both
    update();
    return true;
}

void MapGrid::copySelection()
{
    copyCells();
}

void MapGrid::clearSelection()
{
    if (!hasSelection())
        return;
    edit(tr("Clear"), [this](Map &map) { map.setTiles(m_selection, 0, false, false, false, true); });
}

void MapGrid::cutSelection()
{
    beginEdit();
    if (copyCells()) {
        clearSelection();
        selectNone();
    }
    endEdit(tr("Cut"));
}

void MapGrid::fillSelection()
{
    const TileMap::TileData &tile = m_currentTile;
    if (!hasSelection() || tile.index < 0)
        return;
    edit(tr("Fill"),
         [this, &tile](Map &map) { map.setTiles(m_selection, tile.index, tile.rotate, tile.flip, tile.mirror, true); });
}

void MapGrid::mapFromSelection()
{
    const QSize size = m_selection.size();
    if (copyCells())
        emit createMapFromSelection(m_map->id(), size);
}

void MapGrid::copyAsImage()
{
    if (!hasSelection() || !canBeCopied(m_selection.size()))
        return;
    QImage image = m_map->tileLayer()->render(m_selection, 1, m_transparencyIndex);
    if (image.isNull())
        return;
    const QPointer<TileSet> tiles = m_map->tileSet();
    image.setText(QStringLiteral("paletteid"), (tiles ? tiles->paletteId() : QUuid()).toString());
    QApplication::clipboard()->setImage(image);
}

} // namespace MapEditor
