#pragma once

#include "support/littleendian.h"
#include "support/modeltools.h"

#include <QtGui>

/// A folder with the files of a map, some of them in folders of their own.
struct TiledFiles
{
    TemporaryFolder path;

    QString put(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        return path(name, bytes);
    }
    QString put(const QString &name, const QImage &picture) const
    {
        QBuffer file;
        return put(name, picture.save(&file, "PNG") ? file.data() : QByteArray());
    }
};

/// A picture whose pixels are all different, opaque ones.
[[nodiscard]] inline QImage picture(int width, int height, int red = 0)
{
    return pictureOf({width, height}, QImage::Format_RGB32, [=](int i) { return qRgb(red, i % width, i / width); });
}

/// A map of XML, of 3 × 2 cells of 8 × 8 pixels.
[[nodiscard]] inline QByteArray tmx(const QByteArray &content, const QByteArray &attributes = "width='3' height='2'")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- a map -->\n<map version='1.10' orientation='orthogonal' "
           "renderorder=\"right-down\" tilewidth='8' tileheight='8' "
        + attributes + ">\n<editorsettings><export target=\"a\"/></editorsettings>\n" + content + "</map>\n";
}

/// The same of JSON, in which single quotes stand for double ones.
[[nodiscard]] inline QByteArray tmj(const QByteArray &content, const QByteArray &attributes = "'width':3, 'height':2")
{
    QByteArray text = "{ 'type':'map', 'orientation':'orthogonal', 'tilewidth':8, 'tileheight':8, " + attributes + ", "
        + content + "}";
    return text.replace('\'', '"');
}

/// A layer of such a map, with its cells as they are written.
[[nodiscard]] inline QByteArray xmlLayer(const QByteArray &cells, const QByteArray &attributes = {},
                                         const QByteArray &writing = "encoding='csv'")
{
    return "<layer name='ground' width='3' height='2' " + attributes
        + "><properties><property name='a' value='b'/></properties><data " + writing + ">\n" + cells
        + "\n</data></layer>";
}

[[nodiscard]] inline QByteArray jsonLayer(const QByteArray &data)
{
    return "'layers':[{'type':'tilelayer', 'name':'ground', 'width':3, 'height':2, 'x':0, 'y':0, 'opacity':1, "
           "'visible':true, "
        + data + "}]";
}

/// Bytes as streams of other packers, put together from what the formats say.
namespace Packing {

/// RFC 1952: a head, what is between head and sum of a zlib stream, a sum and the size.
[[nodiscard]] inline QByteArray gzip(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
    }
    const QByteArray stream = zlibStream(bytes);
    return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10) + stream.sliced(2, stream.size() - 6) + le32(~sum)
        + le32(bytes.size());
}

/// RFC 8878: a frame that says its size, with a single block of bytes as they are.
[[nodiscard]] inline QByteArray zstd(const QByteArray &bytes)
{
    const QByteArray block = le32(1 | bytes.size() << 3).first(3);
    return QByteArray("\x28\xb5\x2f\xfd\xa0", 5) + le32(bytes.size()) + block + bytes;
}

} // namespace Packing
