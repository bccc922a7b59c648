#pragma once

#include <QtGlobal>

#include <array>
#include <utility>
#include <vector>

/// The distinct square pieces of a picture, found again in any of their eight orientations.
///
/// An orientation (0–7) says what is done to a piece: bit 2 rotates it 90° clockwise, then bit 1
/// mirrors it left to right and bit 0 flips it top to bottom. A piece is hashed in the one of its
/// orientations whose bytes sort first, so all eight share one hash, and a look-up costs the same
/// however many pieces there are.
class PieceTable
{
public:
    /// The largest side of a piece.
    static constexpr int MaxSide = 16;

    /// A table of pieces of side × side pixels, a byte each.
    explicit PieceTable(int side);

    /// The piece that equals these pixels, side rows of side bytes, and the orientation that turns it
    /// into them: the greatest one where several do. Pixels that are new become a piece and give its
    /// index and orientation 0.
    std::pair<int, int> add(const uchar *pixels);

    [[nodiscard]] int count() const { return int(m_pixels.size() / m_area); }
    [[nodiscard]] int side() const { return m_side; }
    /// The pixels of a piece as they were first added.
    [[nodiscard]] const uchar *pixels(int piece) const { return m_pixels.data() + size_t(piece) * m_area; }

private:
    static constexpr int Orientations = 8;
    static constexpr size_t MaxArea = size_t(MaxSide) * MaxSide;
    using Pixels = std::array<uchar, MaxArea>;

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
    std::vector<uchar> m_pixels; ///< of all pieces, one after another
    std::vector<Slot> m_slots; ///< a hash table with linear probing: a power of two, at most half full
};
