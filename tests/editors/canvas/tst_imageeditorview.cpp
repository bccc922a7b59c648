#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/imageimportdialog.h"

#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoStack>

using ImageEditor::View;

namespace {

struct Fixture
{
    Palette palette;
    std::unique_ptr<Image> image;
    QUndoStack stack;
    std::unique_ptr<View> view;
    QTemporaryDir folder;

    explicit Fixture(Quenmora::ImageMode mode = Quenmora::LoRes_128x96) : image(new Image(mode))
    {
        palette.loadStandardNext();
        image->setPalette(&palette);
        open();
    }
    /// Opens a new tab for the image, and closes the one before.
    void open()
    {
        view = std::make_unique<View>();
        view->setImage(image.get());
        view->setUndoStack(&stack);
        view->resize(900, 700);
        view->show();
    }
    void draw(int index) const
    {
        view->canvas()->setInk(index);
        EditorInput::Mouse{*view->canvas()}.drag({{10, 10}});
    }
    int stored() const { return image->image().pixelIndex(10, 10); }
    /// Answers the file dialog that an action of the view opens.
    void choose(Quenmora::Ui::ToolButton action, const QString &file) const
    {
        QMetaObject::invokeMethod(view.get(), "changeMode", Q_ARG(Quenmora::Ui::ToolButton, action),
                                  Q_ARG(bool, false));
        for (QFileDialog *dialog : view->findChildren<QFileDialog *>()) {
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
    void refusesWhatIsNoPicture();
    void survivesItsImage();
};

void TestImageEditorView::strokesReachTheImageAndUndo()
{
    Fixture f;
    f.draw(77);
    QCOMPARE(f.stored(), 77);
    f.stack.undo();
    QCOMPARE(f.stored(), 0);
    f.stack.redo();
    f.open(); // undo reaches the image from the next tab as well
    QCOMPARE(f.view->canvas()->image().pixelIndex(10, 10), 77);
    f.stack.undo();
    QCOMPARE(f.view->canvas()->image().pixelIndex(10, 10), 0);
    f.stack.redo();
    Image other(Quenmora::LoRes_128x96);
    f.view->setImage(&other);
    f.stack.undo();
    QCOMPARE(f.stored(), 0);
    QCOMPARE(f.stack.count(), 1);
}

void TestImageEditorView::scratchPictureIsAnnounced()
{
    Fixture f;
    f.view->setImage(nullptr);
    QSignalSpy changes(f.view.get(), &View::imageChanged);
    f.view->setPixels(plainImage({256, 192}, 3));
    f.view->setPalette(&f.palette);
    QVERIFY(changes.isEmpty());
    f.draw(5);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes[0][0].value<QImage>().size(), QSize(256, 192));
}

void TestImageEditorView::exportsThePicture()
{
    Fixture f;
    QSignalSpy errors(f.view.get(), &View::error);
    f.draw(0xE0);
    f.choose(Quenmora::Ui::Save, f.folder.filePath("out.png"));
    QCOMPARE(QImage(f.folder.filePath("out.png")).pixelColor(10, 10), QColor(Qt::red));
    f.choose(Quenmora::Ui::Save, f.folder.filePath("no/such/folder/out.png"));
    QCOMPARE(errors.count(), 1);
}

void TestImageEditorView::importMapsOntoThePalette_data()
{
    QTest::addColumn<Quenmora::ImageMode>("mode");
    QTest::addColumn<bool>("scaled");
    QTest::addColumn<int>("corner");
    QTest::addColumn<int>("farCorner");
    // 0xE0 is red; of the first 16 entries black comes nearest to it
    QTest::addRow("top left") << Quenmora::LoRes_128x96 << false << 0xE0 << 5;
    QTest::addRow("scaled") << Quenmora::LoRes_128x96 << true << 0xE0 << 0xE0;
    QTest::addRow("16 colours") << Quenmora::Layer2_640x256 << true << 0 << 0;
}

void TestImageEditorView::importMapsOntoThePalette()
{
    QFETCH(Quenmora::ImageMode, mode);
    QFETCH(bool, scaled);
    QFETCH(int, corner);
    Fixture f(mode);
    const QSize size = f.image->image().size();
    f.image->setImage(plainImage(size, 5));
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(f.folder.filePath("in.png")));
    f.choose(Quenmora::Ui::Open, f.folder.filePath("in.png"));
    auto *dialog = f.view->findChild<ImageEditor::ImportDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    dialog->findChild<QCheckBox *>()->setChecked(scaled);
    dialog->accept();
    QCOMPARE(f.image->image().pixelIndex(0, 0), corner);
    QTEST(f.image->image().pixelIndex(size.width() - 1, size.height() - 1), "farCorner");
    f.stack.undo();
    QCOMPARE(f.image->image().pixelIndex(0, 0), 5);
    QVERIFY(!f.stack.canUndo());
    QApplication::clipboard()->setImage(picture);
    f.view->paste();
    QCOMPARE(f.view->canvas()->clipboardImage().pixelIndex(0, 0), corner);
}

void TestImageEditorView::refusesWhatIsNoPicture()
{
    Fixture f;
    QSignalSpy errors(f.view.get(), &View::error);
    QVERIFY(writeFile(f.folder.filePath("nonsense.png"), "not a picture"));
    f.choose(Quenmora::Ui::Open, f.folder.filePath("nonsense.png"));
    f.choose(Quenmora::Ui::Open, f.folder.path());
    const QVariantList refusal{QStringLiteral("Could not read the image file")};
    QCOMPARE(errors, (QList<QVariantList>{refusal, refusal}));
    QVERIFY(!f.view->findChild<ImageEditor::ImportDialog *>());
}

void TestImageEditorView::survivesItsImage()
{
    Fixture f;
    f.draw(7);
    const EditorInput::Mouse mouse{*f.view->canvas()};
    mouse.press({5, 5});
    f.image.reset();
    f.view->canvas()->setMode(Quenmora::Ui::MoveUp);
    f.view->grab();
    f.stack.undo();
    QVERIFY(f.view->canvas()->image().isNull());
    mouse.release({5, 5});
}

QUENMORA_TEST_MAIN(TestImageEditorView)
#include "tst_imageeditorview.moc"
