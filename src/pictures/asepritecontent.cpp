#include "pictures/asepritecontent.h"

#include <algorithm>

namespace {

constexpr int Opaque = AsepriteFile::Content::Opaque;

int product(int a, int b)
{
    return AsepriteFile::Content::product(a, b);
}

/// A colour laid over another one.
QRgb over(QRgb beneath, QRgb colour, int opacity)
{
    const int alpha = opacity == Opaque ? qAlpha(colour) : product(qAlpha(colour), opacity);
    if (alpha == Opaque)
        return colour;
    if (alpha == 0)
        return beneath;
    const int below = qAlpha(beneath);
    if (below == 0)
        return (colour & RGB_MASK) | QRgb(alpha) << 24;
    const int whole = alpha + below - product(alpha, below);
    const auto mixed = [alpha, whole](int from, int to) { return from + (to - from) * alpha / whole; };
    return qRgba(mixed(qRed(beneath), qRed(colour)), mixed(qGreen(beneath), qGreen(colour)),
                 mixed(qBlue(beneath), qBlue(colour)), whole);
}

} // namespace

QRect AsepriteFile::Content::area(const Cel &cel) const
{
    const QRect canvas(QPoint(), size);
    if (cel.pixels)
        return cel.pixels->size.isEmpty() ? QRect() : QRect(cel.at, cel.pixels->size) & canvas;
    const int tileSet = layers[size_t(cel.layer)].tileSet;
    if (!cel.tiles || cel.tiles->size.isEmpty() || tileSet < 0)
        return {};
    const QSize tile = tileSets[tileSet].tileSize;
    // what is beyond the canvas does not count: it may be more than fits a number
    const auto length = [](int count, int side, int at, int canvasSide) {
        return int(std::min<qint64>(qint64(count) * side, std::max(canvasSide - at, 0)));
    };
    return QRect(cel.at,
                 QSize(length(cel.tiles->size.width(), tile.width(), cel.at.x(), size.width()),
                       length(cel.tiles->size.height(), tile.height(), cel.at.y(), size.height())))
        & canvas;
}

QList<QRgb> AsepriteFile::Content::colourTable(bool withClearIndex) const
{
    QList<QRgb> colours = palette;
    if (isIndexed)
        colours[clearIndex] =
            withClearIndex ? colours.at(clearIndex) & 0x00FFFFFF : colours.at(clearIndex) | 0xFF000000;
    return colours;
}

template <typename Pixel, typename Put>
void AsepriteFile::Content::drawCel(const Cel &cel, const Put &put) const
{
    if (cel.tiles)
        return drawTiles<Pixel>(*cel.tiles, cel, put);
    const QRect seen = area(cel);
    const int width = cel.pixels->size.width();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const qsizetype first = qsizetype(y - cel.at.y()) * width + seen.left() - cel.at.x();
        const Pixel *pixel = cel.pixels->data<Pixel>() + first;
        for (int x = seen.left(); x <= seen.right(); ++x)
            put(x, y, *pixel++);
    }
}

template <typename Pixel, typename Put>
void AsepriteFile::Content::drawTiles(const TileCells &tiles, const Cel &cel, const Put &put) const
{
    const int tileSet = layers[size_t(cel.layer)].tileSet;
    if (tileSet < 0) // it is in another file
        return;
    const QSize side = tileSets[tileSet].tileSize;
    const quint32 first = tileSets[tileSet].firstIsEmpty ? 1 : 0;
    const auto count = quint32(tileSets[tileSet].count);
    const Pixel *pixels = tilePixels[size_t(tileSet)].data<Pixel>();
    const QRect seen = area(cel).translated(-cel.at);
    // divided once, and not for every pixel
    std::vector<std::pair<int, int>> columns(size_t(seen.width()));
    for (int x = seen.left(); x <= seen.right(); ++x)
        columns[size_t(x - seen.left())] = {x / side.width(), x % side.width()};
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const quint32 *row = tiles.cells.data() + qsizetype(y / side.height()) * tiles.size.width();
        const int line = y % side.height();
        for (int x = seen.left(); x <= seen.right(); ++x) {
            const auto [column, columnInTile] = columns[size_t(x - seen.left())];
            const quint32 cell = row[column];
            const quint32 tile = cell & tiles.tileMask;
            if (tile < first || tile >= count) // no tile
                continue;
            int u = cell & tiles.mirrorMask ? side.width() - 1 - columnInTile : columnInTile;
            int v = cell & tiles.flipMask ? side.height() - 1 - line : line;
            if (cell & tiles.swapMask)
                std::swap(u, v);
            // of tiles that are not square, what is turned lacks some pixels
            if (u < side.width() && v < side.height())
                put(x + cel.at.x(), y + cel.at.y(), pixels[(qsizetype(tile) * side.height() + v) * side.width() + u]);
        }
    }
}

bool AsepriteFile::Content::keepsIndices(const Frame &frame) const
{
    if (!isIndexed)
        return false;
    bool isCovered = !hasBackground; // else what a background leaves free has no index
    for (const Cel &cel : frame.cels) {
        const Layer &layer = layers[size_t(cel.layer)];
        if (opacityOf(cel) != Opaque)
            return false;
        isCovered = isCovered || (layer.isBackground && area(cel) == QRect(QPoint(), size));
    }
    // a colour that is partly clear becomes another one above others
    const auto isOpaque = [](QRgb colour) { return qAlpha(colour) == Opaque; };
    const QList<QRgb> colours = colourTable(false);
    return isCovered && (frame.cels.size() < 2 || std::all_of(colours.cbegin(), colours.cend(), isOpaque));
}

int AsepriteFile::Content::opacityOf(const Cel &cel) const
{
    return product(cel.opacity, layers[size_t(cel.layer)].opacity);
}

QImage AsepriteFile::Content::draw(const Frame &frame) const
{
    return keepsIndices(frame) ? drawIndices(frame) : drawColours(frame);
}

QImage AsepriteFile::Content::drawIndices(const Frame &frame) const
{
    QImage image(size, QImage::Format_Indexed8);
    if (image.isNull())
        return {};
    image.setColorTable(colourTable(!hasBackground));
    image.fill(uint(clearIndex));
    uchar *bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    for (const Cel &cel : frame.cels) {
        const bool coversAll = layers[size_t(cel.layer)].isBackground;
        drawCel<uchar>(cel, [this, bits, stride, coversAll](int x, int y, uchar index) {
            if (coversAll || index != clearIndex)
                bits[y * stride + x] = index;
        });
    }
    return image;
}

QImage AsepriteFile::Content::drawColours(const Frame &frame) const
{
    QImage image(size, QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    image.fill(0U);
    auto *pixels = reinterpret_cast<QRgb *>(image.bits());
    const qsizetype width = size.width();
    for (const Cel &cel : frame.cels) {
        const int opacity = opacityOf(cel);
        const auto put = [pixels, width, opacity](int x, int y, QRgb colour) {
            QRgb &pixel = pixels[y * width + x];
            pixel = over(pixel, colour, opacity);
        };
        if (isIndexed) {
            const QList<QRgb> colours = colourTable(!layers[size_t(cel.layer)].isBackground);
            drawCel<uchar>(cel, [&put, &colours](int x, int y, uchar index) { put(x, y, colours.at(index)); });
        } else {
            drawCel<QRgb>(cel, put);
        }
    }
    return image;
}
