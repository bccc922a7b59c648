#include "store/projectmember.h"

#include "model/tilemapformat.h"
#include "store/keptblocks.h"
#include "store/pngmember.h"

#include <QJsonDocument>

#include <algorithm>

QByteArray ProjectMember::bytes() const
{
    QByteArray bytes;
    for (MemberBlocks blocks(*this); !blocks.atEnd();)
        bytes += blocks.next();
    return bytes;
}

QByteArray textOf(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Indented);
}

QByteArray MemberBlocks::next()
{
    const auto *cells = std::get_if<ProjectMember::Cells>(&m_member.content);
    return cells ? nextCells(*cells) : nextBytes();
}

QByteArray MemberBlocks::nextCells(const ProjectMember::Cells &cells)
{
    const qsizetype rowSize = cells.size.width() * TileMapFormat::CellSize;
    const qsizetype count =
        std::min(std::max<qsizetype>(1, BlockSize / std::max<qsizetype>(1, rowSize)), cells.rows.size() - m_row);
    QByteArray block;
    block.reserve(TileMapFormat::HeadSize + count * rowSize + TileMapFormat::IdSize);
    if (m_row == 0)
        TileMapFormat::appendHead(block, cells.size);
    for (const qsizetype end = m_row + count; m_row < end; ++m_row)
        TileMapFormat::appendRow(block, cells.rows[m_row]);
    m_atEnd = m_row == cells.rows.size();
    if (m_atEnd)
        block += cells.tileSetId.toRfc4122();
    return block;
}

QByteArray MemberBlocks::nextBytes()
{
    if (m_done == 0) {
        if (const auto *picture = std::get_if<QImage>(&m_member.content))
            m_bytes = encoded(*picture);
        else
            m_bytes = textOf(std::get<QJsonObject>(m_member.content));
    }
    const QByteArray block = m_bytes.mid(m_done, BlockSize);
    m_done += block.size();
    m_atEnd = m_done == m_bytes.size();
    return block;
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
