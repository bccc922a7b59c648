// What the sprite editor has of its own.

#include "editors/canvas/canvasclipboard.h"
#include "editors/palette/colourpalette.h"
#include "model/spriteanim.h"

#include "support/pixelscenes.h"

#include <QtWidgets>

#include <cmath>

using namespace PixelScenes;
using namespace Quenmora::Ui;

class TestSpriteWindow : public QObject
{
    Q_OBJECT

private slots:
    void spriteStructureEditsAskForOneUndoStep()
    {
        const struct
        {
            std::function<void(SpriteScene &)> edit;
            QString text;
            QByteArray sprites;
        } edits[] = {
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
        const struct
        {
            Quenmora::Sprite depth;
            int before;
            QString shown;
            int chosen;
            QList<int> clear; // of the pixels 3, 5 and 21
        } cases[] = {
            {Quenmora::EightBit, 5, "5", 21, {21}},
            {Quenmora::EightBit, -1, "None", 5, {5}}, // as a damaged project may have it
            {Quenmora::FourBit, 227, "3", 5, {5, 21}},
        };
        for (const auto &[depth, before, shown, chosen, clear] : cases) {
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

QUENMORA_TEST_MAIN(TestSpriteWindow)
#include "tst_spritewindow.moc"
