#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/dragdata.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/spritewindow.h"

#include "support/editorinput.h"
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
    SpriteBank bank{Quenmora::EightBit};
    QUndoStack stack;
    SpriteWindow window;

    Fixture()
    {
        palette.loadStandardNext();
        bank.setPalette(&palette);
        bank.addSprite();
        bank.addSprite();
        for (int i = 0; i < 3; ++i)
            bank.setImage(i, EditorInput::filled({16, 16}, i + 1));
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setSprites(&bank);
        window.resize(400, 900);
        window.show();
    }
    SpriteList &list() { return *window.list(); }
    QString sprites() const
    {
        QStringList numbers;
        for (int i = 0; i < bank.count(); ++i)
            numbers += QString::number(bank.spriteImage(i, false, false, false).pixelIndex(5, 5));
        return numbers.join(' ');
    }
    void click(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&list(), button, Qt::NoModifier, list().cellRect(index).center());
        list().contextMenu()->close();
    }
    /// Runs an entry of a sprite's context menu.
    void trigger(int index, const QString &text)
    {
        click(index, Qt::RightButton);
        EditorInput::trigger(*list().contextMenu(), text);
    }
    void drop(int from, int to, Qt::KeyboardModifiers modifiers)
    {
        const std::unique_ptr<QMimeData> data(SpriteDrag{from}.toMimeData());
        EditorInput::drop(list(), list().cellRect(from).center(), list().cellRect(to).center(), *data, modifiers);
    }
};

} // namespace

class TestSpriteWindow : public QObject
{
    Q_OBJECT

private slots:
    void listLaysOutCentredRows();
    void clicksSelectAndAdd();
    void strokesReachTheSpriteAndUndo();
    void structureEditsAskForOneUndoStep_data();
    void structureEditsAskForOneUndoStep();
    void dropOnItselfMovesToItself();
    void imagesAreCopiedAndPasted();
    void pasteTakesOtherProgramsPictures();
    void survivesItsBank();
};

void TestSpriteWindow::listLaysOutCentredRows()
{
    SpriteBank bank(Quenmora::FourBit);
    bank.addSprite();
    bank.addSprite();
    SpriteList list;
    list.setSprites(&bank);
    list.resize(150, list.heightForWidth(150));
    QCOMPARE(list.size(), QSize(150, 96));
    QCOMPARE(list.cellRect(3), QRect(3, 48, 48, 48));
    const std::pair<QPoint, int> hits[] = {{{2, 5}, -1}, {{3, 5}, 0}, {{148, 5}, -1}, {{3, 50}, 3}, {{60, 50}, -1}};
    for (const auto &[point, index] : hits)
        QCOMPARE(list.indexAt(point), index);
}

void TestSpriteWindow::clicksSelectAndAdd()
{
    Fixture f;
    f.click(1);
    QCOMPARE(f.window.spriteIndex(), 1);
    QCOMPARE(f.window.canvas()->image().pixelIndex(0, 0), 2);
    QSignalSpy steps(&f.bank, &SpriteBank::structureChanged);
    f.click(3);
    QCOMPARE(f.bank.count(), 4);
    QCOMPARE(steps, (QList<QVariantList>{{QStringLiteral("Add Sprite")}}));
    QCOMPARE(f.window.spriteIndex(), 1);
}

void TestSpriteWindow::strokesReachTheSpriteAndUndo()
{
    Fixture f;
    f.click(1);
    Canvas &canvas = *f.window.canvas();
    canvas.setInk(200);
    EditorInput::clickPixel(canvas, {5, 5});
    QCOMPARE(f.sprites(), QStringLiteral("1 200 3"));
    f.click(2);
    f.stack.undo();
    QCOMPARE(f.sprites(), QStringLiteral("1 2 3"));
    f.click(1);
    f.stack.redo();
    QCOMPARE(canvas.image().pixelIndex(5, 5), 200);
    f.bank.deleteSprite(2);
    f.bank.deleteSprite(1);
    f.stack.undo();
    QCOMPARE(f.sprites(), QStringLiteral("1"));
}

void TestSpriteWindow::structureEditsAskForOneUndoStep_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sprites");
    QTest::addRow("Delete") << "Delete Sprite"
                            << "2 3";
    QTest::addRow("Clear") << "Clear Sprite"
                           << "0 2 3";
    QTest::addRow("copy drop") << "Copy Sprite"
                               << "1 2 1";
    QTest::addRow("move drop") << "Move Sprite"
                               << "2 3 1";
}

void TestSpriteWindow::structureEditsAskForOneUndoStep()
{
    const QString action = QTest::currentDataTag();
    QFETCH(QString, text);
    QFETCH(QString, sprites);
    Fixture f;
    QSignalSpy begun(&f.bank, &SpriteBank::structureAboutToChange);
    QSignalSpy ended(&f.bank, &SpriteBank::structureChanged);
    if (action.endsWith("drop"))
        f.drop(0, 2, action == "copy drop" ? Qt::ShiftModifier : Qt::NoModifier);
    else
        f.trigger(0, action);
    QCOMPARE(f.sprites(), sprites);
    QCOMPARE(begun.count(), 1);
    QCOMPARE(ended, (QList<QVariantList>{{text}}));
    const int shown = f.window.canvas()->image().pixelIndex(5, 5);
    QCOMPARE(QString::number(shown), sprites.section(' ', 0, 0));
}

void TestSpriteWindow::dropOnItselfMovesToItself()
{
    Fixture f;
    QSignalSpy moves(&f.list(), &SpriteList::moveSprite);
    f.drop(1, 1, Qt::NoModifier);
    f.drop(1, 2, Qt::ControlModifier);
    QCOMPARE(moves, (QList<QVariantList>{{1, 1}}));
    QCOMPARE(f.sprites(), QStringLiteral("1 2 3"));
}

void TestSpriteWindow::imagesAreCopiedAndPasted()
{
    Fixture f;
    f.palette.storeRawColour(2, 0xFF01); // white, and nothing else is
    for (int i = 3; i < 256; ++i)
        f.palette.storeRawColour(i, 0);
    f.bank.setPalette(&f.palette);
    f.trigger(1, "Copy Image");
    const auto content = CanvasClipboardContent::fromMimeData(QApplication::clipboard()->mimeData());
    QCOMPARE(content.imageType, Quenmora::Ui::Full256);
    QCOMPARE(content.paletteId, f.palette.id());
    QCOMPARE(content.image.pixelIndex(0, 0), 2);
    f.trigger(2, "Paste Image");
    QCOMPARE(f.sprites(), QStringLiteral("1 2 2"));
}

void TestSpriteWindow::pasteTakesOtherProgramsPictures()
{
    Fixture f;
    QImage picture(100, 4, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QApplication::clipboard()->setImage(picture);
    f.trigger(0, "Paste Image");
    const QImage sprite = f.bank.spriteImage(0, false, false, false);
    QCOMPARE(sprite.pixelIndex(15, 3), 255);
    QCOMPARE(sprite.pixelIndex(0, 4), 0);
}

void TestSpriteWindow::survivesItsBank()
{
    SpriteWindow window;
    window.resize(400, 900);
    window.show();
    {
        SpriteBank bank(Quenmora::FourBit);
        window.setSprites(&bank);
        QVERIFY(window.isActive());
        QTest::mousePress(window.list(), Qt::LeftButton, Qt::NoModifier, window.list()->cellRect(0).center());
    }
    QVERIFY(!window.isActive());
    QTest::mouseRelease(window.list(), Qt::LeftButton, Qt::NoModifier, {10, 10});
    window.list()->grab();
    window.updateSpriteImage();
    window.setSpritePalette(nullptr);
    QCOMPARE(window.spriteIndex(), -1);
}

QUENMORA_TEST_MAIN(TestSpriteWindow)
#include "tst_spritewindow.moc"
