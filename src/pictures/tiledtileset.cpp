#include "pictures/tiledtileset.h"

#include "pictures/tiledjson.h"
#include "pictures/tiledloader.h"
#include "pictures/tiledxml.h"

bool TiledTileSet::recognises(const QByteArray &start)
{
    return TiledJson::recognises(start) ? TiledJson::mayBe(start, false) : TiledXml::mayBe(start, false);
}

Result<TiledTileSet> TiledTileSet::read(const QString &fileName, TiledReferences references)
{
    return TiledLoader(fileName, references).readTileSet(fileName);
}

QImage TiledTileSet::tile(int index) const
{
    if (picture.isNull())
        return pictures.value(index);
    if (index < 0 || index >= count || columns <= 0)
        return {};
    const qint64 x = margin + qint64(index % columns) * (tileSize.width() + spacing);
    const qint64 y = margin + qint64(index / columns) * (tileSize.height() + spacing);
    if (x + tileSize.width() > picture.width() || y + tileSize.height() > picture.height())
        return {};
    return picture.copy(QRect(QPoint(int(x), int(y)), tileSize));
}
