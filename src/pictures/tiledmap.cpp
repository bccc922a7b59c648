#include "pictures/tiledmap.h"

bool TiledMap::recognises(const QByteArray &)
{
    return false;
}

Result<TiledMap> TiledMap::read(const QString &, TiledReferences)
{
    return Failure{QStringLiteral("not read yet")};
}

QStringList TiledMap::outside() const
{
    QStringList files;
    for (const TiledTileSet &tileSet : tileSets)
        files += tileSet.outside;
    files.removeDuplicates();
    return files;
}

TiledMap::Cell TiledMap::cell(quint32) const
{
    return {};
}

TiledMap::Flat TiledMap::flattened() const
{
    return {};
}
