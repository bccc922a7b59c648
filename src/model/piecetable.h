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
/// Only the first pieces are kept as pixels. The others are known by the place where they were found first, and read
/// from there again when they are needed, so that a picture of which no two pieces are alike is not kept twice.
class PieceTable
{
public:
    /// The largest side of a piece.
    static constexpr int MaxSide = 16;
    using Pixels = std::array<uchar, size_t(MaxSide) * MaxSide>;
    /// Reads the pixels of a place, side rows of side bytes.
    using Reader = std::function<void(int place, uchar *pixels)>;

    /// A table of pieces of side × side pixels, a byte each.
    PieceTable(int side, Reader reader);

    /// The piece that equals these pixels, those of a place, and the orientation that turns it into them: the greatest
    /// one where several do. Pixels that are new become a piece and give its index and orientation 0.
    std::pair<int, int> add(const uchar *pixels, int place);

    [[nodiscard]] int count() const { return int(m_places.size()); }
    [[nodiscard]] int side() const { return m_side; }
    /// The pixels of a piece as they were first added, in the table or else in the buffer.
    [[nodiscard]] const uchar *pixels(int piece, Pixels &buffer) const;

private:
    static constexpr int Orientations = 8;
    static constexpr size_t KeptBytes = size_t(4) << 20;

    struct Slot
    {
        quint32 hash = 0;
        int piece = -1; ///< -1 in a free slot
    };

    [[nodiscard]] quint32 hashOf(const uchar *pixels) const;
    [[nodiscard]] int orientationOf(int piece, const uchar *pixels) const;
    void grow();

    int m_side;
    size_t m_area;
    std::array<Pixels, Orientations> m_origins; ///< for each orientation, where each of its pixels comes from
    Reader m_read;
    std::vector<int> m_places; ///< of all pieces
    std::vector<uchar> m_pixels; ///< of the first pieces, one after another
    std::vector<Slot> m_slots; ///< a hash table with linear probing: a power of two, at most half full
};
