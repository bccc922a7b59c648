#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/dragdata.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/spritewindow.h"

#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QUndoStack>

using SpriteEditor::SpriteList;

namespace {

/// A bank of three sprites filled with 1, 2 and 3, with a window and the bank's stack.
struct Fixture
{
    Palette palette;
    std::unique_ptr<SpriteBank> bank;
    QUndoStack stack;
    SpriteWindow window;
    SpriteList &list{*window.list()};
    EditorInput::Mouse mouse{*window.canvas()};

    explicit Fixture(Quenmora::Sprite depth = Quenmora::EightBit) : bank(new SpriteBank(depth))
    {
        palette.loadStandardNext();
        bank->setPalette(&palette);
        bank->addSprite();
        bank->addSprite();
        for (int i = 0; i < 3; ++i)
            bank->setImage(i, plainImage({16, 16}, i + 1));
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setSprites(bank.get());
        window.resize(400, 900);
        window.show();
    }
    /// A pixel of every sprite.
    QList<int> sprites() const
    {
        QList<int> pixels;
        for (int i = 0; i < bank->count(); ++i)
            pixels += bank->spriteImage(i, false, false, false).pixelIndex(5, 5);
        return pixels;
    }
    void click(int index, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(&list, button, Qt::NoModifier, list.cellRect(index).center());
        list.contextMenu()->close();
    }
    /// Runs an entry of a sprite's context menu.
    void trigger(int index, const QString &text) const
    {
        click(index, Qt::RightButton);
        EditorInput::trigger(*list.contextMenu(), text);
    }
    void drop(int from, int to, Qt::KeyboardModifiers modifiers) const
    {
        const std::unique_ptr<QMimeData> data(SpriteDrag{from}.toMimeData());
        EditorInput::drop(list, list.cellRect(from).center(), list.cellRect(to).center(), *data, modifiers);
    }
};

} // namespace

class TestSpriteWindow : public QObject
{
    Q_OBJECT

private slots:
    void listLaysOutCentredRows();
    void strokesReachTheSpriteAndUndo();
    void structureEditsAskForOneUndoStep();
    void imagesAreCopiedAndPasted();
    void pasteTakesOtherProgramsPictures();
    void survivesItsBank();
};

void TestSpriteWindow::listLaysOutCentredRows()
{
    Fixture f;
    SpriteList list;
    list.setSprites(f.bank.get());
    list.resize(150, list.heightForWidth(150));
    QCOMPARE(list.size(), QSize(150, 96));
    QCOMPARE(list.cellRect(3), QRect(3, 48, 48, 48));
    const std::pair<QPoint, int> hits[] = {{{2, 5}, -1}, {{3, 5}, 0}, {{148, 5}, -1}, {{3, 50}, 3}, {{60, 50}, -1}};
    for (const auto &[point, index] : hits)
        QCOMPARE(list.indexAt(point), index);
}

void TestSpriteWindow::strokesReachTheSpriteAndUndo()
{
    Fixture f;
    f.click(1);
    QCOMPARE(f.window.spriteIndex(), 1);
    f.window.canvas()->setInk(200);
    f.mouse.drag({{5, 5}});
    QCOMPARE(f.sprites(), (QList{1, 200, 3}));
    f.click(2);
    f.stack.undo();
    QCOMPARE(f.sprites(), (QList{1, 2, 3}));
    f.click(1);
    f.stack.redo();
    QCOMPARE(f.window.canvas()->image().pixelIndex(5, 5), 200);
    f.bank->deleteSprite(2);
    f.bank->deleteSprite(1);
    f.stack.undo();
    QCOMPARE(f.sprites(), QList{1});
}

void TestSpriteWindow::structureEditsAskForOneUndoStep()
{
    const struct
    {
        std::function<void(const Fixture &)> edit;
        QString text;
        QList<int> sprites;
    } edits[] = {
        {[](auto &f) { f.click(3); }, "Add Sprite", {1, 2, 3, 0}},
        {[](auto &f) { f.trigger(0, "Delete"); }, "Delete Sprite", {2, 3}},
        {[](auto &f) { f.trigger(0, "Clear"); }, "Clear Sprite", {0, 2, 3}},
        {[](auto &f) { f.drop(0, 2, Qt::ShiftModifier); }, "Copy Sprite", {1, 2, 1}},
        {[](auto &f) { f.drop(0, 2, Qt::NoModifier); }, "Move Sprite", {2, 3, 1}},
        {[](auto &f) { f.drop(1, 1, Qt::NoModifier); }, "Move Sprite", {1, 2, 3}},
        {[](auto &f) { f.drop(1, 2, Qt::ControlModifier); }, {}, {1, 2, 3}},
    };
    for (const auto &[edit, text, sprites] : edits) {
        const Fixture f;
        SignalLog log;
        log.listen(*f.bank, &SpriteBank::structureAboutToChange, "begun");
        log.listen(*f.bank, &SpriteBank::structureChanged, "ended");
        edit(f);
        QCOMPARE(log.take(), text.isEmpty() ? QStringList() : (QStringList{"begun", "ended " + text}));
        QCOMPARE(f.sprites(), sprites);
        QCOMPARE(f.window.canvas()->image().pixelIndex(5, 5), sprites[0]);
    }
}

void TestSpriteWindow::imagesAreCopiedAndPasted()
{
    Fixture f;
    f.palette.storeRawColour(2, 0xFF01); // white, and nothing else is
    for (int i = 3; i < 256; ++i)
        f.palette.storeRawColour(i, 0);
    f.bank->setPalette(&f.palette);
    f.trigger(1, "Copy Image");
    const auto content = CanvasClipboardContent::fromMimeData(QApplication::clipboard()->mimeData());
    QCOMPARE(content.imageType, Quenmora::Ui::Full256);
    QCOMPARE(content.paletteId, f.palette.id());
    QCOMPARE(content.image.pixelIndex(0, 0), 2);
    f.trigger(2, "Paste Image");
    QCOMPARE(f.sprites(), (QList{1, 2, 2}));
}

void TestSpriteWindow::pasteTakesOtherProgramsPictures()
{
    Fixture f(Quenmora::FourBit);
    QImage picture(100, 4, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QApplication::clipboard()->setImage(picture);
    f.trigger(0, "Paste Image");
    const QImage sprite = f.bank->spriteImage(0, false, false, false);
    QCOMPARE(sprite.pixelIndex(15, 3), 3);
    QCOMPARE(sprite.pixelIndex(0, 4), 0);
    f.window.paste();
    QCOMPARE(f.window.canvas()->clipboardImage().pixelIndex(0, 0), 3);
}

void TestSpriteWindow::survivesItsBank()
{
    Fixture f;
    QVERIFY(f.window.isActive());
    QTest::mousePress(&f.list, Qt::LeftButton, Qt::NoModifier, f.list.cellRect(0).center());
    f.bank.reset();
    QVERIFY(!f.window.isActive());
    QTest::mouseRelease(&f.list, Qt::LeftButton, Qt::NoModifier, {10, 10});
    f.list.grab();
    f.window.updateSpriteImage();
    f.window.setSpritePalette(nullptr);
    QCOMPARE(f.window.spriteIndex(), -1);
}

QUENMORA_TEST_MAIN(TestSpriteWindow)
#include "tst_spritewindow.moc"
