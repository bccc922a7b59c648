#include "store/keptblocks.h"

#include <numeric>

PackedBlock KeptBlocks::packed(const MemberBlock &block)
{
    const ContentKey key = PackedBlock::keyOf(block.bytes, block.historySize);
    auto kept = m_blocks.find(key);
    if (kept == m_blocks.end())
        kept = m_blocks.insert(key, PackedBlock::pack(block.bytes, block.historySize));
    return *kept;
}

ContentKey KeptBlocks::pictureKey(const QImage &picture)
{
    const auto bytesOf = [](const auto &value) {
        return QByteArrayView(reinterpret_cast<const char *>(&value), sizeof value);
    };
    ContentDigest digest;
    digest.add(bytesOf(picture.size()));
    digest.add(bytesOf(picture.format()));
    const QList<QRgb> colours = picture.colorTable();
    digest.add(bytesOf(colours.size()));
    digest.add({reinterpret_cast<const char *>(colours.constData()), colours.size() * qsizetype(sizeof(QRgb))});
    const qsizetype bytesPerRow =
        (qsizetype(picture.width()) * picture.depth() + 7) / 8; // what is behind them is random
    for (int y = 0; y < picture.height(); ++y)
        digest.add({reinterpret_cast<const char *>(picture.constScanLine(y)), bytesPerRow});
    return digest.key();
}

void KeptBlocks::keepOnly(const QList<PackedMember> &members)
{
    clear();
    for (const PackedMember &member : members) {
        for (const PackedBlock &block : member.blocks)
            m_blocks.insert(block.key, block);
        if (member.picture)
            m_pictures.insert(*member.picture, member.blocks);
    }
}

void KeptBlocks::clear()
{
    m_blocks.clear();
    m_pictures.clear();
}

qint64 KeptBlocks::memory() const
{
    return std::accumulate(m_blocks.cbegin(), m_blocks.cend(), qint64(0),
                           [](qint64 sum, const PackedBlock &block) { return sum + block.deflated.size(); });
}
