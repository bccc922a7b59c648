#include "model/piecetable.h"

#include <QHash>

#include <algorithm>
#include <bit>

PieceTable::PieceTable(int side, int places, Reader reader)
    : m_side(side)
    , m_area(size_t(side) * size_t(side))
    , m_read(std::move(reader))
    , m_noPiece(std::bit_ceil(quint32(places) + 1) - 1)
    , m_heads((std::bit_ceil(size_t(places)) + 1) / 2, m_noPiece) // for chains of at most two pieces, by and large
{
    Q_ASSERT(side > 0 && side <= MaxSide && places >= 0);
    // never moved, and memory that is not written to costs nothing
    m_places.reserve(size_t(places));
    m_links.reserve(size_t(places));
    m_pixels.reserve(std::min(KeptBytes, size_t(places) * m_area) + m_area);
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
    const quint32 tag = hash & ~m_noPiece;
    quint32 &head = m_heads[hash & (m_heads.size() - 1)];
    for (quint32 known = head; known != m_noPiece; known = m_links[known] & m_noPiece) {
        if ((m_links[known] & ~m_noPiece) != tag)
            continue;
        if (const int orientation = orientationOf(int(known), pixels); orientation >= 0)
            return {int(known), orientation};
    }

    const int piece = count();
    m_links.push_back(tag | head);
    head = quint32(piece);
    m_places.push_back(place);
    if (m_pixels.size() < KeptBytes)
        m_pixels.insert(m_pixels.end(), pixels, pixels + m_area);
    return {piece, 0};
}

void PieceTable::close()
{
    std::vector<quint32>().swap(m_heads); // which frees it
    std::vector<Link>().swap(m_links);
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
