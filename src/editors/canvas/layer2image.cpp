#include "editors/canvas/layer2image.h"

#include "model/qtcompat.h"

#include <algorithm>
#include <array>
#include <cmath>
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
    const bool steep = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
    if (steep) {
        from = from.transposed();
        to = to.transposed();
    }
    if (from.x() > to.x())
        std::swap(from, to);

    const int yStep = from.y() < to.y() ? 1 : -1;
    const auto dx = float(to.x() - from.x());
    const auto dy = float(std::abs(to.y() - from.y()));
    float error = dx * 0.5F;
    int y = from.y();
    for (int x = from.x(); x <= to.x(); ++x) {
        setPixel(steep ? QPoint(y, x) : QPoint(x, y), m_ink);
        error -= dy;
        if (error < 0) {
            y += yStep;
            error += dx;
        }
    }
}

void Layer2Image::drawRectangle(QRect rect)
{
    drawLine(rect.topLeft(), rect.topRight());
    drawLine(rect.bottomLeft(), rect.bottomRight());
    drawLine(rect.topLeft(), rect.bottomLeft());
    drawLine(rect.topRight(), rect.bottomRight());
}

void Layer2Image::fillRectangle(QRect rect, int index)
{
    const QRect inside = rect & m_image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::memset(m_image.scanLine(y) + inside.left(), index, size_t(inside.width()));
}

void Layer2Image::drawEllipse(QRect rect)
{
    qint64 x0 = rect.left();
    qint64 x1 = rect.right();
    const qint64 a = x1 - x0;
    const qint64 b = rect.bottom() - rect.top();
    const qint64 odd = b & 1;
    const qint64 a8 = 8 * a * a;
    const qint64 b8 = 8 * b * b;
    qint64 dx = 4 * (1 - a) * b * b;
    qint64 dy = 4 * (odd + 1) * a * a;
    qint64 error = dx + dy + odd * a * a;
    qint64 y0 = rect.top() + (b + 1) / 2;
    qint64 y1 = y0 - odd;

    const auto plot = [this](qint64 x, qint64 y) { setPixel(QPoint(int(x), int(y)), m_ink); };
    do {
        plot(x1, y0);
        plot(x0, y0);
        plot(x0, y1);
        plot(x1, y1);
        const qint64 twice = 2 * error;
        if (twice <= dy) {
            ++y0;
            --y1;
            dy += a8;
            error += dy;
        }
        if (twice >= dx || 2 * error > dy) {
            ++x0;
            --x1;
            dx += b8;
            error += dx;
        }
    } while (x0 <= x1);

    // The tips of very flat ellipses.
    while (y0 - y1 <= b) {
        plot(x0 - 1, y0);
        plot(x1 + 1, y0);
        plot(x0 - 1, y1);
        plot(x1 + 1, y1);
        ++y0;
        --y1;
    }
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
