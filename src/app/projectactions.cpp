#include "app/projectactions.h"

#include "app/imports/filesagain.h"
#include "app/imports/nextdataimport.h"
#include "app/imports/paletteimport.h"
#include "app/imports/pictureimport.h"
#include "app/imports/spritesagain.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "importing/kinds.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/plural.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "ui/plaintext.h"
#include "ui/titlewidth.h"

#include <QClipboard>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

/// Suffixes of the files of a Next data set, in this letter case.
bool isNextData(const QString &filePath)
{
    static const QStringList suffixes{QStringLiteral("nxm"), QStringLiteral("nxt"), QStringLiteral("nxp"),
                                      QStringLiteral("nxb")};
    return suffixes.contains(QFileInfo(filePath).suffix());
}

} // namespace

ProjectActions::ProjectActions(ProjectProvider project, QWidget *dialogParent, QObject *parent)
    : QObject(parent)
    , m_project(std::move(project))
    , m_dialogParent(dialogParent)
{ }

void ProjectActions::serve(const MenuBar &menus)
{
    const PaletteMenu *palettes = menus.paletteMenu();
    connect(palettes, &PaletteMenu::createPalette, this, [this, palettes](CreateAction action, const QString &name) {
        createPalette(action, name, palettes->palette() ? palettes->palette()->id() : QUuid());
    });
    connect(palettes, &PaletteMenu::importRequested, this, &ProjectActions::importPalette);
    connect(menus.tileMenu(), &TileMenu::createTiles, this, &ProjectActions::createTileSet);
    connect(menus.tileMenu(), &TileMenu::createBlocks, this, &ProjectActions::createBlocks);
    connect(menus.mapMenu(), &MapMenu::create, this, &ProjectActions::createMap);
    connect(menus.mapMenu(), &MapMenu::importRequested, this,
            [this, maps = menus.mapMenu()](const QString &filePath) { importKnown(filePath, maps->picture()); });
    connect(menus.mapMenu(), &MapMenu::importReductionRequested, this, &ProjectActions::importReduction);
    SpriteMenu *sprites = menus.spriteMenu();
    connect(this, &ProjectActions::aboutToDeleteSprites, sprites, [sprites](const QUuid &id) {
        if (sprites->spriteBank() && sprites->spriteBank()->id() == id)
            sprites->setSpriteBank(nullptr);
    });
    connect(sprites, &SpriteMenu::create, this, &ProjectActions::createSprites);
    connect(sprites, &SpriteMenu::importPictureRequested, this, &ProjectActions::importSpritePicture);
    connect(sprites, &SpriteMenu::importDataRequested, this, &ProjectActions::importSpriteData);
    connect(menus.imageMenu(), &ImageMenu::createImage, this, &ProjectActions::createImage);
}

// Creating

void ProjectActions::createPalette(CreateAction action, const QString &name, const QUuid &source)
{
    if (Project *project = m_project())
        emit paletteReady(project->createPalette(action, name, source)->id());
}

void ProjectActions::createTileSet(const QString &name, const QUuid &paletteId, int tileCount, bool hiRes)
{
    // the project makes the palette for a null id
    if (Project *project = m_project())
        emit tileSetReady(project->createTileSet(name, paletteId, tileCount, hiRes)->id());
}

void ProjectActions::createMap(const QString &name, const QUuid &tileSetId, const QSize &size)
{
    if (Project *project = m_project())
        emit mapReady(project->createMap(name, tileSetId, size)->id());
}

void ProjectActions::createBlocks(const QString &name, const QUuid &tileSetId)
{
    if (Project *project = m_project())
        emit blocksReady(project->createBlockList(name, tileSetId)->id());
}

void ProjectActions::createSprites(SpriteDialog::CreateOptions options, const QString &name, const QUuid &paletteId)
{
    Project *project = m_project();
    if (!project)
        return;
    const bool newPalette = options.testFlag(SpriteDialog::NewPalette);
    const QUuid palette = newPalette ? project->createPalette(CreateAction::Blank, name)->id() : paletteId;
    const auto depth = options.testFlag(SpriteDialog::EightBit) ? Quenmora::EightBit : Quenmora::FourBit;
    emit spritesReady(project->createSpriteBank(depth, name, palette)->id());
}

void ProjectActions::createImage(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId)
{
    // whoever shows images opens a new one when the project tells of it
    if (Project *project = m_project())
        project->createImage(mode, name, paletteId);
}

void ProjectActions::createMapFromSelection(const QUuid &mapId, const QSize &size)
{
    Project *project = m_project();
    const QPointer<Map> source = project ? project->map(mapId) : nullptr;
    if (!source || size.isEmpty())
        return;
    const QPointer<Map> map = project->createMap(tr("%1 (selection)").arg(source->name()), source->tileSetId(), size);
    map->pasteTiles({0, 0}, QGuiApplication::clipboard()->mimeData());
    emit mapReady(map->id());
}

// Copying and deleting

void ProjectActions::copyItem(ProjectTree::ProjectNode node, const QUuid &id)
{
    Project *project = m_project();
    if (!project)
        return;
    if (node == ProjectTree::PaletteNode) {
        if (const QPointer<Palette> copy = project->clonePalette(id))
            emit paletteReady(copy->id());
    } else if (node == ProjectTree::TileSetNode) {
        project->cloneTileSet(id);
    } else if (node == ProjectTree::MapNode) {
        project->cloneMap(id);
    }
}

void ProjectActions::deleteItem(ProjectTree::ProjectNode node, const QUuid &id)
{
    Project *project = m_project();
    if (project && remove(*project, node, id))
        emit itemDeleted(node, id);
}

/// Whether the asset is gone; when it is not, the person has been told why.
bool ProjectActions::remove(Project &project, ProjectTree::ProjectNode node, const QUuid &id)
{
    const auto refusedUnless = [this](bool deleted, const QString &title, const QString &text) {
        if (!deleted)
            emit failed(text, title);
        return deleted;
    };
    switch (node) {
    case ProjectTree::PaletteNode:
        return refusedUnless(project.deletePalette(id), tr("Palette In Use"),
                             tr("You may not delete this palette; it is used by one or more sprites, tiles or images"));
    case ProjectTree::TileSetNode:
        return refusedUnless(project.deleteTileSet(id), tr("Tile Set In Use"),
                             tr("You may not delete this Tile Set; it is used by one or more maps"));
    case ProjectTree::MapObjectsNode:
        return refusedUnless(project.deleteBlocks(id), tr("Objects in use"),
                             tr("You may not delete these objects; they are in use by one or more maps"));
    case ProjectTree::SpriteBankNode:
        emit aboutToDeleteSprites(id);
        return project.deleteSpriteBank(id);
    case ProjectTree::MapNode:
        return project.deleteMap(id);
    case ProjectTree::ImageNode:
        return project.deleteImage(id);
    }
    return false;
}

// Importing

void ProjectActions::importKnown(const QString &filePath, const PictureLoss *known)
{
    Project *project = m_project();
    if (!project)
        return;
    const auto [map, failure] = isNextData(filePath) ? importNextData(*project, filePath, m_dialogParent)
                                                     : importPicture(*project, filePath, m_dialogParent, known);
    if (map) {
        if (isNextData(filePath))
            announceData(*map, filePath);
        else
            announce(*map, filePath, {});
        emit mapReady(map->id());
    }
    if (!failure.isEmpty())
        reportIncompleteImport(failure);
}

void ProjectActions::importReduction(const QString &filePath, const TileReduction &reduction)
{
    Project *project = m_project();
    if (!project)
        return;
    const QString name = QFileInfo(filePath).completeBaseName();
    if (const QPointer<Map> map = ::importReduction(*project, name, reduction).map) {
        announce(*map, filePath, TiledPicture::choicesOf(reduction));
        emit mapReady(map->id());
    }
}

void ProjectActions::announce(const Map &map, const QString &filePath, QJsonObject choices)
{
    choices.insert(QStringLiteral("columns"), map.size().width());
    choices.insert(QStringLiteral("rows"), map.size().height());
    choices.insert(QStringLiteral("map"), map.id().toString());
    const int count = map.tileSet()->count();
    choices.insert(QStringLiteral("tiles"), QJsonArray{QJsonArray{0, count}});
    emit imported(map.tileSetId(), ImportRecord::Tiles, filePath, choices);
    emit imported(map.id(), ImportRecord::Map, filePath, choices);
}

void ProjectActions::announceData(const Map &map, const QString &filePath)
{
    const QPointer<TileSet> tileSet = map.tileSet();
    const Importing::AddedAssets added{.palette = tileSet->paletteId(), .tileSet = tileSet->id(), .map = map.id()};
    const Importing::ImportChoices choices{.kind = Importing::Kinds::DataSet};
    const QJsonObject made = MadeAssets{added}.addedTo(choices.toJson(), *m_project());
    const QFileInfo file(filePath);
    for (const auto &[id, suffix] : {std::pair(added.palette, "nxp"), {added.tileSet, "nxt"}, {added.map, "nxm"}})
        emit imported(id, ImportRecord::File,
                      file.dir().filePath(file.completeBaseName() + u'.' + QLatin1String(suffix)), made);
}

void ProjectActions::importPalette(const QUuid &paletteId, const QString &filePath)
{
    Project *project = m_project();
    if (!project)
        return;
    Palette words;
    const QPointer<Palette> palette = project->palette(paletteId);
    if (palette)
        words.copyColours(*palette);
    const std::optional<QList<quint16>> leftOut = readPaletteFile(filePath, words);
    if (!leftOut) {
        qWarning("Read error");
        reportIncompleteImport(tr("The file is neither a palette nor a picture that can be read"));
        return;
    }
    if (!leftOut->isEmpty()) {
        reportIncompleteImport(tr("The picture has %n colours; the palette takes the first %1 of them", nullptr,
                                  plural(Palette::Size + leftOut->size()))
                                   .arg(Palette::Size));
        offerPaletteOf(*leftOut, QFileInfo(filePath).completeBaseName());
    }
    if (palette) {
        replaceWords(*palette, words, m_undoStackFor ? m_undoStackFor(paletteId) : nullptr);
        emit imported(paletteId, ImportRecord::Palette, filePath, {});
        return;
    }
    const QPointer<Palette> made = project->createPalette(CreateAction::Blank, QFileInfo(filePath).completeBaseName());
    made->copyColours(words);
    emit imported(made->id(), ImportRecord::Palette, filePath, {});
    emit paletteReady(made->id());
}

void ProjectActions::offerPaletteOf(const QList<quint16> &words, const QString &name)
{
    QPushButton *button = m_importBox->addButton(tr("New Palette for the Others"), QMessageBox::AcceptRole);
    connect(button, &QPushButton::clicked, this, [this, words, name] {
        Project *project = m_project();
        if (!project)
            return;
        Palette others;
        for (qsizetype i = 0; i < std::min(words.size(), qsizetype(Palette::Size)); ++i)
            others.storeRawColour(int(i), words[i]);
        const QPointer<Palette> made = project->createPalette(CreateAction::Blank, tr("%1, more").arg(name));
        made->copyColours(others);
        emit paletteReady(made->id());
    });
    connect(m_importBox, &QDialog::finished, button, [box = m_importBox, button] {
        box->removeButton(button);
        button->deleteLater();
    });
}

void ProjectActions::importSpritePicture(const SpriteImport &import)
{
    Project *project = m_project();
    if (!project)
        return;
    if (const SpriteBank *bank = ::importSpritePicture(*project, import, m_dialogParent)) {
        const int first = import.paletteId.isNull() ? 0 : 1; // behind the blank one of a new bank
        emit imported(bank->id(), ImportRecord::Sprites, import.file, choicesOf(import, first, bank->count() - first));
        emit spritesReady(bank->id());
    } else {
        reportIncompleteImport(tr("Could not make sprites of the image file"));
    }
}

void ProjectActions::importSpriteData(const SpriteImport &import)
{
    Project *project = m_project();
    if (!project)
        return;
    if (const SpriteBank *bank = ::importSpriteData(*project, import, m_dialogParent))
        emit spritesReady(bank->id());
    else
        reportIncompleteImport(tr("Could not import the sprite data"));
}

void ProjectActions::reportIncompleteImport(const QString &failure)
{
    if (!m_importBox) {
        m_importBox = new QMessageBox(QMessageBox::Warning, QCoreApplication::applicationName(),
                                      tr("Import Incomplete"), QMessageBox::Ok, m_dialogParent);
    }
    m_importBox->setInformativeText(plainText(failure));
    widenForTitle(*m_importBox);
    m_importBox->open();
}
