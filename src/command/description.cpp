#include "command/description.h"

#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/nextcolour.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "nextdata/quoted.h"

#include <QHash>
#include <QTextStream>

using NextData::quoted;

namespace {

/// Runs of so many equal cells, or more, are told by their number.
constexpr int ShortestRun = 4;

QByteArray hex(uint value, int digits)
{
    return QByteArray::number(value, 16).rightJustified(digits, '0');
}

QByteArray pair(int a, int b)
{
    return QByteArray::number(a) + ' ' + QByteArray::number(b);
}

QByteArray onOff(bool on)
{
    return on ? "on" : "off";
}

/// A row of a picture, with one or two hexadecimal digits a pixel: of one, only the low half is told.
QByteArray pixelRow(const QImage &image, int y, int digits)
{
    constexpr const char *Digits = "0123456789abcdef";
    const uchar *pixels = image.constScanLine(y);
    QByteArray text;
    text.reserve(image.width() * digits);
    for (int x = 0; x < image.width(); ++x) {
        if (digits == 2)
            text += Digits[pixels[x] >> 4];
        text += Digits[pixels[x] & 15];
    }
    const QByteArray first = text.left(digits);
    return text == first.repeated(image.width()) ? first + '*' + QByteArray::number(image.width()) : text;
}

/// A row of cells, runs of equal ones told once.
template <typename Cell, typename Text>
QByteArray cellRow(const QList<Cell> &cells, Text textOf)
{
    QByteArrayList words;
    for (qsizetype x = 0; x < cells.size();) {
        qsizetype end = x + 1;
        while (end < cells.size() && cells[end] == cells[x])
            ++end;
        const QByteArray word = textOf(cells[x]);
        if (end - x >= ShortestRun)
            words.append(word + '*' + QByteArray::number(end - x));
        else
            words.resize(words.size() + (end - x), word);
        x = end;
    }
    return words.join(' ');
}

/// A tile or sprite in a cell: "12", "12rmf/3" when it is rotated, mirrored and flipped, with palette offset 3.
template <typename Cell>
QByteArray cellText(const Cell &cell)
{
    QByteArray text = QByteArray::number(cell.index);
    text += cell.rotate ? "r" : "";
    text += cell.mirror ? "m" : "";
    text += cell.flip ? "f" : "";
    return cell.offset == 0 ? text : text + '/' + QByteArray::number(cell.offset);
}

class Describer
{
public:
    Describer(const Project &project, QTextStream &out) : m_project(project), m_out(out)
    {
        note(project.palettes());
        note(project.tileSets());
        note(project.maps());
        note(project.blockSets());
        note(project.spriteBanks());
        note(project.images());
        for (const auto &blocks : project.blockSets())
            note(blocks->animations());
        for (const auto &bank : project.spriteBanks())
            note(bank->animations());
    }

    void describe()
    {
        describeSettings();
        for (const QPointer<Palette> &palette : m_project.palettes())
            describe(*palette);
        for (const QPointer<TileSet> &tiles : m_project.tileSets())
            describe(*tiles);
        for (const QPointer<Map> &map : m_project.maps())
            describe(*map);
        for (const QPointer<MapObjects> &blocks : m_project.blockSets())
            describe(*blocks);
        for (const QPointer<SpriteBank> &bank : m_project.spriteBanks())
            describe(*bank);
        for (const QPointer<Image> &image : m_project.images())
            describe(*image);
    }

private:
    struct Named
    {
        QString name;
        bool isUnique;
    };

    /// Remembers the names of assets of one kind, or of animations of one owner.
    template <typename Asset>
    void note(const QList<QPointer<Asset>> &assets)
    {
        QHash<QString, int> counts;
        for (const QPointer<Asset> &asset : assets)
            ++counts[asset->name()];
        for (const QPointer<Asset> &asset : assets)
            m_names.insert(asset->id(), {asset->name(), counts.value(asset->name()) == 1});
    }

    /// The asset or animation as it is called, or by its id where that is not enough.
    [[nodiscard]] QByteArray reference(const QUuid &id) const
    {
        if (id.isNull())
            return "none";
        const auto named = m_names.constFind(id);
        const QByteArray idText = id.toByteArray();
        if (named == m_names.cend())
            return idText;
        return named->isUnique ? quoted(named->name) : quoted(named->name) + ' ' + idText;
    }

    void line(int depth, const QByteArray &text) { m_out << QByteArray(2 * depth, ' ') << text << '\n'; }

    void pixels(int depth, const QImage &image, int digits)
    {
        for (int y = 0; y < image.height(); ++y)
            line(depth, pixelRow(image, y, digits));
    }

    void describeSettings()
    {
        const QRect area = m_project.playArea();
        line(0, "project " + quoted(m_project.name()));
        line(1, "screen " + pair(m_project.screenSize().width(), m_project.screenSize().height()));
        line(1, "play area " + pair(area.x(), area.y()) + ' ' + pair(area.width(), area.height()));
        line(0, "scratch image");
        line(1, "palette " + reference(m_project.scratchPaletteId()));
        pixels(1, m_project.scratchImage(), 2);
    }

    void describe(const Palette &palette)
    {
        line(0, "palette " + reference(palette.id()));
        line(1, "transparency " + indexText(palette.transparencyIndex()));
        for (int i = 0; i < Palette::Size; ++i) {
            const quint16 word = palette.rawColour(i);
            const QByteArray levels =
                pair(NextColour::red(word), NextColour::green(word)) + ' ' + QByteArray::number(NextColour::blue(word));
            line(1,
                 "colour " + QByteArray::number(i) + " $" + hex(word, 4).toUpper() + " levels " + levels
                     + (NextColour::priority(word) ? " priority" : ""));
        }
    }

    void describe(const TileSet &tiles)
    {
        line(0, "tiles " + reference(tiles.id()));
        line(1, "palette " + reference(tiles.paletteId()));
        line(1, "high resolution " + onOff(tiles.hiRes()));
        for (int i = 0; i < tiles.count(); ++i) {
            const Tile &tile = *tiles.tile(i);
            line(1,
                 "tile " + QByteArray::number(i) + " offset " + QByteArray::number(tile.offset()) + " attributes $"
                     + hex(uint(tile.attributes()), 2).toUpper() + " value " + QByteArray::number(tile.value()));
            pixels(2, tile.image(), 1);
        }
    }

    void describe(const Map &map)
    {
        line(0, "map " + reference(map.id()));
        line(1, "tiles " + reference(map.tileSetId()));
        line(1, "size " + pair(map.size().width(), map.size().height()));
        line(1, "transparency " + indexText(map.tileTransparencyIndex()));
        line(1, "background tile " + indexText(map.backgroundTileIndex()));
        line(1, "grid " + onOff(map.gridVisible()));
        const QPointer<TileMap> tiles = map.tileLayer();
        const QPointer<TileMap> objects = map.objectLayer();
        line(1,
             "layers tiles " + onOff(tiles && tiles->isVisible()) + " objects " + onOff(objects && objects->isVisible())
                 + " sprites " + onOff(map.spriteLayerVisible()));
        line(1, "cells");
        for (const TileMap::Row &row : tiles ? tiles->rows() : TileMap::Rows())
            line(2, cellRow(row, [](const TileMap::TileData &cell) { return mapCellText(cell); }));
        for (const QPointer<AnimationProperties> &placement : map.animatedBlocks()->list())
            describe(*placement);
        for (const Map::PlacedSprite &sprite : map.sprites())
            describe(sprite);
    }

    /// "." is a blank cell; a "!" is before a cell that was never drawn and holds something all the same.
    static QByteArray mapCellText(const TileMap::TileData &cell)
    {
        if (cell == TileMap::TileData())
            return ".";
        return (cell.used ? "" : "!") + cellText(cell);
    }

    void describe(const AnimationProperties &placement)
    {
        const QRect area = placement.area();
        line(1,
             "animation " + reference(placement.animationId()) + " at " + pair(area.x(), area.y()) + " size "
                 + pair(area.width(), area.height()) + " start " + QByteArray::number(placement.startFrame())
                 + " delays " + pair(placement.initialDelay(), placement.repeatDelay()));
    }

    void describe(const Map::PlacedSprite &sprite)
    {
        QByteArray text =
            "sprite " + quoted(sprite.name) + " at " + pair(sprite.x, sprite.y) + " bank " + reference(sprite.bank);
        text += sprite.animation.isNull() ? " sprite " + QByteArray::number(sprite.sprite)
                                          : " animation " + reference(sprite.animation);
        text += sprite.rotate ? " rotated" : "";
        text += sprite.mirror ? " mirrored" : "";
        text += sprite.flip ? " flipped" : "";
        line(1,
             text + " offset " + QByteArray::number(sprite.paletteOffset) + " start "
                 + QByteArray::number(sprite.startFrame) + " delays " + pair(sprite.initialDelay, sprite.repeatDelay));
    }

    void describe(const MapObjects &blocks)
    {
        line(0, "blocks " + reference(blocks.id()));
        line(1, "tiles " + reference(blocks.tileSet() ? blocks.tileSet()->id() : QUuid()));
        for (const QPointer<TileAnimation> &animation : blocks.animations())
            describe(*animation,
                     animation->type() == MapObjectType::HorizontalPlatform ? " horizontal platform" : " normal");
    }

    void describe(const SpriteBank &bank)
    {
        const bool isFourBit = bank.depth() == Quenmora::FourBit;
        line(0, "sprites " + reference(bank.id()));
        line(1, "palette " + reference(bank.paletteId()));
        line(1, "bits " + QByteArray(isFourBit ? "4" : "8"));
        line(1, "transparency " + indexText(bank.transparency()));
        line(1, "offsets " + bank.offsets().toHex());
        for (int i = 0; i < bank.count(); ++i) {
            line(1, "sprite " + QByteArray::number(i));
            pixels(2, bank.spriteImage(i, false, false, false), isFourBit ? 1 : 2);
        }
        for (const QPointer<SpriteAnim> &animation : bank.animations())
            describe(*animation, {});
    }

    void describe(const Animation &animation, const QByteArray &type)
    {
        line(1,
             "animation " + reference(animation.id()) + type + " size "
                 + pair(animation.size().width(), animation.size().height()) + " delay "
                 + QByteArray::number(animation.delay()));
        for (int i = 0; i < animation.frameCount(); ++i) {
            line(2, "frame " + QByteArray::number(i));
            const QPointer<AnimationFrame> frame = animation.frame(i);
            for (const auto &row : frame->cells())
                line(3, cellRow(row, [](const AnimationFrame::Cell &cell) { return cellText(cell); }));
        }
    }

    void describe(const Image &image)
    {
        constexpr const char *Modes[] = {"Layer 2 256 192", "Layer 2 320 256", "Layer 2 640 256", "LoRes 128 96"};
        line(0, "image " + reference(image.id()));
        line(1, "palette " + reference(image.paletteId()));
        const bool isKnown = Image::sizeOf(image.mode()).isValid();
        line(1, QByteArray("mode ") + (isKnown ? Modes[image.mode()] : "unknown"));
        pixels(1, image.image(), 2);
    }

    static QByteArray indexText(int index) { return index < 0 ? "none" : QByteArray::number(index); }

    const Project &m_project;
    QHash<QUuid, Named> m_names;
    QTextStream &m_out;
};

} // namespace

void describe(const Project &project, QTextStream &out)
{
    Describer(project, out).describe();
}
