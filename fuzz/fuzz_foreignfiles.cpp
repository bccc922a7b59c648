// The files of other programs: palettes, sprites, maps and tile sets. Each reader is given every input; what is read is
// drawn, and is what its reader promises.

#include "pictures/asepritefile.h"
#include "pictures/colourfile.h"
#include "pictures/tiledmap.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QString written(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("input"));
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the input");
    return path;
}

void readPalette(const QByteArray &bytes)
{
    const auto file = ColourFile::read(bytes);
    require(file.reason().isEmpty() == bool(file));
    require(!file || (!file->colours.isEmpty() && file->transparentIndex < file->colours.size()));
}

void readSprite(const QByteArray &bytes)
{
    const auto file = AsepriteFile::read(bytes);
    require(file.reason().isEmpty() == bool(file));
    for (int frame = 0; file && frame < file->frameCount(); ++frame)
        require(file->frame(frame).size() == file->size() && file->duration(frame) > 0);
    for (const AsepriteFile::TileSet &tiles : file ? file->tileSets() : QList<AsepriteFile::TileSet>())
        (void)tiles.tile(tiles.count - 1);
}

void readMap(const QString &fileName)
{
    const auto map = TiledMap::read(fileName);
    require(map.reason().isEmpty() == bool(map));
    if (!map)
        return;
    require(map->flattened().gids.size() == qsizetype(map->size.width()) * map->size.height());
    for (const TiledMap::Layer &layer : map->layers)
        require(layer.gids.size() == qsizetype(layer.area.width()) * layer.area.height());
    for (const TiledTileSet &tileSet : map->tileSets)
        (void)tileSet.tile(tileSet.count - 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), qsizetype(size));
    readPalette(input);
    readSprite(input);
    const QString fileName = written(input);
    readMap(fileName);
    (void)TiledTileSet::read(fileName);
    return 0;
}
