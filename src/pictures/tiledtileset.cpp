#include "pictures/tiledtileset.h"

bool TiledTileSet::recognises(const QByteArray &)
{
    return false;
}

Result<TiledTileSet> TiledTileSet::read(const QString &, TiledReferences)
{
    return Failure{QStringLiteral("not read yet")};
}

QImage TiledTileSet::tile(int) const
{
    return {};
}
