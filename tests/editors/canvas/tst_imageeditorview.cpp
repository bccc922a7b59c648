#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/imageimportdialog.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoStack>

using ImageEditor::View;

namespace {

struct Fixture
{
    Palette palette;
    Image image;
    QUndoStack stack;
    View view;
    QTemporaryDir folder;

    explicit Fixture(Quenmora::ImageMode mode = Quenmora::LoRes_128x96) : image(mode)
    {
        palette.loadStandardNext();
        image.setPalette(&palette);
        view.setImage(&image);
        view.setUndoStack(&stack);
        view.resize(900, 700);
        view.show();
    }
    void draw(QPoint pixel) { EditorInput::clickPixel(*view.canvas(), pixel); }
    QString picture(const QString &name, QSize size, QColor colour) const
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        const QString file = folder.filePath(name);
        picture.save(file);
        return file;
    }
    /// Answers the file dialog that an action of the view opens.
    void choose(Quenmora::Ui::ToolButton action, const QString &file)
    {
        QMetaObject::invokeMethod(&view, "changeMode", Q_ARG(Quenmora::Ui::ToolButton, action), Q_ARG(bool, false));
        for (QFileDialog *dialog : view.findChildren<QFileDialog *>()) {
            if (!dialog->isVisible())
                continue;
            dialog->close();
            emit dialog->fileSelected(file);
        }
    }
};

} // namespace

class TestImageEditorView : public QObject
{
    Q_OBJECT

private slots:
    void strokesReachTheImageAndUndo();
    void scratchPictureIsAnnounced();
    void exportsThePicture();
    void importMapsOntoThePalette_data();
    void importMapsOntoThePalette();
    void importRefusesNonsense();
    void survivesItsImage();
    void showsUndoOfAnEditMadeInAnotherView();
};

void TestImageEditorView::strokesReachTheImageAndUndo()
{
    Fixture f;
    f.view.canvas()->setInk(77);
    f.draw({10, 10});
    QCOMPARE(f.image.image().pixelIndex(10, 10), 77);
    f.stack.undo();
    QCOMPARE(f.image.image().pixelIndex(10, 10), 0);
    f.stack.redo();
    Image other(Quenmora::LoRes_128x96);
    other.setPalette(&f.palette);
    f.view.setImage(&other);
    f.stack.undo();
    QCOMPARE(f.image.image().pixelIndex(10, 10), 0);
}

void TestImageEditorView::scratchPictureIsAnnounced()
{
    Palette palette;
    View view;
    view.resize(900, 700);
    view.show();
    QSignalSpy changes(&view, &View::imageChanged);
    view.setPixels(EditorInput::filled({256, 192}, 3));
    view.setPalette(&palette);
    QVERIFY(changes.isEmpty());
    QTest::mouseClick(view.canvas(), Qt::LeftButton, Qt::NoModifier, view.canvas()->rect().center());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes[0][0].value<QImage>().size(), QSize(256, 192));
}

void TestImageEditorView::exportsThePicture()
{
    Fixture f;
    QSignalSpy errors(&f.view, &View::error);
    f.view.canvas()->setInk(0xE0);
    f.draw({10, 10});
    const QString file = f.folder.filePath("out.png");
    f.choose(Quenmora::Ui::Save, file);
    QCOMPARE(QImage(file).pixelColor(10, 10), QColor(Qt::red));
    f.choose(Quenmora::Ui::Save, f.folder.filePath("no/such/folder/out.png"));
    QCOMPARE(errors.count(), 1);
}

void TestImageEditorView::importMapsOntoThePalette_data()
{
    QTest::addColumn<Quenmora::ImageMode>("mode");
    QTest::addColumn<bool>("scaled");
    QTest::addColumn<int>("corner");
    QTest::addColumn<int>("farCorner");
    // 0xE0 is red; of the first 16 entries 0x0C, a green, comes nearest to it
    QTest::addRow("top left") << Quenmora::LoRes_128x96 << false << 0xE0 << 5;
    QTest::addRow("scaled") << Quenmora::LoRes_128x96 << true << 0xE0 << 0xE0;
    QTest::addRow("16 colours") << Quenmora::Layer2_640x256 << true << 0 << 0;
}

void TestImageEditorView::importMapsOntoThePalette()
{
    QFETCH(Quenmora::ImageMode, mode);
    QFETCH(bool, scaled);
    QFETCH(int, corner);
    QFETCH(int, farCorner);
    Fixture f(mode);
    f.image.setImage(EditorInput::filled(f.image.image().size(), 5));
    f.view.setImage(&f.image);
    f.choose(Quenmora::Ui::Open, f.picture("in.png", {40, 30}, Qt::red));
    auto *dialog = f.view.findChild<ImageEditor::ImportDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    dialog->findChild<QCheckBox *>()->setChecked(scaled);
    dialog->accept();
    const QImage result = f.image.image();
    QCOMPARE(result.pixelIndex(0, 0), corner);
    QCOMPARE(result.pixelIndex(result.width() - 1, result.height() - 1), farCorner);
    QCOMPARE(f.stack.count(), 1);
    f.stack.undo();
    QCOMPARE(f.image.image().pixelIndex(0, 0), 5);
}

void TestImageEditorView::importRefusesNonsense()
{
    Fixture f;
    QSignalSpy errors(&f.view, &View::error);
    QFile nonsense(f.folder.filePath("nonsense.png"));
    QVERIFY(nonsense.open(QIODevice::WriteOnly));
    nonsense.write("not a picture");
    nonsense.close();
    f.choose(Quenmora::Ui::Open, nonsense.fileName());
    f.choose(Quenmora::Ui::Open, f.folder.path());
    QCOMPARE(errors,
             (QList<QVariantList>{{QStringLiteral("Could not read the image file")},
                                  {QStringLiteral("Could not read the image file")}}));
    QVERIFY(!f.view.findChild<ImageEditor::ImportDialog *>());
}

void TestImageEditorView::survivesItsImage()
{
    View view;
    QUndoStack stack;
    view.setUndoStack(&stack);
    view.resize(900, 700);
    view.show();
    {
        Palette palette;
        Image image(Quenmora::Layer2_256x192);
        image.setPalette(&palette);
        view.setImage(&image);
        EditorInput::clickPixel(*view.canvas(), {5, 5});
        QTest::mousePress(view.canvas(), Qt::LeftButton, Qt::NoModifier, view.canvas()->rect().center());
    }
    QVERIFY(view.canvas()->image().isNull());
    view.canvas()->setMode(Quenmora::Ui::MoveUp);
    view.grab();
    stack.undo();
    QVERIFY(view.canvas()->image().isNull());
    QTest::mouseRelease(view.canvas(), Qt::LeftButton, Qt::NoModifier, view.canvas()->rect().center());
}

void TestImageEditorView::showsUndoOfAnEditMadeInAnotherView()
{
    QUndoStack stack;
    Palette palette;
    Image image(Quenmora::Layer2_256x192);
    image.setPalette(&palette);
    {
        View view;
        view.setUndoStack(&stack);
        view.setImage(&image);
        view.canvas()->setInk(7);
        view.resize(900, 700);
        view.show();
        EditorInput::clickPixel(*view.canvas(), {5, 5});
    }
    View view; // the tab was closed and opened again
    view.setUndoStack(&stack);
    view.setImage(&image);
    QCOMPARE(view.canvas()->image().pixelIndex(5, 5), 7);
    stack.undo();
    QCOMPARE(view.canvas()->image().pixelIndex(5, 5), 0);
    QCOMPARE(stack.count(), 1);
}

QUENMORA_TEST_MAIN(TestImageEditorView)
#include "tst_imageeditorview.moc"
