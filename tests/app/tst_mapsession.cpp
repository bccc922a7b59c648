#include "app/mainwindow.h"

#include "app/documenttabview.h"
#include "editors/animation/animationlistwidget.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mapspriteswindow.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QAction>
#include <QListView>
#include <QMenu>
#include <QTest>
#include <QUndoStack>

#include <optional>

using namespace Quenmora::Ui;

/// Editing a map in the whole window, with its docks and its tool bar.
class TestMapSession : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void docksAndMapChooseForEachOther();
    void selectionBecomesAMap();
    void toolBarChangesHandsWithTheTab();

private:
    [[nodiscard]] const DocumentViews &views() { return m_window->views(); }
    [[nodiscard]] MapEditor::View *editor() { return qobject_cast<MapEditor::View *>(views().tabs->currentWidget()); }
    [[nodiscard]] QPoint cell(int x, int y) { return editor()->grid()->viewport().rectOfCells({x, y, 1, 1}).center(); }

    std::optional<MainWindow> m_window;
    QPointer<TileSet> m_tiles;
    QPointer<TileAnimation> m_animation;
    QPointer<SpriteBank> m_bank;
    QPointer<Map> m_map;
};

void TestMapSession::init()
{
    Update::UpdateChecker::setFeedAddress({});
    m_window.emplace();
    m_window->projectController()->newProject("Game");
    Project &project = *m_window->projectController()->project();
    const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
    m_tiles = project.createTileSet("Tiles", palette->id(), 16);
    m_animation = project.createBlockList("Blocks", m_tiles->id())->createBoundTileAnimation("Torch");
    m_animation->addFrame()->setIndex(0, 0, 4);
    m_bank = project.createSpriteBank(Quenmora::EightBit, "Bank", palette->id());
    m_bank->addSprite();
    m_map = project.createMap("Level", m_tiles->id(), {40, 32});
    m_window->documentController()->setActiveMap(m_map->id());
}

void TestMapSession::docksAndMapChooseForEachOther()
{
    MapEditor::MapGrid *grid = editor()->grid();
    emit views().tilePicker->grid()->selectedIndexChanged(6);
    QCOMPARE(grid->currentTileIndex(), 6);

    const auto *objects = views().mapObjects->list();
    QCOMPARE(objects->animations().size(), 1);
    emit views().mapObjects->animationSelected(m_animation);
    QCOMPARE(grid->mode(), PlaceAnim);
    QTest::mouseMove(grid, cell(1, 1));
    QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, cell(1, 1));
    QTest::mouseMove(grid, cell(2, 1));
    QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, cell(2, 1));

    auto *sprites = views().mapSprites->findChild<QListView *>("sprites");
    sprites->setCurrentIndex(sprites->model()->index(1, 0));
    QCOMPARE(grid->mode(), PlaceSprite);
    QTest::mouseClick(grid, Qt::LeftButton, Qt::NoModifier, cell(6, 6));
    QCOMPARE(m_map->sprites().size(), 1);
    QCOMPARE(m_map->sprites().at(0).sprite, 1);

    m_map->setTile({3, 3}, {.index = 9, .used = true});
    QTest::mouseClick(grid, Qt::MiddleButton, Qt::NoModifier, cell(3, 3));
    QCOMPARE(views().tilePicker->grid()->selectedIndex(), 9);
}

void TestMapSession::selectionBecomesAMap()
{
    m_map->setTile({2, 1}, {.index = 5, .mirror = true, .used = true});
    m_map->setTile({4, 3}, {.index = 7, .used = true});
    MapEditor::MapGrid *grid = editor()->grid();
    grid->setMode(Select);
    QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, cell(2, 1));
    QTest::mouseMove(grid, cell(4, 3));
    QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, cell(4, 3));
    for (QAction *action : grid->findChild<QMenu *>()->actions()) {
        if (action->text() == "Copy to new map")
            action->trigger();
    }
    const Project *project = m_window->projectController()->project();
    QCOMPARE(project->maps().size(), 2);
    const QPointer<Map> made = project->maps().at(1);
    QCOMPARE(editor()->map(), made);
    QCOMPARE(made->size(), QSize(3, 3));
    QCOMPARE(made->tileSet(), m_tiles);
    const TileMap *layer = made->tileLayer();
    QCOMPARE(layer->cellAt({0, 0}), m_map->tileLayer()->cellAt({2, 1}));
    QCOMPARE(layer->cellAt({2, 2}), m_map->tileLayer()->cellAt({4, 3}));
    QCOMPARE(layer->cellAt({1, 1}), TileMap::TileData());
    QCOMPARE(views().mapToolBar->sizeText(), QStringLiteral("3x3 (18 bytes)"));
    QCOMPARE(m_window->documentController()->undoStackFor(m_map->id())->count(), 0);
}

void TestMapSession::toolBarChangesHandsWithTheTab()
{
    Project &project = *m_window->projectController()->project();
    const QPointer<Map> second = project.createMap("Cave", m_tiles->id(), {41, 32});
    m_window->documentController()->setActiveMap(second->id());
    QVERIFY(views().mapToolBar->isEnabled());
    views().mapToolBar->actions().at(0)->trigger();
    QVERIFY(m_map->tileLayer()->isVisible() && !second->tileLayer()->isVisible());
    m_window->documentController()->setActiveMap(m_map->id());
    QCOMPARE(views().mapToolBar->sizeText(), QStringLiteral("40x32 (2560 bytes)"));
    QVERIFY(views().mapToolBar->actions().at(0)->isChecked());
    project.deleteMap(m_map->id());
    project.deleteMap(second->id());
    QVERIFY(!views().mapToolBar->isEnabled());
    QCOMPARE(views().mapToolBar->sizeText(), QString());
    views().mapToolBar->actions().at(1)->trigger();
}

QUENMORA_TEST_MAIN(TestMapSession)
#include "tst_mapsession.moc"
