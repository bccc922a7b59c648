#include "editors/map/mapclipboard.h"

#include "model/map.h"
#include "model/picturefile.h"
#include "model/tileset.h"

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>
#include <QMimeData>

namespace MapClipboard {

namespace {

/// The most cells that are copied at once, as cells or as a picture: what 1 GiB holds of pixels.
constexpr qint64 MaxCells = (qint64(1) << 30) / (TileMap::TileSize * TileMap::TileSize);

bool canBeCopied(const Map &map, QSize cells)
{
    if (!map.tileLayer() || cells.isEmpty())
        return false;
    if (qint64(cells.width()) * cells.height() <= MaxCells)
        return true;
    qWarning("The selection is too large for the clipboard");
    return false;
}

} // namespace

bool copy(const Map &map, const QRect &cells)
{
    if (!canBeCopied(map, cells.size()))
        return false;
    QGuiApplication::clipboard()->setMimeData(map.tileLayer()->toMimeData(cells)); // the clipboard owns it
    return true;
}

bool copy(const Map &map, const CellRuns::Runs &cells)
{
    const QRect area = CellRuns::bounds(cells);
    if (!canBeCopied(map, area.size()))
        return false;
    TileMap copied(area.size());
    copied.setTileSet(map.tileSet());
    const QPointer<TileMap> layer = map.tileLayer();
    copied.writeRuns(CellRuns::moved(cells, -area.topLeft()), 0, [&](QPoint first, std::span<TileMap::TileData> row) {
        for (TileMap::TileData &cell : row) {
            cell = layer->cellAt(first + area.topLeft());
            ++first.rx();
        }
    });
    QGuiApplication::clipboard()->setMimeData(copied.toMimeData(copied.bounds()));
    return true;
}

bool copyPicture(const Map &map, const QRect &cells, int transparencyIndex)
{
    if (!canBeCopied(map, cells.size()))
        return false;
    QImage image = map.tileLayer()->render(cells, 1, transparencyIndex);
    if (image.isNull())
        return false;
    const QPointer<TileSet> tiles = map.tileSet();
    image.setText(QStringLiteral("paletteid"), (tiles ? tiles->paletteId() : QUuid()).toString());
    QGuiApplication::clipboard()->setImage(image);
    return true;
}

QSize sizeFor(const Map *map)
{
    if (!map)
        return {};
    const TileMap::Selection selection = TileMap::readSelection(QGuiApplication::clipboard()->mimeData());
    const QUuid tiles = map->tileSet() ? map->tileSet()->id() : QUuid();
    return selection.tileSetId == tiles ? selection.size : QSize();
}

bool mayHoldPicture()
{
    const QMimeData *mimeData = QGuiApplication::clipboard()->mimeData();
    return mimeData && mimeData->hasImage() && !TileMap::isIn(mimeData);
}

QImage picture()
{
    const QMimeData *mimeData = QGuiApplication::clipboard()->mimeData();
    return TileMap::isIn(mimeData) ? QImage() : PictureFile::of(mimeData);
}

} // namespace MapClipboard
