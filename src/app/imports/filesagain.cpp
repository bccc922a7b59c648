#include "app/imports/filesagain.h"

#include "app/imports/importchoice.h"
#include "app/imports/maprenewal.h"
#include "app/imports/nextdataimport.h"
#include "app/imports/paletteimport.h"
#include "app/imports/spriterenewal.h"
#include "importing/animationsedit.h"
#include "importing/filekind.h"
#include "importing/kinds.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "undo/mapeditcommand.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QUndoStack>

#include <algorithm>
#include <array>
#include <numeric>

namespace {

using Importing::AddedAssets;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

const QString MadeKey = QStringLiteral("made");
constexpr int Side = Tile::Size;

constexpr std::array<std::pair<const char *, QUuid AddedAssets::*>, 6> Roles{{{"palette", &AddedAssets::palette},
                                                                              {"tileSet", &AddedAssets::tileSet},
                                                                              {"blocks", &AddedAssets::blocks},
                                                                              {"map", &AddedAssets::map},
                                                                              {"sprites", &AddedAssets::sprites},
                                                                              {"image", &AddedAssets::image}}};

QList<int> firstNumbers(int count)
{
    QList<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// Makes of the file what would be made of it today, in a project of its own.
Result<AddedAssets> madeIn(Project &fresh, const Project &project, const ImportRecord &record, const MadeAssets &made,
                           QWidget *window)
{
    auto choices = Importing::ImportChoices::fromJson(record.choices);
    if (!choices)
        return Failure{Texts::tr("What was made of it is not there any more")};
    if (choices->kind == Importing::Kinds::DataSet) {
        const auto [map, failure] = importNextData(fresh, record.file, window);
        if (!map || !failure.isEmpty())
            return Failure{failure};
        return AddedAssets{.palette = map->tileSet()->paletteId(), .tileSet = map->tileSetId(), .map = map->id()};
    }
    if (const auto bank = project.spriteBank(made.assets.sprites); bank && !choices->palette.isNull()) {
        const QPointer<Palette> palette = fresh.createPalette(CreateAction::Blank, choices->name);
        if (bank->palette()) {
            palette->copyColours(*bank->palette());
            palette->setTransparencyIndex(bank->palette()->transparencyIndex());
        }
        choices->palette = palette->id();
    }
    const auto file = Importing::ImportFile::open(record.file);
    if (!file)
        return file.failure();
    const auto incoming = Importing::prepare(fresh, *file, *choices);
    if (!incoming)
        return incoming.failure();
    return Importing::addTo(fresh, *incoming, *choices, {});
}

/// Brings the assets of a project up to date with those of the same roles in another one.
class Renewal
{
public:
    Renewal(Project &project, const MadeAssets &made, const Project &fresh, const AddedAssets &now,
            const QJsonObject &choices, QUndoStack *stack)
        : m_project(project)
        , m_made(made.assets)
        , m_fresh(fresh)
        , m_now(now)
        , m_choices(choices)
        , m_stack(stack)
        , m_map(project.map(m_made.map))
        , m_tileSet(project.tileSet(m_made.tileSet))
    {
        if (m_map && m_map->tileSet() != m_tileSet)
            m_map = nullptr;
    }

    [[nodiscard]] QString failure() const { return m_failure; }
    [[nodiscard]] QJsonObject choices() const { return m_choices; }

    /// What has numbers that mean something: all as it is in the files.
    void copy()
    {
        const QPointer<Palette> palette = m_project.palette(m_made.palette);
        if (palette)
            replaceWords(*palette, *m_fresh.palette(m_now.palette), m_stack);
        if (m_tileSet) {
            TileSet::Snapshot tiles = m_fresh.tileSet(m_now.tileSet)->snapshot();
            const TileSet::Snapshot before = m_tileSet->snapshot();
            tiles.append(before.mid(tiles.size())); // which were made since
            emit m_tileSet->structureAboutToChange();
            m_tileSet->restore(tiles);
            emit m_tileSet->structureChanged(Texts::tr("Import Again"));
        }
        if (m_map)
            changeMap([this] {
                const QPointer<Map> now = m_fresh.map(m_now.map);
                m_map->resize(now->size());
                Map::Snapshot content = m_map->snapshot();
                content.tiles = now->snapshot().tiles;
                m_map->restore(content);
                m_map->restampAnimations(m_project.blockSets());
            });
    }

    void renew()
    {
        if (m_tileSet && m_tileSet->palette() && !m_now.tileSet.isNull())
            renewTiles();
        const QPointer<SpriteBank> bank = m_project.spriteBank(m_made.sprites);
        if (m_failure.isEmpty() && bank && !m_now.sprites.isNull())
            renewSprites(*bank);
    }

private:
    template <typename Change>
    void changeMap(const Change &change)
    {
        const Map::Snapshot before = m_map->snapshot();
        change();
        if (m_stack && m_map->snapshot() != before)
            m_stack->push(new MapEditCommand(Texts::tr("Import Again"), m_map, before, m_map->snapshot()));
    }

    /// The map as it is now, or the tiles where it is gone, and below it the cells of animations.
    [[nodiscard]] TilePicture picture() const
    {
        constexpr int Columns = 32; // of tiles without a map
        const QPointer<TileSet> tiles = m_fresh.tileSet(m_now.tileSet);
        const QPointer<Map> map = m_map ? m_fresh.map(m_now.map) : nullptr;
        // which a tile set without a map has in its palette
        const int clear = tiles->palette()->transparencyIndex();
        TilePicture picture{.image = {}, .clearPixel = clear >= 0 ? clear % 16 : -1};
        const int columns = map ? map->size().width() : Columns;
        picture.rows = map ? map->size().height() : (tiles->count() + Columns - 1) / Columns;
        const int frameRows = int((frameCells().size() + columns - 1) / columns);
        const QSize pixels = QSize(columns, picture.rows + frameRows) * Side;
        picture.image = NxImage::accepts(pixels) ? QImage(pixels, QImage::Format_ARGB32) : QImage();
        if (picture.image.isNull())
            return picture;
        picture.image.fill(0);
        QPainter painter(&picture.image);
        const auto draw = [&](int number, const AnimationFrame::Cell &cell) {
            QImage tile = tiles->tileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
            QList<QRgb> colours = tile.colorTable();
            for (qsizetype i = std::max(picture.clearPixel, 0); picture.clearPixel >= 0 && i < colours.size(); i += 16)
                colours[i] = 0;
            tile.setColorTable(colours);
            painter.drawImage(number % columns * Side, number / columns * Side, tile);
        };
        if (map) {
            painter.drawImage(0, 0, map->tileLayer()->render(QRect({0, 0}, map->size()), 1, picture.clearPixel));
        } else {
            for (int i = 0; i < tiles->count(); ++i)
                draw(i, {.index = i, .offset = tiles->tileOffset(i)});
        }
        int number = picture.rows * columns;
        for (const AnimationFrame::Cell &cell : frameCells())
            draw(number++, cell);
        picture.before = {m_choices.value(QStringLiteral("columns")).toInt(),
                          m_choices.value(QStringLiteral("rows")).toInt()};
        picture.imported = ImportChoice::numbersOf(m_choices.value(QStringLiteral("tiles")), m_tileSet->count());
        return picture;
    }

    /// Of all animations of tiles, in their order.
    [[nodiscard]] QList<AnimationFrame::Cell> frameCells() const
    {
        QList<AnimationFrame::Cell> cells;
        const QPointer<MapObjects> blocks = m_fresh.blocks(m_now.blocks);
        for (const auto &animation : blocks ? blocks->animations() : QList<QPointer<TileAnimation>>()) {
            for (const auto &frame : animation->state().frames) {
                for (const auto &row : frame.cells)
                    cells += row;
            }
        }
        return cells;
    }

    void renewTiles()
    {
        const TilePicture shown = picture();
        if (shown.image.isNull()) {
            m_failure = Texts::tr("The map is too large to be brought up to date");
            return;
        }
        const RenewedTiles renewed =
            ::renewTiles(*m_tileSet, m_map, shown, m_stack, [&](const std::vector<TileMap::TileData> &cells) {
                renewBlocks({cells.cbegin() + qsizetype(shown.rows) * (shown.image.width() / Side), cells.cend()});
            });
        m_failure = renewed.failure;
        m_choices.insert(QStringLiteral("tiles"), ImportChoice::rangesOf(renewed.tiles));
        m_choices.insert(QStringLiteral("columns"), renewed.size.width());
        m_choices.insert(QStringLiteral("rows"), renewed.size.height());
        if (m_failure.isEmpty() && m_map)
            changeMap([this] { placeBlocks(); });
    }

    /// Animations of the same name show what they show now; others are added.
    void renewBlocks(const std::vector<TileMap::TileData> &cells)
    {
        const QPointer<MapObjects> blocks = m_project.blocks(m_made.blocks);
        const QPointer<MapObjects> now = m_fresh.blocks(m_now.blocks);
        if (!blocks || !now)
            return;
        auto next = cells.cbegin();
        for (const auto &animation : now->animations()) {
            TileAnimation::State state = animation->state();
            for (auto &frame : state.frames) {
                for (auto &row : frame.cells) {
                    for (AnimationFrame::Cell &cell : row) {
                        cell = {next->index, next->offset, next->flip, next->mirror, next->rotate};
                        ++next;
                    }
                }
            }
            const QList<QPointer<TileAnimation>> all = blocks->animations();
            const auto same = std::find_if(all.cbegin(), all.cend(), [&](const auto &each) {
                return each->name() == animation->name() && !m_blocks.values().contains(each->id());
            });
            const QPointer<TileAnimation> known =
                same != all.cend() ? *same : blocks->createBoundTileAnimation(animation->name());
            state.type = int(known->type());
            keepFrames(state, known->state());
            known->restore(state);
            m_blocks.insert(animation->id(), known->id());
        }
    }

    /// Frames keep their ids as far as they are as many as before.
    static void keepFrames(Animation::State &state, const Animation::State &before)
    {
        for (qsizetype i = 0; i < state.frames.size(); ++i)
            state.frames[i].id = i < before.frames.size() ? before.frames[i].id : QUuid::createUuid();
    }

    /// What is placed of the file's animations lies where the file has it.
    void placeBlocks()
    {
        const QPointer<MapObjects> blocks = m_project.blocks(m_made.blocks);
        const QPointer<Map> now = m_fresh.map(m_now.map);
        if (!blocks || !now)
            return;
        AnimatedBlocks::State wanted;
        for (AnimationProperties::State placement : now->animatedBlocks()->state()) {
            placement.animationId = m_blocks.value(placement.animationId);
            wanted.append(placement);
        }
        const AnimatedBlocks::State before = m_map->animatedBlocks()->state();
        const auto isThere = [](const AnimatedBlocks::State &all, const AnimationProperties::State &placement) {
            return std::any_of(all.cbegin(), all.cend(), [&placement](const auto &each) {
                return each.area == placement.area && each.animationId == placement.animationId;
            });
        };
        for (const AnimationProperties::State &placement : before) {
            if (blocks->contains(placement.animationId) && !isThere(wanted, placement))
                m_map->removeAnimationAt(placement.area);
        }
        for (const AnimationProperties::State &placement : wanted) {
            if (!isThere(before, placement))
                m_map->placeAnimation(blocks->animation(placement.animationId), placement.area.topLeft());
        }
    }

    void renewSprites(SpriteBank &bank)
    {
        const QPointer<SpriteBank> now = m_fresh.spriteBank(m_now.sprites);
        const bool hasOwnColours = m_choices.value(QStringLiteral("palette")).isUndefined();
        const RenewedSprites renewed =
            ::renewSprites(bank, SpriteLook::allOf(*now),
                           ImportChoice::numbersOf(m_choices.value(QStringLiteral("sprites")), bank.count()), 0,
                           hasOwnColours, m_stack);
        m_failure = renewed.failure;
        if (!m_failure.isEmpty())
            return;
        QList<int> numbers = renewed.places;
        std::sort(numbers.begin(), numbers.end());
        m_choices.insert(QStringLiteral("sprites"), ImportChoice::rangesOf(numbers));
        renewAnimations(bank, *now, renewed.places);
        if (m_map)
            changeMap([&] { placeSprites(bank, renewed.places); });
    }

    void renewAnimations(SpriteBank &bank, const SpriteBank &now, const QList<int> &places)
    {
        QList<Importing::NewAnimation> added;
        for (const auto &animation : now.animations()) {
            Animation::State state = animation->state();
            for (auto &frame : state.frames) {
                for (auto &row : frame.cells) {
                    for (AnimationFrame::Cell &cell : row)
                        cell.index = places.value(cell.index);
                }
            }
            const QList<QPointer<SpriteAnim>> all = bank.animations();
            const auto same = std::find_if(all.cbegin(), all.cend(),
                                           [&](const auto &each) { return each->name() == animation->name(); });
            keepFrames(state, same != all.cend() ? (*same)->state() : Animation::State());
            if (same != all.cend())
                (*same)->restore(state);
            else
                added.append({QUuid::createUuid(), animation->name(), state});
        }
        if (!added.isEmpty())
            Importing::addAnimations(bank, added, m_stack);
    }

    /// Those of the bank are what the file has; those of others stay.
    void placeSprites(const SpriteBank &bank, const QList<int> &places)
    {
        const QPointer<Map> now = m_fresh.map(m_now.map);
        if (!now)
            return;
        Map::Snapshot content = m_map->snapshot();
        content.sprites.removeIf([&bank](const Map::PlacedSprite &sprite) { return sprite.bank == bank.id(); });
        for (Map::PlacedSprite sprite : now->sprites()) {
            sprite.bank = bank.id();
            sprite.sprite = places.value(sprite.sprite);
            content.sprites.append(sprite);
        }
        m_map->restore(content);
    }

    Project &m_project;
    AddedAssets m_made;
    const Project &m_fresh;
    AddedAssets m_now;
    QJsonObject m_choices;
    QUndoStack *m_stack;
    QPointer<Map> m_map;
    QPointer<TileSet> m_tileSet;
    QHash<QUuid, QUuid> m_blocks; ///< the ids that animations have in the project
    QString m_failure;
};

} // namespace

QList<QUuid> MadeAssets::ids() const
{
    QList<QUuid> all;
    for (const auto &[name, id] : Roles) {
        if (!(assets.*id).isNull() && id != &AddedAssets::blocks) // which come with their tiles
            all.append(assets.*id);
    }
    return all;
}

QJsonObject MadeAssets::addedTo(QJsonObject choices, const Project &project) const
{
    QJsonObject made;
    for (const auto &[name, id] : Roles) {
        if (!(assets.*id).isNull())
            made.insert(QLatin1String(name), (assets.*id).toString());
    }
    choices.insert(MadeKey, made);
    if (const auto tileSet = project.tileSet(assets.tileSet))
        choices.insert(QStringLiteral("tiles"), ImportChoice::rangesOf(firstNumbers(tileSet->count())));
    if (const auto bank = project.spriteBank(assets.sprites))
        choices.insert(QStringLiteral("sprites"), ImportChoice::rangesOf(firstNumbers(bank->count())));
    if (const auto map = project.map(assets.map)) {
        choices.insert(QStringLiteral("columns"), map->size().width());
        choices.insert(QStringLiteral("rows"), map->size().height());
    }
    return choices;
}

bool MadeAssets::areIn(const QJsonObject &choices)
{
    return choices[MadeKey].isObject();
}

MadeAssets MadeAssets::of(const QJsonObject &choices)
{
    MadeAssets made;
    for (const auto &[name, id] : Roles)
        made.assets.*id = QUuid(choices[MadeKey][QLatin1String(name)].toString());
    return made;
}

ImportedAgain filesAgain(Project &project, const ImportRecord &record, QUndoStack *stack, QWidget *window)
{
    const MadeAssets made = MadeAssets::of(record.choices);
    Project fresh;
    const Result<AddedAssets> now = madeIn(fresh, project, record, made, window);
    if (!now)
        return {.failure = now.reason()};
    const UndoMacro step(stack, Texts::tr("Import Again"));
    Renewal renewal(project, made, fresh, *now, record.choices, stack);
    if (record.choices[QStringLiteral("kind")] == Importing::Kinds::DataSet)
        renewal.copy();
    else
        renewal.renew();
    if (!renewal.failure().isEmpty())
        return {.failure = renewal.failure()};
    return {.told = Texts::tr("%1 was imported again").arg(QFileInfo(record.file).fileName()),
            .choices = renewal.choices(),
            .together = made.ids()};
}
