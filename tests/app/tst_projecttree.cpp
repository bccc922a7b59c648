#include "app/projecttree/projectwindow.h"

#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// The visible items below an item, each below its parent and indented by one space more.
QStringList shown(const QTreeWidgetItem *item, const QString &indent = {})
{
    if (item->isHidden())
        return {};
    QStringList lines{indent + item->text(0)};
    for (int row = 0; row < item->childCount(); ++row)
        lines += shown(item->child(row), indent + " ");
    return lines;
}

} // namespace

class TestProjectTree : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_project = std::make_unique<Project>();
        m_window = std::make_unique<ProjectWindow>();
        m_window->setProject(m_project.get());
        m_window->activate();
        m_window->resize(300, 500);
        m_window->show();
        QCOMPARE(shownItems(), QStringList{"untitled"});
        const QUuid palette = m_project->createPalette(CreateAction::Blank, "Unlisted")->id();
        QCOMPARE(shownItems(), QStringList{"untitled"});
        m_tiles = m_project->createTileSet("Tiles", palette);
        m_project->createTileSet("Forest", palette);
        m_doors = m_project->createBlockList("Doors", m_tiles->id());
        m_hero = m_project->createSpriteBank(Quenmora::FourBit, "Hero", palette);
        m_level = m_project->createMap("Level", m_tiles->id(), {40, 32});
        m_title = m_project->createImage(Quenmora::LoRes_128x96, "Title", palette);
    }

    void cleanup() { m_window.reset(); }
    void listsAssetsByKind()
    {
        const QStringList all{"untitled", " Tile Sets", "  Forest", "  Tiles", "   Doors", " Sprites",
                              "  Hero",   " Maps",      "  Level",  " Images", "  Title"};
        QCOMPARE(shownItems(), all);
        m_window->setProject(m_project.get()); // which has its assets now
        QCOMPARE(shownItems(), all);
        const Qt::GlobalColor colours[]{Qt::blue, Qt::red, Qt::magenta, Qt::green, Qt::cyan, Qt::yellow};
        const QTreeWidgetItem *groups = tree()->topLevelItem(0);
        QCOMPARE(groups->childCount(), 6);
        for (int node = 0; node < 6; ++node) {
            QCOMPARE(groups->child(node)->data(0, Qt::UserRole), QVariant(node));
            QCOMPARE(groups->child(node)->foreground(0).color(), QColor(colours[node]).lighter(150));
        }
    }

    void followsOneProject()
    {
        const QUuid tiles = m_tiles->id();
        m_project->deleteTileSet(tiles);
        m_window->removeItem(ProjectTree::TileSetNode, tiles);
        m_window->removeItem(ProjectTree::TileSetNode, tiles);
        QCOMPARE(shownItems().mid(1, 4),
                 (QStringList{" Tile Sets", "  Forest", " Objects", "  Doors"})); // without tiles
        Project other;
        other.createBlockList("Unbound", {});
        m_window->setProject(&other);
        m_project->createTileSet("Of the project before", {});
        QCOMPARE(shownItems(), (QStringList{"untitled", " Objects", "  Unbound"}));
        m_window->setProject(nullptr);
        QCOMPARE(tree()->topLevelItemCount(), 0);
    }

    void activatesByDoubleClickAndEnter()
    {
        QStringList activated;
        QStringList expected;
        const auto note = [&](const char *kind, auto signal) {
            connect(m_window.get(), signal, this,
                    [&activated, kind](const QUuid &id) { activated.append(kind + id.toString()); });
        };
        note("palette", &ProjectWindow::selectedPaletteChanged);
        note("tiles", &ProjectWindow::selectedTileSetChanged);
        note("blocks", &ProjectWindow::selectedBlocksChanged);
        note("sprites", &ProjectWindow::selectedSpritesChanged);
        note("map", &ProjectWindow::selectedMapChanged);
        note("image", &ProjectWindow::selectedImageChanged);
        for (const auto &[kind, id] : {std::pair("tiles", m_tiles->id()),
                                       {"blocks", m_doors->id()},
                                       {"sprites", m_hero->id()},
                                       {"map", m_level->id()},
                                       {"image", m_title->id()}}) {
            QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, placeOf(tree()->itemOf(id)));
            QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, placeOf(tree()->itemOf(id)));
            expected.append(kind + id.toString());
        }
        tree()->doubleClickFilter(tree()->topLevelItem(0), 0);
        tree()->doubleClickFilter(tree()->topLevelItem(0)->child(ProjectTree::MapNode), 0);
        QTest::keyClick(tree(), Qt::Key_Return);
        m_window->itemDoubleClicked(ProjectTree::PaletteNode, m_tiles->id());
        expected += {expected.last(), "palette" + m_tiles->id().toString()};
        QCOMPARE(activated, expected);
    }

    void renamesAndSorts()
    {
        QSignalSpy renamed(m_window.get(), &ProjectWindow::itemRenamed);
        rename(m_tiles->id(), "Bricks");
        QCOMPARE(shownItems().mid(1, 4), (QStringList{" Tile Sets", "  Bricks", "   Doors", "  Forest"}));
        rename(m_doors->id(), "Gates");
        rename(m_hero->id(), "Heroine");
        rename(m_level->id(), "Level 1");
        rename(m_title->id(), "Titles");
        rename(m_tiles->id(), "  "); // nobody may have this name
        const QStringList names{m_tiles->name(), m_doors->name(), m_hero->name(), m_level->name(), m_title->name()};
        QCOMPARE(names, (QStringList{"Bricks", "Gates", "Heroine", "Level 1", "Titles"}));
        QVERIFY(shownItems().contains("  Bricks"));
        QCOMPARE(renamed.size(), 5);
        QCOMPARE(renamed.last(), (QVariantList{m_title->id(), "Titles"}));
    }

    void offersItsMenuOnAssetsOnly()
    {
        QMenu *menu = tree()->itemMenu();
        tree()->showContextMenu(placeOf(tree()->topLevelItem(0)->child(ProjectTree::TileSetNode)));
        tree()->showContextMenu(placeOf(tree()->topLevelItem(0)));
        QVERIFY(!menu->isVisible());
        tree()->showContextMenu(placeOf(tree()->itemOf(m_doors->id())));
        QVERIFY(menu->isVisible());
        menu->hide();

        QSignalSpy deleted(m_window.get(), &ProjectWindow::deleteItemTriggered);
        QSignalSpy copied(m_window.get(), &ProjectWindow::copyItemTriggered);
        menu->actions().at(1)->trigger();
        QCOMPARE(deleted.takeFirst(), (QVariantList{QVariant::fromValue(ProjectTree::MapObjectsNode), m_doors->id()}));
        tree()->setCurrentItem(tree()->itemOf(m_tiles->id()));
        tree()->showItemContextMenu();
        QVERIFY(menu->isVisible());
        menu->hide();
        menu->actions().at(2)->trigger();
        QTest::keyClick(tree(), Qt::Key_Delete);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
        QApplication::sendEvent(tree(), &held);
        const QVariantList tiles{QVariant::fromValue(ProjectTree::TileSetNode), m_tiles->id()};
        QCOMPARE(copied, QList<QVariantList>{tiles});
        QCOMPARE(deleted, QList<QVariantList>{tiles});
    }

private:
    [[nodiscard]] ProjectTree *tree() const { return m_window->tree(); }
    [[nodiscard]] QStringList shownItems() const { return shown(tree()->topLevelItem(0)); }
    [[nodiscard]] QPoint placeOf(const QTreeWidgetItem *item) const { return tree()->visualItemRect(item).center(); }
    void rename(const QUuid &id, const QString &name)
    {
        tree()->setCurrentItem(tree()->itemOf(id));
        QTest::keyClick(tree(), Qt::Key_F2);
        auto *editor = tree()->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText(name);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!tree()->findChild<QLineEdit *>());
    }

    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectWindow> m_window;
    // one asset of every kind
    QPointer<TileSet> m_tiles;
    QPointer<MapObjects> m_doors;
    QPointer<SpriteBank> m_hero;
    QPointer<Map> m_level;
    QPointer<Image> m_title;
};

QUENMORA_TEST_MAIN(TestProjectTree)
#include "tst_projecttree.moc"
