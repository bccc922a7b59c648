#pragma once

#include "model/result.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <memory>

/// A sprite with layers and frames, as .aseprite and .ase files hold it.
///
/// What was read is whole: every frame can be drawn. It is drawn when it is asked for, from the layers that are
/// visible, and is not kept, so the frames of a large file need not be there together. Copies share what was read.
class AsepriteFile
{
public:
    // A file beyond these is refused. Together they bound the memory and the time that any file takes.
    static constexpr qint64 MaxBytes = 32 << 20; ///< of the file
    static constexpr qint64 MaxUnpacked = 64 << 20; ///< memory that its pixels take, those of all cels and tile sets
    static constexpr qint64 MaxPixels = 32 << 20; ///< in all frames together, as they are drawn
    static constexpr qint64 MaxDrawn = 48 << 20; ///< pixels of cels that are drawn for all frames together

    enum class Direction { Forward, Reverse, PingPong, PingPongReverse };

    /// A part of the frames with a name, what other programs call an animation.
    struct Tag
    {
        QString name;
        int first = 0;
        int last = 0; ///< at least the first, and a frame of the file
        Direction direction = Direction::Forward;
        int repeats = 0; ///< 0 for ever; a ping-pong there and back counts two
    };

    struct TileSet
    {
        QString name;
        QSize tileSize;
        int count = 0;
        bool firstIsEmpty = false; ///< tile 0 stands for none
        QImage picture; ///< the tiles below each other, in the format of frames without clear layers

        [[nodiscard]] QImage tile(int index) const
        {
            return picture.copy(0, index * tileSize.height(), tileSize.width(), tileSize.height());
        }
    };

    /// Whether a file begins as such files do. It may still be damaged.
    [[nodiscard]] static bool recognises(const QByteArray &start);

    [[nodiscard]] static Result<AsepriteFile> read(const QString &fileName);
    [[nodiscard]] static Result<AsepriteFile> read(const QByteArray &bytes);

    [[nodiscard]] QSize size() const;
    /// Whether the pixels are indices into palette(); else they have colours of their own.
    [[nodiscard]] bool isIndexed() const;
    /// The palette of the first frame; empty where the file has none. It may have more than 256 colours, or colours
    /// with alpha, where the pixels are no indices.
    [[nodiscard]] QList<QRgb> palette() const;
    /// The index that is clear on all layers but a background; -1 in files without indices, and in those with a visible
    /// background, whose frames have no clear pixels.
    [[nodiscard]] int transparentIndex() const;
    /// How the sprite is meant to be cut into pieces: where the first one is, and how large; empty where nothing is
    /// said.
    [[nodiscard]] QRect grid() const;

    [[nodiscard]] int frameCount() const; ///< at least 1
    /// For how long a frame is shown, in milliseconds.
    [[nodiscard]] int duration(int frame) const;
    /// A frame as it is seen: indices (Format_Indexed8) with palette() as their colours, of which the transparent
    /// index has alpha 0, where every pixel is one of these colours; else Format_ARGB32.
    [[nodiscard]] QImage frame(int frame) const;

    [[nodiscard]] QList<Tag> tags() const;
    /// Those whose tiles are in the file.
    [[nodiscard]] QList<TileSet> tileSets() const;

    /// What is in the file and does not come in as it is, a sentence each.
    [[nodiscard]] QStringList remarks() const;

    struct Content;

private:
    explicit AsepriteFile(std::shared_ptr<const Content> content) : m_content(std::move(content)) { }

    std::shared_ptr<const Content> m_content;
};
