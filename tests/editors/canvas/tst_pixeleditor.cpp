// The three editors around a canvas: what they have in common, then what each has of its own.

#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/imageimportdialog.h"
#include "editors/canvas/reductionbox.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilewindow.h"
#include "editors/common/dragdata.h"
#include "editors/palette/colourpalette.h"
#include "editors/palette/colourselector.h"
#include "model/project.h"
#include "pictures/ninebitcolour.h"
#include "ui/numberstepper.h"
#include "ui/toolpalette.h"

#include "support/canvasmouse.h"
#include "support/editorinput.h"

#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QUndoStack>

#include <sys/stat.h>

using namespace Quenmora::Ui;
using ImageEditor::View;
using SpriteEditor::SpriteList;

namespace {

/// An editor and what it edits: a few blank pictures (tiles, sprites, images), of which it shows the first.
struct Scene
{
    virtual ~Scene() = default;
    virtual QWidget &editor() = 0;
    virtual void show(int element) = 0;
    virtual QImage stored(int element) const = 0;
    virtual void destroy() = 0;

    /// Draws a pixel on the diagonal of an element.
    void draw(int element, int pixel)
    {
        show(element);
        EditorInput::Mouse{canvas()}.drag({{pixel, pixel}});
    }
    /// The pixel on the diagonal of an element, and of the picture shown.
    int at(int element, int pixel) const { return stored(element).pixelIndex(pixel, pixel); }
    int shown(int pixel) { return canvas().image().pixelIndex(pixel, pixel); }
    EditTarget &target() { return dynamic_cast<EditTarget &>(editor()); }
    Canvas &canvas() { return *editor().findChild<Canvas *>(); }

    Palette palette;
    QUndoStack stack;

protected:
    Scene() { palette.loadStandardNext(); }
    void open()
    {
        editor().resize(600, 900);
        editor().show();
    }
};

struct TileScene : Scene
{
    std::unique_ptr<TileSet> tiles{new TileSet(8)};
    TileWindow window;

    TileScene()
    {
        tiles->setPalette(&palette);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setTileSet(tiles.get());
        open();
    }
    QWidget &editor() override { return window; }
    void show(int element) override { window.setTileIndex(element + 1); }
    QImage stored(int element) const override { return tiles->image(element); }
    void destroy() override { tiles.reset(); }
};

struct SpriteScene : Scene
{
    std::unique_ptr<SpriteBank> bank{new SpriteBank(Quenmora::FourBit)};
    SpriteWindow window;
    SpriteList &list{*window.list()};

    SpriteScene()
    {
        bank->setPalette(&palette);
        bank->addSprite();
        bank->addSprite();
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setSprites(bank.get());
        open();
    }
    QWidget &editor() override { return window; }
    void show(int element) override { click(element); }
    QImage stored(int element) const override { return bank->spriteImage(element, false, false, false); }
    void destroy() override { bank.reset(); }

    void click(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&list, button, Qt::NoModifier, list.cellRect(index).center());
        list.contextMenu()->close();
    }
    /// Runs an entry of a sprite's context menu.
    void trigger(int index, const QString &text)
    {
        click(index, Qt::RightButton);
        EditorInput::trigger(*list.contextMenu(), text);
    }
    void drop(int from, int to, Qt::KeyboardModifiers modifiers)
    {
        const std::unique_ptr<QMimeData> data(SpriteDrag{from}.toMimeData());
        EditorInput::drop(list, list.cellRect(from).center(), list.cellRect(to).center(), *data, modifiers);
    }
    /// The pixel in the middle of every sprite.
    QByteArray sprites() const { return indices(bank->image().scaled(1, bank->count())); }
};

struct ImageScene : Scene
{
    std::vector<std::unique_ptr<Image>> images;
    std::unique_ptr<View> view;
    QTemporaryDir folder;

    explicit ImageScene(Quenmora::ImageMode mode = Quenmora::LoRes_128x96)
    {
        for (int i = 0; i < 3; ++i)
            images.emplace_back(std::make_unique<Image>(mode))->setPalette(&palette);
        reopen();
    }
    /// Opens a new tab, and closes the one before.
    void reopen()
    {
        view = std::make_unique<View>();
        view->setUndoStack(&stack);
        show(0);
        open();
    }
    QWidget &editor() override { return *view; }
    void show(int element) override { view->setImage(images[size_t(element)].get()); }
    QImage stored(int element) const override { return images[size_t(element)]->image(); }
    void destroy() override { images.clear(); }

    QString file(const QString &name) const { return folder.filePath(name); }
    void exportAs(const QString &name) const
    {
        QMetaObject::invokeMethod(view.get(), "exportImage", Q_ARG(QString, file(name)));
    }
    /// Answers the file dialog that an action of the view opens.
    void choose(ToolButton action, const QString &name) const
    {
        QMetaObject::invokeMethod(view.get(), "changeMode", Q_ARG(Quenmora::Ui::ToolButton, action),
                                  Q_ARG(bool, false));
        for (QFileDialog *dialog : view->findChildren<QFileDialog *>()) {
            if (dialog->close())
                emit dialog->fileSelected(file(name));
        }
    }
};

using MakeScene = std::function<std::unique_ptr<Scene>()>;

void addScenes()
{
    QTest::addColumn<MakeScene>("make");
    QTest::addRow("tiles") << MakeScene([] { return std::make_unique<TileScene>(); });
    QTest::addRow("sprites") << MakeScene([] { return std::make_unique<SpriteScene>(); });
    QTest::addRow("images") << MakeScene([] { return std::make_unique<ImageScene>(); });
}

std::unique_ptr<Scene> fetchScene()
{
    QFETCH(MakeScene, make);
    return make();
}

QImage plainPicture(QSize size, QColor colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

} // namespace

class TestPixelEditor : public QObject
{
    Q_OBJECT

private slots:
    void editsStayWithTheirElement_data() { addScenes(); }

    void editsStayWithTheirElement()
    {
        const auto scene = fetchScene();
        const EditorInput::Mouse mouse{scene->canvas()};
        mouse.press({1, 1});
        scene->show(1);
        mouse.release({1, 1});
        QVERIFY(scene->stack.count() == 0 && scene->at(1, 1) == 0);

        // undo finds the element, whichever is shown
        const auto pixels = [&scene] { return QList{scene->at(1, 5), scene->at(2, 6), scene->shown(5)}; };
        scene->draw(1, 5);
        scene->stack.undo();
        QCOMPARE(pixels(), (QList{0, 0, 0}));
        scene->stack.redo();
        QCOMPARE(pixels(), (QList{1, 0, 1}));
        scene->draw(2, 6);
        scene->stack.setIndex(0);
        QCOMPARE(pixels(), (QList{0, 0, 0}));
        scene->stack.redo();
        QCOMPARE(pixels(), (QList{1, 0, 0}));
        scene->stack.redo();
        for (const int element : {1, 1, 2, 1}) { // scrolls of one element merge
            scene->show(element);
            scene->canvas().setMode(MoveUp);
        }
        QCOMPARE(scene->stack.count(), 2 + 3);
    }

    void toolPaletteKeysAndClipboardReachTheCanvas_data() { addScenes(); }

    void toolPaletteKeysAndClipboardReachTheCanvas()
    {
        const auto scene = fetchScene();
        auto *tools = scene->editor().findChild<ToolPalette *>();
        QApplication::clipboard()->clear();
        tools->action(Paste)->trigger();
        QCOMPARE(tools->mode(), Draw); // there is nothing to paste
        scene->target().selectAll();
        scene->target().copy();
        scene->target().paste();
        QCOMPARE(tools->mode(), Paste);
        tools->action(Fill)->trigger();
        QCOMPARE(scene->canvas().mode(), Fill);
        QApplication::clipboard()->setImage(plainPicture({2, 2}, Qt::blue));
        scene->target().paste();
        QCOMPARE(scene->canvas().clipboardImage().pixelIndex(0, 0), 3);
        scene->editor().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&scene->editor()));
        scene->canvas().setFocus();
        QTest::keyClick(&scene->canvas(), Qt::Key_X);
        QVERIFY(scene->canvas().ink() == 0 && scene->canvas().paper() == 1);
    }

    void survivesItsAsset_data() { addScenes(); }

    void survivesItsAsset()
    {
        const auto scene = fetchScene();
        scene->draw(0, 3);
        const EditorInput::Mouse mouse{scene->canvas()};
        mouse.press({5, 5});
        scene->destroy();
        QVERIFY(!scene->canvas().isEnabled());
        scene->canvas().setMode(MoveUp);
        scene->editor().grab();
        const QImage shown = scene->canvas().image();
        scene->stack.undo();
        QCOMPARE(scene->canvas().image(), shown);
        mouse.release({5, 5});
        scene->target().cut();
        QCOMPARE(scene->stack.count(), 1);
    }

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
        QCOMPARE(scene.stack.count(), 1);
        scene.draw(0, 2);
        scene.draw(1, 2);
        scene.tiles->setTileOffset(2, std::numeric_limits<int>::max()); // as a file may have it
        scene.draw(2, 1);
        QCOMPARE(offset->value(), 16);
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
        QCOMPARE(scene.window.tileIndex(), 6);
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

    void tileAttributesAreWritten()
    {
        TileScene scene;
        const auto box = [&scene](const QString &text) {
            return qobject_cast<QCheckBox *>(EditorInput::button(scene.window, text));
        };
        const auto attributes = [&scene](int tile) { return scene.tiles->tile(tile)->attributes(); };
        scene.show(2);
        box("Solid on all edges")->click();
        QCOMPARE(attributes(2), int(Tile::TA_SOLID));
        box("Solid top")->click();
        box("Deadly")->click();
        QCOMPARE(attributes(2), 0x1E);
        QCOMPARE(box("Solid on all edges")->checkState(), Qt::PartiallyChecked);
        scene.show(0);
        QVERIFY(!box("Deadly")->isChecked() && attributes(0) == 0);
    }

    void spriteListLaysOutCentredRows()
    {
        SpriteScene scene;
        SpriteList list;
        list.setSprites(scene.bank.get());
        list.resize(150, list.heightForWidth(150));
        QCOMPARE(list.size(), QSize(150, 96));
        QCOMPARE(list.cellRect(3), QRect(3, 48, 48, 48));
        const std::pair<QPoint, int> hits[] = {{{2, 5}, -1}, {{3, 5}, 0}, {{148, 5}, -1}, {{3, 50}, 3}, {{60, 50}, -1}};
        for (const auto &[point, index] : hits)
            QCOMPARE(list.indexAt(point), index);
    }

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
            QCOMPARE(index->text(), shown);
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
            QCOMPARE(bank.transparency(), before);
            QCOMPARE(index->text(), shown);
            scene.stack.redo();
            QCOMPARE(bank.transparency(), chosen);
            QVERIFY(scene.stack.count() == 1 && repainted.size() == 3);
        }
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
        QCOMPARE(mkfifo(qPrintable(scene.file("pipe.png")), 0600), 0); // which would wait for its reader
        for (const char *name : {"no/such/folder/out.png", "out.unknown", "pipe.png"})
            scene.choose(Save, name);
        QCOMPARE(errors.count(), 3);
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
        const struct
        {
            Quenmora::ImageMode mode;
            bool scaled;
            int corner, farCorner;
        } cases[] = {
            {Quenmora::LoRes_128x96, false, 0xE0, 5},
            {Quenmora::Layer2_640x256, true, 0, 0}, // black comes nearest to red among the first 16 entries
        };
        for (const auto &[mode, scaled, corner, farCorner] : cases) {
            ImageScene scene(mode);
            QSignalSpy errors(scene.view.get(), &View::error);
            QVERIFY(writeFile(scene.file("nonsense.png"), "not a picture"));
            scene.choose(Open, "nonsense.png");
            QCOMPARE(errors, (QList<QVariantList>{{"Could not read the image file"}}));
            const QSize size = scene.stored(0).size();
            scene.images[0]->setImage(plainImage(size, 5));
            scene.show(0);
            QVERIFY(plainPicture({40, 30}, Qt::red).save(scene.file("in.png")));
            scene.choose(Open, "in.png");
            auto *dialog = scene.view->findChild<ImageEditor::ImportDialog *>();
            dialog->findChild<QCheckBox *>()->setChecked(scaled);
            dialog->accept();
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
        QVERIFY(picture.save(scene.file("in.png")));
        for (const bool keep : {true, false}) {
            scene.choose(Open, "in.png");
            auto *dialog = scene.view->findChild<ImageEditor::ImportDialog *>();
            const QList<QCheckBox *> boxes = dialog->findChildren<QCheckBox *>();
            boxes[0]->setChecked(true); // scaled
            QVERIFY(boxes[1]->isChecked()); // by itself
            boxes[1]->setChecked(keep);
            dialog->accept();
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
            QVERIFY(picture.save(scene.file("in.png")));
            scene.images[0]->setImage(plainImage({128, 96}, 5));
            scene.show(0);
            scene.choose(Open, "in.png");
            auto *dialog = scene.view->findChild<ImageEditor::ImportDialog *>();
            QVERIFY(dialog->findChildren<QCheckBox *>()[2]->isChecked());
            for (QCheckBox *box : dialog->findChildren<QCheckBox *>())
                box->setChecked(keep && box->text() != "Scale to fill the image");
            dialog->accept();
            QCOMPARE(scene.stored(0).pixelIndex(0, 0) != 0, keep);
            QCOMPARE(scene.stored(0).pixelIndex(1, 0), 0);
        }
        QVERIFY(plainPicture({2, 1}, qRgb(50, 0, 0)).save(scene.file("in.png")));
        scene.choose(Open, "in.png");
        const QList<QCheckBox *> boxes =
            scene.view->findChild<ImageEditor::ImportDialog *>()->findChildren<QCheckBox *>();
        QVERIFY(!boxes[1]->isEnabled() && !boxes[1]->isChecked());
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

    void imageImportsMayBringTheirPalette_data()
    {
        QTest::addColumn<Quenmora::ImageMode>("mode");
        QTest::addColumn<int>("colours");
        QTest::newRow("256 colours") << Quenmora::Layer2_256x192 << 255;
        QTest::newRow("16 colours") << Quenmora::Layer2_640x256 << 15;
    }

    void imageImportsMayBringTheirPalette()
    {
        QFETCH(Quenmora::ImageMode, mode);
        QFETCH(int, colours);
        ImageScene scene(mode);
        Project project;
        const QPointer<Palette> blank = project.createPalette(CreateAction::Blank, "in");
        const QPointer<Image> image = project.createImage(mode, "Title", blank->id());
        image->setImage(plainImage(Image::sizeOf(mode), 5));
        scene.view->setImage(image);
        QImage picture(64, 64, QImage::Format_ARGB32);
        for (int i = 0; i < 64 * 64; ++i)
            picture.setPixel(i % 64, i / 64, i < 64 ? 0 : NineBitColour::shown(i % 512));
        QVERIFY(picture.save(scene.file("in.png")));
        scene.choose(Open, "in.png");
        auto *dialog = scene.view->findChild<ImageEditor::ImportDialog *>();
        dialog->findChildren<QCheckBox *>()[3]->setChecked(true);
        dialog->accept();
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
        scene.choose(Open, "in.png");
        dialog->findChild<ReductionBox *>()->setReduction(Dithering::Ordered);
        dialog->accept();
        QCOMPARE(scene.stack.count(), 2);
        QCOMPARE(swapped.size(), 0);
    }
};

QUENMORA_TEST_MAIN(TestPixelEditor)
#include "tst_pixeleditor.moc"
