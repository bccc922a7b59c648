#pragma once

#include <QtGlobal>

#include <array>
#include <functional>
#include <utility>
#include <vector>

/// The distinct square pieces of a picture, found again in any of their eight orientations.
///
/// An orientation (0–7) says what is done to a piece: bit 2 rotates it 90° clockwise, then bit 1
/// mirrors it left to right and bit 0 flips it top to bottom. A piece is hashed in the one of its
/// orientations whose bytes sort first, so all eight share one hash, and a look-up costs the same
/// however many pieces there are.
///
/// Only the first pieces are kept as pixels, 1 MiB of them. The others are known by the place where they were found
/// first, and read from there again when they are needed, so that a picture of which no two pieces are alike is not
/// kept twice. Besides, a piece takes 4 bytes, and until close() 6 to 8 more, of which 2 to 4 are there for every
/// place.
class PieceTable
{
public:
    /// The largest side of a piece.
    static constexpr int MaxSide = 16;
    using Pixels = std::array<uchar, size_t(MaxSide) * MaxSide>;
    /// Reads the pixels of a place, side rows of side bytes.
    using Reader = std::function<void(int place, uchar *pixels)>;

    /// A table of pieces of side × side pixels, a byte each, at no more than so many places.
    PieceTable(int side, int places, Reader reader);

    /// The piece that equals these pixels, those of a place, and the orientation that turns it into them: the greatest
    /// one where several do. Pixels that are new become a piece and give its index and orientation 0.
    std::pair<int, int> add(const uchar *pixels, int place);
    /// Frees what only add() needs, which may not be called any more.
    void close();

    [[nodiscard]] int count() const { return int(m_places.size()); }
    [[nodiscard]] int side() const { return m_side; }
    /// The pixels of a piece as they were first added, in the table or else in the buffer.
    [[nodiscard]] const uchar *pixels(int piece, Pixels &buffer) const;

private:
    static constexpr int Orientations = 8;
    static constexpr size_t KeptBytes = size_t(1) << 20;

    /// The next piece of a chain in the lower bits, or all of these where there is none; in the others those of its
    /// owner's hash.
    using Link = quint32;

    [[nodiscard]] quint32 hashOf(const uchar *pixels) const;
    [[nodiscard]] int orientationOf(int piece, const uchar *pixels) const;

    int m_side;
    size_t m_area;
    std::array<Pixels, Orientations> m_origins; ///< for each orientation, where each of its pixels comes from
    Reader m_read;
    std::vector<int> m_places; ///< of all pieces
    std::vector<uchar> m_pixels; ///< of the first pieces, one after another
    quint32 m_noPiece; ///< the lower bits of a link
    std::vector<quint32> m_heads; ///< by the lower bits of a hash the last piece that has them; a power of two
    std::vector<Link> m_links; ///< of each piece to the one before it in its chain
};
