#include "importing/addition.h"

#include "importing/animationsedit.h"
#include "importing/paletteedit.h"
#include "importing/pixelpictures.h"
#include "importing/placements.h"
#include "importing/texts.h"
#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "undo/mapeditcommand.h"
#include "undo/pixeleditcommand.h"
#include "undo/undomacro.h"

#include <QUndoStack>

#include <algorithm>

namespace Importing {
namespace {

using NextData::PaletteContent;
using NextData::TileNumbersContent;

constexpr int MostTiles = 4096; ///< in a tile set that something is added to
constexpr int UsualTiles = 512; ///< that a map can show

QList<QRgb> tableOf(const Palette *palette)
{
    return palette ? palette->colourTable() : QList<QRgb>(Palette::Size, qRgb(0, 0, 0));
}

/// Where things that come in begin in an asset that has so many.
int beginningAt(const ImportChoices &choices, int count)
{
    return choices.at == ImportChoices::AtTheEnd ? count : choices.at;
}

void putNumbers(TileSet &tileSet, const TileNumbersContent &content)
{
    TileSet::Snapshot tiles = tileSet.snapshot();
    const qsizetype end = std::min(tiles.size(), content.first + content.numbers.size());
    for (qsizetype i = content.first; i < end; ++i) {
        const int number = content.numbers[i - content.first];
        if (content.meaning == TileNumbersContent::Meaning::Attributes)
            tiles[i].attributes = number;
        else
            tiles[i].value = number;
    }
    tileSet.restore(tiles);
}

/// Runs a change of an asset's structure as one step, for whoever records these.
template <typename Asset, typename Change>
void changeStructure(Asset &asset, const QString &text, const Change &change)
{
    emit asset.structureAboutToChange();
    change();
    emit asset.structureChanged(text);
}

/// Gives an animation the frames of one that comes in, whose cells name what begins at a number.
void fill(Animation &animation, const IncomingAnimation &incoming, int first)
{
    animation.setName(incoming.name);
    Animation::State state{.size = incoming.size, .delay = incoming.delay, .frames = {}};
    for (AnimationFrame::Cells cells : incoming.frames) {
        for (auto &row : cells) {
            for (AnimationFrame::Cell &cell : row)
                cell.index += first;
        }
        state.frames.append({QUuid::createUuid(), cells});
    }
    animation.restore(state);
}

// New assets, each after those that it needs

class NewAssets
{
public:
    NewAssets(Project &project, const IncomingAssets &incoming, const ImportChoices &choices)
        : m_project(project)
        , m_incoming(incoming)
        , m_choices(choices)
    { }

    AddedAssets make()
    {
        if (m_incoming.palette)
            m_added.palette = makePalette(*m_incoming.palette, m_choices.name)->id();
        if (m_incoming.tiles)
            makeTileSet();
        if (m_incoming.sprites)
            makeSprites();
        if (m_incoming.map)
            makeMap();
        if (m_incoming.image)
            makeImage();
        if (m_incoming.animations)
            makeBlocks();
        return m_added;
    }

private:
    QPointer<Palette> makePalette(const PaletteContent &content, const QString &name)
    {
        Palette words;
        for (qsizetype i = 0; i < content.words.size(); ++i)
            words.storeRawColour(int(content.first + i), content.words[i]);
        const QPointer<Palette> palette = m_project.createPalette(CreateAction::Blank, name);
        palette->copyColours(words);
        palette->setTransparencyIndex(content.transparency.value_or(-1));
        return palette;
    }

    /// The palette of what is made: that which comes with it, the chosen one, or a new one of the standard colours.
    QPointer<Palette> palette()
    {
        const QUuid id = m_added.palette.isNull() ? m_choices.palette : m_added.palette;
        if (const QPointer<Palette> palette = m_project.palette(id))
            return palette;
        const QPointer<Palette> palette = m_project.createPalette(CreateAction::DefaultNext, m_choices.name);
        m_added.palette = palette->id();
        return palette;
    }

    void makeTileSet()
    {
        const int count = int(m_incoming.tiles->tiles.size());
        const QPointer<TileSet> tileSet = m_project.createTileSet(m_choices.name, palette()->id(), count, false);
        putTiles(*tileSet, 0, *m_incoming.tiles, tableOf(tileSet->palette()));
        m_added.tileSet = tileSet->id();
        if (m_incoming.blocks.isEmpty())
            return;
        const QPointer<MapObjects> blocks = m_project.createBlockList(m_choices.name, tileSet->id());
        for (const IncomingAnimation &incoming : m_incoming.blocks) {
            const QPointer<TileAnimation> block = blocks->createBoundTileAnimation(incoming.name);
            fill(*block, incoming, 0);
            m_blocks.append(block);
        }
        m_added.blocks = blocks->id();
    }

    void makeSprites()
    {
        const IncomingSprites &incoming = *m_incoming.sprites;
        const QPointer<Palette> colours = incoming.palette
            ? makePalette(*incoming.palette, Texts::tr("%1 (sprites)").arg(m_choices.name))
            : palette();
        const QPointer<SpriteBank> bank =
            m_project.createSpriteBank(incoming.content.depth, m_choices.name, colours->id());
        bank->setWholeImage(stripOf(incoming.content, tableOf(colours)));
        if (incoming.transparency >= 0)
            bank->changeTransparency(incoming.transparency);
        for (const IncomingAnimation &animation : incoming.animations)
            fill(*bank->newAnimation(), animation, 0);
        m_added.sprites = bank->id();
    }

    void makeMap()
    {
        const IncomingMap &incoming = *m_incoming.map;
        const QSize size(int(incoming.rows.constFirst().size()), int(incoming.rows.size()));
        const QPointer<Map> map = m_project.createMap(m_choices.name, tileSetForMap(), size);
        Map::Snapshot content = map->snapshot();
        content.tiles = incoming.rows;
        for (Map::PlacedSprite sprite : incoming.sprites) {
            sprite.bank = m_added.sprites;
            content.sprites.append(sprite);
        }
        map->restore(content);
        map->setTileTransparencyIndex(incoming.transparency);
        for (const auto &[animation, at] : incoming.blocks)
            map->placeAnimation(m_blocks.value(animation), at);
        m_added.map = map->id();
    }

    QUuid tileSetForMap()
    {
        if (m_added.tileSet.isNull() && !m_project.tileSet(m_choices.tileSet))
            m_added.tileSet = m_project.createTileSet(m_choices.name, palette()->id(), UsualTiles, false)->id();
        return m_added.tileSet.isNull() ? m_choices.tileSet : m_added.tileSet;
    }

    /// Animations of a tile set that is there.
    void makeBlocks()
    {
        const QPointer<MapObjects> blocks = m_project.createBlockList(m_choices.name, tileSetForMap());
        for (qsizetype i = 0; i < m_incoming.animations->animations.size(); ++i) {
            const auto &[kind, state] = m_incoming.animations->animations[i];
            const QPointer<TileAnimation> block = blocks->createBoundTileAnimation(animationName(i));
            block->restore({withIds(state), kind});
        }
        m_added.blocks = blocks->id();
    }

    void makeImage()
    {
        const NextData::ImageContent &content = *m_incoming.image;
        const QPointer<Palette> colours = palette();
        const QPointer<Image> image = new Image(content.mode, &m_project);
        image->setName(m_choices.name);
        image->setPalette(colours);
        image->setImage(pictureOf(content.pixels, Image::sizeOf(content.mode), tableOf(colours)));
        m_project.addImage(image);
        emit m_project.imageCreated(image); // whoever opens it shows what it holds then
        m_added.image = image->id();
    }

    Project &m_project;
    const IncomingAssets &m_incoming;
    const ImportChoices &m_choices;
    AddedAssets m_added;
    QList<QPointer<TileAnimation>> m_blocks;
};

// Assets that are there

void replaceMap(Map &map, const IncomingMap &incoming, QUndoStack *stack)
{
    const Map::Snapshot before = map.snapshot();
    const QSize size(int(incoming.rows.constFirst().size()), int(incoming.rows.size()));
    if (size != map.size())
        map.resize(size); // what is placed outside goes
    Map::Snapshot content = map.snapshot();
    content.tiles = incoming.rows;
    map.restore(content);
    if (stack)
        stack->push(new MapEditCommand(Texts::tr("Import Map"), &map, before, map.snapshot()));
}

void replaceImage(Image &image, const IncomingAssets &incoming, QUndoStack *stack)
{
    const UndoMacro step(stack, Texts::tr("Import Image"));
    const QPointer<Palette> palette = image.palette();
    if (palette && incoming.palette)
        replaceEntries(*palette, *incoming.palette, stack);
    const QImage before = image.image();
    image.setImage(pictureOf(incoming.image->pixels, before.size(), tableOf(palette)));
    if (!stack)
        return;
    const auto apply = [guarded = QPointer(&image)](const QImage &pixels) {
        if (guarded)
            guarded->setImage(pixels);
    };
    stack->push(
        new PixelEditCommand(Texts::tr("Import Image"), before, image.image(), apply, {}, PixelEditCommand::None));
}

void putSprites(SpriteBank &bank, int first, const NextData::SpritesContent &content)
{
    constexpr int side = SpriteBank::SpriteSize;
    const QImage strip = stripOf(content, tableOf(bank.palette()));
    const int replaced = std::min(bank.count() - first, strip.height() / side);
    for (int i = 0; i < replaced; ++i)
        bank.setImage(first + i, strip.copy(0, i * side, side, side));
    if (replaced * side < strip.height())
        (void)bank.appendPieces(strip.copy(0, replaced * side, side, strip.height() - replaced * side));
}

AddedAssets change(Project &project, const IncomingAssets &incoming, const ImportChoices &choices,
                   const StackProvider &stackFor)
{
    QUndoStack *stack = stackFor ? stackFor(choices.target) : nullptr;
    if (const QPointer<Palette> palette = project.palette(choices.target)) {
        if (incoming.cycles)
            replaceCycles(project, *palette, *incoming.cycles, stack);
        else
            replaceEntries(*palette, *incoming.palette, stack);
        return {.palette = choices.target};
    }
    if (const QPointer<TileSet> tileSet = project.tileSet(choices.target)) {
        changeStructure(*tileSet, Texts::tr("Import Tiles"), [&] {
            if (incoming.tiles)
                putTiles(*tileSet, beginningAt(choices, tileSet->count()), *incoming.tiles,
                         tableOf(tileSet->palette()));
            else
                putNumbers(*tileSet, *incoming.numbers);
        });
        return {.tileSet = choices.target};
    }
    const QPointer<SpriteBank> bank = project.spriteBank(choices.target);
    if (bank && incoming.animations) {
        addAnimations(*bank, *incoming.animations, stack);
        return {.sprites = choices.target};
    }
    if (bank) {
        changeStructure(*bank, Texts::tr("Import Sprites"),
                        [&] { putSprites(*bank, beginningAt(choices, bank->count()), incoming.sprites->content); });
        return {.sprites = choices.target};
    }
    if (const QPointer<Image> image = project.image(choices.target)) {
        replaceImage(*image, incoming, stack);
        return {.image = choices.target};
    }
    Map &map = *project.map(choices.target);
    if (incoming.map)
        replaceMap(map, *incoming.map, stack);
    else
        replacePlacements(project, map, incoming, stack);
    return {.map = choices.target};
}

// What can go wrong

QString roomProblem(int first, qsizetype count, int available, int most)
{
    if (first < 0 || first > available)
        return Texts::tr("There is no number %1; the last one is %2").arg(first).arg(available - 1);
    if (count > most - first)
        return Texts::tr("There is room for %1, and %2 come in").arg(most - first).arg(count);
    return {};
}

QString tilesProblem(const TileSet &tileSet, const IncomingAssets &incoming, const ImportChoices &choices)
{
    const int count = tileSet.count();
    if (incoming.numbers && incoming.numbers->first >= count)
        return Texts::tr("“%1” has %2 tiles, and the first number is for tile %3 (counted from 0)")
            .arg(tileSet.name(), QString::number(count), QString::number(incoming.numbers->first));
    if (!incoming.tiles)
        return {};
    return roomProblem(beginningAt(choices, count), incoming.tiles->tiles.size(), count, std::max(MostTiles, count));
}

QString spritesProblem(const SpriteBank &bank, const IncomingAssets &incoming, const ImportChoices &choices)
{
    const NextData::SpritesContent &content = incoming.sprites->content;
    const bool isDeeper = bank.depth() == Quenmora::FourBit && content.depth == Quenmora::EightBit
        && std::any_of(content.pixels.cbegin(), content.pixels.cend(), [](char pixel) { return uchar(pixel) > 15; });
    if (isDeeper)
        return Texts::tr("The sprites have indices above 15, and “%1” is a bank of 4 bits").arg(bank.name());
    return roomProblem(beginningAt(choices, bank.count()), content.pixels.size() / SpriteBank::SpriteBytes,
                       bank.count(), SpriteBank::MaxCount);
}

QString imageProblem(const Image &image, const NextData::ImageContent &content)
{
    if (image.mode() == content.mode)
        return {};
    const QSize is = Image::sizeOf(image.mode());
    const QSize comes = Image::sizeOf(content.mode);
    return Texts::tr("“%1” has %2 × %3 pixels, and the picture has %4 × %5")
        .arg(image.name(), QString::number(is.width()), QString::number(is.height()), QString::number(comes.width()),
             QString::number(comes.height()));
}

QString targetProblem(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices)
{
    const QPointer<TileSet> tileSet = project.tileSet(choices.target);
    if (tileSet && (incoming.tiles || incoming.numbers))
        return tilesProblem(*tileSet, incoming, choices);
    const QPointer<SpriteBank> bank = project.spriteBank(choices.target);
    if (bank && incoming.sprites)
        return spritesProblem(*bank, incoming, choices);
    const QPointer<Image> image = project.image(choices.target);
    if (image && incoming.image)
        return imageProblem(*image, *incoming.image);
    const bool isForMap = incoming.map || incoming.placedSprites || incoming.placedBlocks;
    if ((bank && incoming.animations) || (project.palette(choices.target) && (incoming.palette || incoming.cycles))
        || (project.map(choices.target) && isForMap))
        return {};
    return Texts::tr("The asset into which it goes is not there any more, or is of another kind");
}

} // namespace

QString problemOf(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices)
{
    if (!choices.target.isNull() || incoming.cycles)
        return targetProblem(project, incoming, choices);
    if (incoming.numbers)
        return Texts::tr("Choose the tile set whose tiles these are for");
    if (incoming.placedSprites || incoming.placedBlocks)
        return Texts::tr("Choose the map on which these are placed");
    return choices.name.trimmed().isEmpty() ? Texts::tr("Please enter a name") : QString();
}

int beginningIn(const Project &project, const ImportChoices &choices)
{
    if (const auto tileSet = project.tileSet(choices.target))
        return beginningAt(choices, tileSet->count());
    const auto bank = project.spriteBank(choices.target);
    return bank ? beginningAt(choices, bank->count()) : choices.at;
}

Result<AddedAssets> addTo(Project &project, const IncomingAssets &incoming, const ImportChoices &choices,
                          const StackProvider &stackFor)
{
    if (const QString problem = problemOf(project, incoming, choices); !problem.isEmpty())
        return Failure{problem};
    return choices.target.isNull() ? NewAssets(project, incoming, choices).make()
                                   : change(project, incoming, choices, stackFor);
}

} // namespace Importing
