#include "undo/structurechange.h"

#include <QSet>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace {

using Names = Numbering::Names;

bool samePixels(const QImage &a, const QImage &b)
{
    if (a.cacheKey() == b.cacheKey())
        return true;
    if (a.size() != b.size() || a.format() != b.format())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        if (!std::equal(a.constScanLine(y), a.constScanLine(y) + a.width(), b.constScanLine(y)))
            return false;
    }
    return true;
}

bool sameTile(const Tile::State &a, const Tile::State &b)
{
    return a.offset == b.offset && a.attributes == b.attributes && a.value == b.value && samePixels(a.image, b.image);
}

/// Gives what is still as it was after an edit the value from before it.
template <typename Value>
void putBack(Value &now, const Value &before, const Value &after)
{
    if (now == after)
        now = before;
}

QByteArray spriteAt(const QImage &strip, int number)
{
    return {reinterpret_cast<const char *>(strip.constScanLine(number * SpriteBank::SpriteSize)),
            SpriteBank::SpriteBytes};
}

QImage stripOf(const QList<QByteArray> &sprites, const QImage &like)
{
    QImage strip(SpriteBank::SpriteSize, int(sprites.size()) * SpriteBank::SpriteSize, QImage::Format_Indexed8);
    strip.setColorTable(like.colorTable());
    for (int i = 0; i < sprites.size(); ++i)
        std::memcpy(strip.scanLine(i * SpriteBank::SpriteSize), sprites.at(i).constData(), SpriteBank::SpriteBytes);
    return strip;
}

/// The order after the way back from a change of it. What another step has brought back since is not there twice,
/// what another step has deleted since does not come back by being moved back, for only the things that this change
/// took away are kept, and an asset that would become too small or too large stays as it is.
template <typename Item>
Names orderAfter(const ListChange<int> &change, const Names &now, const QHash<int, Item> &kept, qsizetype least,
                 qsizetype most)
{
    Names names = now;
    change.apply(EditSide::Before, names);
    const QSet<int> present(now.cbegin(), now.cend());
    QSet<int> seen;
    names.removeIf([&](int name) {
        const bool isTwice = seen.contains(name);
        seen.insert(name);
        return isTwice || (!present.contains(name) && !kept.contains(name));
    });
    return names.size() < least || names.size() > most ? now : names;
}

/// The things that each name stands for.
template <typename Item>
QHash<int, Item> byName(const Names &names, const QList<Item> &items)
{
    QHash<int, Item> found;
    found.reserve(items.size());
    for (qsizetype i = 0; i < items.size(); ++i)
        found.insert(names.at(i), items.at(i));
    return found;
}

/// Notes what an edit deleted, and what it left with another content.
template <typename Item, typename Same>
void noteChanged(const QHash<int, Item> &before, const QHash<int, Item> &after, Same same, QHash<int, Item> &was,
                 QHash<int, Item> &became)
{
    for (auto item = before.cbegin(); item != before.cend(); ++item) {
        const auto left = after.constFind(item.key());
        if (left != after.cend() && same(item.value(), left.value()))
            continue;
        was.insert(item.key(), item.value());
        if (left != after.cend())
            became.insert(item.key(), left.value());
    }
}

QList<QByteArray> spritesOf(const SpriteBank::State &bank)
{
    QList<QByteArray> sprites;
    for (int i = 0; i < bank.image.height() / SpriteBank::SpriteSize; ++i)
        sprites.append(spriteAt(bank.image, i));
    return sprites;
}

} // namespace

bool TileSetEdit::looksLike(const TileSetEdit &other) const
{
    return std::equal(tiles.cbegin(), tiles.cend(), other.tiles.cbegin(), other.tiles.cend(), sameTile)
        && maps == other.maps && animations == other.animations;
}

bool SpriteBankEdit::looksLike(const SpriteBankEdit &other) const
{
    return bank == other.bank && maps == other.maps;
}

template <typename State>
FramesChange::FramesChange(const QHash<QUuid, State> &before, const QHash<QUuid, State> &after, const Renumbering &back)
{
    for (auto animation = before.cbegin(); animation != before.cend(); ++animation) {
        QHash<QUuid, AnimationFrame::Cells> left;
        for (const auto &frame : after.value(animation.key()).frames)
            left.insert(frame.id, renumbered(frame.cells, back));
        for (const auto &frame : animation->frames) {
            const FrameChange changed(frame.cells, left.value(frame.id, frame.cells));
            if (!changed.changesNothing())
                m_frames.insert({animation.key(), frame.id}, changed);
        }
    }
}

template <typename State>
void FramesChange::undo(QHash<QUuid, State> &animations, const Renumbering &back, const Renumbering &since) const
{
    for (auto animation = animations.begin(); animation != animations.end(); ++animation) {
        for (auto &frame : animation->frames) {
            frame.cells = renumbered(frame.cells, back);
            if (const auto changed = m_frames.constFind({animation.key(), frame.id}); changed != m_frames.cend())
                changed->renumbered(since).applyWhereUntouched(EditSide::Before, frame.cells);
        }
    }
}

TileSetChange::TileSetChange(const TileSetEdit &before, const TileSetEdit &after)
    : m_order(before.names, after.names)
    , m_names(before.names)
{
    noteChanged(byName(before.names, before.tiles), byName(after.names, after.tiles), sameTile, m_before, m_after);
    const Renumbering back(after.names, before.names);
    for (auto map = before.maps.cbegin(); map != before.maps.cend(); ++map) {
        const auto left = after.maps.constFind(map.key());
        if (left == after.maps.cend())
            continue;
        const Layers changed{LayerChange(map->tiles, renumbered(left->tiles, back, map->tiles)),
                             LayerChange(map->objects, renumbered(left->objects, back, map->objects)), left->origin};
        if (!changed.tiles.changesNothing() || !changed.objects.changesNothing())
            m_maps.insert(map.key(), changed);
    }
    m_frames = FramesChange(before.animations, after.animations, back);
}

TileSetEdit TileSetChange::undone(const TileSetEdit &now) const
{
    TileSetEdit result = now;
    result.names = orderAfter(m_order, now.names, m_before, 0, std::numeric_limits<int>::max());

    const QHash<int, Tile::State> present = byName(now.names, now.tiles);
    result.tiles.clear();
    for (const int name : std::as_const(result.names)) {
        const auto is = present.constFind(name);
        const auto was = m_before.constFind(name);
        const auto became = m_after.constFind(name);
        Tile::State tile = is != present.cend() ? *is : m_before.value(name);
        if (is != present.cend() && became != m_after.cend()) {
            if (samePixels(tile.image, became->image))
                tile.image = was->image;
            putBack(tile.offset, was->offset, became->offset);
            putBack(tile.attributes, was->attributes, became->attributes);
            putBack(tile.value, was->value, became->value);
        }
        result.tiles.append(tile);
    }

    const Renumbering back(now.names, result.names);
    const Renumbering since(m_names, result.names);
    for (auto map = result.maps.begin(); map != result.maps.end(); ++map) {
        map->tiles = renumbered(map->tiles, back);
        map->objects = renumbered(map->objects, back);
        if (const auto changed = m_maps.constFind(map.key()); changed != m_maps.cend()) {
            const QPoint shift = map->origin - changed->origin;
            changed->tiles.renumbered(since).moved(shift).applyWhereUntouched(EditSide::Before, map->tiles);
            changed->objects.renumbered(since).moved(shift).applyWhereUntouched(EditSide::Before, map->objects);
        }
    }
    m_frames.undo(result.animations, back, since);
    return result;
}

void TileSetChange::reorder(const PaletteOrder &order, const TileSet &)
{
    for (auto *states : {&m_before, &m_after}) {
        for (Tile::State &state : *states)
            state.image = order.inGroup(state.image, std::max(state.offset, 0));
    }
}

SpriteBankChange::SpriteBankChange(const SpriteBankEdit &before, const SpriteBankEdit &after, const QUuid &bankId)
    : m_bankId(bankId)
    , m_order(before.names, after.names)
    , m_names(before.names)
{
    noteChanged(byName(before.names, spritesOf(before.bank)), byName(after.names, spritesOf(after.bank)),
                std::equal_to<>(), m_before, m_after);
    const Renumbering back(after.names, before.names);
    for (auto map = before.maps.cbegin(); map != before.maps.cend(); ++map) {
        const SpriteBankEdit::Placed left = after.maps.value(map.key(), *map);
        const ListChange<Map::PlacedSprite> changed(map->sprites, renumbered(left.sprites, bankId, back));
        if (!changed.changesNothing())
            m_maps.insert(map.key(), {changed, left.origin});
    }
    m_frames = FramesChange(before.bank.animations, after.bank.animations, back);
}

void SpriteBankChange::reorder(const PaletteOrder &order, const SpriteBank &bank)
{
    const bool fourBit = bank.depth() == Quenmora::FourBit;
    for (auto *sprites : {&m_before, &m_after}) {
        for (QByteArray &pixels : *sprites) {
            for (char &pixel : pixels)
                pixel = char(fourBit ? order.inGroup(uchar(pixel), 0) : order(uchar(pixel)));
        }
    }
}

SpriteBankEdit SpriteBankChange::undone(const SpriteBankEdit &now) const
{
    SpriteBankEdit result = now;
    result.names = orderAfter(m_order, now.names, m_before, 1, SpriteBank::MaxCount);

    const QHash<int, QByteArray> present = byName(now.names, spritesOf(now.bank));
    QList<QByteArray> sprites;
    for (const int name : std::as_const(result.names)) {
        QByteArray sprite = present.value(name, m_before.value(name));
        if (m_after.contains(name))
            putBack(sprite, m_before.value(name), m_after.value(name));
        sprites.append(sprite);
    }
    result.bank.image = stripOf(sprites, now.bank.image);

    const Renumbering back(now.names, result.names);
    const Renumbering since(m_names, result.names);
    for (auto map = result.maps.begin(); map != result.maps.end(); ++map) {
        map->sprites = renumbered(map->sprites, m_bankId, back);
        if (const auto changed = m_maps.constFind(map.key()); changed != m_maps.cend()) {
            const auto today = [&](const QList<Map::PlacedSprite> &then) {
                return moved(renumbered(then, m_bankId, since), map->origin - changed->origin);
            };
            ListChange(today(changed->list.before()), today(changed->list.after()))
                .apply(EditSide::Before, map->sprites);
        }
    }
    m_frames.undo(result.bank.animations, back, since);
    return result;
}
