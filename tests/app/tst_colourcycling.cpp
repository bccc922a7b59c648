// Every view that draws with a palette shows its colours going round, and nothing else notices it.

#include "app/colourcycling.h"
#include "app/mainwindow.h"
#include "app/menus/viewmenu.h"
#include "editors/animation/animationview.h"
#include "editors/animation/frameeditorwidget.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/common/animationlistwidget.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mapoverview.h"
#include "editors/map/paintbar.h"
#include "editors/map/paintdesk.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "model/colourcycle.h"
#include "model/mapobjects.h"
#include "model/projectextras.h"
#include "model/projectpicture.h"
#include "model/spriteanim.h"
#include "store/projectdocument.h"
#include "support/modeltools.h"
#include "support/paintwatch.h"
#include "support/testmain.h"

#include <QListWidget>
#include <QTest>

#include <optional>

class TestColourCycling : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Update::UpdateChecker::setFeedAddress({}); }

    void init()
    {
        m_window.emplace();
        ProjectController *controller = m_window->projectController();
        controller->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Discard; });
        controller->newProject("Game");
        Project &project = *controller->project();
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Water");
        m_palette = palette;
        ColourCycles::set(*project.extras(), palette->id(), {{1, 255, 5}});
        const auto picture = [&palette](QSize size) { // of entry 7
            QImage image = plainImage(size, 7);
            image.setColorTable(palette->colourTable());
            return image;
        };
        const QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 4);
        for (int index = 0; index < 4; ++index)
            tiles->setTileImage(index, picture({8, 8}));
        const QPointer<Map> map = project.createMap("Map", tiles->id(), {80, 30});
        map->setTiles({0, 0, 80, 30}, 1, false, false, false, true);
        const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::FourBit, "Sprites", palette->id());
        bank->setWholeImage(picture({16, 32}));
        bank->newAnimation();
        const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette->id());
        image->setImage(picture({128, 96}));
        const QPointer<MapObjects> blocks = project.createBlockList("Blocks", tiles->id());
        const QPointer<TileAnimation> torch = blocks->createBoundTileAnimation("Torch");
        torch->setSize({1, 1});
        torch->addFrame()->setCells({{{.index = 1}}});

        m_window->views().tabs->closeAllTabs(); // which show assets as they were made
        DocumentController *documents = m_window->documentController();
        documents->openPalette(palette->id());
        documents->openTileSet(tiles->id());
        documents->openSprites(bank->id());
        m_ids = {map->id(), blocks->id(), bank->id(), image->id()};
    }

    void cleanup() { m_window.reset(); }

    void everyViewShowsThem_data()
    {
        QTest::addColumn<int>("view");
        for (const auto &[view, name] : {std::pair(PaletteView, "palette"),
                                         {Tile, "tile editor"},
                                         {Picker, "tile picker"},
                                         {Sprite, "sprite editor"},
                                         {List, "sprite list"},
                                         {OnMap, "map"},
                                         {Overview, "overview of a map"},
                                         {Stamps, "stamps"},
                                         {InImage, "image"},
                                         {Block, "block animation"},
                                         {BlockList, "block animations"},
                                         {SpriteAnimation, "sprite animation"},
                                         {SpriteAnimationList, "sprite animations"}})
            QTest::newRow(name) << int(view);
    }

    void everyViewShowsThem()
    {
        QFETCH(int, view);
        QWidget *widget = shown(View(view));
        QVERIFY(widget && widget->isVisible());
        const Project &project = *m_window->projectController()->project();
        const ProjectMembers before = serializeProject(project, false);
        const QImage thumbnail = projectPicture(project, std::get<2>(m_ids));
        QCoreApplication::processEvents();
        const QPoint place = placeOf(*widget, 7);
        ColourCycling *cycling = m_window->colourCycling();
        QVERIFY(!cycling->clock()->isTicking());
        cycling->clock()->setPaused(true); // it goes on when it is told to
        cycling->action()->trigger();
        PaintWatch watch(widget);
        watch.after([&] { cycling->clock()->advance(5); });
        QTRY_VERIFY(!watch.region.isEmpty());
        QTRY_COMPARE(colourAt(*widget, place), colour(6));
        QCOMPARE(serializeProject(project, false), before);
        QCOMPARE(projectPicture(project, std::get<2>(m_ids)), thumbnail);
        watch.after([&] { cycling->action()->trigger(); });
        QTRY_VERIFY(!watch.region.isEmpty());
        QTRY_COMPARE(colourAt(*widget, place), colour(7));
    }

    void theClockStandsStillWhileNothingIsSeen()
    {
        ColourCycling *cycling = m_window->colourCycling();
        QVERIFY(m_window->menus()->viewMenu()->actions().contains(cycling->action()));
        cycling->action()->trigger();
        QVERIFY(cycling->clock()->isTicking());
        m_window->showMinimized();
        QVERIFY(!cycling->clock()->isTicking());
        m_window->showNormal();
        QVERIFY(cycling->clock()->isTicking());
        m_window->hide();
        QVERIFY(!cycling->clock()->isTicking());
        m_window->show();
        QVERIFY(cycling->clock()->isTicking());
        m_window->projectController()->close();
        QVERIFY(!cycling->clock()->isTicking());
    }

private:
    QColor colour(int entry) { return m_palette->colour(entry); }
    static QColor colourAt(QWidget &widget, QPoint place) { return widget.grab().toImage().pixelColor(place); }
    /// Where a widget shows an entry, far from what else it may show.
    QPoint placeOf(QWidget &widget, int entry)
    {
        const QImage picture = widget.grab().toImage();
        for (int y = picture.height() - 3; y >= 0; --y) {
            for (int x = picture.width() - 3; x >= 0; --x) {
                if (picture.pixelColor(x, y) == colour(entry))
                    return {x, y};
            }
        }
        return {};
    }

    enum View {
        PaletteView,
        Tile,
        Picker,
        Sprite,
        List,
        OnMap,
        Overview,
        Stamps,
        InImage,
        Block,
        BlockList,
        SpriteAnimation,
        SpriteAnimationList,
    };

    /// The widget of a view, in front of what may cover it.
    QWidget *shown(View view)
    {
        const DocumentViews &views = m_window->views();
        DocumentController *documents = m_window->documentController();
        const auto dock = [](QDockWidget *window, QWidget *widget) {
            window->show();
            window->raise();
            QCoreApplication::processEvents();
            return widget;
        };
        const auto [map, blocks, bank, image] = m_ids;
        switch (view) {
        case PaletteView:
            return dock(views.palette, views.palette->editor()->grid());
        case Tile:
            return dock(views.tileEditor, views.tileEditor->canvas());
        case Picker:
            return dock(views.tilePicker, views.tilePicker->grid());
        case Sprite:
            return dock(views.spriteEditor, views.spriteEditor->canvas());
        case List:
            return dock(views.spriteEditor, views.spriteEditor->list());
        case OnMap:
            documents->setActiveMap(map);
            return views.tabs->currentWidget()->findChild<MapEditor::MapGrid *>();
        case Overview:
        case Stamps: {
            documents->setActiveMap(map);
            MapEditor::PaintDesk *desk = qobject_cast<MapEditor::View *>(views.tabs->currentWidget())->paintDesk();
            desk->setOverviewVisible(view == Overview);
            desk->pickTiles({{1}});
            QCoreApplication::processEvents(); // the bar has its place, and the stamp its button
            if (view == Stamps)
                return desk->bar();
            return views.tabs->currentWidget()->findChild<MapEditor::MapOverview *>();
        }
        case InImage:
            documents->setActiveImageEditor(image);
            return views.tabs->currentWidget()->findChild<Canvas *>();
        case Block:
        case BlockList:
            documents->setActiveBlockEditor(blocks);
            break;
        case SpriteAnimation:
        case SpriteAnimationList:
            documents->setActiveSpriteEditor(bank);
            break;
        }
        auto *page = qobject_cast<AnimationEditor::AnimationView *>(views.tabs->currentWidget());
        if (view == BlockList || view == SpriteAnimationList)
            return page->list()->findChild<QListWidget *>()->viewport();
        page->list()->select(page->list()->animations().constFirst());
        return page->findChild<AnimationEditor::FrameEditorWidget *>();
    }

    std::optional<MainWindow> m_window;
    QPointer<Palette> m_palette;
    std::tuple<QUuid, QUuid, QUuid, QUuid> m_ids; ///< of map, block set, sprite bank and image
};

QUENMORA_TEST_MAIN(TestColourCycling)
#include "tst_colourcycling.moc"
