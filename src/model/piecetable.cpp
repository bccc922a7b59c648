#include "model/piecetable.h"

#include <QHash>

namespace {

constexpr size_t FirstCapacity = 4096;

} // namespace

PieceTable::PieceTable(int side, Reader reader)
    : m_side(side)
    , m_area(size_t(side) * size_t(side))
    , m_read(std::move(reader))
    , m_slots(FirstCapacity)
{
    Q_ASSERT(side > 0 && side <= MaxSide);
    const int last = side - 1;
    for (int orientation = 0; orientation < Orientations; ++orientation) {
        for (int i = 0; i < side * side; ++i) {
            // from the pixel of the result back to the one of the piece: the steps in reverse
            const int y = orientation & 1 ? last - i / side : i / side;
            const int x = orientation & 2 ? last - i % side : i % side;
            const int origin = orientation & 4 ? (last - x) * side + y : y * side + x;
            m_origins[size_t(orientation)][size_t(i)] = uchar(origin);
        }
    }
}

std::pair<int, int> PieceTable::add(const uchar *pixels, int place)
{
    const quint32 hash = hashOf(pixels);
    const size_t mask = m_slots.size() - 1;
    size_t i = hash & mask;
    for (; m_slots[i].piece >= 0; i = (i + 1) & mask) {
        if (m_slots[i].hash != hash)
            continue;
        if (const int orientation = orientationOf(m_slots[i].piece, pixels); orientation >= 0)
            return {m_slots[i].piece, orientation};
    }

    const int piece = count();
    m_slots[i] = {hash, piece};
    m_places.push_back(place);
    if (m_pixels.size() < KeptBytes)
        m_pixels.insert(m_pixels.end(), pixels, pixels + m_area);
    if (2 * size_t(count()) > m_slots.size())
        grow();
    return {piece, 0};
}

const uchar *PieceTable::pixels(int piece, Pixels &buffer) const
{
    const size_t offset = size_t(piece) * m_area;
    if (offset < m_pixels.size())
        return m_pixels.data() + offset;
    m_read(m_places[size_t(piece)], buffer.data());
    return buffer.data();
}

/// A hash that is the same for all orientations of a piece.
quint32 PieceTable::hashOf(const uchar *pixels) const
{
    // most pairs of orientations differ within their first few pixels, so finding the first in order is cheap
    const Pixels *first = &m_origins[0];
    for (size_t orientation = 1; orientation < Orientations; ++orientation) {
        const Pixels &other = m_origins[orientation];
        size_t i = 0;
        while (i < m_area && pixels[other[i]] == pixels[(*first)[i]])
            ++i;
        if (i < m_area && pixels[other[i]] < pixels[(*first)[i]])
            first = &other;
    }
    Pixels turned;
    for (size_t i = 0; i < m_area; ++i)
        turned[i] = pixels[(*first)[i]];
    return quint32(qHashBits(turned.data(), m_area, QHashSeed::globalSeed()));
}

/// The greatest orientation that turns a piece into these pixels, or -1.
int PieceTable::orientationOf(int piece, const uchar *pixels) const
{
    Pixels buffer;
    const uchar *own = this->pixels(piece, buffer);
    for (int orientation = Orientations - 1; orientation >= 0; --orientation) {
        const Pixels &origins = m_origins[size_t(orientation)];
        size_t i = 0;
        while (i < m_area && own[origins[i]] == pixels[i])
            ++i;
        if (i == m_area)
            return orientation;
    }
    return -1;
}

void PieceTable::grow()
{
    std::vector<Slot> larger(2 * m_slots.size());
    const size_t mask = larger.size() - 1;
    for (const Slot &slot : m_slots) {
        if (slot.piece < 0)
            continue;
        size_t i = slot.hash & mask;
        while (larger[i].piece >= 0)
            i = (i + 1) & mask;
        larger[i] = slot;
    }
    m_slots = std::move(larger);
}
