#include "pictures/asepritefile.h"

struct AsepriteFile::Content
{
    QSize size;
    bool isIndexed = false;
    QList<QRgb> palette;
    int transparentIndex = -1;
    QRect grid;
    QList<int> durations;
    QList<Tag> tags;
    QList<TileSet> tileSets;
    QStringList remarks;
};

bool AsepriteFile::recognises(const QByteArray &)
{
    return false;
}

Result<AsepriteFile> AsepriteFile::read(const QString &)
{
    return Failure{QStringLiteral("not read yet")};
}

Result<AsepriteFile> AsepriteFile::read(const QByteArray &)
{
    return Failure{QStringLiteral("not read yet")};
}

QSize AsepriteFile::size() const
{
    return m_content->size;
}

bool AsepriteFile::isIndexed() const
{
    return m_content->isIndexed;
}

QList<QRgb> AsepriteFile::palette() const
{
    return m_content->palette;
}

int AsepriteFile::transparentIndex() const
{
    return m_content->transparentIndex;
}

QRect AsepriteFile::grid() const
{
    return m_content->grid;
}

int AsepriteFile::frameCount() const
{
    return int(m_content->durations.size());
}

int AsepriteFile::duration(int frame) const
{
    return m_content->durations.at(frame);
}

QImage AsepriteFile::frame(int) const
{
    return {};
}

QList<AsepriteFile::Tag> AsepriteFile::tags() const
{
    return m_content->tags;
}

QList<AsepriteFile::TileSet> AsepriteFile::tileSets() const
{
    return m_content->tileSets;
}

QStringList AsepriteFile::remarks() const
{
    return m_content->remarks;
}
