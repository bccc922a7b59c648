// The raw files that a tile set writes and reads.

#include "model/rawfile.h"
#include "model/tileset.h"

#include <QFile>

#include <algorithm>

// Next tile data (".nxt"): 32 bytes a tile, in order, no header. In a tile:
//
//   offset     size  content
//   4·y + k    1     row y: pixel of column 2k in bits 7–4, of column 2k + 1 in bits 3–0

QByteArray TileSet::nextData() const
{
    QByteArray bytes;
    bytes.reserve(qsizetype(count()) * Tile::DataSize);
    for (const auto &tile : m_tiles)
        bytes += tile->toNextData();
    return bytes;
}

bool TileSet::exportNxt(const QString &fileName) const
{
    return RawFile::write(fileName, nextData());
}

QString TileSet::exportFileName() const
{
    return m_name + QStringLiteral("_tiles.nxt");
}

bool TileSet::exportToDirectory(const QString &folder) const
{
    return exportNxt(RawFile::pathIn(folder, exportFileName()));
}

bool TileSet::importNxt(const QString &filename)
{
    QFile file(filename);
    if (!RawFile::openForReading(file))
        return false;
    const QByteArray bytes = file.read(qint64(count()) * Tile::DataSize);
    for (int i = 0; (i + 1) * qsizetype(Tile::DataSize) <= bytes.size(); ++i) {
        Tile::Pixels pixels;
        for (int k = 0; k < Tile::DataSize; ++k) {
            const auto pair = static_cast<uchar>(bytes[i * qsizetype(Tile::DataSize) + k]);
            pixels[size_t(k) * 2] = pair >> 4;
            pixels[size_t(k) * 2 + 1] = pair & 0x0F;
        }
        tile(i)->setOffset(0);
        tile(i)->setImage(imageOf(pixels));
    }
    return true;
}

// Block data (".bin"): 64 bytes a tile, one palette index a pixel, rows top to bottom.

bool TileSet::exportBlocks(const QString &fileName, int startBlock, int endBlock, bool rotate) const
{
    constexpr int blockSize = Tile::Size * Tile::Size;
    const int first = std::max(startBlock, 1) - 1;
    const int blocks = std::max(std::clamp(endBlock, 0, count()) - first, 0);
    QByteArray bytes(qsizetype(blocks) * blockSize, '\0');
    auto *target = reinterpret_cast<uchar *>(bytes.data());
    for (int i = first; i < first + blocks; ++i, target += blockSize)
        renderTile(i, rotate, false, rotate, tileOffset(i), target, Tile::Size);
    return RawFile::write(fileName, bytes);
}

// Attribute tables: as text the names of the attributes, then "db" lines of sixteen values; as binary
// one byte a tile.

bool TileSet::exportAttributesAsm(const QString &fileName) const
{
    constexpr int columns = 16;
    QByteArray text = "\tTA_NONE        = $00\n"
                      "\tTA_TOPSOLID    = $01\n"
                      "\tTA_LEFTSOLID   = $02\n"
                      "\tTA_RIGHTSOLID  = $04\n"
                      "\tTA_BOTTOMSOLID = $08\n"
                      "\tTA_SOLID       = $0F\n"
                      "\tTA_DEADLY      = $10\n"
                      "\tTA_COLLECTIBLE = $20\n"
                      "\tTA_LADDER      = $40\n"
                      "\tTA_DOOR        = $80\n";
    for (int i = 0; i < count(); ++i) {
        text += i % columns == 0 ? "\tdb\t$" : "$";
        text += QByteArray::number(static_cast<uint>(tile(i)->attributes()), 16).rightJustified(2, '0');
        text += (i + 1) % columns == 0 || i + 1 == count() ? '\n' : ',';
    }
    return RawFile::write(fileName, text, QIODevice::Text);
}

bool TileSet::exportAttributesBinary(const QString &fileName) const
{
    QByteArray bytes;
    bytes.reserve(count());
    for (const auto &tile : m_tiles)
        bytes += static_cast<char>(tile->attributes());
    return RawFile::write(fileName, bytes);
}

// ZX Spectrum fonts (".bin", ".raw", ".ch8"): 8 bytes a character, one a row, bit 7 leftmost.

bool TileSet::importZXFont(int index, int foreIndex, int backIndex, int offset, const QString &filename)
{
    QFile file(filename);
    if (!RawFile::openForReading(file) || index < 0)
        return false;
    for (int i = index; i < count() && !file.atEnd(); ++i) {
        const QByteArray rows = file.read(Tile::Size);
        if (rows.size() < Tile::Size)
            return false;
        Tile::Pixels pixels;
        for (int y = 0; y < Tile::Size; ++y) {
            for (int x = 0; x < Tile::Size; ++x) {
                const bool set = rows[y] & 0x80 >> x;
                pixels[size_t(y) * Tile::Size + size_t(x)] = static_cast<uchar>(set ? foreIndex : backIndex);
            }
        }
        tile(i)->setOffset(offset);
        tile(i)->setImage(imageOf(pixels));
        emit tileChanged(i);
    }
    return true;
}
