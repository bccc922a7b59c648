#pragma once

#include "app/documentcontroller.h"
#include "support/randomhands.h"

#include <QUndoGroup>

/// Creates, deletes, opens and names assets, and uses tabs, docks and the Edit menu, at random.
class RandomShell : protected virtual RandomHands
{
protected:
    RandomShell()
    {
        addCreations();
        addForAsset("delete", Lasting, [this](Node node, const QUuid &id) {
            if (number(4) == 0)
                m_window.projectActions()->deleteItem(node, id);
        });
        addForAsset("copy asset", Lasting, [this](Node node, const QUuid &id) {
            if (project().palettes().size() + project().tileSets().size() + project().maps().size() < 12)
                m_window.projectActions()->copyItem(node, id);
        });
        addForAsset("rename", Lasting, [this](Node, const QUuid &id) {
            if (QTreeWidgetItem *item = views().project->tree()->itemOf(id))
                item->setText(0, anyName());
        });
        addForAsset("open", None, [this](Node node, const QUuid &id) { views().project->itemDoubleClicked(node, id); });
        const auto tabs = [this] { return views().tabs->count() > 0 ? views().tabs : nullptr; };
        addFor(tabs, "switch tab", None, [this](DocumentTabView &view) { view.setCurrentIndex(number(view.count())); });
        addFor(tabs, "close tab", None, [this](DocumentTabView &view) {
            if (chance())
                view.closeTab(number(view.count()));
        });
        const auto window = [this] { return &m_window; };
        addFor(window, "scratch image", None,
               [this](MainWindow &) { views().tabs->setScratchEditorVisible(chance()); });
        addFor(window, "docks", None, [this](MainWindow &shown) {
            QDockWidget *dock = any(shown.findChildren<QDockWidget *>());
            chance() ? dock->setVisible(dock->isHidden()) : dock->setFloating(!dock->isFloating());
        });
        // of one document, while others may have changed
        addFor(window, "undo or redo", Lasting, [this](MainWindow &shown) {
            QUndoGroup *undo = shown.documentController()->undoGroup();
            for (int steps = number(6); steps >= 0; --steps)
                chance() ? undo->undo() : undo->redo();
        });
    }

private:
    using Node = ProjectTree::ProjectNode;

    QString anyName() { return QStringLiteral("Asset %1").arg(number(1000)); }

    /// Adds what is done with any asset.
    void addForAsset(const char *name, Effect effect, const std::function<void(Node, const QUuid &)> &run)
    {
        add(name, effect, [this, run] {
            const auto node = Node(number(ProjectTree::NodeCount));
            const QUuid ids[]{anyId(&Project::palettes),    anyId(&Project::tileSets), anyId(&Project::blockSets),
                              anyId(&Project::spriteBanks), anyId(&Project::maps),     anyId(&Project::images)};
            if (!ids[node].isNull())
                run(node, ids[node]);
            return !ids[node].isNull();
        });
    }

    /// Adds the creation of an asset, which is done while there are fewer than most of its kind.
    template <typename List>
    void addCreation(const char *name, List list, int most, const std::function<void()> &create)
    {
        add(name, Lasting, [this, list, most, create] {
            const bool room = (project().*list)().size() < most;
            if (room)
                create();
            return room;
        });
    }
    void addCreations()
    {
        ProjectActions *actions = m_window.projectActions();
        addCreation("create palette", &Project::palettes, 5, [this, actions] {
            actions->createPalette(CreateAction(number(4)), anyName(), anyId(&Project::palettes));
        });
        addCreation("create tile set", &Project::tileSets, 3, [this, actions] {
            const QUuid palette = chance() ? anyId(&Project::palettes) : QUuid();
            actions->createTileSet(anyName(), palette, 1 + number(40), chance());
        });
        addCreation("create map", &Project::maps, 3, [this, actions] {
            if (const QUuid tileSet = anyId(&Project::tileSets); !tileSet.isNull())
                actions->createMap(anyName(), tileSet, {1 + number(50), 1 + number(40)});
        });
        addCreation("create block set", &Project::blockSets, 3, [this, actions] {
            if (const QUuid tileSet = anyId(&Project::tileSets); !tileSet.isNull())
                actions->createBlocks(anyName(), tileSet);
        });
        addCreation("create sprites", &Project::spriteBanks, 3, [this, actions] {
            const auto options = SpriteDialog::CreateOptions::fromInt(number(4));
            actions->createSprites(options, anyName(), anyId(&Project::palettes));
        });
        addCreation("create image", &Project::images, 2, [this, actions] {
            if (const QUuid palette = anyId(&Project::palettes); !palette.isNull())
                actions->createImage(anyName(), Quenmora::ImageMode(number(4)), palette);
        });
    }
};
