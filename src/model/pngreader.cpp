#include "model/pngreader.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr QByteArrayView Signature("\x89PNG\r\n\x1a\n");
constexpr int HeadSize = 13;
constexpr int ChecksumSize = 4;
constexpr int MaxColours = 256;
constexpr quint32 MaxLength = 0x7FFFFFFF; // of a chunk
constexpr int LastFilter = 4;

/// Bytes that a picture may hold besides its pixels before somebody loses patience: colour profiles, texts.
constexpr qint64 Besides = qint64(8) << 20;
constexpr qint64 SliceSize = qint64(1) << 16;

quint32 checksum(QByteArrayView bytes, quint32 before)
{
    if (bytes.isEmpty()) // for no bytes zlib would begin anew
        return before;
    return quint32(crc32(before, reinterpret_cast<const Bytef *>(bytes.data()), uInt(bytes.size())));
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(int(sizeof number), Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &content)
{
    return bigEndian(quint32(content.size())) + type + content + bigEndian(checksum(content, checksum(type, 0)));
}

/// Undoes the filter of a row of bytes; above is the row over it, zeros over the first one. What stands left of a byte
/// is that of the pixel before, of so many bytes.
template <int PixelSize>
void unfilter(int filter, uchar *row, const uchar *above, int size)
{
    switch (filter) {
    case 1:
        for (int x = PixelSize; x < size; ++x)
            row[x] = uchar(row[x] + row[x - PixelSize]);
        break;
    case 2:
        for (int x = 0; x < size; ++x)
            row[x] = uchar(row[x] + above[x]);
        break;
    case 3:
        for (int x = 0; x < size; ++x)
            row[x] = uchar(row[x] + ((x >= PixelSize ? row[x - PixelSize] : 0) + above[x]) / 2);
        break;
    case 4: // the neighbour that is nearest to left + above − corner
        for (int x = 0; x < size; ++x) {
            const int left = x >= PixelSize ? row[x - PixelSize] : 0;
            const int corner = x >= PixelSize ? above[x - PixelSize] : 0;
            const int toLeft = std::abs(above[x] - corner);
            const int toAbove = std::abs(left - corner);
            const int toCorner = std::abs(left + above[x] - 2 * corner);
            const int nearest = toLeft <= toAbove && toLeft <= toCorner ? left
                : toAbove <= toCorner                                   ? above[x]
                                                                        : corner;
            row[x] = uchar(row[x] + nearest);
        }
        break;
    default:
        break;
    }
}

/// Puts a row of pixels, of so many bytes each, into a picture.
template <int PixelSize>
void store(const uchar *row, int width, uchar *to)
{
    if constexpr (PixelSize == 1) {
        std::memcpy(to, row, size_t(width));
    } else {
        auto *pixels = reinterpret_cast<QRgb *>(to);
        for (int x = 0; x < width; ++x, row += PixelSize)
            pixels[x] = qRgba(row[0], row[1], row[2], PixelSize == 4 ? row[3] : 255);
    }
}

} // namespace

/// Unpacks the pixels, which lie in one chunk after the other.
class PngReader::PixelStream
{
public:
    /// Everything that is read is kept in copy, if there is one.
    PixelStream(PngReader &reader, const Chunk &first, QByteArray *copy)
        : m_reader(reader)
        , m_left(first.length)
        , m_checksum(checksum(first.type, 0))
        , m_copy(copy)
        , m_usable(inflateInit(&m_stream) == Z_OK)
    { }
    ~PixelStream() { inflateEnd(&m_stream); }
    Q_DISABLE_COPY_MOVE(PixelStream)

    /// Unpacks exactly so many bytes.
    [[nodiscard]] bool read(uchar *to, qint64 count)
    {
        m_stream.next_out = to;
        m_stream.avail_out = uInt(count);
        while (m_usable && m_stream.avail_out > 0) {
            if (m_stream.avail_in == 0 && !refill())
                return false;
            const int status = inflate(&m_stream, Z_NO_FLUSH);
            m_usable = status == Z_OK || (status == Z_STREAM_END && m_stream.avail_out == 0);
        }
        return m_usable;
    }

    /// Checks what is left of the last chunk, unless that is so much that it is no part of the picture.
    [[nodiscard]] bool finish()
    {
        while (m_left > 0 && m_left <= SliceSize) {
            if (!takeSlice())
                return false;
        }
        return m_left > 0 || isIntact();
    }

private:
    [[nodiscard]] bool refill()
    {
        while (m_left == 0) {
            if (!isIntact())
                return false;
            const Chunk next = m_reader.readChunkHead();
            if (next.type != "IDAT")
                return false;
            m_left = next.length;
            m_checksum = checksum(next.type, 0);
        }
        return takeSlice();
    }

    [[nodiscard]] bool takeSlice()
    {
        m_slice = m_reader.take(std::min<qint64>(m_left, SliceSize));
        m_left -= m_slice.size();
        m_checksum = checksum(m_slice, m_checksum);
        if (m_copy)
            m_copy->append(m_slice);
        m_stream.next_in = reinterpret_cast<Bytef *>(m_slice.data());
        m_stream.avail_in = uInt(m_slice.size());
        return !m_slice.isEmpty();
    }

    [[nodiscard]] bool isIntact() { return m_reader.take(ChecksumSize) == bigEndian(m_checksum); }

    PngReader &m_reader;
    qint64 m_left; ///< bytes of the present chunk that were not read yet
    quint32 m_checksum;
    QByteArray *m_copy;
    QByteArray m_slice;
    z_stream m_stream{};
    bool m_usable;
};

PngReader::PngReader(QIODevice &device) : m_device(device), m_allowance(Besides) { }

bool PngReader::isHead(int colourType, int depth)
{
    switch (colourType) {
    case Grey:
        return depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
    case Palette:
        return depth == 1 || depth == 2 || depth == 4 || depth == 8;
    case Colours:
    case GreyAlpha:
    case ColoursAlpha:
        return depth == 8 || depth == 16;
    default:
        return false;
    }
}

int PngReader::channels() const
{
    return m_colourType == Colours ? 3 : m_colourType == ColoursAlpha ? 4 : m_colourType == GreyAlpha ? 2 : 1;
}

qint64 PngReader::bytesPerRow(int width) const
{
    return (qint64(width) * channels() * m_depth + 7) / 8;
}

qint64 PngReader::byteCount() const
{
    const bool indices = m_colourType == Palette || (m_colourType == Grey && m_depth <= 8);
    return qint64(m_size.width()) * m_size.height() * (indices ? 1 : m_depth == 16 ? 8 : 4);
}

QList<QSize> PngReader::passes() const
{
    if (!m_interlaced)
        return {m_size};
    struct Pass
    {
        QPoint first;
        QPoint step;
    };
    constexpr Pass Passes[] = {{{0, 0}, {8, 8}}, {{4, 0}, {8, 8}}, {{0, 4}, {4, 8}}, {{2, 0}, {4, 4}},
                               {{0, 2}, {2, 4}}, {{1, 0}, {2, 2}}, {{0, 1}, {1, 2}}};
    const auto count = [](int side, int first, int step) { return std::max(0, (side - first + step - 1) / step); };
    QList<QSize> sizes;
    for (const Pass &pass : Passes)
        sizes.append({count(m_size.width(), pass.first.x(), pass.step.x()),
                      count(m_size.height(), pass.first.y(), pass.step.y())});
    return sizes;
}

bool PngReader::isPlain() const
{
    return m_depth == 8 && !m_interlaced && m_colourType != GreyAlpha
        && (m_colourType == Palette || m_transparency.isEmpty());
}

QByteArray PngReader::take(qint64 count)
{
    m_allowance -= count;
    const QByteArray bytes = m_allowance < 0 ? QByteArray() : m_device.read(count);
    return bytes.size() == count ? bytes : QByteArray();
}

bool PngReader::skip(qint64 count)
{
    for (qint64 slice = 0; count > 0; count -= slice) {
        slice = std::min(count, SliceSize);
        if (take(slice).isEmpty())
            return false;
    }
    return true;
}

PngReader::Chunk PngReader::readChunkHead()
{
    const QByteArray bytes = take(8);
    Chunk chunk;
    if (bytes.isEmpty())
        return chunk;
    const QByteArray type = bytes.sliced(4);
    chunk.length = qFromBigEndian<quint32>(bytes.constData());
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    if (chunk.length <= MaxLength && std::all_of(type.cbegin(), type.cend(), isLetter))
        chunk.type = type;
    return chunk;
}

bool PngReader::readContent(const Chunk &chunk, qint64 mostBytes, QByteArray &content)
{
    if (chunk.length > mostBytes)
        return false;
    content = chunk.length > 0 ? take(chunk.length) : QByteArray();
    return content.size() == qsizetype(chunk.length)
        && take(ChecksumSize) == bigEndian(checksum(content, checksum(chunk.type, 0)));
}

bool PngReader::readHead()
{
    if (take(Signature.size()) != Signature)
        return false;
    const Chunk first = readChunkHead();
    if (first.type != "IHDR" || !readContent(first, HeadSize, m_head) || m_head.size() != HeadSize)
        return false;
    const quint32 width = qFromBigEndian<quint32>(m_head.constData());
    const quint32 height = qFromBigEndian<quint32>(m_head.constData() + 4);
    if (width < 1 || width > MaxSide || height < 1 || height > MaxSide || m_head[10] != 0 || m_head[11] != 0
        || uchar(m_head[12]) > 1 || !isHead(m_head[9], m_head[8]))
        return false;
    m_size = QSize(int(width), int(height));
    m_depth = m_head[8];
    m_colourType = m_head[9];
    m_interlaced = m_head[12] != 0;
    m_allowance += 2 * (bytesPerRow(m_size.width()) + 1) * m_size.height(); // packing badly is no crime
    return true;
}

bool PngReader::findPixels(Chunk &chunk)
{
    for (chunk = readChunkHead(); chunk.type != "IDAT"; chunk = readChunkHead()) {
        if (chunk.type == "PLTE" && m_colourType == Palette) {
            if (!m_colours.isEmpty() || !readContent(chunk, 3 * MaxColours, m_colours) || m_colours.size() % 3 != 0)
                return false;
        } else if (chunk.type == "tRNS" && chunk.length <= MaxColours) {
            if (!readContent(chunk, MaxColours, m_transparency))
                return false;
        } else if (chunk.type.isEmpty() || (chunk.type != "PLTE" && chunk.type.at(0) < 'a')
                   || !skip(qint64(chunk.length) + ChecksumSize)) {
            return false; // small letters begin what may be skipped
        }
    }
    const qsizetype sensible = m_colourType == Palette ? m_colours.size() / 3
        : m_colourType == Colours                      ? 6
        : m_colourType == Grey                         ? 2
                                                       : 0;
    if (m_colourType == Palette ? m_transparency.size() > sensible : m_transparency.size() != sensible)
        m_transparency.clear();
    return m_colourType != Palette || !m_colours.isEmpty();
}

QImage PngReader::read()
{
    Chunk first;
    if (m_size.isEmpty() || !findPixels(first))
        return {};
    return isPlain() ? readPlain(first) : readOther(first);
}

QImage PngReader::readPlain(const Chunk &first)
{
    const QImage::Format format = m_colourType == Palette ? QImage::Format_Indexed8
        : m_colourType == Grey                            ? QImage::Format_Grayscale8
        : m_colourType == Colours                         ? QImage::Format_RGB32
                                                          : QImage::Format_ARGB32;
    QImage image(m_size, format);
    if (image.isNull())
        return {};
    if (m_colourType == Palette)
        image.setColorTable(colourTable());
    PixelStream stream(*this, first, nullptr);
    const bool read = channels() == 1 ? readRows<1>(stream, image)
        : channels() == 3             ? readRows<3>(stream, image)
                                      : readRows<4>(stream, image);
    return read && stream.finish() ? image : QImage();
}

QList<QRgb> PngReader::colourTable() const
{
    QList<QRgb> table;
    for (qsizetype i = 0; i < m_colours.size() / 3; ++i) {
        const auto component = [this, i](int which) { return int(uchar(m_colours.at(3 * i + which))); };
        const int alpha = i < m_transparency.size() ? uchar(m_transparency.at(i)) : 255;
        table.append(qRgba(component(0), component(1), component(2), alpha));
    }
    return table;
}

/// Reads all rows of pixels that have so many bytes.
template <int PixelSize>
bool PngReader::readRows(PixelStream &stream, QImage &image) const
{
    const int height = m_size.height();
    const int rowBytes = m_size.width() * PixelSize;
    const qint64 rowSize = qint64(rowBytes) + 1; // each row begins with its filter
    const int most = int(std::max<qint64>(1, SliceSize / rowSize));
    // in front of those that are read stands the row over them
    QByteArray rows((1 + most) * rowSize, '\0');
    for (int y = 0; y < height; y += most) {
        const int count = std::min(most, height - y);
        auto *above = reinterpret_cast<uchar *>(rows.data());
        if (!stream.read(above + rowSize, count * rowSize))
            return false;
        for (int i = 0; i < count; ++i, above += rowSize) {
            uchar *row = above + rowSize;
            if (row[0] > LastFilter)
                return false;
            unfilter<PixelSize>(row[0], row + 1, above + 1, rowBytes);
            store<PixelSize>(row + 1, m_size.width(), image.scanLine(y + i));
        }
        std::memcpy(rows.data(), above, size_t(rowSize));
    }
    return true;
}

QImage PngReader::readOther(const Chunk &first)
{
    // all of it is kept once, so the length of the pixels is filled in when it is known
    QByteArray png = Signature.toByteArray() + chunk("IHDR", m_head);
    if (!m_colours.isEmpty())
        png += chunk("PLTE", m_colours);
    if (!m_transparency.isEmpty())
        png += chunk("tRNS", m_transparency);
    const qsizetype length = png.size();
    const qsizetype type = length + qsizetype(sizeof(quint32));
    png += bigEndian(0) + first.type;
    const qsizetype pixels = png.size();
    {
        PixelStream stream(*this, first, &png);
        QByteArray row;
        for (const QSize pass : passes()) {
            row.resize(bytesPerRow(pass.width()) + 1);
            for (int y = 0; y < pass.height() && pass.width() > 0; ++y) {
                if (!stream.read(reinterpret_cast<uchar *>(row.data()), row.size()) || uchar(row[0]) > LastFilter)
                    return {};
            }
        }
        if (!stream.finish())
            return {};
    }
    qToBigEndian(quint32(png.size() - pixels), png.data() + length);
    png += bigEndian(checksum(QByteArrayView(png).sliced(type), 0)) + chunk("IEND", {});
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}
