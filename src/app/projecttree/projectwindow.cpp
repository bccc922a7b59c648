#include "app/projecttree/projectwindow.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

/// Calls action with the asset of a kind and id if the project has it.
template <typename Action>
void withAsset(const Project &project, ProjectTree::ProjectNode node, const QUuid &id, Action action)
{
    const auto call = [&action](const auto &asset) {
        if (asset)
            action(*asset);
    };
    switch (node) {
    case ProjectTree::PaletteNode:
        return call(project.palette(id));
    case ProjectTree::TileSetNode:
        return call(project.tileSet(id));
    case ProjectTree::MapObjectsNode:
        return call(project.blocks(id));
    case ProjectTree::SpriteBankNode:
        return call(project.spriteBank(id));
    case ProjectTree::MapNode:
        return call(project.map(id));
    case ProjectTree::ImageNode:
        return call(project.image(id));
    }
}

} // namespace

ProjectWindow::ProjectWindow(QWidget *parent)
    : DockWidget(tr("Project"), tr("No project loaded"), parent)
    , m_tree(new ProjectTree)
{
    setObjectName(QStringLiteral("ProjectWindow"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_tree, 1);
    content->setFocusProxy(m_tree);
    setContent(content);
    connect(m_tree, &ProjectTree::itemDoubleClicked, this, &ProjectWindow::itemDoubleClicked);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ProjectWindow::itemEdited);
    connect(m_tree, &ProjectTree::deleteItem, this, &ProjectWindow::deleteItemTriggered);
    connect(m_tree, &ProjectTree::copyItem, this, &ProjectWindow::copyItemTriggered);
}

void ProjectWindow::setProject(QPointer<Project> project)
{
    if (m_project)
        m_project->disconnect(this);
    m_project = project;
    const QSignalBlocker blocker(m_tree);
    m_tree->showProject(m_project);
    if (m_project) {
        fill();
        followProject();
    }
    updateNextSteps();
}

void ProjectWindow::setNextSteps(QWidget *steps)
{
    m_nextSteps = steps;
    content()->layout()->addWidget(steps);
    updateNextSteps();
}

void ProjectWindow::updateNextSteps()
{
    if (m_nextSteps)
        m_nextSteps->setVisible(m_project && m_tree->isEmpty());
}

template <typename Asset>
void ProjectWindow::add(ProjectTree::ProjectNode node, const QPointer<Asset> &asset)
{
    if (!asset)
        return;
    QUuid parent;
    if constexpr (std::is_same_v<Asset, MapObjects>)
        parent = asset->tileSet() ? asset->tileSet()->id() : QUuid();
    const QSignalBlocker blocker(m_tree);
    m_tree->addAsset(node, asset->id(), asset->name(), parent);
    updateNextSteps();
}

void ProjectWindow::fill()
{
    const auto addAll = [this](ProjectTree::ProjectNode node, const auto &assets) {
        for (const auto &asset : assets)
            add(node, asset);
    };
    addAll(ProjectTree::PaletteNode, m_project->palettes());
    addAll(ProjectTree::TileSetNode, m_project->tileSets());
    addAll(ProjectTree::MapNode, m_project->maps());
    addAll(ProjectTree::MapObjectsNode, m_project->blockSets());
    addAll(ProjectTree::SpriteBankNode, m_project->spriteBanks());
    addAll(ProjectTree::ImageNode, m_project->images());
}

void ProjectWindow::followProject()
{
    const auto follow = [this](ProjectTree::ProjectNode node, auto created) {
        connect(m_project, created, this, [this, node](const auto &asset) { add(node, asset); });
    };
    follow(ProjectTree::PaletteNode, &Project::paletteCreated);
    follow(ProjectTree::TileSetNode, &Project::tilesetCreated);
    follow(ProjectTree::MapNode, &Project::mapCreated);
    follow(ProjectTree::MapObjectsNode, &Project::blocksCreated);
    follow(ProjectTree::SpriteBankNode, &Project::spritesCreated);
    follow(ProjectTree::ImageNode, &Project::imageCreated);
}

void ProjectWindow::removeItem(ProjectTree::ProjectNode, QUuid id)
{
    const QSignalBlocker blocker(m_tree);
    m_tree->removeAsset(id);
    updateNextSteps();
}

void ProjectWindow::itemDoubleClicked(ProjectTree::ProjectNode node, QUuid id)
{
    switch (node) {
    case ProjectTree::PaletteNode:
        emit selectedPaletteChanged(id);
        break;
    case ProjectTree::TileSetNode:
        emit selectedTileSetChanged(id);
        break;
    case ProjectTree::MapObjectsNode:
        emit selectedBlocksChanged(id);
        break;
    case ProjectTree::SpriteBankNode:
        emit selectedSpritesChanged(id);
        break;
    case ProjectTree::MapNode:
        emit selectedMapChanged(id);
        break;
    case ProjectTree::ImageNode:
        emit selectedImageChanged(id);
        break;
    }
}

void ProjectWindow::itemEdited(QTreeWidgetItem *item, int)
{
    ProjectTree::ProjectNode node;
    QUuid id;
    if (!m_project || !ProjectTree::identify(item, node, id))
        return;
    const QSignalBlocker blocker(m_tree);
    withAsset(*m_project, node, id, [&](auto &asset) {
        const QString name = item->text(0);
        if (name.trimmed().isEmpty() || name == asset.name()) {
            item->setText(0, asset.name());
            return;
        }
        asset.setName(name);
        emit itemRenamed(id, name);
    });
    item->parent()->sortChildren(0, Qt::AscendingOrder);
}
