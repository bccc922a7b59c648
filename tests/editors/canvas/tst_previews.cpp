// How what is being painted will look.

#include "editors/canvas/previews.h"
#include "editors/canvas/previewwindow.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileanimation.h"
#include "model/tileset.h"

#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

class TestPreviews : public QObject
{
    Q_OBJECT

private slots:
    void picturesAreRepeated()
    {
        QImage tile = plainImage({3, 2}, 0);
        tile.setPixel(2, 1, 7);
        const QImage repeated = Previews::seamless(tile);
        QCOMPARE(repeated.size(), QSize(9, 6));
        QCOMPARE(indices(repeated).count(char(7)), 9);
        QVERIFY(repeated.pixelIndex(2, 1) == 7 && repeated.pixelIndex(8, 5) == 7);
        QVERIFY(Previews::seamless({}).isNull());
    }

    void animationsArePlayed()
    {
        Animation::State state{{2, 1}, 3, {}};
        for (const int index : {4, 5, 6})
            state.frames.append({QUuid::createUuid(), {{{.index = 1}, {.index = index}}}});
        TileAnimation walk;
        TileAnimation other;
        walk.restore({state});
        const QList<Animation *> animations{nullptr, &other, &walk};
        QCOMPARE(Previews::animationShowing(animations, 5), &walk);
        QCOMPARE(Previews::animationShowing(animations, 9), nullptr);
        QCOMPARE(Previews::interval(walk), 80);
        const auto picture = [](const AnimationFrame::Cell &cell) {
            return pictureOf({8, 8}, QImage::Format_RGB32, [&cell](int) { return qRgb(0, 0, cell.index); });
        };
        const QImage frame = Previews::frame(walk, 3 * 7 + 1, picture); // on and on
        QCOMPARE(frame.size(), QSize(16, 8));
        QCOMPARE((QList{frame.pixel(0, 0) & 0xFF, frame.pixel(8, 0) & 0xFF}), (QList<QRgb>{1, 5}));
        QCOMPARE(Previews::before(walk, 6, picture).pixel(0, 0) & 0xFF, QRgb(5));
        QVERIFY(Previews::before(walk, 4, picture).isNull() && Previews::before(walk, 1, picture).isNull());
    }

    void windowGoesWithTheTabOfItsDock()
    {
        QMainWindow main;
        QDockWidget editor;
        QDockWidget other;
        auto *painted = new QWidget;
        editor.setWidget(painted);
        other.setWidget(new QWidget);
        for (QDockWidget *dock : {&editor, &other})
            main.addDockWidget(Qt::LeftDockWidgetArea, dock);
        main.tabifyDockWidget(&editor, &other);
        main.show();
        editor.raise();
        QTRY_VERIFY(!painted->visibleRegion().isEmpty());
        PreviewWindow window(painted);
        window.show();
        other.raise();
        QTRY_VERIFY(!window.isVisible());
        editor.raise();
        QTRY_VERIFY(window.isVisible());
        other.raise();
        QTRY_VERIFY(!window.isVisible());
        window.setVisible(false); // switched off meanwhile
        editor.raise();
        QTRY_VERIFY(!painted->visibleRegion().isEmpty());
        QVERIFY(!window.isVisible());
    }

    void tilesAreFoundOnMaps()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        const QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 4);
        tiles->setTileImage(2, plainImage({8, 8}, 3));
        const QPointer<Map> map = project.createMap("Level", tiles->id(), {300, 300});
        Previews::PlaceOnMap place;
        QVERIFY(!place.find(*map, 2));
        map->setTiles({250, 200, 1, 1}, 2, false, false, false, true);
        QVERIFY(!place.find(*map, 2)); // known not to be on a large map
        QVERIFY(!place.find(*map, 1));
        const auto found = place.find(*map, 2);
        QCOMPARE(found.value_or(QPoint()), QPoint(250, 200));
        map->setTiles({9, 0, 1, 1}, 2, false, false, false, true);
        QCOMPARE(place.find(*map, 2), found); // as long as it is there
        map->setTiles({250, 200, 1, 1}, 0, false, false, false, true);
        const QImage around = Previews::surroundings(*map, place.find(*map, 2).value_or(QPoint()), 1);
        QCOMPARE(around.size(), QSize(24, 24));
        QCOMPARE(around.pixelColor(12, 12), palette->colour(3));
        QCOMPARE(around.pixelColor(12, 2).alpha(), 0); // above the map
        QVERIFY(around.pixelColor(2, 12) != palette->colour(3));
    }

    void windowFollowsWhatIsPainted()
    {
        QWidget painted;
        painted.show();
        QVERIFY(QTest::qWaitForWindowExposed(&painted));
        int side = 1;
        int frames = 0;
        PreviewWindow window(&painted);
        window.addSource("Still", [&side](int) { return PreviewWindow::Picture{plainImage({side, side}, 0), 0, {}}; });
        window.addSource("Moving", [&frames](int frame) {
            frames = frame;
            return PreviewWindow::Picture{plainImage({8, 8}, 0), 1, {}};
        });
        window.show();
        QCOMPARE(window.image().size(), QSize(1, 1));
        side = 2;
        painted.repaint();
        QCOMPARE(window.image().size(), QSize(2, 2));
        window.findChild<QComboBox *>()->setCurrentIndex(1);
        QTRY_VERIFY(frames > 2);
        painted.hide();
        QVERIFY(!window.isVisible());
        painted.show();
        QVERIFY(window.isVisible());
    }
};

QUENMORA_TEST_MAIN(TestPreviews)
#include "tst_previews.moc"
