// What the tile editor has of its own.

#include "editors/palette/colourselector.h"
#include "model/project.h"
#include "ui/numberstepper.h"

#include "support/pixelscenes.h"

#include <QtWidgets>

using namespace PixelScenes;
using namespace Quenmora::Ui;

class TestTileWindow : public QObject
{
    Q_OBJECT

private slots:
    void tileOffsetMovesThePixelsIntoItsBank()
    {
        TileScene scene;
        const auto boxes = scene.window.findChildren<QSpinBox *>();
        QSpinBox *offset = *std::ranges::find(boxes, 16, &QSpinBox::maximum);
        scene.draw(0, 1);
        scene.canvas().setImageType(Full256);
        scene.canvas().remap(3);
        QCOMPARE(scene.shown(1), 1); // only images of 16 colours have banks
        scene.canvas().setImageType(Offset16);
        offset->setValue(3);
        QCOMPARE(scene.tiles->tileOffset(0), 2);
        scene.draw(0, 2);
        scene.draw(1, 2);
        scene.tiles->setTileOffset(2, std::numeric_limits<int>::max()); // as a file may have it
        scene.draw(2, 1);
        const QList pixels{scene.at(0, 0), scene.at(0, 1), scene.at(0, 2), scene.at(1, 2), scene.at(2, 1)};
        QCOMPARE(pixels, (QList{0x20, 0x21, 0x21, 1, 0xF1}));
    }

    void tileStructureReloadsTheTile()
    {
        TileScene scene;
        scene.draw(7, 1);
        scene.tiles->moveTile(7, 0);
        QCOMPARE(scene.shown(1), 0);
        scene.tiles->deleteTile(3);
        const auto *stepper = scene.window.findChild<NumberStepper *>();
        QCOMPARE(stepper->findChild<QSpinBox *>()->text(), "7 (index 6)");
        const auto before = scene.tiles->snapshot();
        scene.stack.undo(); // of the tile, which has another number now
        QVERIFY(scene.tiles->snapshot() != before);
        scene.stack.redo();
        QCOMPARE(scene.tiles->snapshot(), before);
        scene.show(0);
        scene.tiles->deleteTile(0);
        QCOMPARE(scene.shown(1), 0);
        const auto without = scene.tiles->snapshot();
        scene.stack.undo(); // of a tile that is no more
        QCOMPARE(scene.tiles->snapshot(), without);
        scene.tiles->restore(before);
        QCOMPARE(scene.shown(1), 1);
    }

    void tilesOfTheSameColoursGetAnother()
    {
        TileScene scene;
        for (const auto &[tile, offset, pixel] : {std::tuple(0, 2, 0x25), {1, 2, 0x05}, {2, 3, 0x35}, {3, 2, 0x26}}) {
            scene.tiles->setTileImage(tile, plainImage({8, 8}, pixel));
            scene.tiles->setTileOffset(tile, offset);
        }
        scene.show(0);
        scene.canvas().setPaper(0x25);
        scene.canvas().setInk(0x27);
        SignalLog log;
        log.listen(*scene.tiles, &TileSet::structureAboutToChange, "begun");
        log.listen(*scene.tiles, &TileSet::structureChanged, "ended");
        EditorInput::trigger(*scene.canvas().contextMenu(), "Replace Colour in All Tiles");
        const QList pixels{scene.at(0, 4), scene.at(1, 4), scene.at(2, 4), scene.at(3, 4)};
        QCOMPARE(pixels, (QList{0x27, 0x27, 0x35, 0x26})); // the third has colours of its own
        QCOMPARE(scene.shown(4), 0x27);
        QCOMPARE(log.take(), (QStringList{"begun", "ended Replace Colour"}));
    }

    void tileAttributesAreWritten()
    {
        TileScene scene;
        const auto box = [&scene](const QString &text) {
            return qobject_cast<QCheckBox *>(EditorInput::button(scene.window, text));
        };
        const auto attributes = [&scene](int tile) { return scene.tiles->tile(tile)->attributes(); };
        scene.show(2);
        for (const QString text : {"Solid on all edges", "Solid top", "Deadly"})
            box(text)->click();
        QCOMPARE(attributes(2), 0x1E);
        QCOMPARE(box("Solid on all edges")->checkState(), Qt::PartiallyChecked);
        scene.show(0);
        QVERIFY(!box("Deadly")->isChecked() && attributes(0) == 0);
    }

    void theClearColourOfMapsIsMarkedAmongThoseOfTiles()
    {
        Project project;
        const QPointer<TileSet> tiles = project.createTileSet("Tiles", {}, 4);
        const QPointer<Map> map = project.createMap("Level", tiles->id(), {40, 32});
        TileWindow window;
        window.setTileSet(tiles);
        auto *colours = window.findChild<ColourSelector *>();
        const QImage before = colours->grab().toImage();
        map->setTileTransparencyIndex(6);
        QEnterEvent enter({}, {}, {});
        QApplication::sendEvent(&window, &enter);
        const QImage after = colours->grab().toImage();
        const int width = (colours->width() - 49) / 8;
        for (const int cell : {5, 6, 7}) {
            const QRect area(colours->width() - (8 - cell) * width + 4, 4, width - 8, 16);
            QCOMPARE(before.copy(area) != after.copy(area), cell == 6);
        }
    }
};

QUENMORA_TEST_MAIN(TestTileWindow)
#include "tst_tilewindow.moc"
