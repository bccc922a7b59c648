#pragma once

#include "support/littleendian.h"

#include <QtCore>

/// Writes .aseprite files from their description, chunk by chunk; what describes one returns it, to go on with.
class AsepriteBuilder
{
public:
    enum Flag { LayersHaveOpacity = 1, GroupsHaveOpacity = 2, LayersHaveIds = 4 };

    struct Layer
    {
        int flags = 1;
        int type = 0;
        int level = 0;
        int blend = 0;
        int opacity = 255;
        QByteArray tileSet{};
    };

    int width;
    int height;
    int bits;
    int flags;
    int speed = 100;
    int clearIndex = 0;
    QRect grid{};
    int pixelWidth = 1;
    bool countsAreNew = false; ///< where chunks are counted, in each frame

    explicit AsepriteBuilder(QSize size = {4, 2}, int bitsAPixel = 8, int fileFlags = LayersHaveOpacity)
        : width(size.width())
        , height(size.height())
        , bits(bitsAPixel)
        , flags(fileFlags)
    { }

    static QByteArray text(const QByteArray &utf8) { return le16(int(utf8.size())) + utf8; }

    AsepriteBuilder &frame(int duration = 1)
    {
        m_frames.append(Frame{duration, {}});
        return *this;
    }
    AsepriteBuilder &chunk(int type, const QByteArray &content)
    {
        m_frames.last().chunks.append(le32(6 + content.size()) + le16(type) + content);
        return *this;
    }

    AsepriteBuilder &layer(const QByteArray &name) { return layer(name, Layer()); }
    AsepriteBuilder &layer(const QByteArray &name, const Layer &layer)
    {
        return chunk(0x2004,
                     le16(layer.flags) + le16(layer.type) + le16(layer.level) + le32(0) + le16(layer.blend)
                         + char(layer.opacity) + QByteArray(3, '\0') + text(name) + layer.tileSet
                         + (flags & LayersHaveIds ? QByteArray(16, 'u') : QByteArray()));
    }

    AsepriteBuilder &raw(int layer, QPoint at, QSize size, const QByteArray &pixels, int opacity = 255, int z = 0)
    {
        return cel(layer, at, 0, opacity, z, le16(size.width()) + le16(size.height()) + pixels);
    }
    AsepriteBuilder &packed(int layer, QPoint at, QSize size, const QByteArray &pixels, int opacity = 255, int z = 0)
    {
        return cel(layer, at, 2, opacity, z, le16(size.width()) + le16(size.height()) + zlibStream(pixels));
    }
    AsepriteBuilder &linked(int layer, QPoint at, int toFrame) { return cel(layer, at, 1, 255, 0, le16(toFrame)); }
    AsepriteBuilder &tileMap(int layer, QPoint at, QSize size, const QList<quint32> &cells)
    {
        QByteArray bytes;
        for (const quint32 cell : cells)
            bytes += le32(cell);
        return cel(layer, at, 3, 255, 0,
                   le16(size.width()) + le16(size.height()) + le16(32) + le32(0x1FFFFFFF) + le32(0x80000000)
                       + le32(0x40000000) + le32(0x20000000) + QByteArray(10, '\0') + zlibStream(bytes));
    }

    /// The bytes of colours: red, green, blue, alpha.
    AsepriteBuilder &palette(const QList<QByteArray> &colours, int size = -1, int first = 0)
    {
        const int last = first + int(colours.size()) - 1;
        QByteArray entries;
        for (const QByteArray &colour : colours)
            entries += le16(entries.isEmpty() ? 1 : 0) + colour + (entries.isEmpty() ? text("first") : QByteArray());
        return chunk(0x2019,
                     le32(size < 0 ? last + 1 : size) + le32(first) + le32(last) + QByteArray(8, '\0') + entries);
    }
    /// One packet, of red, green, blue each.
    AsepriteBuilder &oldPalette(int type, int skipped, const QByteArray &colours)
    {
        return chunk(type, le16(1) + char(skipped) + char(colours.size() / 3) + colours);
    }

    static QByteArray tag(int from, int to, int direction, int repeats, const QByteArray &name)
    {
        return le16(from) + le16(to) + char(direction) + le16(repeats) + QByteArray(6, '\0') + QByteArray(4, 'c')
            + text(name);
    }
    AsepriteBuilder &tags(const QByteArrayList &tags)
    {
        return chunk(0x2018, le16(int(tags.size())) + QByteArray(8, '\0') + tags.join());
    }

    static constexpr int InsideAndFirstEmpty = 2 | 4;
    AsepriteBuilder &tileSet(int id, int setFlags, int count, QSize tile, const QByteArray &name,
                             const QByteArray &pixels)
    {
        const QByteArray stream = zlibStream(pixels);
        return chunk(0x2023,
                     le32(id) + le32(setFlags) + le32(count) + le16(tile.width()) + le16(tile.height()) + le16(1)
                         + QByteArray(14, '\0') + text(name) + (setFlags & 1 ? QByteArray(8, 'e') : QByteArray())
                         + (setFlags & 2 ? le32(stream.size()) + stream : QByteArray()));
    }

    [[nodiscard]] QByteArray bytes() const
    {
        QByteArray frames;
        for (const Frame &frame : m_frames) {
            const QByteArray chunks = frame.chunks.join();
            const int count = int(frame.chunks.size());
            frames += le32(16 + chunks.size()) + le16(0xF1FA) + le16(countsAreNew ? 0xFFFF : count)
                + le16(frame.duration) + le16(0) + le32(countsAreNew ? count : 0) + chunks;
        }
        QByteArray head = le16(0xA5E0) + le16(int(m_frames.size())) + le16(width) + le16(height) + le16(bits)
            + le32(flags) + le16(speed) + QByteArray(8, '\0') + char(clearIndex) + QByteArray(3, '\0') + le16(0)
            + char(pixelWidth) + char(1) + le16(grid.x()) + le16(grid.y()) + le16(grid.width()) + le16(grid.height())
            + QByteArray(84, '\0');
        return le32(4 + head.size() + frames.size()) + head + frames;
    }

    /// A file with some of everything.
    [[nodiscard]] static QByteArray sample(int bits)
    {
        const auto some = [bits](int count) {
            return QByteArray("\0\1\2\3", 4).repeated(count).first(count * bits / 8);
        };
        AsepriteBuilder builder({8, 8}, bits, LayersHaveOpacity | GroupsHaveOpacity);
        return builder.frame(100)
            .palette({"bla\xff", "red\xff", "gre\xff", "blu\xff"})
            .oldPalette(0x0004, 0, "rgbRGB")
            .tileSet(7, InsideAndFirstEmpty, 3, {4, 4}, "tiles", some(48))
            .layer("group", {.type = 1, .opacity = 200})
            .layer("in it", {.level = 1})
            .layer("tiles", {.type = 2, .tileSet = le32(7)})
            .layer("top", {.blend = 3, .opacity = 99})
            .tags({tag(0, 2, 2, 3, "walk"), tag(1, 1, 0, 0, "stand")})
            .raw(1, {1, -2}, {6, 6}, some(36), 250)
            .tileMap(2, {-1, 1}, {2, 2}, {1, 0x80000002, 0x60000001, 0})
            .packed(3, {0, 0}, {8, 8}, some(64))
            .frame(0)
            .linked(1, {1, 1}, 0)
            .linked(2, {0, 0}, 0)
            .frame(70)
            .packed(1, {0, 0}, {5, 5}, some(25), 255, 2)
            .chunk(0x2020, QByteArray(12, 'x'))
            .bytes();
    }

private:
    AsepriteBuilder &cel(int layer, QPoint at, int type, int opacity, int z, const QByteArray &content)
    {
        return chunk(0x2005,
                     le16(layer) + le16(at.x()) + le16(at.y()) + char(opacity) + le16(type) + le16(z)
                         + QByteArray(5, '\0') + content);
    }

    struct Frame
    {
        int duration;
        QByteArrayList chunks;
    };
    QList<Frame> m_frames;
};
