#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>

class QIODevice;

/// Reads a PNG from a device, which may be sequential and may hold anything, as far as its pixels go.
///
/// libpng prints what it finds wrong on the standard error output, past the log. So nothing reaches it that was not
/// checked here before, chunk by chunk down to the packed pixels; and the usual pictures, of eight bits a sample, are
/// read here altogether, a few rows at a time.
class PngReader
{
public:
    /// Pixels along a side, which is libpng's own limit, for writing too.
    static constexpr int MaxSide = 1'000'000;

    /// The device must live as long as the reader.
    explicit PngReader(QIODevice &device);

    /// Reads the head, which says how much the picture takes; false when there is none. Comes first.
    [[nodiscard]] bool readHead();

    [[nodiscard]] QSize size() const { return m_size; }
    /// Memory that the decoded pixels take.
    [[nodiscard]] qint64 byteCount() const;

    /// The picture, as QImage would read it; null when it is damaged. What follows the pixels is left unread.
    [[nodiscard]] QImage read();

private:
    enum ColourType { Grey = 0, Colours = 2, Palette = 3, GreyAlpha = 4, ColoursAlpha = 6 };

    struct Chunk
    {
        quint32 length = 0;
        QByteArray type; ///< four letters; empty for what is no chunk
    };

    [[nodiscard]] static bool isHead(int colourType, int depth);
    [[nodiscard]] int channels() const;
    [[nodiscard]] qint64 bytesPerRow(int width) const;
    /// The sizes of the pictures that an interlaced one is made of; else its own.
    [[nodiscard]] QList<QSize> passes() const;
    /// Whether the pixels are rows of whole bytes, which are read here.
    [[nodiscard]] bool isPlain() const;

    [[nodiscard]] QByteArray take(qint64 count);
    [[nodiscard]] bool skip(qint64 count);
    [[nodiscard]] Chunk readChunkHead();
    /// The content of a chunk that has at most so many bytes; false when it is longer or damaged.
    [[nodiscard]] bool readContent(const Chunk &chunk, qint64 mostBytes, QByteArray &content);
    /// Goes to the first pixels, keeping the colours that precede them.
    [[nodiscard]] bool findPixels(Chunk &chunk);
    [[nodiscard]] QImage readPlain(const Chunk &first);
    [[nodiscard]] QList<QRgb> colourTable() const;
    /// Checks the pixels, and lets Qt decode what it needs for them.
    [[nodiscard]] QImage readOther(const Chunk &first);

    class PixelStream;

    template <int PixelSize>
    [[nodiscard]] bool readRows(PixelStream &stream, QImage &image) const;

    QIODevice &m_device;
    qint64 m_allowance; ///< bytes that may still be read: no more than a picture of this size can need
    QByteArray m_head; ///< the content of its chunk
    QSize m_size;
    int m_depth = 0; ///< bits of a sample
    int m_colourType = Grey;
    bool m_interlaced = false;
    QByteArray m_colours; ///< the palette's chunk
    QByteArray m_transparency;
};
