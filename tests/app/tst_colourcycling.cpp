// Every view that draws with a palette shows its colours going round, and nothing else notices it.

#include "app/colourcycling.h"
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
#include "model/projectextras.h"
#include "model/projectpicture.h"
#include "store/projectdocument.h"
#include "support/paintwatch.h"
#include "support/windowscene.h"

class TestColourCycling : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        controller()->newProject("Game");
        const QPointer<Palette> palette = project().createPalette(CreateAction::DefaultNext, "Water");
        m_palette = palette;
        ColourCycles::set(*project().extras(), palette->id(), {{1, 255, 5}});
        const auto picture = [&palette](QSize size) { // of entry 7
            QImage image = plainImage(size, 7);
            image.setColorTable(palette->colourTable());
            return image;
        };
        const QPointer<TileSet> tiles = project().createTileSet("Tiles", palette->id(), 4);
        for (int index = 0; index < 4; ++index)
            tiles->setTileImage(index, picture({8, 8}));
        const QPointer<Map> map = project().createMap("Map", tiles->id(), {80, 30});
        map->setTiles({0, 0, 80, 30}, 1, false, false, false, true);
        const QPointer<SpriteBank> bank = project().createSpriteBank(Quenmora::FourBit, "Sprites", palette->id());
        bank->setWholeImage(picture({16, 32}));
        bank->newAnimation();
        const QPointer<Image> image = project().createImage(Quenmora::LoRes_128x96, "Title", palette->id());
        image->setImage(picture({128, 96}));
        const QPointer<MapObjects> blocks = project().createBlockList("Blocks", tiles->id());
        const QPointer<TileAnimation> torch = blocks->createBoundTileAnimation("Torch");
        torch->setSize({1, 1});
        torch->addFrame()->setCells({{{.index = 1}}});

        tabs()->closeAllTabs(); // which show assets as they were made
        documents().openPalette(palette->id());
        documents().openTileSet(tiles->id());
        documents().openSprites(bank->id());
    }

    void cleanup() { m_window.reset(); }

    void everyViewShowsThem()
    {
        m_window->resize(1800, 1000); // the bar of stamps is long where letters are wide
        const auto dock = [](QDockWidget *window, QWidget *widget) {
            window->show();
            window->raise();
            QCoreApplication::processEvents();
            return widget;
        };
        const auto animation = [this](bool blocks) {
            if (blocks)
                documents().setActiveBlockEditor(project().blockSets().first()->id());
            else
                documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
            auto *view = page<AnimationEditor::AnimationView>();
            view->list()->select(view->list()->animations().constFirst());
            return view;
        };
        const auto frame = [&](bool blocks) {
            return animation(blocks)->findChild<AnimationEditor::FrameEditorWidget *>();
        };
        const auto list = [&](bool blocks) {
            return animation(blocks)->list()->findChild<QListWidget *>()->viewport();
        };
        const auto mapView = [this](bool withOverview) {
            documents().setActiveMap(project().maps().first()->id());
            auto *view = page<MapEditor::View>();
            view->paintDesk()->setOverviewVisible(withOverview);
            view->paintDesk()->pickTiles({{1}});
            QCoreApplication::processEvents(); // the bar has its place, and the stamp its button
            return view;
        };
        const auto canvas = [this]() -> QWidget * {
            documents().setActiveImageEditor(project().images().first()->id());
            return page<ImageEditor::View>()->canvas();
        };
        const std::pair<const char *, std::function<QWidget *()>> all[]{
            {"palette", [&] { return dock(views().palette, views().palette->editor()->grid()); }},
            {"tile editor", [&] { return dock(views().tileEditor, views().tileEditor->canvas()); }},
            {"tile picker", [&] { return dock(views().tilePicker, views().tilePicker->grid()); }},
            {"sprite editor", [&] { return dock(views().spriteEditor, views().spriteEditor->canvas()); }},
            {"sprite list", [&] { return dock(views().spriteEditor, views().spriteEditor->list()); }},
            {"sprite animation", [&] { return frame(false); }},
            {"sprite animations", [&] { return list(false); }},
            {"block animation", [&] { return frame(true); }},
            {"block animations", [&] { return list(true); }},
            {"overview of a map", [&] { return mapView(true)->findChild<MapEditor::MapOverview *>(); }},
            {"stamps", [&] { return mapView(true)->paintDesk()->bar(); }},
            {"map", [&] { return mapView(false)->grid(); }},
            {"image", canvas},
        };
        ColourCycling *cycling = m_window->colourCycling();
        for (const auto &[name, show] : all) {
            QWidget *widget = show();
            QVERIFY2(widget && widget->isVisible(), name);
            const ProjectMembers before = serializeProject(project(), false);
            const QImage thumbnail = projectPicture(project(), project().spriteBanks().first()->id());
            QCoreApplication::processEvents();
            const QPoint place = placeOf(*widget, 7);
            QVERIFY2(!place.isNull(), name);
            QVERIFY(!cycling->clock()->isTicking());
            cycling->clock()->setPaused(true); // it goes on when it is told to
            cycling->action()->trigger();
            PaintWatch watch(widget);
            watch.after([&] { cycling->clock()->advance(5); });
            QTRY_VERIFY2(!watch.region.isEmpty(), name);
            QTRY_VERIFY2(colourAt(*widget, place) == colour(6), name);
            QCOMPARE(serializeProject(project(), false), before);
            QCOMPARE(projectPicture(project(), project().spriteBanks().first()->id()), thumbnail);
            watch.after([&] { cycling->action()->trigger(); });
            QTRY_VERIFY2(!watch.region.isEmpty(), name);
            QTRY_VERIFY2(colourAt(*widget, place) == colour(7), name);
            cycling->clock()->setPaused(false);
        }
    }

    void theClockStandsStillWhileNothingIsSeen()
    {
        ColourCycling *cycling = m_window->colourCycling();
        QVERIFY(m_window->menus()->viewMenu()->actions().contains(cycling->action()));
        cycling->action()->trigger();
        QVERIFY(cycling->clock()->isTicking());
        for (const auto &[change, ticks] : {std::pair(&QWidget::showMinimized, false),
                                            {&QWidget::showNormal, true},
                                            {&QWidget::hide, false},
                                            {&QWidget::show, true}}) {
            ((*m_window).*change)();
            QCOMPARE(cycling->clock()->isTicking(), ticks);
        }
        controller()->close();
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

    QPointer<Palette> m_palette;
};

QUENMORA_TEST_MAIN(TestColourCycling)
#include "tst_colourcycling.moc"
