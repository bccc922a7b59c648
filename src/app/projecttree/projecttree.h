#pragma once

#include "model/project.h"

#include <QPointer>
#include <QTreeWidget>
#include <QUuid>

#include <functional>

class QMenu;

/// The assets of a project by kind, with the block sets below their tile set.
///
/// Groups are there for every kind and show themselves when they hold something; palettes have a group,
/// but are never listed, since the palette dock offers them. The tree asks for what a person wants done
/// with an asset by its signals and changes nothing itself.
class ProjectTree : public QTreeWidget
{
    Q_OBJECT

public:
    /// The kind of an asset.
    enum ProjectNode {
        PaletteNode = 0,
        TileSetNode = 1,
        MapObjectsNode = 2,
        SpriteBankNode = 3,
        MapNode = 4,
        ImageNode = 5
    };
    Q_ENUM(ProjectNode)
    static constexpr int NodeCount = 6;

    /// What an asset of the kind is called, such as "Tile Set".
    [[nodiscard]] static QString nodeName(ProjectNode node);
    /// The picture of the kind, wherever assets are listed or shown.
    [[nodiscard]] static QIcon nodeIcon(ProjectNode node);

    explicit ProjectTree(QWidget *parent = nullptr);

    /// Starts anew with the project item and the empty groups; null leaves the tree empty.
    void showProject(const QPointer<Project> &project);
    /// Lists an asset. Map objects go below the tile set of the id parent, every other kind into its group.
    void addAsset(ProjectNode node, const QUuid &id, const QString &name, const QUuid &parent = {});
    /// Takes an asset out of the list; map objects below a tile set stay, in the group "Objects".
    void removeAsset(const QUuid &id);

    /// Whether no asset is listed where it can be seen: palettes never are.
    [[nodiscard]] bool isEmpty() const;
    /// The item of an asset, or null.
    [[nodiscard]] QTreeWidgetItem *itemOf(const QUuid &id) const;
    /// The kind and id of an asset's item; false for any other item and null.
    static bool identify(const QTreeWidgetItem *item, ProjectNode &node, QUuid &id);
    /// Who knows whether an asset can be imported again; nobody at first.
    void setImportAgainCheck(const std::function<bool(const QUuid &)> &canImport) { m_canImportAgain = canImport; }
    /// "Rename", "Delete" and "Copy" for the current item, and "Import Again".
    [[nodiscard]] QMenu *itemMenu() const { return m_menu; }

public slots:
    /// The context menu for the item at a position of the viewport.
    void showContextMenu(QPoint pos);
    /// The context menu for the current item, beside it.
    void showItemContextMenu();
    void doubleClickFilter(QTreeWidgetItem *item, int column);

signals:
    void itemDoubleClicked(ProjectTree::ProjectNode node, QUuid id);
    void copyItem(ProjectTree::ProjectNode node, QUuid id);
    void deleteItem(ProjectTree::ProjectNode node, QUuid id);
    void importItemAgain(ProjectTree::ProjectNode node, QUuid id);

protected:
    /// Enter opens the current item, as a double click does, and Delete asks to delete it.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildMenu();
    void openMenu(QTreeWidgetItem *item, const QPoint &globalPos);
    [[nodiscard]] QTreeWidgetItem *group(ProjectNode node) const;
    /// Puts an asset's item below another one, in the order of their texts.
    void place(QTreeWidgetItem *item, QTreeWidgetItem *above);

    QMenu *m_menu;
    QAction *m_copy;
    QAction *m_importAgain;
    std::function<bool(const QUuid &)> m_canImportAgain = [](const QUuid &) { return false; };
};
