#include "app/projecttree/projectwindow.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

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
    void init();
    void cleanup() { m_window.reset(); }
    void listsAssetsByKind();
    void listsAProjectThatHasAssets();
    void activatesByDoubleClickAndEnter();
    void renamesAndSorts();
    void offersItsMenuOnAssetsOnly();
    void removesDeletedAssets();

private:
    [[nodiscard]] ProjectTree *tree() const { return m_window->tree(); }
    [[nodiscard]] QStringList shownItems() const { return shown(tree()->topLevelItem(0)); }
    void select(const QUuid &id) { tree()->setCurrentItem(tree()->itemOf(id)); }
    void rename(const QUuid &id, const QString &name);

    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectWindow> m_window;
};

void TestProjectTree::init()
{
    m_project = std::make_unique<Project>();
    m_project->setName("Game");
    m_window = std::make_unique<ProjectWindow>();
    m_window->setProject(m_project.get());
    m_window->activate();
    m_window->resize(300, 500);
    m_window->show();
}

void TestProjectTree::rename(const QUuid &id, const QString &name)
{
    select(id);
    QTest::keyClick(tree(), Qt::Key_F2);
    auto *editor = tree()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(name);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!tree()->findChild<QLineEdit *>());
}

void TestProjectTree::listsAssetsByKind()
{
    QCOMPARE(shownItems(), QStringList{"Game"});
    const QUuid palette = m_project->createPalette(CreateAction::Blank, "Unlisted")->id();
    QCOMPARE(shownItems(), QStringList{"Game"});
    const QUuid tiles = m_project->createTileSet("Tiles", palette)->id();
    QCOMPARE(shownItems(), (QStringList{"Game", " Tile Sets", "  Tiles"}));
    m_project->createTileSet("Forest", palette);
    m_project->createBlockList("Doors", tiles);
    m_project->createSpriteBank(Quenmora::FourBit, "Hero", palette);
    m_project->createMap("Level", tiles, {40, 32});
    m_project->createImage(Quenmora::LoRes_128x96, "Title", palette);
    QCOMPARE(shownItems(),
             (QStringList{"Game", " Tile Sets", "  Forest", "  Tiles", "   Doors", " Sprites", "  Hero", " Maps",
                          "  Level", " Images", "  Title"}));

    const QTreeWidgetItem *groups = tree()->topLevelItem(0);
    QCOMPARE(groups->childCount(), 6);
    for (int node = 0; node < 6; ++node)
        QCOMPARE(groups->child(node)->data(0, Qt::UserRole), QVariant(node));
    QCOMPARE(groups->child(1)->foreground(0).color(), QColor(Qt::red).lighter(150));
    QCOMPARE(groups->child(5)->foreground(0).color(), QColor(Qt::yellow).lighter(150));
}

void TestProjectTree::listsAProjectThatHasAssets()
{
    Project project;
    const QUuid tiles = project.createTileSet("Tiles", {})->id();
    project.createBlockList("Doors", tiles);
    project.createBlockList("Unbound", {});
    project.createImage(Quenmora::LoRes_128x96, "Title", {});
    m_window->setProject(&project);
    QCOMPARE(
        shownItems(),
        (QStringList{"untitled", " Tile Sets", "  Tiles", "   Doors", " Objects", "  Unbound", " Images", "  Title"}));
    m_project->createTileSet("Of the project before", {});
    QCOMPARE(shownItems().size(), 8);
    m_window->setProject(nullptr);
    QCOMPARE(tree()->topLevelItemCount(), 0);
}

void TestProjectTree::activatesByDoubleClickAndEnter()
{
    const QUuid tiles = m_project->createTileSet("Tiles", {})->id();
    const QUuid doors = m_project->createBlockList("Doors", tiles)->id();
    const QUuid hero = m_project->createSpriteBank(Quenmora::FourBit, "Hero", {})->id();
    const QUuid level = m_project->createMap("Level", tiles, {40, 32})->id();
    const QUuid title = m_project->createImage(Quenmora::LoRes_128x96, "Title", {})->id();
    QStringList activated;
    const auto note = [&activated](const char *kind) {
        return [&activated, kind](const QUuid &id) { activated.append(kind + id.toString()); };
    };
    connect(m_window.get(), &ProjectWindow::selectedPaletteChanged, this, note("palette"));
    connect(m_window.get(), &ProjectWindow::selectedTileSetChanged, this, note("tile set"));
    connect(m_window.get(), &ProjectWindow::selectedBlocksChanged, this, note("blocks"));
    connect(m_window.get(), &ProjectWindow::selectedSpritesChanged, this, note("sprites"));
    connect(m_window.get(), &ProjectWindow::selectedMapChanged, this, note("map"));
    connect(m_window.get(), &ProjectWindow::selectedImageChanged, this, note("image"));

    for (const QUuid &id : {tiles, doors, hero, level, title}) {
        const QPoint middle = tree()->visualItemRect(tree()->itemOf(id)).center();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, {}, middle);
    }
    const QStringList expected{"tile set" + tiles.toString(), "blocks" + doors.toString(), "sprites" + hero.toString(),
                               "map" + level.toString(), "image" + title.toString()};
    QCOMPARE(activated, expected);
    m_window->itemDoubleClicked(ProjectTree::PaletteNode, tiles);
    QCOMPARE(activated.takeLast(), "palette" + tiles.toString());

    tree()->doubleClickFilter(tree()->topLevelItem(0), 0);
    tree()->doubleClickFilter(tree()->topLevelItem(0)->child(ProjectTree::MapNode), 0);
    QCOMPARE(activated, expected);
    select(level);
    QTest::keyClick(tree(), Qt::Key_Return);
    QCOMPARE(activated.last(), "map" + level.toString());
    QCOMPARE(activated.size(), expected.size() + 1);
}

void TestProjectTree::renamesAndSorts()
{
    const QPointer<TileSet> tiles = m_project->createTileSet("B", {});
    m_project->createTileSet("C", {});
    const QPointer<MapObjects> doors = m_project->createBlockList("Doors", tiles->id());
    const QPointer<SpriteBank> hero = m_project->createSpriteBank(Quenmora::FourBit, "Hero", {});
    const QPointer<Map> level = m_project->createMap("Level", tiles->id(), {40, 32});
    const QPointer<Image> title = m_project->createImage(Quenmora::LoRes_128x96, "Title", {});
    QSignalSpy renamed(m_window.get(), &ProjectWindow::itemRenamed);

    rename(tiles->id(), "D");
    QCOMPARE(tiles->name(), "D");
    QCOMPARE(shownItems().mid(1, 4), (QStringList{" Tile Sets", "  C", "  D", "   Doors"}));
    rename(tiles->id(), "A");
    QCOMPARE(shownItems().mid(1, 4), (QStringList{" Tile Sets", "  A", "   Doors", "  C"}));
    rename(doors->id(), "Gates");
    QCOMPARE(doors->name(), "Gates");
    rename(hero->id(), "Heroine");
    QCOMPARE(hero->name(), "Heroine");
    rename(level->id(), "Level 1");
    QCOMPARE(level->name(), "Level 1");
    rename(title->id(), "Titles");
    QCOMPARE(title->name(), "Titles");
    rename(tiles->id(), "  "); // nobody may have this name
    QCOMPARE(tiles->name(), "A");
    QCOMPARE(tree()->itemOf(tiles->id())->text(0), "A");
    QCOMPARE(renamed.size(), 6);
    QCOMPARE(renamed.last(), (QVariantList{title->id(), "Titles"}));
}

void TestProjectTree::offersItsMenuOnAssetsOnly()
{
    const QUuid tiles = m_project->createTileSet("Tiles", {})->id();
    const QUuid doors = m_project->createBlockList("Doors", tiles)->id();
    QMenu *menu = tree()->itemMenu();
    QTreeWidgetItem *group = tree()->topLevelItem(0)->child(ProjectTree::TileSetNode);
    tree()->showContextMenu(tree()->visualItemRect(group).center());
    tree()->showContextMenu(tree()->visualItemRect(tree()->topLevelItem(0)).center());
    QVERIFY(!menu->isVisible());
    tree()->showContextMenu(tree()->visualItemRect(tree()->itemOf(doors)).center());
    QVERIFY(menu->isVisible());
    menu->hide();

    QSignalSpy deleted(m_window.get(), &ProjectWindow::deleteItemTriggered);
    QSignalSpy copied(m_window.get(), &ProjectWindow::copyItemTriggered);
    QCOMPARE(menu->actions().size(), 3);
    menu->actions().at(1)->trigger();
    QCOMPARE(deleted.takeFirst(), (QVariantList{QVariant::fromValue(ProjectTree::MapObjectsNode), doors}));
    select(tiles);
    tree()->showItemContextMenu();
    QVERIFY(menu->isVisible());
    menu->hide();
    menu->actions().at(2)->trigger();
    QCOMPARE(copied.takeFirst(), (QVariantList{QVariant::fromValue(ProjectTree::TileSetNode), tiles}));
    QTest::keyClick(tree(), Qt::Key_Delete);
    QCOMPARE(deleted.takeFirst(), (QVariantList{QVariant::fromValue(ProjectTree::TileSetNode), tiles}));
}

void TestProjectTree::removesDeletedAssets()
{
    const QUuid tiles = m_project->createTileSet("Tiles", {})->id();
    m_project->createBlockList("Doors", tiles);
    m_project->deleteTileSet(tiles);
    m_window->removeItem(ProjectTree::TileSetNode, tiles);
    QCOMPARE(shownItems(), (QStringList{"Game", " Objects", "  Doors"})); // it lives on without tiles
    m_window->removeItem(ProjectTree::TileSetNode, tiles);
    QCOMPARE(shownItems().size(), 3);
}

QUENMORA_TEST_MAIN(TestProjectTree)
#include "tst_projecttree.moc"
