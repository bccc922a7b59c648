#pragma once

#include "pictures/dithering.h"

#include <QImage>
#include <QList>
#include <QMetaType>
#include <QSize>

#include <array>
#include <vector>

/// Any picture as tiles that the machine can show: at most 512 of them, each in the colours of one of 16 groups of 16.
///
/// Tiles that differ too little to be told apart are merged when there are too many (TileCodebook), and the groups are
/// found for all tiles together (ColourGroups). What fits as it is comes out as it is. A colour is taken for the one of
/// the machine's that looks most like it, so the machine's own colours are exact.
struct TileReduction
{
    static constexpr int Side = 8;
    static constexpr int MostTiles = 512;
    static constexpr int MostGroups = 16;
    static constexpr int GroupColours = 16;
    /// The pixel value of clear pixels: the hardware's transparency index at start-up. No colour takes it then.
    static constexpr int ClearPixel = 15;

    struct Choices
    {
        Dithering dithering = Dithering::None;
        bool keepClearPixels = true; ///< pixels less than half opaque; else they take their colour, as all others
        int mostTiles = MostTiles;

        bool operator==(const Choices &) const = default;
    };

    struct Cell
    {
        int tile;
        int orientation; ///< TileOrientation
    };

    using Pixels = std::array<uchar, size_t(Side) * Side>;

    Choices choices; ///< that led to it
    QSize size; ///< in cells; a partial column or row at the right or bottom is dropped
    std::vector<Cell> cells; ///< row by row
    std::vector<Pixels> tiles; ///< pixels are entries of the palette: 16 times the group, and the colour in it
    std::vector<int> groups; ///< by tile
    QList<quint16> words; ///< the 256 entries

    // What is to be told before anything is made of it
    int coloursBefore = 0; ///< of the machine's, which the picture has
    int colours = 0;
    int groupCount = 0;
    int tilesBefore = 0; ///< distinct ones, turned and mirrored ones counted once
    int mergedCells = 0; ///< that show a tile which stands for several
    int lossyCells = 0; ///< whose tile lacks some of its colours
    double error = 0; ///< root of the mean squared distance to the picture in the machine's colours, in levels
    bool hasClearPixels = false;

    [[nodiscard]] static TileReduction of(const QImage &picture, const Choices &choices);

    /// What the map will look like; clear pixels are so.
    [[nodiscard]] QImage shown() const;
};

Q_DECLARE_METATYPE(TileReduction)
