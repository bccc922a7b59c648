#pragma once

#include "model/tilemap.h"

#include <QByteArray>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QSize>
#include <QString>
#include <QUuid>

#include <variant>

class KeptBlocks;

/// A member of a project file as a value: its name, and what its content is made of. It shares everything with the
/// project, as undo's snapshots do, and stays as it is whatever is edited later.
struct ProjectMember
{
    /// The tile layer of a map.
    struct Cells
    {
        QSize size;
        TileMap::Rows rows;
        QUuid tileSetId;
    };

    QString name;
    std::variant<QJsonObject, Cells, QImage> content;

    /// All bytes of it.
    [[nodiscard]] QByteArray bytes() const;
};

/// The document as it is stored.
[[nodiscard]] QByteArray textOf(const QJsonObject &document);

/// The members of a project file in the order in which they are written, which is that of their names.
using ProjectSnapshot = QList<ProjectMember>;

/// A part of a member's bytes, with those that go before it as far as deflating looks back.
struct MemberBlock
{
    QByteArray bytes;
    qsizetype historySize = 0; ///< how many of the bytes go before the block

    [[nodiscard]] QByteArrayView content() const { return QByteArrayView(bytes).sliced(historySize); }
};

/// Makes the bytes of a member, from its start and in blocks, so that a large one is never whole in memory and equal
/// parts of two contents give equal blocks: those of a tile layer end with rows.
class MemberBlocks
{
public:
    /// Bytes of a block, as far as rows of cells allow: as much as even a slow machine deflates in 8 ms.
    static constexpr qsizetype BlockSize = qsizetype(256) << 10;

    /// With kept blocks, which must live as long, a picture that was packed is unpacked instead of being encoded.
    explicit MemberBlocks(const ProjectMember &member, const KeptBlocks *kept = nullptr)
        : m_member(member)
        , m_kept(kept)
    { }

    [[nodiscard]] bool atEnd() const { return m_atEnd; }
    /// The next block, which may be empty.
    [[nodiscard]] MemberBlock next();

    /// The block of some bytes that starts at a place, to be deflated with or without what goes before it.
    [[nodiscard]] static MemberBlock blockOf(const QByteArray &bytes, qsizetype start, bool withHistory);

private:
    [[nodiscard]] MemberBlock nextCells(const ProjectMember::Cells &cells);
    [[nodiscard]] MemberBlock nextBytes();
    [[nodiscard]] QByteArray encoded(const QImage &picture) const;

    ProjectMember m_member;
    const KeptBlocks *m_kept;
    qsizetype m_row = 0; ///< the first row of the next block
    QByteArray m_bytes; ///< of what is made at one go, once it was
    qsizetype m_done = 0; ///< bytes of those that were given
    bool m_atEnd = false;
};
