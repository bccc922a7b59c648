#include "model/nxmfile.h"

#include "model/rawfile.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr int HeaderSize = 2;
constexpr int BlockRowSize = 256;
constexpr int BlockSize = 8;
constexpr int MaxRows = 128;
constexpr int MaxBlocks = 0x10000; // all that a block number can name

/// At most maxSize bytes from the start of a file; nothing when it cannot be read.
std::optional<QByteArray> readStart(const QString &fileName, qint64 maxSize)
{
    QFile file(fileName);
    if (!RawFile::openForReading(file))
        return std::nullopt;
    return file.read(maxSize);
}

} // namespace

NxmFile::NxmFile(QSize size, const QByteArray &numbers, const QByteArray &blocks)
    : m_size(size)
    , m_numbers(numbers)
    , m_blocks(blocks)
{ }

std::optional<NxmFile> NxmFile::open(const QString &mapFile, const QString &blockFile)
{
    const auto map = readStart(mapFile, HeaderSize + MaxRows * BlockRowSize);
    if (!map || map->size() < HeaderSize)
        return std::nullopt;
    const QSize size(uchar(map->at(0)), uchar(map->at(1)));
    if (size.isEmpty())
        return std::nullopt;
    return NxmFile(size, map->sliced(HeaderSize), readStart(blockFile, MaxBlocks * BlockSize).value_or(QByteArray()));
}

std::optional<NxmFile::Block> NxmFile::blockAt(int column, int row) const
{
    const qsizetype position = qsizetype(row) * BlockRowSize + column * 2;
    if (position + 2 > m_numbers.size())
        return std::nullopt;
    const qsizetype start = qFromLittleEndian<quint16>(m_numbers.constData() + position) * qsizetype(BlockSize);
    if (start + BlockSize > m_blocks.size())
        return std::nullopt;
    Block block;
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = qFromLittleEndian<qint16>(m_blocks.constData() + start + qsizetype(i) * 2);
    return block;
}
