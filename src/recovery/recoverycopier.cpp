#include "recovery/recoverycopier.h"

#include "store/keptblocks.h"

#include <QBuffer>

RecoveryCopier::RecoveryCopier(RecoveryWriter &writer, KeptBlocks &kept, const ProjectSnapshot &snapshot,
                               const RecoveryManifest &manifest, const QImage &picture)
    : m_writer(writer)
    , m_kept(kept)
    , m_snapshot(snapshot)
    , m_manifest(manifest)
    , m_picture(picture)
{ }

RecoveryCopier::Progress RecoveryCopier::step()
{
    if (!m_picture.isNull())
        return putPicture() ? Working : Failed;
    if (m_packed.size() == m_snapshot.size()) {
        m_kept.keepOnly(m_packed);
        return m_writer.finish(m_manifest) ? Done : Failed;
    }
    if (!m_packer)
        m_packer.emplace(m_snapshot[m_packed.size()], m_kept);
    const QList<PackedBlock> &blocks = m_packer->packed().blocks;
    if (m_pieces.size() < blocks.size()) {
        m_pieces.append(m_writer.put(blocks[m_pieces.size()].deflated));
        return m_pieces.last().isEmpty() ? Failed : Working;
    }
    if (!m_packer->atEnd()) {
        m_packer->step();
        return Working;
    }
    const PackedMember member = m_packer->packed();
    m_manifest.members.append({member.name, member.size(), member.checksum(), std::exchange(m_pieces, {})});
    m_packed.append(member);
    m_packer.reset();
    return Working;
}

RecoveryCopier::Progress RecoveryCopier::run()
{
    Progress progress = Working;
    while (progress == Working)
        progress = step();
    return progress;
}

bool RecoveryCopier::putPicture()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (std::exchange(m_picture, {}).save(&buffer, "png"))
        m_manifest.picture = m_writer.put(bytes);
    return bytes.isEmpty() || !m_manifest.picture.isEmpty();
}
