#pragma once

#include "pictures/asepritefile.h"

#include <type_traits>
#include <vector>

/// What is in a file, as it is drawn: all pixels unpacked, and checked against each other.
struct AsepriteFile::Content
{
    static constexpr int Opaque = 255;
    /// The product of two parts of Opaque, rounded.
    [[nodiscard]] static constexpr int product(int a, int b)
    {
        const int whole = a * b + 128;
        return (whole + (whole >> 8)) >> 8;
    }

    /// Row by row, without gaps: one of both lists holds them, as isIndexed says.
    struct Pixels
    {
        QSize size;
        std::vector<uchar> indices;
        std::vector<QRgb> colours;

        template <typename Pixel>
        [[nodiscard]] const Pixel *data() const
        {
            if constexpr (std::is_same_v<Pixel, uchar>)
                return indices.data();
            else
                return colours.data();
        }
    };

    /// A picture made of the tiles of a set.
    struct TileCells
    {
        QSize size; ///< in tiles
        std::vector<quint32> cells; ///< row by row: the tile, and how it is turned, as the masks have it
        quint32 tileMask = 0;
        quint32 mirrorMask = 0; ///< left to right
        quint32 flipMask = 0; ///< top to bottom
        quint32 swapMask = 0; ///< columns for rows, before the others
    };

    struct Layer
    {
        enum Type { Image, Group, TileMap };

        QString name;
        int type = Image;
        int level = 0;
        bool isShown = false; ///< it is visible, and so are the groups that it is in
        bool isBackground = false;
        int opacity = Opaque; ///< with that of its groups
        quint32 tileSetId = 0;
        int tileSet = -1; ///< index in tilePixels; -1 for one that is not in the file
    };

    struct Cel
    {
        int layer = 0;
        QPoint at;
        int opacity = Opaque;
        int z = 0; ///< layers that it is moved up
        // one of these, which linked cels share
        std::shared_ptr<const Pixels> pixels;
        std::shared_ptr<const TileCells> tiles;
    };

    struct Frame
    {
        int duration = 0;
        std::vector<Cel> cels; ///< those that are seen, from the lowest
    };

    QSize size;
    bool isIndexed = false;
    uchar clearIndex = 0; ///< on all layers but a background
    bool hasBackground = false; ///< that is seen
    QRect grid;
    QList<QRgb> palette; ///< has all indices that occur, and the transparent one
    std::vector<Layer> layers; ///< from the lowest
    std::vector<Frame> frames;
    QList<Tag> tags;
    QList<TileSet> tileSets;
    std::vector<Pixels> tilePixels; ///< of the tile sets, tile below tile
    QStringList remarks;

    /// The pixels of the canvas that a cel can reach.
    [[nodiscard]] QRect area(const Cel &cel) const;
    /// The colours of indices, all that occur, with the transparent one clear or not.
    [[nodiscard]] QList<QRgb> colourTable(bool withClearIndex) const;
    [[nodiscard]] QImage draw(const Frame &frame) const;

private:
    [[nodiscard]] int opacityOf(const Cel &cel) const;
    [[nodiscard]] bool keepsIndices(const Frame &frame) const;
    template <typename Pixel, typename Put>
    void drawCel(const Cel &cel, const Put &put) const;
    template <typename Pixel, typename Put>
    void drawTiles(const TileCells &tiles, const Cel &cel, const Put &put) const;
    [[nodiscard]] QImage drawIndices(const Frame &frame) const;
    [[nodiscard]] QImage drawColours(const Frame &frame) const;
};
