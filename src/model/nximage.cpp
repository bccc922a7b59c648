#include "model/nximage.h"

#include "model/nextcolour.h"
#include "model/palette.h"

#include <QImageReader>

#include <algorithm>
#include <array>

namespace {

constexpr size_t Steps = NextColour::SnapSteps;
constexpr size_t GridSize = Steps * Steps * Steps;
constexpr qsizetype TableSize = 256;

/// One value for each colour of the snap grid, by gridIndex().
template <typename Value>
using Grid = std::array<Value, GridSize>;

constexpr auto StepOf = [] {
    std::array<quint8, 256> steps{};
    for (int component = 0; component < 256; ++component)
        steps[size_t(component)] = quint8(NextColour::snapStep(component));
    return steps;
}();

/// The place of a colour's snapped form in a Grid.
size_t gridIndex(QRgb colour)
{
    return (size_t(StepOf[size_t(qRed(colour))]) * Steps + StepOf[size_t(qGreen(colour))]) * Steps
        + StepOf[size_t(qBlue(colour))];
}

QRgb snapped(QRgb colour)
{
    return qRgb(NextColour::snappedComponent(StepOf[size_t(qRed(colour))]),
                NextColour::snappedComponent(StepOf[size_t(qGreen(colour))]),
                NextColour::snappedComponent(StepOf[size_t(qBlue(colour))]));
}

/// The first colour of a list at the least distance.
qsizetype nearest(const QList<QRgb> &colours, QRgb colour)
{
    const auto closer = [colour](QRgb a, QRgb b) {
        return NextColour::squaredDistance(a, colour) < NextColour::squaredDistance(b, colour);
    };
    return std::min_element(colours.cbegin(), colours.cend(), closer) - colours.cbegin();
}

/// A snapped picture as 8-bit indices; indexOf holds the index of each of its colours.
QImage mapped(const QImage &picture, const Grid<quint8> &indexOf, const QList<QRgb> &colourTable)
{
    QImage result(picture.size(), QImage::Format_Indexed8);
    if (result.isNull())
        return result;
    result.setColorTable(colourTable);
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        uchar *to = result.scanLine(y);
        for (int x = 0; x < width; ++x)
            to[x] = indexOf[gridIndex(from[x])];
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

bool NxImage::setImage(const QImage &image)
{
    m_colours.clear();
    m_image = accepts(image.size()) ? image.convertToFormat(QImage::Format_RGB32, Qt::AvoidDither) : QImage();

    Grid<bool> seen{};
    const int width = m_image.width();
    for (int y = 0; y < m_image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            bool &known = seen[gridIndex(line[x])];
            line[x] = snapped(line[x]);
            if (!known) {
                known = true;
                m_colours.append(line[x]);
            }
        }
    }
    return true;
}

bool NxImage::load(const QString &fileName)
{
    QImageReader reader(fileName);
    // the size in the file's header comes first: a small file may announce gigabytes of pixels
    const QImage picture = accepts(reader.size()) ? reader.read() : QImage();
    setImage(picture);
    return !m_image.isNull();
}

QImage NxImage::remap(const QPointer<Palette> &palette) const
{
    if (!palette)
        return {};
    Grid<quint8> indexOf{};
    for (const QRgb colour : m_colours)
        indexOf[gridIndex(colour)] = quint8(palette->nearestIndex(QColor::fromRgb(colour)));
    return mapped(m_image, indexOf, palette->colourTable());
}

QImage NxImage::toIndexed() const
{
    QList<QRgb> table = m_colours.first(qMin(m_colours.size(), TableSize));
    Grid<quint8> indexOf{};
    for (qsizetype i = 0; i < m_colours.size(); ++i)
        indexOf[gridIndex(m_colours[i])] = quint8(i < TableSize ? i : nearest(table, m_colours[i]));
    table.resize(TableSize);
    return mapped(m_image, indexOf, table);
}

QImage NxImage::indexed(const QImage &picture, const QPointer<Palette> &palette)
{
    switch (picture.format()) {
    case QImage::Format_Invalid:
    case QImage::Format_Indexed8:
        return picture;
    case QImage::Format_Grayscale8: {
        QImage indices = picture;
        return indices.reinterpretAsFormat(QImage::Format_Indexed8) ? indices : QImage();
    }
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return picture.convertToFormat(QImage::Format_Indexed8);
    default:
        return palette ? NxImage(picture).remap(palette) : NxImage(picture).toIndexed();
    }
}
