#include "app/imports/importkeeper.h"

#include "app/documentcontroller.h"
#include "app/importfile/fileimport.h"
#include "app/imports/filesagain.h"
#include "app/imports/imageagain.h"
#include "app/imports/importagain.h"
#include "app/imports/importnotice.h"
#include "app/menus/menubar.h"
#include "app/projectactions.h"
#include "app/projectcontroller.h"
#include "app/projecttree/projecttree.h"
#include "editors/canvas/imageimport.h"
#include "importing/filekind.h"
#include "importing/kinds.h"
#include "model/image.h"
#include "model/palette.h"
#include "model/tileset.h"

#include <QFileInfo>

namespace {

/// The one of the assets that a file of a kind goes into; null for one that makes several.
QUuid targetOf(const Importing::ImportChoices &choices, const Importing::AddedAssets &added)
{
    using NextData::AssetKind;
    if (!choices.target.isNull())
        return choices.target;
    const Importing::FileKind *kind = Importing::findFileKind(choices.kind);
    if (!kind || !kind->takesTarget || kind->id == Importing::Kinds::AsepriteSprites)
        return {};
    switch (kind->asset) {
    case AssetKind::Palette:
        return added.palette;
    case AssetKind::TileSet:
        return added.tileSet;
    case AssetKind::Map:
        return added.map;
    case AssetKind::SpriteBank:
        return added.sprites;
    case AssetKind::Image:
        return added.image;
    default:
        return {};
    }
}

} // namespace

ImportKeeper::ImportKeeper(ProjectController *projects, DocumentController *documents, QWidget *window)
    : QObject(window)
    , m_projects(projects)
    , m_documents(documents)
    , m_window(window)
    , m_notice(new ImportNotice(window))
{
    connect(projects, &ProjectController::projectOpened, this, [this](Project *project) {
        m_memory.setProject(project, m_projects->filePath());
        look();
    });
    connect(projects, &ProjectController::projectClosing, this, [this] {
        m_memory.setProject(nullptr, {});
        look();
    });
    projects->setSavingExtrasCallback([this] { m_memory.moveTo(m_projects->filePath()); });
    connect(documents, &DocumentController::pictureImported, this,
            [this](const QUuid &image, const QString &file, const ImageImport &choices) {
                m_memory.remember(image, ImportRecord::Image, file, choicesOf(choices));
            });
    connect(m_notice, &ImportNotice::accepted, this, [this] {
        const QList<QUuid> offered = m_offered;
        for (const QUuid &asset : offered) {
            if (m_memory.changedAssets().contains(asset)) // which it may not be any more, after another one
                importAgain(asset);
        }
        m_memory.dismiss(offered); // also what failed, which was told
        look();
    });
    connect(m_notice, &ImportNotice::dismissed, this, [this] {
        m_memory.dismiss(m_offered);
        look();
    });
}

void ImportKeeper::follow(const ProjectActions &actions)
{
    connect(&actions, &ProjectActions::imported, &m_memory, &ImportMemory::remember);
}

void ImportKeeper::follow(const FileImport &files)
{
    connect(&files, &FileImport::imported, this,
            [this](const QString &file, const Importing::ImportChoices &choices, const Importing::AddedAssets &added) {
                const QUuid target = targetOf(choices, added);
                if (!target.isNull()) {
                    m_memory.remember(target, ImportRecord::File, file, choices.toJson());
                    return;
                }
                const QJsonObject made = MadeAssets{added}.addedTo(choices.toJson(), *m_projects->project());
                for (const QUuid &asset : MadeAssets{added}.ids())
                    m_memory.remember(asset, ImportRecord::File, file, made);
            });
}

void ImportKeeper::serve(MenuBar &menus, ProjectTree &tree)
{
    const auto knows = [this](const QUuid &asset) { return m_memory.knows(asset); };
    menus.setImportAgainCheck(knows);
    connect(&m_memory, &ImportMemory::changed, &menus, &MenuBar::refreshImportAgain);
    tree.setImportAgainCheck(knows);
    connect(&menus, &MenuBar::importAgainRequested, this, &ImportKeeper::importAgain);
    connect(&tree, &ProjectTree::importItemAgain, this,
            [this](ProjectTree::ProjectNode, const QUuid &asset) { importAgain(asset); });
}

void ImportKeeper::show(const QUuid &asset)
{
    const Project &project = *m_projects->project();
    if (project.map(asset))
        m_documents->setActiveMap(asset);
    else if (project.spriteBank(asset))
        m_documents->setActiveSpriteEditor(asset);
    else if (project.image(asset))
        m_documents->setActiveImageEditor(asset);
    else if (project.tileSet(asset))
        m_documents->openTileSet(asset);
    else
        m_documents->openPalette(asset);
}

void ImportKeeper::importAgain(const QUuid &asset)
{
    Project *project = m_projects->project();
    const auto record = m_memory.recordOf(asset);
    if (!project || !record)
        return;
    show(asset);
    const auto stackFor = [this](const QUuid &id) { return m_documents->recordingStackFor(id); };
    const ImportedAgain done = ImportedAgain::run(*project, asset, *record, stackFor, m_window);
    if (!done.failure.isEmpty()) {
        emit failed(tr("The file could not be imported again"), tr("Import Again"), done.failure);
        return;
    }
    m_memory.renew(asset, done);
    emit message(done.told);
    look();
}

void ImportKeeper::look()
{
    m_offered = m_memory.changedAssets();
    QStringList files;
    for (const QUuid &asset : std::as_const(m_offered)) {
        const QString file = QFileInfo(m_memory.recordOf(asset)->file).fileName();
        if (!files.contains(file))
            files.append(file);
    }
    m_notice->tell(files);
}
