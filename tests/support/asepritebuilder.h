#pragma once

#include "support/littleendian.h"

#include <QList>
#include <QRect>

/// Writes .aseprite files from their description, chunk by chunk.
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

    int width = 4;
    int height = 2;
    int bits = 8;
    int flags = LayersHaveOpacity;
    int speed = 100;
    int clearIndex = 0;
    QRect grid{};
    int pixelWidth = 1;
    bool countsAreNew = false; ///< where chunks are counted, in each frame

    static QByteArray text(const QByteArray &utf8) { return le16(int(utf8.size())) + utf8; }

    void frame(int duration) { m_frames.append(Frame{duration, {}}); }
    void chunk(int type, const QByteArray &content)
    {
        m_frames.last().chunks.append(le32(6 + content.size()) + le16(type) + content);
    }

    void layer(const QByteArray &name) { layer(name, Layer()); }
    void layer(const QByteArray &name, const Layer &layer)
    {
        chunk(0x2004,
              le16(layer.flags) + le16(layer.type) + le16(layer.level) + le32(0) + le16(layer.blend)
                  + char(layer.opacity) + QByteArray(3, '\0') + text(name) + layer.tileSet
                  + (flags & LayersHaveIds ? QByteArray(16, 'u') : QByteArray()));
    }

    static QByteArray celHead(int layer, QPoint at, int type, int opacity = 255, int z = 0)
    {
        return le16(layer) + le16(at.x()) + le16(at.y()) + char(opacity) + le16(type) + le16(z) + QByteArray(5, '\0');
    }
    void raw(int layer, QPoint at, QSize size, const QByteArray &pixels, int opacity = 255, int z = 0)
    {
        chunk(0x2005, celHead(layer, at, 0, opacity, z) + le16(size.width()) + le16(size.height()) + pixels);
    }
    void packed(int layer, QPoint at, QSize size, const QByteArray &pixels, int opacity = 255, int z = 0)
    {
        chunk(0x2005,
              celHead(layer, at, 2, opacity, z) + le16(size.width()) + le16(size.height()) + zlibStream(pixels));
    }
    void linked(int layer, QPoint at, int toFrame) { chunk(0x2005, celHead(layer, at, 1) + le16(toFrame)); }
    void tileMap(int layer, QPoint at, QSize size, const QList<quint32> &cells)
    {
        QByteArray bytes;
        for (const quint32 cell : cells)
            bytes += le32(cell);
        chunk(0x2005,
              celHead(layer, at, 3) + le16(size.width()) + le16(size.height()) + le16(32) + le32(0x1FFFFFFF)
                  + le32(0x80000000) + le32(0x40000000) + le32(0x20000000) + QByteArray(10, '\0') + zlibStream(bytes));
    }

    /// The bytes of colours: red, green, blue, alpha.
    void palette(const QList<QByteArray> &colours, int size = -1, int first = 0)
    {
        const int last = first + int(colours.size()) - 1;
        QByteArray entries;
        for (const QByteArray &colour : colours)
            entries += le16(entries.isEmpty() ? 1 : 0) + colour + (entries.isEmpty() ? text("first") : QByteArray());
        chunk(0x2019, le32(size < 0 ? last + 1 : size) + le32(first) + le32(last) + QByteArray(8, '\0') + entries);
    }
    /// One packet, of red, green, blue each.
    void oldPalette(int type, int skipped, const QByteArray &colours)
    {
        chunk(type, le16(1) + char(skipped) + char(colours.size() / 3) + colours);
    }

    static QByteArray tag(int from, int to, int direction, int repeats, const QByteArray &name)
    {
        return le16(from) + le16(to) + char(direction) + le16(repeats) + QByteArray(6, '\0') + QByteArray(4, 'c')
            + text(name);
    }
    void tags(const QByteArrayList &tags) { chunk(0x2018, le16(int(tags.size())) + QByteArray(8, '\0') + tags.join()); }

    static constexpr int InsideAndFirstEmpty = 2 | 4;
    void tileSet(int id, int setFlags, int count, QSize tile, const QByteArray &name, const QByteArray &pixels)
    {
        const QByteArray stream = zlibStream(pixels);
        chunk(0x2023,
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

private:
    struct Frame
    {
        int duration;
        QByteArrayList chunks;
    };
    QList<Frame> m_frames;
};
