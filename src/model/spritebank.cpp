#include "model/spritebank.h"

#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/rawfile.h"
#include "model/spriteanim.h"
#include "model/transform.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

SpriteBank::SpriteBank(Quenmora::Sprite depth, QObject *parent)
    : QObject(parent)
    , m_depth(depth)
    , m_image(SpriteSize, SpriteSize, QImage::Format_Indexed8)
{
    m_image.fill(0);
    applyColours();
}

void SpriteBank::setPalette(Palette *palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (!palette)
        return;
    connect(palette, &Palette::colourChanged, this, &SpriteBank::updateColour);
    connect(palette, &Palette::shownColoursChanged, this, &SpriteBank::shownColoursChanged);
    applyColours();
    emit coloursChanged();
}

void SpriteBank::updateColour(int, QColor, bool)
{
    applyColours();
    emit coloursChanged();
}

void SpriteBank::changeTransparency(int transparency)
{
    if (transparency == m_transparency)
        return;
    m_transparency = transparency;
    emit coloursChanged();
}

/// Gives the strip the palette's colours, or black for those that it lacks without one: painting a picture
/// with an index that has no colour reads past its table. It stays shared with snapshots when nothing changes.
void SpriteBank::applyColours()
{
    QList<QRgb> colours = m_palette ? m_palette->colourTable() : m_image.colorTable();
    if (const qsizetype missing = Palette::Size - colours.size(); missing > 0)
        colours.append(QList<QRgb>(missing, qRgb(0, 0, 0)));
    if (m_image.colorTable() != colours)
        m_image.setColorTable(colours);
}

// Pixels

void SpriteBank::setWholeImage(const QImage &image)
{
    const int sprites = std::clamp(image.height() / SpriteSize, 1, MaxCount);
    const QImage strip = NxImage::indexed(image.copy(0, 0, SpriteSize, sprites * SpriteSize), m_palette);
    if (strip.isNull())
        return;
    m_image = strip;
    applyColours();
}

/// Grows the strip by blank sprites, or cuts it.
void SpriteBank::resize(int count)
{
    // the area that copy() adds has pixels of 0
    m_image = m_image.copy(0, 0, SpriteSize, count * SpriteSize);
}

/// Overwrites a sprite with 256 indices. A row of the strip is 16 bytes, so a sprite lies in one piece.
void SpriteBank::writePixels(int index, const uchar *pixels)
{
    std::memcpy(m_image.scanLine(index * SpriteSize), pixels, SpriteBytes);
}

void SpriteBank::setImage(int index, const QImage &image)
{
    const QImage sprite = NxImage::indexed(image.copy(0, 0, SpriteSize, SpriteSize), m_palette);
    if (!contains(index) || sprite.isNull())
        return;
    writePixels(index, sprite.constBits());
    emit imageChanged(index);
}

QImage SpriteBank::spriteImage(int index, bool rotate, bool flip, bool mirror) const
{
    // beyond the last row copy() yields pixels of 0: the blank sprite that stands for no sprite
    const int row = contains(index) ? index * SpriteSize : m_image.height();
    return oriented(m_image.copy(0, row, SpriteSize, SpriteSize), rotate, flip, mirror);
}

void SpriteBank::showPainted(int index, const QImage &pixels)
{
    const bool isPicture = pixels.size() == QSize(SpriteSize, SpriteSize) && pixels.format() == QImage::Format_Indexed8;
    const auto before = std::exchange(m_painted, isPicture ? std::optional(Painted{index, pixels}) : std::nullopt);
    if (before && !(m_painted && index == before->index))
        emit imageChanged(before->index);
    if (m_painted)
        emit imageChanged(index);
}

QImage SpriteBank::shownSpriteImage(int index, bool rotate, bool flip, bool mirror) const
{
    const QImage image = m_painted && m_painted->index == index ? oriented(m_painted->pixels, rotate, flip, mirror)
                                                                : spriteImage(index, rotate, flip, mirror);
    return m_palette ? m_palette->shown(image) : image;
}

QImage SpriteBank::renderSprite(int index, int paletteOffset, bool rotate, bool flip, bool mirror) const
{
    if (!contains(index))
        return {};
    const QList<QRgb> colours = m_palette ? m_palette->shown(m_image.colorTable()) : m_image.colorTable();
    const int bank = m_depth == Quenmora::FourBit ? (paletteOffset & 15) << 4 : 0;
    const int mask = clearPixels().pixelCount() - 1;
    const int transparent = clearPixels().pixel();

    const bool isPainted = m_painted && m_painted->index == index;
    QImage sprite(SpriteSize, SpriteSize, QImage::Format_ARGB32);
    for (int y = 0; y < SpriteSize; ++y) {
        const uchar *pixels =
            isPainted ? m_painted->pixels.constScanLine(y) : m_image.constScanLine(index * SpriteSize + y);
        auto *out = reinterpret_cast<QRgb *>(sprite.scanLine(y));
        for (int x = 0; x < SpriteSize; ++x) {
            const int pixel = pixels[x] & mask;
            const int colour = bank | pixel;
            const bool visible = pixel != transparent && colour < colours.size();
            out[x] = visible ? colours[colour] | 0xFF000000U : 0;
        }
    }
    return oriented(sprite, rotate, flip, mirror);
}

// Sprites

void SpriteBank::addSprite(bool emitSignal)
{
    if (!hasRoomFor(1))
        return;
    resize(count() + 1);
    if (emitSignal)
        emit countChanged();
}

void SpriteBank::deleteSprite(int index)
{
    if (!contains(index))
        return;
    if (count() == 1) {
        m_image.fill(0);
        return;
    }
    uchar *deleted = m_image.scanLine(index * SpriteSize);
    std::memmove(deleted, deleted + SpriteBytes, size_t(count() - 1 - index) * SpriteBytes);
    resize(count() - 1);
    for (const auto &animation : animations())
        animation->indexDeleted(index);
    emit spriteDeleted(index);
    emit countChanged();
}

void SpriteBank::clearSprite(int index)
{
    if (!contains(index))
        return;
    std::memset(m_image.scanLine(index * SpriteSize), 0, SpriteBytes);
    emit imageChanged(index);
}

void SpriteBank::copySprite(int from, int to)
{
    if (!contains(from) || !contains(to))
        return;
    setImage(to, spriteImage(from, false, false, false));
    emit imageChanged(from);
}

void SpriteBank::moveSprite(int from, int to)
{
    if (from == to || !contains(from) || !contains(to))
        return;
    const QImage moved = spriteImage(from, false, false, false);
    const int step = from < to ? 1 : -1;
    for (int i = from; i != to; i += step) {
        setImage(i, spriteImage(i + step, false, false, false));
        emit spriteSwapped(i, i + step);
    }
    setImage(to, moved);
    emit spriteSwapped(to, from);
    for (const auto &animation : animations())
        animation->indexMoved(from, to);
    emit spriteMoved(from, to);
}

// Files

bool SpriteBank::importSpr(const QString &fileName)
{
    QFile file(fileName);
    if (!RawFile::openForReading(file) || !hasRoomFor(file.size() / SpriteBytes))
        return false;
    const QByteArray data = file.read(file.size());
    const int first = count();
    const int sprites = int(data.size() / SpriteBytes);
    // grown once, so that a long file does not copy the strip for every sprite
    resize(first + sprites);
    for (int i = 0; i < sprites; ++i)
        writePixels(first + i, reinterpret_cast<const uchar *>(data.constData()) + i * SpriteBytes);
    for (int i = 0; i < sprites; ++i) {
        emit countChanged();
        emit imageChanged(first + i);
    }
    return true;
}

bool SpriteBank::exportSpr(const QString &fileName) const
{
    const auto *pixels = reinterpret_cast<const char *>(m_image.constBits());
    return RawFile::write(fileName, QByteArray::fromRawData(pixels, m_image.sizeInBytes()));
}

int SpriteBank::importImageFile(const QString &fileName)
{
    NxImage picture;
    if (!picture.load(fileName)) {
        qInfo("Failed to load image");
        return -1;
    }
    const QImage mapped = m_palette ? picture.remap(m_palette) : QImage();
    if (mapped.isNull()) {
        qInfo("Could not remap colours");
        return -1;
    }
    return appendPieces(mapped);
}

int SpriteBank::appendPieces(const QImage &indexed)
{
    const int columns = indexed.width() / SpriteSize;
    const int rows = indexed.height() / SpriteSize;
    if (!hasRoomFor(qsizetype(rows) * columns)) {
        qInfo("Failed to load image");
        return -1;
    }
    const int first = count();
    resize(first + rows * columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPoint corner(column * SpriteSize, row * SpriteSize);
            setImage(first + row * columns + column, indexed.copy({corner, QSize(SpriteSize, SpriteSize)}));
        }
    }
    emit countChanged();
    return count();
}

int SpriteBank::importSlicedImage(const QString &fileName)
{
    const QImage picture = PictureFile::read(fileName).image;
    if (picture.isNull()) {
        qInfo("Failed to load image");
        return -1;
    }
    ImageSlicer slicer(picture);
    slicer.sliceSprites(SpriteSize);
    return importPieces(slicer);
}

int SpriteBank::importPieces(const ImageSlicer &slicer)
{
    const int pieces = slicer.pieceCount();
    if (!hasRoomFor(pieces)) {
        qInfo("Failed to load image");
        return -1;
    }
    const int second = count();
    resize(second + qMax(0, pieces - 1));
    for (int i = 0; i < pieces; ++i) {
        if (i > 0)
            emit countChanged();
        setImage(i == 0 ? 0 : second + i - 1, slicer.piece(i));
    }
    if (m_palette) {
        const QList<QRgb> colours = slicer.colours();
        for (int i = 0; i < qMin<qsizetype>(colours.size(), Palette::Size); ++i)
            m_palette->setColour(i, QColor(colours[i]), false);
    }
    return pieces;
}

void SpriteBank::importImage(int index, const QImage &image)
{
    if (m_palette && !image.isNull())
        setImage(index, NxImage(image.copy(0, 0, SpriteSize, SpriteSize)).remap(m_palette));
}

// Animations

QPointer<SpriteAnim> SpriteBank::addAnimation(QUuid id)
{
    const QPointer<SpriteAnim> added = new SpriteAnim(this);
    if (!animation(id))
        added->setId(id);
    m_animations.insert(added);
    emit animationsChanged();
    return added;
}

QPointer<SpriteAnim> SpriteBank::newAnimation()
{
    return addAnimation(QUuid::createUuid());
}

void SpriteBank::deleteAnimation(QUuid id)
{
    std::unique_ptr<SpriteAnim> deleted(m_animations.take(id));
    if (!deleted)
        return;
    deleted.reset();
    emit animationsChanged();
}

// Undo

bool SpriteBank::State::operator==(const State &other) const
{
    return image.size() == other.image.size()
        && std::equal(image.constBits(), image.constBits() + image.sizeInBytes(), other.image.constBits())
        && animations == other.animations;
}

SpriteBank::State SpriteBank::snapshot() const
{
    State state{m_image, {}};
    for (const auto &animation : animations())
        state.animations.insert(animation->id(), animation->state());
    return state;
}

void SpriteBank::restore(const State &state)
{
    m_image = state.image;
    // the palette may have changed since the snapshot
    applyColours();
    for (const auto &animation : animations()) {
        const auto saved = state.animations.constFind(animation->id());
        if (saved != state.animations.constEnd())
            animation->restore(*saved);
    }
    emit countChanged();
    emit restored();
}
