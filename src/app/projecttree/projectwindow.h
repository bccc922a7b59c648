#pragma once

#include "app/projecttree/projecttree.h"
#include "model/project.h"
#include "ui/dockwidget.h"

#include <QPointer>

/// The project dock: the tree of the open project's assets. It renames them; opening, copying and
/// deleting it asks for.
class ProjectWindow : public DockWidget
{
    Q_OBJECT

public:
    explicit ProjectWindow(QWidget *parent = nullptr);

    [[nodiscard]] ProjectTree *tree() const { return m_tree; }

    /// What to show below the tree, while the project has nothing to list, about how to begin.
    void setNextSteps(QWidget *steps);

public slots:
    /// Lists the assets of a project, and those that it gains; null empties the tree.
    void setProject(QPointer<Project> project);
    /// Takes the item of a deleted asset out of the tree.
    void removeItem(ProjectTree::ProjectNode node, QUuid id);
    void itemDoubleClicked(ProjectTree::ProjectNode node, QUuid id);
    /// Gives the asset the text of its item. An empty name is not taken.
    void itemEdited(QTreeWidgetItem *item, int column);

signals:
    void selectedPaletteChanged(QUuid id);
    void selectedTileSetChanged(QUuid id);
    void selectedBlocksChanged(QUuid id);
    void selectedSpritesChanged(QUuid id);
    void selectedMapChanged(QUuid id);
    void selectedImageChanged(QUuid id);
    void deleteItemTriggered(ProjectTree::ProjectNode node, QUuid id);
    void copyItemTriggered(ProjectTree::ProjectNode node, QUuid id);
    /// An asset got another name here.
    void itemRenamed(QUuid id, QString name);

private:
    void fill();
    void updateNextSteps();
    void followProject();
    template <typename Asset>
    void add(ProjectTree::ProjectNode node, const QPointer<Asset> &asset);

    ProjectTree *m_tree;
    QWidget *m_nextSteps = nullptr;
    QPointer<Project> m_project;
};
