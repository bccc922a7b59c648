#include "editors/canvas/layer2image.h"

#include "editors/common/raster.h"
#include "model/qtcompat.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr int ColourCount = 256;

QImage blankImage(QSize size)
{
    QImage image(size, QImage::Format_Indexed8);
    QList<QRgb> colours(ColourCount, qRgb(0, 0, 0));
    colours[1] = qRgb(255, 255, 255);
    image.setColorTable(colours);
    image.fill(0);
    return image;
}

} // namespace

Layer2Image::Layer2Image(QSize size, QObject *parent) : QObject(parent), m_image(blankImage(size)) { }

void Layer2Image::setImage(const QImage &image)
{
    // The primitives write bytes straight into the rows.
    m_image = image.format() == QImage::Format_Indexed8 ? image : image.convertToFormat(QImage::Format_Indexed8);
}

void Layer2Image::setPalette(const QPointer<Palette> &palette)
{
    m_palette = palette;
    reloadColourTable();
}

void Layer2Image::reloadColourTable()
{
    if (m_palette && !m_image.isNull())
        m_image.setColorTable(m_palette->colourTable());
}

void Layer2Image::setInk(int index)
{
    if (index >= 0 && index < m_image.colorCount())
        m_ink = index;
}

void Layer2Image::setPaper(int index)
{
    if (index >= 0 && index < m_image.colorCount())
        m_paper = index;
}

bool Layer2Image::haveSameIndices(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        if (std::memcmp(a.constScanLine(y), b.constScanLine(y), size_t(a.width())) != 0)
            return false;
    }
    return true;
}

void Layer2Image::copyFrom(const Layer2Image &other)
{
    m_image = other.m_image;
    m_palette = other.m_palette;
    m_ink = other.m_ink;
    m_paper = other.m_paper;
}

void Layer2Image::setPixel(QPoint pixel, int index)
{
    if (m_image.valid(pixel))
        m_image.scanLine(pixel.y())[pixel.x()] = uchar(index);
}

int Layer2Image::pixelIndex(QPoint pixel) const
{
    return m_image.constScanLine(pixel.y())[pixel.x()];
}

void Layer2Image::drawLine(QPoint from, QPoint to)
{
    Raster::line(from, to, [this](QPoint pixel) { setPixel(pixel, m_ink); });
}

void Layer2Image::drawRectangle(QRect rect)
{
    Raster::rectangle(rect, [this](QPoint pixel) { setPixel(pixel, m_ink); });
}

void Layer2Image::fillRectangle(QRect rect, int index)
{
    const QRect inside = rect & m_image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::memset(m_image.scanLine(y) + inside.left(), index, size_t(inside.width()));
}

void Layer2Image::drawEllipse(QRect rect)
{
    Raster::ellipse(rect, [this](QPoint pixel) { setPixel(pixel, m_ink); });
}

void Layer2Image::floodFill(QPoint pixel, int index)
{
    if (!m_image.valid(pixel))
        return;
    const int target = pixelIndex(pixel);
    if (target == index)
        return;

    uchar *bits = m_image.bits();
    const qsizetype stride = m_image.bytesPerLine();
    const QRect inside = m_image.rect();
    constexpr std::array Neighbours{QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)};

    // Set when pushed, so that no pixel is pushed twice.
    QList<QPoint> open{pixel};
    bits[pixel.y() * stride + pixel.x()] = uchar(index);
    while (!open.isEmpty()) {
        const QPoint current = open.takeLast();
        for (const QPoint step : Neighbours) {
            const QPoint next = current + step;
            if (!inside.contains(next))
                continue;
            uchar &value = bits[next.y() * stride + next.x()];
            if (value == target) {
                value = uchar(index);
                open.append(next);
            }
        }
    }
}

void Layer2Image::replaceIndex(const QRect &area, int replaced, int index, int mask)
{
    const QRect inside = area & m_image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        uchar *row = m_image.scanLine(y) + inside.left();
        std::replace_if(
            row, row + inside.width(), [=](uchar pixel) { return (pixel & mask) == (replaced & mask); }, uchar(index));
    }
}

void Layer2Image::paste(const QImage &source, QPoint position)
{
    const QRect inside = QRect(position, source.size()) & m_image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const uchar *from = source.constScanLine(y - position.y()) + (inside.left() - position.x());
        std::memcpy(m_image.scanLine(y) + inside.left(), from, size_t(inside.width()));
    }
}

void Layer2Image::shiftUp()
{
    const QByteArray top(reinterpret_cast<const char *>(m_image.constScanLine(0)), m_image.width());
    for (int y = 0; y + 1 < m_image.height(); ++y)
        std::memcpy(m_image.scanLine(y), m_image.constScanLine(y + 1), size_t(m_image.width()));
    std::memcpy(m_image.scanLine(m_image.height() - 1), top.constData(), size_t(m_image.width()));
}

void Layer2Image::shiftDown()
{
    const int last = m_image.height() - 1;
    const QByteArray bottom(reinterpret_cast<const char *>(m_image.constScanLine(last)), m_image.width());
    for (int y = last; y > 0; --y)
        std::memcpy(m_image.scanLine(y), m_image.constScanLine(y - 1), size_t(m_image.width()));
    std::memcpy(m_image.scanLine(0), bottom.constData(), size_t(m_image.width()));
}

void Layer2Image::shiftLeft()
{
    for (int y = 0; y < m_image.height(); ++y) {
        uchar *row = m_image.scanLine(y);
        std::rotate(row, row + 1, row + m_image.width());
    }
}

void Layer2Image::shiftRight()
{
    for (int y = 0; y < m_image.height(); ++y) {
        uchar *row = m_image.scanLine(y);
        std::rotate(row, row + m_image.width() - 1, row + m_image.width());
    }
}

void Layer2Image::rotate(int degrees)
{
    for (int turns = (degrees - 1) / 90 + 1; turns > 0; --turns) {
        QImage turned = m_image;
        uchar *bits = turned.bits();
        const qsizetype stride = turned.bytesPerLine();
        for (int y = 0; y < m_image.height(); ++y) {
            const uchar *row = m_image.constScanLine(y);
            const int column = m_image.width() - 1 - y;
            if (column < 0)
                break;
            for (int x = 0; x < std::min(m_image.width(), m_image.height()); ++x)
                bits[x * stride + column] = row[x];
        }
        m_image = turned;
    }
}

void Layer2Image::flip()
{
    m_image = QtCompat::flipped(m_image, false, true);
}

void Layer2Image::mirror()
{
    m_image = QtCompat::flipped(m_image, true, false);
}

void Layer2Image::moveToGroup(int base)
{
    for (int y = 0; y < m_image.height(); ++y) {
        uchar *row = m_image.scanLine(y);
        for (int x = 0; x < m_image.width(); ++x)
            row[x] = uchar(row[x] % 16 + base);
    }
    m_ink = m_ink % 16 + base;
    m_paper = m_paper % 16 + base;
}
