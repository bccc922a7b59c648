#include "pictures/asepritefile.h"

#include "pictures/asepritereader.h"

using ForeignFile::Texts;

Result<AsepriteFile> AsepriteFile::read(const QString &fileName)
{
    const auto bytes = ForeignFile::readAll(fileName, MaxBytes);
    return bytes ? read(*bytes) : bytes.failure();
}

Result<AsepriteFile> AsepriteFile::read(const QByteArray &bytes)
{
    auto content = AsepriteReader(bytes).read();
    if (!content)
        return content.failure();
    return AsepriteFile(*std::move(content));
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
    return m_content->isIndexed && !m_content->hasBackground ? m_content->clearIndex : -1;
}

QRect AsepriteFile::grid() const
{
    return m_content->grid;
}

int AsepriteFile::frameCount() const
{
    return int(m_content->frames.size());
}

int AsepriteFile::duration(int frame) const
{
    return m_content->frames[size_t(frame)].duration;
}

QImage AsepriteFile::frame(int frame) const
{
    return m_content->draw(m_content->frames[size_t(frame)]);
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
