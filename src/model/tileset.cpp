#include "model/tileset.h"

#include "model/mapobjects.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/transform.h"

#include <QColor>
#include <QLoggingCategory>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr int ColourCount = 256;

QImage blankImage()
{
    static const QImage blank = [] {
        QImage image(Tile::Size, Tile::Size, QImage::Format_Indexed8);
        image.setColorTable(QList<QRgb>(ColourCount, qRgb(0, 0, 0)));
        image.fill(0);
        return image;
    }();
    return blank;
}

/// A tile's pixel as it is shown with a palette offset.
constexpr uchar shown(uchar pixel, int offset)
{
    return static_cast<uchar>((pixel & 0x0F) + (static_cast<uint>(offset) << 4));
}

} // namespace

Tile::Tile(QObject *parent) : Tile(State{blankImage()}, parent) { }

Tile::Tile(const State &state, QObject *parent) : QObject(parent), m_state(state) { }

void Tile::setImage(const QImage &image)
{
    QImage copy = NxImage::indexed(image, nullptr).copy();
    // whoever paints looks pixels up in the table without a check
    if (!copy.isNull() && copy.colorCount() < ColourCount)
        copy.setColorCount(ColourCount);
    m_state.image = copy;
}

Tile::Pixels Tile::pixels() const
{
    Pixels pixels{};
    const QImage &image = m_state.image;
    const int width = std::min(image.width(), Size);
    const int height = std::min(image.height(), Size);
    const uchar *row = image.constBits();
    for (int y = 0; y < height; ++y, row += image.bytesPerLine())
        std::memcpy(pixels.data() + y * Size, row, static_cast<size_t>(width));
    return pixels;
}

bool Tile::hasAttribute(int flag) const
{
    return flag == TA_NONE ? m_state.attributes == TA_NONE : (m_state.attributes & flag) == flag;
}

void Tile::setAttribute(int flag, bool on)
{
    m_state.attributes = on ? m_state.attributes | flag : m_state.attributes & ~flag;
}

void Tile::setColour(int index, const QColor &colour)
{
    m_state.image.setColor(index, colour.rgb());
}

Tile *Tile::clone() const
{
    return new Tile(m_state);
}

QByteArray Tile::toNextData() const
{
    const Pixels pixels = this->pixels();
    QByteArray bytes(DataSize, Qt::Uninitialized);
    for (int i = 0; i < DataSize; ++i) {
        const size_t pair = static_cast<size_t>(i) * 2;
        bytes[i] = static_cast<char>((pixels[pair] & 0x0F) << 4 | (pixels[pair + 1] & 0x0F));
    }
    return bytes;
}

TileSet::TileSet(int count, QObject *parent) : QObject(parent)
{
    m_tiles.reserve(static_cast<size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i)
        m_tiles.push_back(std::make_unique<Tile>(this));
}

void TileSet::registerBlocks(const QPointer<MapObjects> &blocks)
{
    if (blocks && !m_blockSets.value(blocks->id()))
        m_blockSets.insert(blocks->id(), blocks);
}

Tile *TileSet::tile(int index) const
{
    return contains(index) ? m_tiles[static_cast<size_t>(index)].get() : nullptr;
}

QImage TileSet::image(int index) const
{
    return contains(index) ? tile(index)->image() : QImage();
}

int TileSet::tileOffset(int index) const
{
    return contains(index) ? tile(index)->offset() : 0;
}

namespace {

QImage shownWithOffset(QImage image, int offset)
{
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        uchar *row = image.scanLine(y);
        std::transform(row, row + width, row, [offset](uchar pixel) { return shown(pixel, offset); });
    }
    return image;
}

/// Writes pixels with an offset and in an orientation.
void render(Tile::Pixels pixels, bool rotate, bool flip, bool mirror, int offset, uchar *target, qsizetype stride)
{
    constexpr int size = Tile::Size;
    for (uchar &pixel : pixels)
        pixel = shown(pixel, offset);
    // Source steps for one pixel to the right and one down in the target: flipped and mirrored
    // directions run backwards, and under a clockwise turn going right means going up in the source.
    const int right = rotate ? -size : 1;
    const int down = rotate ? 1 : size;
    const int columnStep = mirror ? -right : right;
    const int rowStep = flip ? -down : down;
    const auto firstOf = [](int step) { return step < 0 ? -step * (size - 1) : 0; };
    int from = firstOf(columnStep) + firstOf(rowStep);
    for (int y = 0; y < size; ++y, target += stride, from += rowStep) {
        for (int x = 0; x < size; ++x)
            target[x] = pixels[static_cast<size_t>(from + x * columnStep)];
    }
}

} // namespace

QImage TileSet::tileImage(int index, bool rotate, bool flip, bool mirror, int offset) const
{
    if (!contains(index)) {
        qInfo() << "Image index out of range" << index;
        return blankImage();
    }
    return oriented(shownWithOffset(tile(index)->image(), offset), rotate, flip, mirror);
}

void TileSet::renderTile(int index, bool rotate, bool flip, bool mirror, int offset, uchar *target,
                         qsizetype stride) const
{
    if (contains(index))
        render(tile(index)->pixels(), rotate, flip, mirror, offset, target, stride);
    else
        render({}, rotate, flip, mirror, 0, target, stride);
}

void TileSet::showPainted(int index, const QImage &pixels)
{
    const bool isPicture = pixels.size() == QSize(Tile::Size, Tile::Size) && pixels.format() == QImage::Format_Indexed8;
    const auto before = std::exchange(m_painted, isPicture ? std::optional(Painted{index, pixels}) : std::nullopt);
    if (before && !(m_painted && index == before->index))
        emit tileChanged(before->index);
    if (m_painted)
        emit tileChanged(index);
}

QImage TileSet::shownTileImage(int index, bool rotate, bool flip, bool mirror, int offset) const
{
    const QImage image = isPainted(index) ? oriented(shownWithOffset(m_painted->pixels, offset), rotate, flip, mirror)
                                          : tileImage(index, rotate, flip, mirror, offset);
    return m_palette ? m_palette->shown(image) : image;
}

void TileSet::renderShownTile(int index, bool rotate, bool flip, bool mirror, int offset, uchar *target,
                              qsizetype stride) const
{
    if (!isPainted(index)) {
        renderTile(index, rotate, flip, mirror, offset, target, stride);
        return;
    }
    Tile::Pixels pixels{};
    for (int y = 0; y < Tile::Size; ++y)
        std::memcpy(pixels.data() + y * Tile::Size, m_painted->pixels.constScanLine(y), Tile::Size);
    render(pixels, rotate, flip, mirror, offset, target, stride);
}

void TileSet::setTileOffset(int index, int offset)
{
    if (contains(index))
        tile(index)->setOffset(offset);
}

void TileSet::setTileImage(int index, const QImage &image)
{
    if (contains(index))
        tile(index)->setImage(image);
}

void TileSet::copyTile(int from, int to)
{
    if (from == to || !contains(from) || !contains(to))
        return;
    emit structureAboutToChange();
    tile(to)->setImage(tile(from)->image());
    tile(to)->setOffset(tile(from)->offset());
    emit tileChanged(to);
    emit structureChanged(tr("Copy Tile"));
}

void TileSet::deleteTile(int index)
{
    if (!contains(index))
        return;
    emit structureAboutToChange();
    m_tiles.erase(m_tiles.begin() + index);
    emit tileDeleted(index);
    emit structureChanged(tr("Delete Tile"));
}

void TileSet::insertTile(int index)
{
    if (index < 0 || index > count())
        return;
    emit structureAboutToChange();
    auto tile = std::make_unique<Tile>(this);
    tile->setOffset(1);
    m_tiles.insert(m_tiles.begin() + index, std::move(tile));
    emit tileInserted(index);
    emit structureChanged(tr("Insert Tile"));
}

void TileSet::moveTile(int from, int to)
{
    if (from == to || !contains(from) || !contains(to))
        return;
    emit structureAboutToChange();
    const int step = from < to ? 1 : -1;
    for (int i = from; i != to; i += step) {
        m_tiles[static_cast<size_t>(i)].swap(m_tiles[static_cast<size_t>(i + step)]);
        emit tileSwapped(i, i + step);
    }
    emit structureChanged(tr("Move Tile"));
}

void TileSet::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(name);
}

void TileSet::setPalette(QPointer<Palette> palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    m_paletteId = QUuid();
    if (m_palette) {
        m_paletteId = m_palette->id();
        connect(m_palette.data(), &Palette::colourChanged, this, &TileSet::updateColour);
        connect(m_palette.data(), &Palette::shownColoursChanged, this, &TileSet::shownColoursChanged);
    }
}

void TileSet::updateColour(int index, QColor colour)
{
    for (const auto &tile : m_tiles)
        tile->setColour(index, colour);
    emit tileChanged(0);
}

void TileSet::notifyImageChanged(int index)
{
    emit tileChanged(index);
}

void TileSet::clearImage(int index)
{
    if (!contains(index))
        return;
    tile(index)->setImage(imageOf({}));
    emit tileChanged(index);
}

void TileSet::importImage(int index, const QImage &image, int offset)
{
    if (!contains(index) || !m_palette || image.isNull())
        return;
    tile(index)->setOffset(offset);
    tile(index)->setImage(NxImage(image.copy(image.rect() & QRect(0, 0, Tile::Size, Tile::Size))).remap(m_palette));
    emit tileChanged(index);
}

TileSet::Snapshot TileSet::snapshot() const
{
    Snapshot states;
    states.reserve(count());
    for (const auto &tile : m_tiles)
        states.append(tile->state());
    return states;
}

void TileSet::restore(const Snapshot &snapshot)
{
    replaceTiles(snapshot);
    emit restored();
}

void TileSet::copyTilesFrom(const TileSet &other)
{
    replaceTiles(other.snapshot());
}

void TileSet::replaceTiles(const Snapshot &states)
{
    m_tiles.clear();
    m_tiles.reserve(static_cast<size_t>(states.size()));
    for (const Tile::State &state : states)
        m_tiles.push_back(std::make_unique<Tile>(state, this));
}

QImage TileSet::toStrip() const
{
    QImage strip(Tile::Size, count() * Tile::Size, QImage::Format_Indexed8);
    strip.setColorTable(colourTable());
    for (int i = 0; i < count(); ++i) {
        const Tile::Pixels pixels = tile(i)->pixels();
        for (int y = 0; y < Tile::Size; ++y)
            std::memcpy(strip.scanLine(i * Tile::Size + y), pixels.data() + y * Tile::Size, Tile::Size);
    }
    return strip;
}

bool TileSet::setStrip(const QImage &strip)
{
    if (m_tiles.empty() && strip.isNull())
        return true;
    if (strip.size() != QSize(Tile::Size, count() * Tile::Size) || strip.format() != QImage::Format_Indexed8)
        return false;
    for (int i = 0; i < count(); ++i)
        tile(i)->setImage(strip.copy(0, i * Tile::Size, Tile::Size, Tile::Size));
    return true;
}

QList<QRgb> TileSet::colourTable() const
{
    return m_palette ? m_palette->colourTable() : blankImage().colorTable();
}

QImage TileSet::imageOf(const Tile::Pixels &pixels) const
{
    QImage image(Tile::Size, Tile::Size, QImage::Format_Indexed8);
    image.setColorTable(colourTable());
    for (int y = 0; y < Tile::Size; ++y)
        std::memcpy(image.scanLine(y), pixels.data() + y * Tile::Size, Tile::Size);
    return image;
}
