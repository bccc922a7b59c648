#pragma once

#include "store/packedblock.h"
#include "store/projectmember.h"

#include <QList>
#include <QString>

#include <optional>

class KeptBlocks;

/// A member of a project file, deflated: what ZipFile::write() puts into an archive as it is.
struct PackedMember
{
    QString name;
    QList<PackedBlock> blocks;
    std::optional<ContentKey> picture; ///< of the pixels that it shows, for a picture

    /// Bytes of the content.
    [[nodiscard]] qint64 size() const;
    /// CRC-32 of the content.
    [[nodiscard]] quint32 checksum() const;
    /// Bytes that it takes in an archive, and in memory.
    [[nodiscard]] qint64 packedSize() const;
    /// Equal for members with equal content: whether it has to be written again can be told without reading it.
    [[nodiscard]] ContentKey key() const;

    [[nodiscard]] static PackedMember pack(const QString &name, const QByteArray &content);
};

/// Packs a member of a project in steps of a few milliseconds each. Blocks that are kept are taken as they are, what is
/// new is kept from then on. Once a picture was packed, its pixels alone are looked at.
///
///     MemberPacker packer(member, kept);
///     while (!packer.atEnd())
///         packer.step();
///     const PackedMember packed = packer.packed();
class MemberPacker
{
public:
    /// The kept blocks must live as long as the packer.
    MemberPacker(const ProjectMember &member, KeptBlocks &kept);

    [[nodiscard]] bool atEnd() const { return m_atEnd; }
    /// Makes the next block, or packs the one that was made: each takes its time.
    void step();
    /// The member, whole once the packer is at its end.
    [[nodiscard]] const PackedMember &packed() const { return m_packed; }

private:
    KeptBlocks &m_kept;
    MemberBlocks m_blocks;
    std::optional<MemberBlock> m_next; ///< made and not packed yet
    PackedMember m_packed;
    bool m_atEnd = false;
};
