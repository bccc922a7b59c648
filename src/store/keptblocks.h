#pragma once

#include "store/packedmember.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QList>

/// The deflated blocks of what was packed last, so that packing again costs what has changed since.
///
/// They are compressed and known by what they were made of (ContentKey), which keeps no more of it than a digest.
/// Whoever has packed a whole project says so by keepOnly(), which lets everything else go: they then take no more
/// memory than the project's file. Packed members share their blocks with what is kept, and stay whole when that goes.
class KeptBlocks
{
public:
    /// The block in packed form, packed now unless it is kept.
    [[nodiscard]] PackedBlock packed(const MemberBlock &block);

    /// Tells pictures apart by what is stored of them: size, pixels and colours.
    [[nodiscard]] static ContentKey pictureKey(const QImage &picture);
    /// The blocks that a picture was packed into; none when it is not kept.
    [[nodiscard]] QList<PackedBlock> picture(const ContentKey &key) const { return m_pictures.value(key); }
    void addPicture(const ContentKey &key, const QList<PackedBlock> &blocks) { m_pictures.insert(key, blocks); }

    /// Forgets what is no part of these members.
    void keepOnly(const QList<PackedMember> &members);
    void clear();

    /// Bytes of the blocks.
    [[nodiscard]] qint64 memory() const;

private:
    QHash<ContentKey, PackedBlock> m_blocks;
    QHash<ContentKey, QList<PackedBlock>> m_pictures; ///< which share the bytes of the blocks
};
