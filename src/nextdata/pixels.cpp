#include "nextdata/pixels.h"

namespace NextData {

QByteArray pixelRows(const QImage &indexed)
{
    QByteArray pixels;
    pixels.reserve(qsizetype(indexed.width()) * indexed.height());
    for (int y = 0; y < indexed.height(); ++y)
        pixels.append(reinterpret_cast<const char *>(indexed.constScanLine(y)), indexed.width());
    return pixels;
}

QByteArray columnsOf(const QByteArray &rows, int width)
{
    const qsizetype height = rows.size() / width;
    QByteArray columns(width * height, Qt::Uninitialized);
    const char *from = rows.constData();
    for (qsizetype y = 0; y < height; ++y) {
        char *to = columns.data() + y;
        for (int x = 0; x < width; ++x, to += height)
            *to = *from++;
    }
    return columns;
}

QByteArray packedPairs(const QByteArray &pixels)
{
    QByteArray pairs(pixels.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < pairs.size(); ++i)
        pairs[i] = char((pixels[2 * i] & 15) << 4 | (pixels[2 * i + 1] & 15));
    return pairs;
}

QByteArray unpackedPairs(const QByteArray &pairs)
{
    QByteArray pixels(2 * pairs.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < pairs.size(); ++i) {
        pixels[2 * i] = char(uchar(pairs[i]) >> 4);
        pixels[2 * i + 1] = char(pairs[i] & 15);
    }
    return pixels;
}

} // namespace NextData
