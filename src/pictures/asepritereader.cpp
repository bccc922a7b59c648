#include "pictures/asepritereader.h"

#include "model/plural.h"

#include <algorithm>

using ForeignFile::Texts;

namespace {

constexpr int HeadBytes = 128;
constexpr int FrameHeadBytes = 16;
constexpr int ChunkHeadBytes = 6;
constexpr int FileMagic = 0xA5E0;
constexpr int FrameMagic = 0xF1FA;
constexpr int MagicOffset = 4;

enum ChunkType {
    OldPalette = 0x0004,
    OldPalette63 = 0x0011,
    Layer = 0x2004,
    Cel = 0x2005,
    Tags = 0x2018,
    NewPalette = 0x2019,
    Slices = 0x2022,
    TileSet = 0x2023
};

enum HeadFlag { LayersHaveOpacity = 1, GroupsHaveOpacity = 2 };
enum LayerFlag { Visible = 1, Background = 8, Reference = 64 };

constexpr QRgb Black = 0xFF000000;

// More than any sprite has, and few enough to be kept
constexpr int MaxLayers = 4096;
constexpr int MaxTags = 4096;
constexpr int MaxPaletteChunks = 64;
constexpr quint32 MaxColours = 4096;

} // namespace

bool AsepriteFile::recognises(const QByteArray &start)
{
    ByteReader reader(start);
    reader.skip(MagicOffset);
    return reader.take<quint16>() == FileMagic;
}

Result<std::shared_ptr<const AsepriteFile::Content>> AsepriteReader::read()
{
    ByteReader file(m_bytes);
    bool isRead = readHead(file);
    while (isRead && frameNumber() < m_frameCount)
        isRead = readFrame(file);
    if (!isRead || !finish())
        return Failure{m_problem};
    m_content->remarks = m_remarks.texts();
    return std::shared_ptr<const Content>(m_content);
}

bool AsepriteReader::fail(const QString &reason)
{
    m_problem = reason;
    return false;
}

QString AsepriteReader::where(int layer) const
{
    return Texts::tr("Frame %1, layer “%2”").arg(QString::number(frameNumber()), m_content->layers[size_t(layer)].name);
}

bool AsepriteReader::readHead(ByteReader &head)
{
    const auto size = head.take<quint32>();
    if (head.take<quint16>() != FileMagic)
        return fail(Texts::tr("It is no Aseprite file"));
    m_frameCount = head.take<quint16>();
    const int width = head.take<quint16>();
    const int height = head.take<quint16>();
    const int bits = head.take<quint16>();
    const auto flags = head.take<quint32>();
    m_speed = head.take<quint16>();
    head.skip(8);
    m_content->clearIndex = head.take<quint8>();
    head.skip(3 + 2); // and the number of colours, which the palette says as well
    const int pixelWidth = head.take<quint8>();
    const int pixelHeight = head.take<quint8>();
    const int gridX = head.take<qint16>();
    const int gridY = head.take<qint16>();
    const int gridWidth = head.take<quint16>();
    const int gridHeight = head.take<quint16>();
    head.skip(HeadBytes - (m_bytes.size() - head.left()));
    if (head.isShort() || size > m_bytes.size())
        return fail(Texts::tr("It is cut short: it has %1 of %2 bytes").arg(m_bytes.size()).arg(size));
    if (bits != 8 && bits != 16 && bits != 32)
        return fail(Texts::tr("It says that a pixel has %1 bits; it can have 8, 16 or 32").arg(bits));
    if (width == 0 || height == 0 || m_frameCount == 0)
        return fail(
            Texts::tr("It says that it has %1 frames of %2 × %3 pixels").arg(m_frameCount).arg(width).arg(height));
    if (qint64(width) * height * m_frameCount > AsepriteFile::MaxPixels) {
        return fail(Texts::tr("It has %1 frames of %2 × %3 pixels; at most %4 million pixels together can be read")
                        .arg(m_frameCount)
                        .arg(width)
                        .arg(height)
                        .arg(AsepriteFile::MaxPixels / 1'000'000));
    }
    m_pixelBytes = bits / 8;
    m_layersHaveOpacity = flags & LayersHaveOpacity;
    m_groupsHaveOpacity = flags & GroupsHaveOpacity;
    m_content->size = {width, height};
    m_content->isIndexed = m_pixelBytes == 1;
    m_content->grid = gridWidth > 0 && gridHeight > 0 ? QRect(gridX, gridY, gridWidth, gridHeight) : QRect();
    if (pixelWidth != pixelHeight && pixelWidth > 0 && pixelHeight > 0)
        m_remarks.add(
            Texts::tr("Its pixels are not square, but %1 to %2: they become square").arg(pixelWidth).arg(pixelHeight));
    return true;
}

bool AsepriteReader::readFrame(ByteReader &file)
{
    m_content->frames.emplace_back();
    const auto size = file.take<quint32>();
    const int magic = file.take<quint16>();
    const int oldCount = file.take<quint16>();
    const int duration = file.take<quint16>();
    file.skip(2);
    const auto newCount = file.take<quint32>();
    if (file.isShort())
        return fail(Texts::tr("It is cut short: frame %1 of %2 is not there").arg(frameNumber()).arg(m_frameCount));
    if (magic != FrameMagic || size < FrameHeadBytes || size - FrameHeadBytes > file.left())
        return fail(Texts::tr("Frame %1 is damaged").arg(frameNumber()));
    m_content->frames.back().duration = duration > 0 ? duration : std::max(m_speed, 1);
    ByteReader frame(file.take(size - FrameHeadBytes));
    const quint32 count = newCount > 0 ? newCount : quint32(oldCount);
    for (quint32 i = 0; i < count; ++i) {
        const auto chunkSize = frame.take<quint32>();
        const int type = frame.take<quint16>();
        ByteReader chunk(frame.take(std::max(qint64(chunkSize) - ChunkHeadBytes, qint64(0))));
        if (frame.isShort() || chunkSize < ChunkHeadBytes)
            return fail(Texts::tr("Frame %1 is damaged: chunk %2 of %3 has a wrong size")
                            .arg(frameNumber())
                            .arg(i + 1)
                            .arg(count));
        if (!readChunk(type, chunk))
            return false;
        if (chunk.isShort())
            return fail(
                Texts::tr("Frame %1 is damaged: chunk %2 of %3 is cut short").arg(frameNumber()).arg(i + 1).arg(count));
    }
    return true;
}

bool AsepriteReader::readChunk(int type, ByteReader &chunk)
{
    switch (type) {
    case OldPalette:
        return readOldPalette(chunk, 255);
    case OldPalette63:
        return readOldPalette(chunk, 63);
    case NewPalette:
        return readPalette(chunk);
    case Layer:
        return readLayer(chunk);
    case Cel:
        return readCel(chunk);
    case Tags:
        return readTags(chunk);
    case TileSet:
        return readTileSet(chunk);
    case Slices:
        m_remarks.add(Texts::tr("Its slices are left out"));
        return true;
    }
    return true;
}

// Flags 2, type 2, level 2, 4 bytes, blend mode 2, opacity 1, 3 bytes, name; the tile set's number 4. They come from
// the lowest; one of a higher level is in the last one of a lower level.
bool AsepriteReader::readLayer(ByteReader &chunk)
{
    const int flags = chunk.take<quint16>();
    Content::Layer layer;
    layer.type = chunk.take<quint16>();
    layer.level = chunk.take<quint16>();
    chunk.skip(4);
    const int blendMode = chunk.take<quint16>();
    const int opacity = chunk.take<quint8>();
    chunk.skip(3);
    layer.name = chunk.takeString();
    if (layer.type == Content::Layer::TileMap)
        layer.tileSetId = chunk.take<quint32>();
    if (m_content->layers.size() >= MaxLayers)
        return fail(Texts::tr("It has more than %1 layers").arg(MaxLayers));

    while (!m_parents.empty() && m_content->layers[size_t(m_parents.back())].level >= layer.level)
        m_parents.pop_back();
    const Content::Layer *parent = m_parents.empty() ? nullptr : &m_content->layers[size_t(m_parents.back())];
    const bool isGroup = layer.type == Content::Layer::Group;
    const bool isMixed = isGroup ? m_groupsHaveOpacity : m_layersHaveOpacity;
    layer.isBackground = flags & Background;
    layer.isShown = (flags & Visible) && !(flags & Reference) && (!parent || parent->isShown);
    layer.opacity = Content::product(isMixed ? opacity : Content::Opaque, parent ? parent->opacity : Content::Opaque);
    m_content->hasBackground = m_content->hasBackground || (layer.isShown && layer.isBackground);

    if (!(flags & Visible))
        m_hidden.append(layer.name);
    else if (flags & Reference)
        m_remarks.add(Texts::tr("The reference layer “%1” is left out").arg(layer.name));
    if (layer.isShown && blendMode != 0 && (!isGroup || m_groupsHaveOpacity))
        m_remarks.add(Texts::tr("The layer “%1” mixes its colours with those beneath: it is drawn as others are")
                          .arg(layer.name));
    if (layer.isShown && isGroup && isMixed && opacity != Content::Opaque)
        m_remarks.add(Texts::tr("The group “%1” is partly clear: that is done to each of its layers").arg(layer.name));
    m_content->layers.push_back(std::move(layer));
    m_parents.push_back(int(m_content->layers.size()) - 1);
    return true;
}

void AsepriteReader::resize(FilePalette &palette, qsizetype size)
{
    if (palette.frame == 0)
        palette.frame = frameNumber();
    if (palette.frame == frameNumber())
        palette.colours.resize(size, Black);
}

void AsepriteReader::setColour(FilePalette &palette, qsizetype index, QRgb colour)
{
    if (palette.frame == frameNumber())
        palette.colours[index] = colour;
    else if (palette.colours.value(index) != colour)
        m_remarks.add(Texts::tr("The palette changes after frame %1, whose colours are taken").arg(palette.frame));
}

// Size 4, first and last entry 4 each, 8 bytes; each entry: flags 2, red, green, blue, alpha 1 each, a name if flag 1.
bool AsepriteReader::readPalette(ByteReader &chunk)
{
    const auto size = chunk.take<quint32>();
    const auto first = chunk.take<quint32>();
    const auto last = chunk.take<quint32>();
    chunk.skip(8);
    if (++m_paletteCount > MaxPaletteChunks && m_palette.frame == frameNumber())
        return fail(Texts::tr("Frame %1 has more than %2 palettes").arg(frameNumber()).arg(MaxPaletteChunks));
    if (size > MaxColours)
        return fail(Texts::tr("Its palette has %1 colours; at most %2 can be read").arg(size).arg(MaxColours));
    if (first > last || last >= size)
        return fail(Texts::tr("Its palette has %1 colours, of which it gives %2 to %3").arg(size).arg(first).arg(last));
    resize(m_palette, qsizetype(size));
    for (quint32 i = first; i <= last && !chunk.isShort(); ++i) {
        const bool hasName = chunk.take<quint16>() & 1;
        const QByteArrayView rgba = chunk.take(4);
        if (hasName)
            chunk.skip(chunk.take<quint16>());
        if (rgba.size() == 4)
            setColour(m_palette, i, qRgba(uchar(rgba[0]), uchar(rgba[1]), uchar(rgba[2]), uchar(rgba[3])));
    }
    return true;
}

// Packets 2; each: entries to skip 1, count 1 (0 for 256), and red, green, blue 1 each.
bool AsepriteReader::readOldPalette(ByteReader &chunk, int largest)
{
    constexpr int Most = 256;
    const int packets = chunk.take<quint16>();
    int index = 0;
    for (int packet = 0; packet < packets && !chunk.isShort(); ++packet) {
        index += chunk.take<quint8>();
        const int count = chunk.take<quint8>();
        const int end = index + (count > 0 ? count : Most);
        if (end > Most)
            return fail(Texts::tr("Its palette has %1 colours; at most %2 can be read").arg(end).arg(Most));
        resize(m_oldPalette, std::max(qsizetype(end), m_oldPalette.colours.size()));
        for (; index < end; ++index) {
            const auto component = [&] { return std::min(int(chunk.take<quint8>()), largest) * 255 / largest; };
            const int red = component();
            const int green = component();
            const int blue = component();
            setColour(m_oldPalette, index, qRgb(red, green, blue));
        }
    }
    return true;
}

// Count 2, 8 bytes; each: first and last frame 2 each, direction 1, repeats 2, 6 bytes, colour 3, 1 byte, name.
bool AsepriteReader::readTags(ByteReader &chunk)
{
    const int count = chunk.take<quint16>();
    chunk.skip(8);
    if (m_content->tags.size() + count > MaxTags)
        return fail(Texts::tr("It has more than %1 tags").arg(MaxTags));
    for (int i = 0; i < count && !chunk.isShort(); ++i) {
        AsepriteFile::Tag tag;
        tag.first = chunk.take<quint16>();
        tag.last = chunk.take<quint16>();
        const int direction = chunk.take<quint8>();
        tag.repeats = chunk.take<quint16>();
        chunk.skip(6 + 3 + 1);
        tag.name = chunk.takeString();
        const bool isKnown = direction <= int(AsepriteFile::Direction::PingPongReverse);
        if (isKnown && tag.first <= tag.last && tag.last < m_frameCount) {
            tag.direction = AsepriteFile::Direction(direction);
            m_content->tags.append(tag);
        } else {
            m_remarks.add(Texts::tr("The tag “%1” is left out: it names frames %2 to %3 of %4")
                              .arg(tag.name)
                              .arg(tag.first + 1)
                              .arg(tag.last + 1)
                              .arg(m_frameCount));
        }
    }
    return true;
}

bool AsepriteReader::finish()
{
    if (!m_hidden.isEmpty()) {
        constexpr qsizetype Most = 5;
        const QString names = QStringList(m_hidden.first(std::min(m_hidden.size(), Most))).join(Texts::tr("”, “"));
        m_remarks.add(m_hidden.size() > Most ? Texts::tr("%n layers are hidden and left out, “%1” among them", nullptr,
                                                         plural(m_hidden.size()))
                                                   .arg(names)
                                             : Texts::tr("Hidden layers are left out: “%1”").arg(names));
    }
    return finishPalette() && finishTileSets() && finishFrames();
}

bool AsepriteReader::finishPalette()
{
    QList<QRgb> &palette = m_content->palette;
    palette = m_palette.frame > 0 ? m_palette.colours : m_oldPalette.colours;
    if (!m_content->isIndexed)
        return true;
    if (palette.isEmpty())
        return fail(Texts::tr("Its pixels are numbers of colours, and it has no palette"));
    constexpr qsizetype Most = 256;
    if (palette.size() > Most)
        palette.resize(Most);
    if (m_largestIndex >= palette.size())
        m_remarks.add(Texts::tr("It has pixels of colour %1, and its palette has %2 colours: they are black")
                          .arg(m_largestIndex)
                          .arg(palette.size()));
    palette.resize(std::max({palette.size(), qsizetype(m_largestIndex) + 1, qsizetype(m_content->clearIndex) + 1}),
                   Black);
    return true;
}
