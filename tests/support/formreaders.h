#pragma once

#include "model/animatedblocks.h"
#include "model/colourcycle.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "nextdata/reader.h"
#include "support/formoutput.h"

#include <QSet>
#include <QTest>

/// Takes little-endian numbers out of bytes, one after the other.
class Bytes
{
public:
    Bytes(const QByteArray &bytes, qsizetype at = 0) : m_bytes(bytes), m_at(at) { }

    int byte() { return uchar(m_bytes.at(m_at++)); }
    int word()
    {
        const int low = byte();
        return low + 256 * byte();
    }
    int signedWord()
    {
        const int value = word();
        return value < 0x8000 ? value : value - 0x10000;
    }
    QString text(qsizetype at) const { return QString::fromUtf8(m_bytes.constData() + at); }
    bool atEnd() const { return m_at == m_bytes.size(); }

private:
    QByteArray m_bytes;
    qsizetype m_at;
};

/// A cell of two bytes.
inline TileMap::TileData cellOf(int index, int attributes)
{
    return {index + (attributes & 1) * 256, bool(attributes & 2), bool(attributes & 4),
            bool(attributes & 8),           attributes / 16,      true};
}

/// Reads the forms that the editor does not read back, by their layouts alone, and compares what they hold with the
/// assets of a project.
class FormReaders
{
public:
    explicit FormReaders(const Project &project) : m_project(project) { }

    void readAll()
    {
        for (const auto &map : m_project.maps()) {
            readPlacedSprites(map);
            readPlacedBlocks(map);
        }
        for (const auto &palette : m_project.palettes())
            readCycles(palette);
        for (const auto &blocks : m_project.blockSets())
            readAnimations(bytesOf("block-animations", blocks), blocks->animations());
        for (const auto &bank : m_project.spriteBanks())
            readAnimations(bytesOf("sprite-animations", bank), bank->animations());
        for (const NextData::Form &form : NextData::forms())
            QVERIFY2(m_read.contains(form.id) || NextData::findReader(form.id), qPrintable(form.id + " has no reader"));
    }

private:
    template <typename Asset>
    QByteArray bytesOf(const QString &id, const QPointer<Asset> &asset, const Options &options = {})
    {
        m_read.insert(id);
        return writtenBytes(id, sourceOf(m_project, asset), options);
    }

    void readCycles(const QPointer<Palette> &palette)
    {
        Bytes in(bytesOf("palette-cycles", palette));
        const auto cycles = ColourCycles::of(*m_project.extras(), palette->id());
        QCOMPARE(in.byte(), cycles.size());
        for (const ColourCycle &cycle : cycles) {
            QCOMPARE(in.byte(), cycle.first);
            QCOMPARE(in.byte(), cycle.last);
            QCOMPARE(in.byte(), cycle.frames);
            QCOMPARE(in.byte(), int(cycle.backwards));
        }
        QVERIFY(in.atEnd());
    }

    void readPlacedSprites(const QPointer<Map> &map)
    {
        const QByteArray bytes = bytesOf("map-sprites", map);
        QCOMPARE(bytesOf("map-sprites", map, {{"names", "none"}}).size(), 2 + 16 * map->sprites().size());
        Bytes in(bytes);
        QCOMPARE(in.word(), map->sprites().size());
        for (const Map::PlacedSprite &sprite : map->sprites()) {
            Map::PlacedSprite read;
            read.x = in.signedWord();
            read.y = in.signedWord();
            const auto bank = m_project.spriteBanks().at(in.byte());
            read.bank = bank->id();
            const int flags = in.byte();
            read.paletteOffset = flags / 16;
            read.mirror = flags & 8;
            read.flip = flags & 4;
            read.rotate = flags & 2;
            const int number = in.word();
            if (flags & 1)
                read.animation = bank->animations().at(number)->id();
            read.sprite = flags & 1 ? sprite.sprite : number; // which does not show
            read.startFrame = in.word();
            read.initialDelay = in.word();
            read.repeatDelay = in.word();
            const int name = in.word();
            read.name = name > 0 ? in.text(name) : QString();
            QCOMPARE(read, sprite);
        }
    }

    void readPlacedBlocks(const QPointer<Map> &map)
    {
        Bytes in(bytesOf("map-blocks", map));
        const AnimatedBlocks::State placements = map->animatedBlocks()->state();
        QCOMPARE(in.word(), placements.size());
        for (const AnimationProperties::State &placement : placements) {
            AnimationProperties::State read;
            const int column = in.signedWord();
            const int row = in.signedWord();
            const int width = in.byte();
            read.area = {column, row, width, in.byte()};
            const auto set = m_project.blockSets().at(in.byte());
            const int kind = in.byte();
            const auto animation = set->animations().at(in.word());
            QCOMPARE(kind, int(animation->type()));
            read.animationId = animation->id();
            read.startFrame = in.word();
            read.initialDelay = in.word();
            read.repeatDelay = in.word();
            QCOMPARE(read, placement);
        }
        QVERIFY(in.atEnd());
    }

    template <typename Animations>
    static void readAnimations(const QByteArray &bytes, const Animations &animations)
    {
        Bytes places(bytes);
        QCOMPARE(places.word(), animations.size());
        for (const auto &animation : animations) {
            Bytes in(bytes, places.word());
            const int width = in.byte();
            QCOMPARE(QSize(width, in.byte()), animation->size());
            QCOMPARE(in.byte(), animation->frameCount());
            const auto *blocks = qobject_cast<const TileAnimation *>(animation.data());
            QCOMPARE(in.byte(), blocks ? int(blocks->type()) : 0);
            QCOMPARE(in.word(), animation->delay());
            for (int i = 0; i < animation->frameCount() * animation->size().width() * animation->size().height(); ++i) {
                const int place = i / animation->size().width();
                const int index = in.byte();
                const auto read = cellOf(index, in.byte());
                const auto cell = animation->frame(place / animation->size().height())
                                      ->cell(place % animation->size().height(), i % animation->size().width());
                QCOMPARE(read, (TileMap::TileData{cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset, true}));
            }
        }
    }

    const Project &m_project;
    QSet<QString> m_read; ///< ids of the forms whose bytes were looked at
};
