#include "store/packedmember.h"

#include "store/keptblocks.h"

#include <zlib.h>

#include <numeric>
#include <utility>

qint64 PackedMember::size() const
{
    return std::accumulate(blocks.cbegin(), blocks.cend(), qint64(0),
                           [](qint64 sum, const PackedBlock &block) { return sum + block.key.size; });
}

quint32 PackedMember::checksum() const
{
    return std::accumulate(blocks.cbegin(), blocks.cend(), quint32(0), [](quint32 sum, const PackedBlock &block) {
        return quint32(crc32_combine(sum, block.checksum, z_off_t(block.key.size)));
    });
}

qint64 PackedMember::packedSize() const
{
    return std::accumulate(blocks.cbegin(), blocks.cend(), qint64(PackedBlock::EndOfStream.size()),
                           [](qint64 sum, const PackedBlock &block) { return sum + block.deflated.size(); });
}

ContentKey PackedMember::key() const
{
    ContentDigest digest;
    for (const PackedBlock &block : blocks)
        digest.add({reinterpret_cast<const char *>(&block.key), sizeof block.key});
    return {digest.key().high, digest.key().low, size()};
}

PackedMember PackedMember::pack(const QString &name, const QByteArray &content)
{
    PackedMember member{name, {}, {}};
    for (qsizetype done = 0; done < content.size(); done += MemberBlocks::BlockSize) {
        const MemberBlock block = MemberBlocks::blockOf(content, done, true);
        member.blocks.append(PackedBlock::pack(block.bytes, block.historySize));
    }
    return member;
}

MemberPacker::MemberPacker(const ProjectMember &member, KeptBlocks &kept)
    : m_kept(kept)
    , m_blocks(member)
    , m_packed{member.name, {}, {}}
{
    if (const auto *picture = std::get_if<QImage>(&member.content)) {
        m_packed.picture = KeptBlocks::pictureKey(*picture);
        m_packed.blocks = m_kept.picture(*m_packed.picture);
        m_atEnd = !m_packed.blocks.isEmpty();
    }
}

void MemberPacker::step()
{
    if (m_atEnd)
        return;
    if (!m_next) {
        m_next = m_blocks.next();
        return;
    }
    m_packed.blocks.append(m_kept.packed(*std::exchange(m_next, {})));
    m_atEnd = m_blocks.atEnd();
    if (m_atEnd && m_packed.picture)
        m_kept.addPicture(*m_packed.picture, m_packed.blocks);
}
