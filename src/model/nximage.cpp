#include "model/nximage.h"

#include "model/nextcolour.h"
#include "model/palette.h"
#include "model/picturefile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr size_t Steps = NextColour::SnapSteps;
constexpr size_t GridSize = Steps * Steps * Steps;
constexpr qsizetype TableSize = 256;
constexpr QRgb Clear = 0; // no snapped colour: these are opaque
constexpr int LeastAlpha = 128; ///< of a pixel that is not clear

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
QImage mapped(const QImage &picture, const Grid<quint8> &indexOf, const QList<QRgb> &colourTable, quint8 clear = 0)
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
            to[x] = from[x] == Clear ? clear : indexOf[gridIndex(from[x])];
    }
    return result;
}

/// The colours whose indices are stored as levels of grey.
QList<QRgb> greyRamp()
{
    QList<QRgb> colours;
    for (int level = 0; level < TableSize; ++level)
        colours.append(qRgb(level, level, level));
    return colours;
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
    m_image =
        accepts(image.size()) ? std::move(image).convertToFormat(QImage::Format_RGB32, Qt::AvoidDither) : QImage();
    snap();
    return true;
}

void NxImage::setTranslucent(QImage image)
{
    m_image =
        accepts(image.size()) ? std::move(image).convertToFormat(QImage::Format_ARGB32, Qt::AvoidDither) : QImage();
    snap();
}

/// Snaps the pixels, and lists their colours. Without an alpha channel whatever stands for alpha means nothing.
void NxImage::snap()
{
    m_colours.clear();
    m_hasClearPixels = false;
    const int leastAlpha = m_image.hasAlphaChannel() ? LeastAlpha : 0;
    Grid<bool> seen{};
    const int width = m_image.width();
    for (int y = 0; y < m_image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            if (qAlpha(line[x]) < leastAlpha) {
                line[x] = Clear;
                m_hasClearPixels = true;
                continue;
            }
            bool &known = seen[gridIndex(line[x])];
            line[x] = snapped(line[x]);
            if (!known) {
                known = true;
                m_colours.append(line[x]);
            }
        }
    }
}

bool NxImage::load(const QString &fileName)
{
    setImage(PictureFile::read(fileName).image);
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

QImage NxImage::withIndices(const QList<int> &indices, int clear, const QList<QRgb> &colourTable) const
{
    Q_ASSERT(indices.size() == m_colours.size());
    Grid<quint8> indexOf{};
    for (qsizetype i = 0; i < indices.size(); ++i)
        indexOf[gridIndex(m_colours[i])] = quint8(indices[i]);
    return mapped(m_image, indexOf, colourTable, quint8(clear));
}

QImage NxImage::indexed(const QImage &picture, const QPointer<Palette> &palette)
{
    switch (picture.format()) {
    case QImage::Format_Invalid:
    case QImage::Format_Indexed8:
        return picture;
    case QImage::Format_Grayscale8: {
        QImage indices = picture;
        if (!indices.reinterpretAsFormat(QImage::Format_Indexed8))
            return {};
        indices.setColorTable(greyRamp());
        return indices;
    }
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return picture.convertToFormat(QImage::Format_Indexed8);
    default:
        return palette ? NxImage(picture).remap(palette) : NxImage(picture).toIndexed();
    }
}
