// What the editors of tiles and of sprites have of their own.

#include "editors/canvas/canvasclipboard.h"
#include "editors/palette/colourpalette.h"
#include "editors/palette/colourselector.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "ui/numberstepper.h"

#include "support/pixelscenes.h"

#include <QtWidgets>

#include <cmath>

using namespace PixelScenes;
using namespace Quenmora::Ui;

class TestPixelWindows : public QObject
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

    void spriteStructureEditsAskForOneUndoStep()
    {
        using Edit = std::function<void(SpriteScene &)>;
        const std::tuple<Edit, QString, QByteArray> edits[] = {
            {[](auto &scene) { scene.click(3); }, "Add Sprite", QByteArray("\1\2\3\0", 4)},
            {[](auto &scene) { scene.trigger(0, "Delete"); }, "Delete Sprite", QByteArray("\2\3", 2)},
            {[](auto &scene) { scene.trigger(0, "Clear"); }, "Clear Sprite", QByteArray("\0\2\3", 3)},
            {[](auto &scene) { scene.drop(0, 2, Qt::ShiftModifier); }, "Copy Sprite", QByteArray("\1\2\1", 3)},
            {[](auto &scene) { scene.drop(0, 2, Qt::NoModifier); }, "Move Sprite", QByteArray("\2\3\1", 3)},
            {[](auto &scene) { scene.drop(1, 1, Qt::NoModifier); }, "Move Sprite", QByteArray("\1\2\3", 3)},
            {[](auto &scene) { scene.drop(1, 2, Qt::ControlModifier); }, {}, QByteArray("\1\2\3", 3)},
        };
        for (const auto &[edit, text, sprites] : edits) {
            SpriteScene scene;
            for (int i = 0; i < 3; ++i)
                scene.bank->setImage(i, plainImage({16, 16}, i + 1));
            SignalLog log;
            log.listen(*scene.bank, &SpriteBank::structureAboutToChange, "begun");
            log.listen(*scene.bank, &SpriteBank::structureChanged, "ended");
            edit(scene);
            QCOMPARE(log.take(), text.isEmpty() ? QStringList() : (QStringList{"begun", "ended " + text}));
            QCOMPARE(scene.sprites(), sprites);
            QCOMPARE(scene.shown(5), int(sprites[0]));
        }
    }

    void spriteBanksHaveATransparentIndex()
    {
        // which is shown, which is chosen, and what is clear of the pixels 3, 5 and 21 then
        for (const auto &[depth, before, shown, chosen, clear] :
             {std::tuple(Quenmora::EightBit, 5, "5", 21, QList{21}),
              {Quenmora::EightBit, -1, "None", 5, {5}}, // as a damaged project may have it
              {Quenmora::FourBit, 227, "3", 5, {5, 21}}}) {
            SpriteScene scene;
            SpriteBank bank(depth);
            bank.setPalette(&scene.palette);
            bank.setTransparency(before);
            scene.window.setSprites(&bank);
            auto *index = scene.window.findChild<QSpinBox *>();
            QSignalSpy repainted(&bank, &SpriteBank::coloursChanged); // what maps paint anew for
            auto *colours = scene.window.findChild<ColourPalette *>();
            const QImage marked = colours->grab().toImage(); // the entry in the palette
            index->setValue(chosen);
            QVERIFY(colours->grab().toImage() != marked);
            for (const int pixel : {3, 5, 21}) {
                bank.setImage(0, plainImage({16, 16}, pixel));
                const int alpha = qAlpha(bank.renderSprite(0, 0, false, false, false).pixel(0, 0));
                QCOMPARE(alpha == 0, clear.contains(pixel));
            }
            scene.stack.undo();
            QVERIFY(bank.transparency() == before && index->text() == shown);
            scene.stack.redo();
            QCOMPARE(bank.transparency(), chosen);
            QVERIFY(scene.stack.count() == 1 && repainted.size() == 3);
        }
    }

    void spritesShowTheFrameBeforeAndGetAnotherColour()
    {
        SpriteScene scene;
        for (int i = 0; i < 3; ++i)
            scene.bank->setImage(i, plainImage({16, 16}, i < 2 ? i + 1 : 7)); // of which 3 would be clear
        const QPointer<SpriteAnim> walk = scene.bank->newAnimation();
        walk->addFrame()->setIndex(0, 0, 1);
        walk->frame(0)->setIndex(0, 0, 2);
        const auto actions = scene.window.findChildren<QAction *>();
        QAction *onion = *std::ranges::find(actions, "Onion Skin", &QAction::text);
        scene.show(1);
        QList<int> blue;
        for (int i = 0; i < 3; ++i) {
            blue += scene.canvas().grab().toImage().pixelColor(scene.canvas().rect().center()).blue();
            onion->trigger();
        }
        QVERIFY(blue[0] != blue[1] && blue[0] == blue[2]);
        QCOMPARE(blue[1], int(std::lround(blue[0] * 0.65 + scene.palette.colour(7).blue() * 0.35)));

        scene.bank->setImage(2, plainImage({16, 16}, 0x12)); // of 4 bits, in a file that holds more
        scene.canvas().setPaper(2);
        scene.canvas().setInk(9);
        QSignalSpy ended(scene.bank.get(), &SpriteBank::structureChanged);
        EditorInput::trigger(*scene.canvas().contextMenu(), "Replace Colour in All Sprites");
        QCOMPARE(scene.sprites(), QByteArray("\1\x09\x09", 3));
        QCOMPARE(ended, (QList<QVariantList>{{"Replace Colour"}}));
    }

    void spriteImagesAreCopiedAndPasted()
    {
        SpriteScene scene;
        scene.canvas().setMode(Fill);
        scene.draw(1, 8);
        scene.trigger(1, "Copy Image");
        const auto content = CanvasClipboardContent::fromMimeData(QApplication::clipboard()->mimeData());
        QCOMPARE(content.imageType, Offset16);
        QCOMPARE(content.paletteId, scene.palette.id());
        scene.trigger(2, "Paste Image");
        QCOMPARE(scene.sprites(), QByteArray("\0\1\1", 3));
        QApplication::clipboard()->setImage(plainPicture({100, 6}, Qt::blue));
        scene.trigger(0, "Paste Image");
        QCOMPARE(scene.at(0, 5), 3);
        QCOMPARE(scene.at(0, 6), 0); // what the picture does not cover is black
    }
};

QUENMORA_TEST_MAIN(TestPixelWindows)
#include "tst_pixelwindows.moc"
