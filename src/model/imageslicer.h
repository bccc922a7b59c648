#pragma once

#include "model/pictureindices.h"
#include "model/piecetable.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>
#include <QVarLengthArray>

#include <array>
#include <utility>
#include <vector>

/// Cuts an ordinary picture into tiles or sprites and merges those that are equal up to rotation and
/// mirroring.
///
/// For tiles it also records the orientation of every cell, and packs the colours of the pieces into
/// 16 banks of 16, so that each piece can be shown as a 4-bit tile with a palette offset. A partial
/// column or row at the right or bottom is dropped. A picture that NxImage does not accept has no cells.
///
/// Besides the picture, which it shares (pictures of indices or 32-bit colours as they are), cutting takes 6 to 15
/// bytes a cell of a tile's size, the more the fewer cells are alike, and 1 MiB: less than 16 MiB for the largest
/// picture, that is 8192 × 8192 pixels and a million tiles. Pieces that it hands over are made when they are asked for.
class ImageSlicer : public QObject
{
    Q_OBJECT

public:
    static constexpr int TileSide = 8;
    static constexpr int SpriteSide = 16;

    /// The piece that a cell shows, and the orientation (0–7) that it has there: bit 2 rotates it 90°
    /// clockwise, then bit 1 mirrors it left to right and bit 0 flips it top to bottom.
    using Placement = std::pair<int, int>;

    /// A slicer with the cells of sliceTiles().
    explicit ImageSlicer(const QImage &source, QObject *parent = nullptr);

    /// Cells of the picture, columns × rows.
    [[nodiscard]] QSize size() const { return m_cells; }
    [[nodiscard]] int cellCount() const { return m_cells.width() * m_cells.height(); }

    /// Cuts 8 × 8 pieces and packs their colours into banks; gives the number of distinct pieces. Logs
    /// "Palette full!" when the banks do not suffice: from that piece on, pieces keep bank 0 and their
    /// own colours.
    int sliceTiles();
    /// Cuts 16 × 16 pieces for as many cells as pieces of size × size would make; gives the number of
    /// distinct pieces. Placements have orientation 0, and there are no banks.
    int sliceSprites(int size);
    /// Cuts 16 × 16 pieces of a picture that is indexed already: its indices stay, and its colour table becomes
    /// colours(). Otherwise as sliceSprites().
    int sliceIndexedSprites();

    /// Distinct tiles that do not show all their colours: no bank had room for them, or the picture has more than
    /// the 256 colours that are told apart.
    [[nodiscard]] int lossyTileCount() const;

    /// Distinct pieces that were cut.
    [[nodiscard]] int pieceCount() const { return m_pieces.count(); }
    /// A distinct piece, in order of first appearance, 8-bit indexed: a tile with the slots of its bank
    /// as indices, a sprite with those of colours(). Null for an index beyond the pieces.
    [[nodiscard]] QImage piece(int index) const;
    /// The bank (0–15) of a tile; 0 for an index beyond the pieces.
    [[nodiscard]] int bank(int index) const;
    /// A tile whose indices point into bankColours().
    [[nodiscard]] QImage pieceWithOffset(int index) const;

    /// One entry a cell, row by row.
    [[nodiscard]] QList<Placement> placements() const;
    /// That of a cell; the list of all takes more memory than they do here.
    [[nodiscard]] Placement placement(int cell) const { return unpacked(m_placements[size_t(cell)]); }
    /// The snapped colours of the whole picture, 256 entries.
    [[nodiscard]] QList<QRgb> colours() const { return m_picture.colourTable(); }
    /// The colours of the 16 banks one after another, 256 entries; unused slots are opaque black.
    [[nodiscard]] QList<QRgb> bankColours() const;

signals:
    /// A cell has been cut; progress is the number of cells before it.
    void processed(int progress);

private:
    static constexpr int BankCount = 16;
    static constexpr int BankSize = 16;

    /// Distinct indices of colours(), in order of first appearance in a tile.
    using TileColours = QVarLengthArray<uchar, TileSide * TileSide>;

    /// A bank's slots, filled one after another with indices of colours().
    class Bank
    {
    public:
        Bank() { m_slotOf.fill(-1); }
        /// Whether the bank has these colours, or room for those that it lacks.
        [[nodiscard]] bool takes(const TileColours &colours) const;
        void add(const TileColours &colours);
        [[nodiscard]] int used() const { return m_used; }
        [[nodiscard]] int slotOf(uchar colour) const { return m_slotOf[colour]; }
        [[nodiscard]] uchar colourAt(int slot) const { return m_colours[size_t(slot)]; }

    private:
        std::array<qint8, 256> m_slotOf; ///< -1 for colours that the bank lacks
        std::array<uchar, BankSize> m_colours{};
        int m_used = 0;
    };

    /// The bank that a tile's colours found, and how many slots it had filled by then.
    struct Assignment
    {
        quint8 bank = 0;
        quint8 used = 0;
    };

    static constexpr int OrientationBits = 3;

    [[nodiscard]] static Placement unpacked(quint32 placement)
    {
        return {int(placement >> OrientationBits), int(placement & ((1 << OrientationBits) - 1))};
    }

    void slice(const PictureIndices &picture, int side, const QSize &cells);
    void sliceSpritesOf(const PictureIndices &picture, int size);
    /// Reads the pixels of a cell; false when they do not show all their colours.
    bool readCell(int cell, uchar *pixels) const;
    void assignBanks();
    [[nodiscard]] TileColours coloursOf(int index) const;
    [[nodiscard]] QImage sprite(int index) const;
    [[nodiscard]] QImage tile(int index) const;
    [[nodiscard]] QList<QRgb> slotColours(const Bank &bank, int used) const;

    QImage m_source;
    QSize m_cells;
    PictureIndices m_picture; ///< what was cut
    PieceTable m_pieces{TileSide, 0, {}};
    std::vector<quint32> m_placements; ///< the piece over the bits of its orientation
    std::vector<bool> m_reduced; ///< by piece; empty where no piece lost a colour beyond the 256th
    std::array<Bank, BankCount> m_banks;
    QList<Assignment> m_assignments; ///< of the first tiles, up to one that found no bank
};
