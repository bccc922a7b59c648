// What the image editor has of its own.

#include "editors/canvas/imageimportdialog.h"
#include "editors/canvas/reductionbox.h"
#include "model/project.h"
#include "pictures/ninebitcolour.h"

#include "support/pixelscenes.h"
#include "support/platform.h"

#include <QCheckBox>

using namespace PixelScenes;
using namespace Quenmora::Ui;
using ImageEditor::View;

namespace {

/// Imports a picture, as the boxes of the dialog are ticked.
template <typename Tick>
void importPicture(const ImageScene &scene, const QImage &picture, Tick tick)
{
    QVERIFY(picture.save(scene.file("in.png")));
    scene.choose(Open, "in.png");
    auto *dialog = scene.view->findChild<ImageEditor::ImportDialog *>();
    tick(dialog->findChildren<QCheckBox *>());
    dialog->accept();
}

} // namespace

class TestImageEditor : public QObject
{
    Q_OBJECT

private slots:
    void imageViewsReopenExportAndTakeTheScratchPicture()
    {
        ImageScene scene;
        scene.draw(0, 5);
        scene.reopen();
        QCOMPARE(scene.shown(5), 1);
        scene.stack.undo();
        QCOMPARE(scene.shown(5), 0);
        QSignalSpy errors(scene.view.get(), &View::error);
        scene.canvas().setInk(0xE0);
        scene.draw(0, 6);
        scene.exportAs("early.png"); // no dialog was opened yet
        QVERIFY(QFile::exists(scene.file("early.png")));
        scene.choose(Save, "out.png");
        QCOMPARE(QImage(scene.file("out.png")).pixelColor(6, 6), QColor(Qt::red));
        QStringList names{"no/such/folder/out.png", "out.unknown"};
        if (Platform::HasPipes) {
            QVERIFY(Platform::makePipe(scene.file("pipe.png"))); // which would wait for its reader
            names << "pipe.png";
        }
        for (const QString &name : names)
            scene.choose(Save, name);
        QCOMPARE(errors.count(), names.size());
        QSignalSpy changes(scene.view.get(), &View::imageChanged);
        scene.view->setImage(nullptr);
        scene.view->setPixels(plainImage({256, 192}, 3)); // the scratch picture
        QVERIFY(changes.isEmpty());
        EditorInput::Mouse{scene.canvas()}.drag({{5, 5}});
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes[0][0].value<QImage>().pixelIndex(5, 5), 0xE0);
    }

    void imageTakesAnotherPalette()
    {
        ImageScene scene;
        Palette *other = new Palette;
        other->fill(Qt::red, false);
        const auto bound = [&scene](Palette *palette) {
            return scene.images[0]->palette() == palette && scene.canvas().palette() == palette
                && scene.canvas().image().colorTable() == palette->colourTable();
        };
        scene.draw(0, 5);
        scene.view->swapPalette(&scene.palette);
        scene.view->swapPalette(other);
        QVERIFY(bound(other) && scene.stack.count() == 2);
        scene.reopen();
        scene.stack.undo();
        QVERIFY(bound(&scene.palette));
        QCOMPARE(scene.at(0, 5), 1);
        scene.stack.redo();
        QVERIFY(bound(other));
        scene.stack.undo();
        delete other;
        scene.stack.redo();
        QVERIFY(bound(&scene.palette)); // what was deleted since is not taken
    }

    void imageImportsMapOntoThePalette()
    {
        for (const auto &[mode, scaled, corner, farCorner] :
             {std::tuple(Quenmora::LoRes_128x96, false, 0xE0, 5),
              {Quenmora::Layer2_640x256, true, 0, 0}}) { // black comes nearest to red among the first 16 entries
            ImageScene scene(mode);
            QSignalSpy errors(scene.view.get(), &View::error);
            QVERIFY(writeFile(scene.file("nonsense.png"), "not a picture"));
            scene.choose(Open, "nonsense.png");
            QCOMPARE(errors, (QList<QVariantList>{{"Could not read the image file"}}));
            const QSize size = scene.stored(0).size();
            scene.images[0]->setImage(plainImage(size, 5));
            scene.show(0);
            importPicture(scene, plainPicture({40, 30}, Qt::red),
                          [scaled = scaled](const auto &boxes) { boxes[0]->setChecked(scaled); });
            QCOMPARE(scene.at(0, 0), corner);
            QCOMPARE(scene.stored(0).pixelIndex(size.width() - 1, size.height() - 1), farCorner);
            scene.stack.undo();
            QCOMPARE(scene.at(0, 0), 5);
        }
    }

    void imageImportKeepsTheMachinesColours()
    {
        ImageScene scene(Quenmora::LoRes_128x96);
        scene.show(0);
        QImage picture = plainPicture({2, 1}, Qt::black);
        picture.setPixel(1, 0, qRgb(255, 255, 255));
        for (const bool keep : {true, false}) {
            importPicture(scene, picture, [keep](const auto &boxes) {
                boxes[0]->setChecked(true); // scaled
                QVERIFY(boxes[1]->isChecked()); // by itself
                boxes[1]->setChecked(keep);
            });
            QSet<int> entries;
            for (int x = 0; x < 128; ++x)
                entries.insert(scene.stored(0).pixelIndex(x, 0));
            QCOMPARE(entries.size() == 2, keep); // or shades of grey between them
        }
        // clear pixels get the palette's transparent entry, which is the nearest of an opaque one
        scene.palette.setTransparencyIndex(0);
        picture = plainPicture({2, 1}, Qt::black).convertToFormat(QImage::Format_ARGB32);
        picture.setPixel(1, 0, 0);
        for (const bool keep : {true, false}) {
            scene.images[0]->setImage(plainImage({128, 96}, 5));
            scene.show(0);
            importPicture(scene, picture, [keep](const auto &boxes) {
                QVERIFY(boxes[2]->isChecked());
                for (QCheckBox *box : boxes)
                    box->setChecked(keep && box->text() != "Scale to fill the image");
            });
            QCOMPARE(scene.stored(0).pixelIndex(0, 0) != 0, keep);
            QCOMPARE(scene.stored(0).pixelIndex(1, 0), 0);
        }
    }

    void imageImportsMayBringTheirPalette()
    {
        for (const auto &[mode, colours] : {std::pair(Quenmora::Layer2_256x192, 255), {Quenmora::Layer2_640x256, 15}}) {
            ImageScene scene(mode);
            Project project;
            const QPointer<Palette> blank = project.createPalette(CreateAction::Blank, "in");
            const QPointer<Image> image = project.createImage(mode, "Title", blank->id());
            image->setImage(plainImage(Image::sizeOf(mode), 5));
            scene.view->setImage(image);
            const QImage picture = pictureOf({64, 64}, QImage::Format_ARGB32,
                                             [](int i) { return i < 64 ? 0 : NineBitColour::shown(i % 512); });
            importPicture(scene, picture, [](const auto &boxes) { boxes[3]->setChecked(true); });
            const QPointer<Palette> made = image->palette();
            QVERIFY(made && made != blank && made->name() == "in 2");
            QSet<int> used;
            for (int i = 0; i < 64 * 64; ++i) {
                const int index = image->image().pixelIndex(i % 64, i / 64);
                QCOMPARE(index == made->transparencyIndex(), i < 64);
                if (i >= 64)
                    used.insert(made->rawColour(index));
            }
            QCOMPARE(used.size(), colours);
            QCOMPARE(image->image().pixelIndex(64, 64), 5);
            QCOMPARE(scene.stack.count(), 1);
            scene.stack.undo();
            QVERIFY(image->palette() == blank && image->image().pixelIndex(3, 3) == 5);
            scene.stack.redo();
            QVERIFY(image->palette() == made && image->image().pixelIndex(3, 3) != 5);
            // fewer colours of the palette that is there
            QSignalSpy swapped(scene.view.get(), &View::paletteSwapped);
            importPicture(scene, picture, [&scene](const auto &) {
                scene.view->findChild<ReductionBox *>()->setReduction(Dithering::Ordered);
            });
            QVERIFY(scene.stack.count() == 2 && swapped.isEmpty());
        }
    }
};

QUENMORA_TEST_MAIN(TestImageEditor)
#include "tst_imageeditor.moc"
