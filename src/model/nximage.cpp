#include "model/nximage.h"

#include "model/palette.h"
#include "model/picturefile.h"
#include "model/storedindices.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using SnapGrid::Table;

constexpr qsizetype TableSize = 256;
constexpr QRgb Clear = 0; // no snapped colour: these are opaque

/// A picture of the same size whose pixels are indexOf() of those of a picture.
template <typename Pixel, typename IndexOf>
QImage mapped(const QImage &picture, const QList<QRgb> &colourTable, const IndexOf &indexOf)
{
    QImage result(picture.size(), QImage::Format_Indexed8);
    if (result.isNull())
        return result;
    result.setColorTable(colourTable);
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *from = reinterpret_cast<const Pixel *>(picture.constScanLine(y));
        uchar *to = result.scanLine(y);
        for (int x = 0; x < width; ++x)
            to[x] = indexOf(from[x]);
    }
    return result;
}

} // namespace

NxImage::NxImage(QObject *parent) : QObject(parent) { }

NxImage::NxImage(const QImage &image, QObject *parent) : QObject(parent)
{
    setImage(image);
}

bool NxImage::accepts(const QSize &size)
{
    return qint64(size.width()) * size.height() <= MaxPixels;
}

bool NxImage::setImage(QImage image)
{
    take(std::move(image), QImage::Format_RGB32);
    return true;
}

void NxImage::setTranslucent(QImage image)
{
    take(std::move(image), QImage::Format_ARGB32);
}

/// Takes the picture as indices where it has such, which need no pixel to be changed.
void NxImage::take(QImage image, QImage::Format format)
{
    m_format = format;
    m_colours.clear();
    m_hasClearPixels = false;
    m_shownColours.clear();
    if (!accepts(image.size()))
        image = {};
    if (StoredIndices::areIn(image)) {
        m_pixels = StoredIndices::of(std::move(image));
        snapIndices();
    } else {
        m_pixels = std::move(image).convertToFormat(format, Qt::AvoidDither);
        snapPixels();
    }
}

/// The snapped form of a pixel, which is listed when it is new. Without an alpha channel whatever stands for alpha
/// means nothing.
QRgb NxImage::snapped(QRgb colour, Table<bool> &seen)
{
    if (m_format == QImage::Format_ARGB32 && qAlpha(colour) < LeastAlpha) {
        m_hasClearPixels = true;
        return Clear;
    }
    bool &known = seen[SnapGrid::indexOf(colour)];
    const QRgb result = SnapGrid::snapped(colour);
    if (!known) {
        known = true;
        m_colours.append(result);
    }
    return result;
}

void NxImage::snapIndices()
{
    Table<bool> seen{};
    std::array<bool, TableSize> met{};
    m_shownColours = StoredIndices::shownColours(m_pixels, m_format);
    const int width = m_pixels.width();
    for (int y = 0; y < m_pixels.height(); ++y) {
        const uchar *line = m_pixels.constScanLine(y);
        for (int x = 0; x < width; ++x) {
            if (met[line[x]])
                continue;
            met[line[x]] = true;
            m_shownColours[line[x]] = snapped(m_shownColours.at(line[x]), seen);
        }
    }
}

void NxImage::snapPixels()
{
    Table<bool> seen{};
    const int width = m_pixels.width();
    for (int y = 0; y < m_pixels.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_pixels.scanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = snapped(line[x], seen);
    }
}

QImage NxImage::image() const
{
    if (m_shownColours.isEmpty())
        return m_pixels;
    QImage shown = m_pixels;
    shown.setColorTable(m_shownColours);
    return std::move(shown).convertToFormat(m_format, Qt::AvoidDither);
}

QImage NxImage::withIndices(const Table<quint8> &indexOf, int clear, const QList<QRgb> &colourTable) const
{
    const auto index = [&indexOf, clear](QRgb colour) {
        return colour == Clear ? quint8(clear) : indexOf[SnapGrid::indexOf(colour)];
    };
    if (m_shownColours.isEmpty())
        return mapped<QRgb>(m_pixels, colourTable, index);
    std::array<quint8, TableSize> indices;
    std::transform(m_shownColours.cbegin(), m_shownColours.cend(), indices.begin(), index);
    return mapped<uchar>(m_pixels, colourTable, [&indices](uchar stored) { return indices[stored]; });
}

bool NxImage::load(const QString &fileName)
{
    setImage(PictureFile::read(fileName).image);
    return !m_pixels.isNull();
}

QImage NxImage::remap(const QPointer<Palette> &palette) const
{
    if (!palette)
        return {};
    Table<quint8> indexOf{};
    for (const QRgb colour : m_colours)
        indexOf[SnapGrid::indexOf(colour)] = quint8(palette->nearestIndex(QColor::fromRgb(colour)));
    return withIndices(indexOf, 0, palette->colourTable());
}

QImage NxImage::toIndexed() const
{
    QList<QRgb> table = m_colours;
    table.resize(TableSize);
    return withIndices(SnapGrid::indicesOf(m_colours), 0, table);
}

QImage NxImage::withIndices(const QList<int> &indices, int clear, const QList<QRgb> &colourTable) const
{
    Q_ASSERT(indices.size() == m_colours.size());
    Table<quint8> indexOf{};
    for (qsizetype i = 0; i < indices.size(); ++i)
        indexOf[SnapGrid::indexOf(m_colours[i])] = quint8(indices[i]);
    return withIndices(indexOf, clear, colourTable);
}

QImage NxImage::indexed(const QImage &picture, const QPointer<Palette> &palette)
{
    if (picture.isNull() || StoredIndices::areIn(picture))
        return StoredIndices::of(picture);
    return palette ? NxImage(picture).remap(palette) : NxImage(picture).toIndexed();
}
