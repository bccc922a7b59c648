#include "model/placedsprites.h"

#include "model/spriteanim.h"
#include "model/spritebank.h"

#include <QPainter>

#include <algorithm>

namespace PlacedSprites {
namespace {

constexpr int TileSize = TileMap::TileSize;
/// Beyond any map, and far enough from the ends of an int to reckon with; a damaged project may hold anything.
constexpr int MaxCoordinate = 1 << 28;

const SpriteBank *bankOf(const Map::PlacedSprite &sprite, const Banks &banks)
{
    const auto found = std::find_if(banks.cbegin(), banks.cend(), [&sprite](const QPointer<SpriteBank> &bank) {
        return bank && bank->id() == sprite.bank;
    });
    return found == banks.cend() ? nullptr : found->data();
}

/// The size in sprites, before any rotation; empty when the bank does not have what is placed.
QSize sizeInSprites(const Map::PlacedSprite &sprite, const SpriteBank *bank)
{
    if (!bank)
        return {};
    if (sprite.animation.isNull())
        return sprite.sprite >= 0 && sprite.sprite < bank->count() ? QSize(1, 1) : QSize();
    const QPointer<SpriteAnim> animation = bank->animation(sprite.animation);
    return animation ? animation->size() : QSize();
}

QRect areaIn(const SpriteBank *bank, const Map::PlacedSprite &sprite)
{
    const QSize size = sizeInSprites(sprite, bank) * SpriteBank::SpriteSize;
    if (size.isEmpty() || qAbs(qint64(sprite.x)) > MaxCoordinate || qAbs(qint64(sprite.y)) > MaxCoordinate)
        return {};
    return {QPoint(sprite.x, sprite.y), sprite.rotate ? size.transposed() : size};
}

int frameAt(qint64 time, const Map::PlacedSprite &sprite, const SpriteAnim &animation)
{
    return sprite.currentFrame(animation.frameCount(), animation.delay(), time);
}

QImage pictureFrom(const SpriteBank &bank, const Map::PlacedSprite &sprite, qint64 time)
{
    if (sprite.animation.isNull())
        return bank.renderSprite(sprite.sprite, sprite.paletteOffset, sprite.rotate, sprite.flip, sprite.mirror);
    const QPointer<SpriteAnim> animation = bank.animation(sprite.animation);
    if (!animation)
        return {};
    return animation->frameImage(frameAt(time, sprite, *animation), sprite.paletteOffset, sprite.rotate, sprite.flip,
                                 sprite.mirror);
}

} // namespace

QRect area(const Map::PlacedSprite &sprite, const Banks &banks)
{
    return areaIn(bankOf(sprite, banks), sprite);
}

QImage picture(const Map::PlacedSprite &sprite, const Banks &banks, qint64 time)
{
    const SpriteBank *bank = bankOf(sprite, banks);
    return bank ? pictureFrom(*bank, sprite, time) : QImage();
}

bool changesBetween(qint64 first, qint64 second, const Map::PlacedSprite &sprite, const Banks &banks)
{
    const SpriteBank *bank = sprite.animation.isNull() ? nullptr : bankOf(sprite, banks);
    const QPointer<SpriteAnim> animation = bank ? bank->animation(sprite.animation) : nullptr;
    return animation && frameAt(first, sprite, *animation) != frameAt(second, sprite, *animation);
}

int indexAt(QPoint pixel, const QList<Map::PlacedSprite> &sprites, const Banks &banks)
{
    for (auto i = int(sprites.size()) - 1; i >= 0; --i) {
        if (area(sprites[i], banks).contains(pixel))
            return i;
    }
    return -1;
}

void paint(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, const QList<Map::PlacedSprite> &sprites,
           const Banks &banks, qint64 time)
{
    const QRect shown(cells.topLeft() * TileSize, cells.size() * TileSize);
    const auto toScreen = [&](QPoint pixel) { return origin + (pixel - shown.topLeft()) * cellSize / TileSize; };

    painter.save();
    painter.setClipRect(QRect(origin, cells.size() * cellSize), Qt::IntersectClip);
    for (const Map::PlacedSprite &sprite : sprites) {
        const SpriteBank *bank = bankOf(sprite, banks);
        const QRect pixels = areaIn(bank, sprite);
        if (!pixels.intersects(shown))
            continue;
        const QPoint end(pixels.right() + 1, pixels.bottom() + 1);
        painter.drawImage(QRect(toScreen(pixels.topLeft()), toScreen(end) - QPoint(1, 1)),
                          pictureFrom(*bank, sprite, time));
    }
    painter.restore();
}

} // namespace PlacedSprites
