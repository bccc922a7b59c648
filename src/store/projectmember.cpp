#include "store/projectmember.h"

#include "model/tilemapformat.h"
#include "store/keptblocks.h"
#include "store/pngmember.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

/// How far deflating looks back.
constexpr qsizetype HistorySize = qsizetype(32) << 10;

} // namespace

QByteArray ProjectMember::bytes() const
{
    QByteArray bytes;
    for (MemberBlocks blocks(*this); !blocks.atEnd();)
        bytes += blocks.next().content();
    return bytes;
}

QByteArray textOf(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Indented);
}

MemberBlock MemberBlocks::next()
{
    const auto *cells = std::get_if<ProjectMember::Cells>(&m_member.content);
    return cells ? nextCells(*cells) : nextBytes();
}

MemberBlock MemberBlocks::nextCells(const ProjectMember::Cells &cells)
{
    const qsizetype rowSize = std::max<qsizetype>(1, cells.size.width() * TileMapFormat::CellSize);
    const qsizetype end = std::min(m_row + std::max<qsizetype>(1, BlockSize / rowSize), cells.rows.size());
    const qsizetype before = std::min(m_row, std::max<qsizetype>(1, HistorySize / rowSize));
    QByteArray bytes;
    bytes.reserve(TileMapFormat::HeadSize + (before + end - m_row) * rowSize + TileMapFormat::IdSize);
    for (qsizetype row = m_row - before; row < m_row; ++row)
        TileMapFormat::appendRow(bytes, cells.rows[row]);
    if (bytes.size() > HistorySize) // of a row that is longer
        bytes = bytes.last(HistorySize);
    const qsizetype historySize = bytes.size();
    if (m_row == 0)
        TileMapFormat::appendHead(bytes, cells.size);
    for (; m_row < end; ++m_row)
        TileMapFormat::appendRow(bytes, cells.rows[m_row]);
    m_atEnd = m_row == cells.rows.size();
    if (m_atEnd)
        bytes += cells.tileSetId.toRfc4122();
    return {bytes, historySize};
}

MemberBlock MemberBlocks::nextBytes()
{
    const auto *picture = std::get_if<QImage>(&m_member.content);
    if (m_done == 0)
        m_bytes = picture ? encoded(*picture) : textOf(std::get<QJsonObject>(m_member.content));
    const MemberBlock block = blockOf(m_bytes, m_done, !picture); // packed pictures do not shrink, and are unpacked
    m_done += block.content().size();
    m_atEnd = m_done == m_bytes.size();
    return block;
}

MemberBlock MemberBlocks::blockOf(const QByteArray &bytes, qsizetype start, bool withHistory)
{
    const qsizetype historySize = withHistory ? std::min(start, HistorySize) : 0;
    return {bytes.mid(start - historySize, historySize + BlockSize), historySize};
}

QByteArray MemberBlocks::encoded(const QImage &picture) const
{
    QByteArray bytes;
    if (m_kept) {
        const QList<PackedBlock> blocks = m_kept->picture(KeptBlocks::pictureKey(picture));
        for (const PackedBlock &block : blocks)
            bytes += block.unpacked();
    }
    return bytes.isEmpty() ? PngMember::encode(picture) : bytes;
}
