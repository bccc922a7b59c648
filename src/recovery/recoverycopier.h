#pragma once

#include "recovery/recoverywriter.h"
#include "store/packedmember.h"

#include <optional>

class KeptBlocks;

/// Makes one copy of a project, a little at a time, of the project as it was when that began.
///
/// What has not changed since something was packed last, for a copy or for the project's file, costs no more than
/// looking at it.
class RecoveryCopier
{
public:
    enum Progress { Working, Done, Failed };

    /// The manifest says all but what the copy is made of; a picture may be null. Writer and blocks must live as long.
    RecoveryCopier(RecoveryWriter &writer, KeptBlocks &kept, const ProjectSnapshot &snapshot,
                   const RecoveryManifest &manifest, const QImage &picture);

    /// Does the next little part.
    Progress step();
    /// Does all that is left, which can take a while.
    Progress run();

private:
    [[nodiscard]] bool putPicture();

    RecoveryWriter &m_writer;
    KeptBlocks &m_kept;
    ProjectSnapshot m_snapshot;
    RecoveryManifest m_manifest;
    QImage m_picture;
    std::optional<MemberPacker> m_packer; ///< of the next member
    QStringList m_pieces; ///< of it
    QList<PackedMember> m_packed;
};
