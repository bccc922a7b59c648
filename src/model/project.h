#pragma once

#include "model/assetregistry.h"
#include "model/enums.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QUuid>

class Image;
class Map;
class MapObjects;
class Palette;
class ProjectExtras;
class SpriteBank;
class TileSet;

/// What a new palette holds.
enum class CreateAction {
    None = 0, ///< opaque black everywhere, no priority
    CopyCurrent = 1, ///< the colour words of a source palette; black when there is none
    DefaultNext = 2, ///< the standard Next palette
    Blank = 3 ///< as None
};

/// The root of the data model: owns every asset of one game, finds them by id, and carries the
/// settings of the whole project.
///
/// Assets are children of the project; everyone else holds guarded pointers or ids. The lists of
/// a kind follow the order of registration. An asset that another one still needs is not deleted.
/// Creating and registering are announced by signals; settings and deletions are not, their
/// callers refresh what they show.
class Project : public QObject
{
    Q_OBJECT

public:
    explicit Project(QObject *parent = nullptr);
    ~Project() override;

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /// The screen of the target game, in pixels.
    [[nodiscard]] QSize screenSize() const { return m_screenSize; }
    void setScreenSize(const QSize &size) { m_screenSize = size; }

    /// The part of the screen in which the game is played, in pixels.
    [[nodiscard]] QRect playArea() const { return m_playArea; }
    void setPlayArea(const QRect &area) { m_playArea = area; }

    /// A free drawing surface (256 × 192 palette indices) that belongs to no asset.
    [[nodiscard]] QImage scratchImage() const { return m_scratchImage; }
    void setScratchImage(const QImage &image) { m_scratchImage = image; }

    [[nodiscard]] QUuid scratchPaletteId() const { return m_scratchPaletteId; }
    void setScratchPaletteId(const QUuid &id) { m_scratchPaletteId = id; }

    /// The palette with which the scratch image is shown, or null when the project has none of that id.
    [[nodiscard]] QPointer<Palette> scratchPalette() const;
    /// Remembers the palette's id; null forgets it.
    void setScratchPalette(const QPointer<Palette> &palette);

    /// The documents that were open in tabs when the project was saved, in tab order.
    [[nodiscard]] QStringList openDocuments() const { return m_openDocuments; }
    void setOpenDocuments(const QStringList &documents) { m_openDocuments = documents; }

    /// What is kept beside the project's file.
    [[nodiscard]] ProjectExtras *extras() const { return m_extras; }

    // Look-ups by id: null for an unknown id.
    [[nodiscard]] QPointer<Palette> palette(const QUuid &id) const { return m_palettes.find(id); }
    [[nodiscard]] QPointer<TileSet> tileSet(const QUuid &id) const { return m_tileSets.find(id); }
    [[nodiscard]] QPointer<Map> map(const QUuid &id) const { return m_maps.find(id); }
    [[nodiscard]] QPointer<MapObjects> blocks(const QUuid &id) const { return m_blockSets.find(id); }
    [[nodiscard]] QPointer<SpriteBank> spriteBank(const QUuid &id) const { return m_spriteBanks.find(id); }
    [[nodiscard]] QPointer<Image> image(const QUuid &id) const { return m_images.find(id); }

    // All living assets of a kind, in the order in which they were registered.
    [[nodiscard]] QList<QPointer<Palette>> palettes() const { return m_palettes.all(); }
    [[nodiscard]] QList<QPointer<TileSet>> tileSets() const { return m_tileSets.all(); }
    [[nodiscard]] QList<QPointer<Map>> maps() const { return m_maps.all(); }
    [[nodiscard]] QList<QPointer<MapObjects>> blockSets() const { return m_blockSets.all(); }
    [[nodiscard]] QList<QPointer<SpriteBank>> spriteBanks() const { return m_spriteBanks.all(); }
    [[nodiscard]] QList<QPointer<Image>> images() const { return m_images.all(); }

    // Registration of an asset that was built elsewhere. The project becomes its owner; null is
    // ignored. An asset whose id is present already takes over that entry.
    void addPalette(const QPointer<Palette> &palette);
    void addTileSet(const QPointer<TileSet> &tileSet);
    void addMap(const QPointer<Map> &map);
    void addBlocks(const QPointer<MapObjects> &blocks);
    void addSpriteBank(const QPointer<SpriteBank> &bank);
    void addImage(const QPointer<Image> &image);

signals:
    /// A message for the status bar; duration in milliseconds, 0 until replaced.
    void showMessage(const QString &message, int duration = 0);
    void error(const QString &message);
    /// A tile set was registered; list maps the id of every tile set to its name.
    void tileSetsChanged(const QHash<QUuid, QString> &list);
    void imageCreated(QPointer<Image> image);
    void paletteCreated(QPointer<Palette> palette);
    void tilesetCreated(QPointer<TileSet> tileset);
    void blocksCreated(QPointer<MapObjects> blocks);
    void mapCreated(QPointer<Map> map);
    void spritesCreated(QPointer<SpriteBank> sprites);

public slots:
    // Each creating slot builds an asset, registers it, emits its signal and returns it. An id
    // that names no asset binds nothing. Each deleting slot returns false, and changes nothing,
    // when another asset needs this one; true when it is gone or never was.

    /// A new palette; without a palette of the id source, CopyCurrent takes the one most recently registered.
    QPointer<Palette> createPalette(CreateAction action, const QString &name, const QUuid &source = QUuid());
    /// Refused while a tile set, sprite bank or image uses the palette, or the scratch image does.
    bool deletePalette(const QUuid &id);

    /// A null palette id creates a blank palette of the same name first.
    QPointer<TileSet> createTileSet(const QString &name, const QUuid &palette, int tileCount = 512, bool hiRes = false);
    /// Refused while a map uses the tile set; block sets lose it.
    bool deleteTileSet(const QUuid &id);

    /// A new, empty block set for the tile set of the id tile.
    QPointer<MapObjects> createBlockList(const QString &name, const QUuid &tile);
    /// Refused while a map uses the tile set that the block set is registered with.
    bool deleteBlocks(const QUuid &id);

    /// A new map of empty cells; size in tiles.
    QPointer<Map> createMap(const QString &name, const QUuid &tileSet, const QSize &size);
    bool deleteMap(const QUuid &id);

    QPointer<SpriteBank> createSpriteBank(Quenmora::Sprite depth, const QString &name, const QUuid &palette);
    bool deleteSpriteBank(const QUuid &id);

    QPointer<Image> createImage(Quenmora::ImageMode mode, const QString &name, const QUuid &paletteId);

    [[nodiscard]] QStringList paletteNames() const;

    // Whether another asset, or the scratch image, needs this one, which therefore may not be deleted.
    [[nodiscard]] bool usesPalette(const QUuid &id) const;
    [[nodiscard]] bool usesTileSet(const QUuid &id) const;
    [[nodiscard]] bool usesBlocks(const QUuid &id) const;

    // Copies are named like their source followed by " (copy)"; null for an unknown id.

    /// Copies the tile layer; the object layer, placed sprites and view settings start afresh.
    QPointer<Map> cloneMap(const QUuid &id);
    QPointer<Palette> clonePalette(const QUuid &id);
    /// Copies every tile; the copy is not in high resolution.
    QPointer<TileSet> cloneTileSet(const QUuid &id);

    bool deleteImage(const QUuid &id);

private:
    /// Keeps the placed sprites of all maps pointing at the right sprites of the bank.
    void followSprites(SpriteBank *bank);

    QUuid m_id = QUuid::createUuid();
    QString m_name = QStringLiteral("untitled");
    QSize m_screenSize{320, 256};
    QRect m_playArea{0, 0, 320, 256};

    AssetRegistry<Palette> m_palettes;
    AssetRegistry<TileSet> m_tileSets;
    AssetRegistry<SpriteBank> m_spriteBanks;
    AssetRegistry<Image> m_images;
    AssetRegistry<Map> m_maps;
    AssetRegistry<MapObjects> m_blockSets;

    QPointer<Palette> m_lastPalette;
    QImage m_scratchImage;
    QUuid m_scratchPaletteId;
    QStringList m_openDocuments;
    ProjectExtras *m_extras;
};
