#include "app/imports/spritecolours.h"

#include "model/nextcolour.h"
#include "model/nximage.h"
#include "model/palette.h"

#include <algorithm>

namespace {

constexpr QRgb Black = 0xff000000;
/// What artists are used to see where nothing will be drawn.
constexpr QRgb Magenta = 0xffff00ff;

/// The one of these indices whose colour is the nearest.
int nearestOf(const QList<int> &indices, const QList<QRgb> &table, QRgb colour)
{
    return *std::min_element(indices.cbegin(), indices.cend(), [&](int a, int b) {
        return NextColour::squaredDistance(table[a], colour) < NextColour::squaredDistance(table[b], colour);
    });
}

/// The indices below end that are drawn.
QList<int> drawnIndices(int end, const SpriteTransparency &transparency)
{
    QList<int> drawn;
    for (int index = 0; index < end; ++index) {
        if (!transparency.hides(index))
            drawn.append(index);
    }
    return drawn;
}

} // namespace

SpriteColours SpriteColours::nearest(const QList<QRgb> &colours, const Palette &palette,
                                     const SpriteTransparency &transparency)
{
    SpriteColours result;
    result.m_clear = transparency.pixel();
    result.m_table = palette.colourTable();
    const QList<int> drawn = drawnIndices(Palette::Size, transparency);
    for (const QRgb colour : colours)
        result.m_indices.append(nearestOf(drawn, result.m_table, colour));
    return result;
}

SpriteColours SpriteColours::own(const QList<QRgb> &colours, const SpriteTransparency &transparency)
{
    SpriteColours result;
    result.m_clear = transparency.pixel();
    result.m_table = QList<QRgb>(Palette::Size, Black);
    result.m_table[result.m_clear] = Magenta;
    QList<int> drawn = drawnIndices(transparency.pixelCount(), transparency);
    drawn.resize(std::min(drawn.size(), colours.size()));
    for (qsizetype i = 0; i < drawn.size(); ++i)
        result.m_table[drawn[i]] = colours[i];
    result.m_indices = drawn;
    for (qsizetype i = drawn.size(); i < colours.size(); ++i)
        result.m_indices.append(nearestOf(drawn, result.m_table, colours[i]));
    return result;
}

QImage SpriteColours::pixels(const NxImage &picture) const
{
    return picture.withIndices(m_indices, m_clear, m_table);
}
