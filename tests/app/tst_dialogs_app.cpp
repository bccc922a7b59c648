#include "app/dialogs/assetchooser.h"
#include "app/dialogs/depthchooser.h"
#include "app/dialogs/exportdialog.h"
#include "app/dialogs/imagedialog.h"
#include "app/dialogs/importbinarydialog.h"
#include "app/dialogs/importimagedialog.h"
#include "app/dialogs/importpicturedialog.h"
#include "app/dialogs/importzxfontdialog.h"
#include "app/dialogs/mapdialog.h"
#include "app/dialogs/paletteselectordialog.h"
#include "app/dialogs/tilesetdialog.h"
#include "editors/canvas/reductionbox.h"
#include "model/palette.h"
#include "pictures/ninebitcolour.h"
#include "support/editorinput.h"
#include "support/sampleproject.h"
#include "ui/picturepreview.h"

#include <QtTest>
#include <QtWidgets>

namespace {

template <typename Widget>
Widget *field(const QDialog &dialog, int index = 0)
{
    return dialog.findChildren<Widget *>().value(index);
}

/// Presses OK; the error that keeps the dialog open, or an empty text.
QString confirm(DialogBase &dialog)
{
    dialog.okButton()->click();
    return dialog.isVisible() == dialog.error().isEmpty() ? "closed with an error, or open without" : dialog.error();
}

/// Whether one of a dialog's labels says this.
bool tells(const QDialog &dialog, const QString &text)
{
    return std::ranges::any_of(dialog.findChildren<QLabel *>(),
                               [&text](const QLabel *label) { return label->text().contains(text); });
}

QString confirm(DialogBase &dialog, const QString &name)
{
    field<QLineEdit>(dialog)->setText(name);
    return confirm(dialog);
}

} // namespace

class TestDialogsApp : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_project = std::make_unique<Project>();
        m_main = m_project->createPalette(CreateAction::DefaultNext, "Main")->id();
        m_tiles = m_project->createTileSet("Tiles", m_main, 4)->id();
    }

    void needsAName()
    {
        TileSetDialog dialog;
        QSignalSpy accepted(&dialog, &TileSetDialog::accepted);
        dialog.show(*m_project);
        QCOMPARE(confirm(dialog, "  "), "Please enter a name");
        QCOMPARE(confirm(dialog, "Main"), "There is a palette of this name already; choose it, or another name");
        field<AssetChooser>(dialog)->choose(m_main);
        QCOMPARE(dialog.error(), QString());
        QCOMPARE(confirm(dialog, " Forest "), QString());
        QCOMPARE(accepted, QList<QVariantList>({{"Forest", m_main, 256, false}}));
    }

    void needsSomethingToChoose()
    {
        const Project empty;
        MapDialog map;
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(field<QSpinBox>(map, i)->minimum(), i == 0 ? 40 : 32);
            QCOMPARE(field<QSpinBox>(map, i)->maximum(), 9999);
        }
        map.show(empty);
        QCOMPARE(confirm(map, "Level"), "A map is made of the tiles of a tile set; please create a tile set first");
        ImageDialog image;
        image.show(empty);
        QCOMPARE(confirm(image, "Title"), "An image needs a palette; please create a palette first");
        PaletteSelectorDialog selector;
        selector.show(empty, {});
        QCOMPARE(confirm(selector), "There is no palette to choose; please create one first");

        const QUuid used = m_project->createPalette(CreateAction::Blank, "Zebra")->id();
        QSignalSpy accepted(&selector, &PaletteSelectorDialog::accepted);
        selector.show(*m_project, used);
        QCOMPARE(confirm(selector), QString());
        QCOMPARE(accepted, QList<QVariantList>({{used}}));
    }

    void exportRange()
    {
        TileEditor::ExportDialog dialog;
        QSignalSpy accepted(&dialog, &TileEditor::ExportDialog::accepted);
        dialog.show(TileSet(256));
        QCOMPARE(confirm(dialog), QString());
        dialog.show(TileSet(512)); // as all tiles were wanted, all are
        field<QCheckBox>(dialog)->setChecked(true);
        QCOMPARE(confirm(dialog), QString());
        QCOMPARE(accepted, QList<QVariantList>({{1, 256, false}, {1, 512, true}}));
        dialog.show(TileSet(512));
        field<QSpinBox>(dialog, 0)->setValue(20);
        QCOMPARE(field<QSpinBox>(dialog, 0)->text(), "20 (index 19)");
        field<QSpinBox>(dialog, 1)->setValue(19);
        QCOMPARE(confirm(dialog), "The first tile comes after the last one");
        field<QSpinBox>(dialog, 1)->setValue(20);
        QCOMPARE(dialog.error(), QString());
    }

    void font()
    {
        const QString file = m_folder("font.ch8", QByteArray("\x81\0\0\0\0\0\0\x80", 8).repeated(6));
        ImportZXFontDialog dialog;
        dialog.setFileChooser([&](const FileRequest &, QWidget *) { return file; });
        QSignalSpy accepted(&dialog, &ImportZXFontDialog::accepted);
        dialog.show(*m_project->tileSet(m_tiles));
        QCOMPARE(confirm(dialog), "Please choose a font file");
        field<QLineEdit>(dialog)->setText(m_folder("short.bin", "1234567"));
        QCOMPARE(dialog.error(), "There is no character in this file, or it cannot be read");
        EditorInput::button(dialog, QString::fromUtf8("&Browse…"))->click();
        const auto *preview = field<PicturePreview>(dialog); // as the tiles will look
        QCOMPARE(preview->picture().size(), QSize(4 * 8, 8)); // the tile set has 4 tiles
        field<QSpinBox>(dialog, 0)->setValue(2);
        QCOMPARE(field<QSpinBox>(dialog, 0)->text(), "2 (index 1)");
        field<QSpinBox>(dialog, 1)->setValue(15);
        field<QComboBox>(dialog, 0)->setCurrentIndex(12);
        field<QComboBox>(dialog, 1)->setCurrentIndex(3);
        const QImage picture = preview->picture();
        QCOMPARE(picture.size(), QSize(3 * 8, 8));
        const QList<QRgb> colours = m_project->palette(m_main)->colourTable();
        for (const QPoint fore : {QPoint(0, 0), QPoint(7, 0), QPoint(8, 7)})
            QCOMPARE(picture.pixel(fore), colours[0xFC]);
        QCOMPARE(picture.pixel(1, 0), colours[0xF3]);
        QCOMPARE(confirm(dialog), QString());
        QCOMPARE(accepted, QList<QVariantList>({{1, 12, 3, 15, file}}));
        dialog.show(*m_project->createTileSet("Bare", QUuid::createUuid(), 1));
        QCOMPARE(confirm(dialog), "The tile set has no palette to take colours from");
    }

    void spritesOfAPicture()
    {
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(qRgb(250, 3, 3));
        const QString file = m_folder("hero.png", SampleProject::png(picture));
        SpriteEditor::ImportImageDialog dialog;
        QSignalSpy accepted(&dialog, &SpriteEditor::ImportImageDialog::accepted);
        // remapped: the palette's colours show, here the nearest of a palette that is all black
        const QUuid black = m_project->createPalette(CreateAction::Blank, "Black")->id();
        dialog.show(*m_project, file);
        field<AssetChooser>(dialog)->choose(black);
        QCOMPARE(field<PicturePreview>(dialog)->picture().pixel(0, 0), qRgb(0, 0, 0));
        QCOMPARE(confirm(dialog), QString());
        // cut, with the picture's own colours as the hardware shows them
        dialog.show(*m_project, file);
        field<QRadioButton>(dialog, 1)->setChecked(true);
        QVERIFY(!field<AssetChooser>(dialog)->isEnabled());
        QCOMPARE(field<PicturePreview>(dialog)->picture().pixel(0, 0), qRgb(255, 0, 0));
        field<DepthChooser>(dialog)->setCurrentIndex(1);
        QCOMPARE(confirm(dialog, "Villain"), QString());
        // the machine's own colours are kept, unless a person wants them quantised
        picture.fill(qRgb(219, 36, 0));
        auto *keep = field<QCheckBox>(dialog);
        QVERIFY(!keep->isEnabled() && !keep->isChecked());
        dialog.show(*m_project, m_folder("level6.png", SampleProject::png(picture)));
        field<QRadioButton>(dialog, 1)->setChecked(true);
        QVERIFY(keep->isEnabled() && keep->isChecked());
        QCOMPARE(field<PicturePreview>(dialog)->picture().pixel(0, 0), qRgb(219, 37, 0));
        QCOMPARE(confirm(dialog), QString());
        QVERIFY(accepted[2][0].value<SpriteImport>().keepColours);
        keep->setChecked(false);
        QCOMPARE(field<PicturePreview>(dialog)->picture().pixel(0, 0), qRgb(255, 37, 0));
        QCOMPARE(accepted[0][0].value<SpriteImport>(), (SpriteImport{file, "hero", Quenmora::EightBit, black}));
        QCOMPARE(accepted[1][0].value<SpriteImport>(), (SpriteImport{file, "Villain", Quenmora::FourBit, QUuid()}));
    }

    void spritesOfAPictureProblems()
    {
        struct Case
        {
            QSize size; ///< of a picture of many colours; of a file that is none, if it is empty
            bool slice;
            bool fourBit;
            const char *name;
            const char *problem;
        };
        const char *groups = "The colours lie in several groups of 16 of the palette; 4-bit sprites show one group";
        const Case cases[]{
            {{0, 0}, false, false, "x", "The file is not a picture that can be read"},
            {{15, 32}, false, false, "x", "The picture is smaller than a sprite, which has 16 × 16 pixels"},
            {{16, 16}, true, false, "Main", "There is a palette of this name already; please choose another name"},
            {{16, 16}, false, false, "Main", ""}, // no palette is made
            {{16, 16}, true, true, "x", "The picture has 16 colours; 4-bit sprites show 15 beside the transparent one"},
            {{16, 16}, false, true, "x", groups},
            {{16, 16}, false, false, "", "Please enter a name"}};
        for (const auto &[size, slice, fourBit, name, problem] : cases) {
            const QImage picture = pictureOf(size, QImage::Format_RGB32, [width = size.width()](int i) {
                return qRgb(std::min(i % width * 16, 255), 0, 0); // at most 17 snapped colours
            });
            SpriteEditor::ImportImageDialog dialog;
            dialog.show(*m_project,
                        m_folder("problem.png", picture.isNull() ? "no picture" : SampleProject::png(picture)));
            field<QRadioButton>(dialog, slice ? 1 : 0)->setChecked(true);
            field<DepthChooser>(dialog)->setCurrentIndex(fourBit ? 1 : 0);
            QCOMPARE(confirm(dialog, name), problem);
        }
    }

    void spritesOfAPictureWithManyColours()
    {
        const QImage picture =
            pictureOf({64, 64}, QImage::Format_RGB32, [](int i) { return NineBitColour::shown(i % 512); });
        SpriteEditor::ImportImageDialog dialog;
        QSignalSpy accepted(&dialog, &SpriteEditor::ImportImageDialog::accepted);
        dialog.show(*m_project, m_folder("photo.png", SampleProject::png(picture)));
        field<QRadioButton>(dialog, 1)->setChecked(true);
        QVERIFY(tells(dialog, "There is room for 255; the others take the nearest of these"));
        auto *reduction = field<ReductionBox>(dialog);
        QVERIFY(!reduction->reduction()); // nobody has asked for it
        reduction->setReduction(Dithering::None);
        QVERIFY(tells(dialog, "Colours of the machine: 512 before, 255 after; mean error: 0.7"));
        field<DepthChooser>(dialog)->setCurrentIndex(1); // which refuses the picture as it is
        QVERIFY(tells(dialog, "Colours of the machine: 512 before, 15 after; mean error: "));
        const QImage after = dialog.findChildren<PicturePreview *>()[0]->picture();
        QVERIFY(after.convertToFormat(QImage::Format_RGB32) != picture);
        QCOMPARE(dialog.findChildren<PicturePreview *>()[1]->picture(), picture);
        QCOMPARE(confirm(dialog), QString());
        QCOMPARE(accepted[0][0].value<SpriteImport>().reduction, std::optional(Dithering::None));
    }

    void mapOfAPicture_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QList<bool>>("ticks"); // colours, clear pixels, whole picture; none: nothing is asked
        QTest::addColumn<Dithering>("dithering");
        QTest::addColumn<QString>("told");
        const auto add = [](const char *kind, const QList<bool> &ticks, Dithering dithering, const char *told) {
            QTest::newRow(kind) << QByteArray(kind) << ticks << dithering << QString(told);
        };
        add("plain", {}, Dithering::None, "");
        add("levels", {true, false, false}, Dithering::None, "Nothing is lost");
        add("holes", {true, true, false}, Dithering::None, "Nothing is lost");
        add("shades", {false, false, true}, Dithering::Ordered, "Of 600 cells, ");
        add("ramp", {false, false, true}, Dithering::Ordered, "lost but shades between");
    }

    void mapOfAPicture()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QList<bool>, ticks);
        QFETCH(Dithering, dithering);
        QFETCH(QString, told);
        const auto pixel = [&kind](int i) {
            if (kind == "shades")
                return qRgb(i * 37 % 256, i * (i % 101) / 7 % 256, i * 7 % 256);
            if (kind == "ramp") // few tiles, whose colours all find room
                return qRgb(100 + i % 64, 100, 20 + i / 64);
            const bool isHole = kind == "holes" && i == 50;
            return isHole ? 0 : qRgb(kind == "plain" ? 255 : 219, 36, 0);
        };
        const QSize size = kind == "shades" ? QSize(240, 160) : QSize(64, 64);
        const QString file = m_folder(kind + ".png", SampleProject::png(pictureOf(size, QImage::Format_ARGB32, pixel)));
        const PictureLoss loss = PictureLoss::of(file, nullptr);
        QCOMPARE(loss.any(), !ticks.isEmpty());
        if (ticks.isEmpty())
            return;
        ImportPictureDialog dialog;
        QSignalSpy accepted(&dialog, &ImportPictureDialog::accepted);
        QSignalSpy unreduced(&dialog, &ImportPictureDialog::unreduced);
        dialog.show(file, loss);
        const QList<QCheckBox *> boxes = dialog.findChildren<QCheckBox *>();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(boxes[i]->isChecked(), ticks[i]);
        QCOMPARE(Dithering(field<QComboBox>(dialog)->currentData().toInt()), dithering);
        QVERIFY(tells(dialog, told));
        const QRgb after = dialog.findChildren<PicturePreview *>()[1]->picture().pixel(0, 0);
        QCOMPARE(after == qRgb(219, 37, 0), kind == "levels" || kind == "holes");
        dialog.accept();
        const auto reduction = accepted.at(0).at(1).value<TileReduction>();
        QCOMPARE(reduction.shown().pixel(0, 0), after);
        QVERIFY(reduction.tiles.size() <= 512);
        // without any tick it is cut as it is, if it can be
        dialog.show(file, loss);
        for (QCheckBox *box : {boxes[2], boxes[1], boxes[0]})
            box->setChecked(false);
        dialog.accept();
        QCOMPARE(unreduced.size(), kind == "shades" ? 0 : 1);
        QCOMPARE(dialog.error(),
                 kind == "shades" ? "The picture has 600 different tiles, and a tile set has room for 512" : "");
    }

    void spritesOfData()
    {
        const QString file = m_folder("hero.spr", QByteArray(600, '\1'));
        SpriteEditor::ImportBinaryDialog dialog;
        QSignalSpy accepted(&dialog, &SpriteEditor::ImportBinaryDialog::accepted);
        dialog.show(*m_project, file);
        QVERIFY(tells(dialog, "2 in the file"));
        field<AssetChooser>(dialog)->choose(m_main);
        QCOMPARE(confirm(dialog), QString());
        QCOMPARE(accepted[0][0].value<SpriteImport>(), (SpriteImport{file, "hero", Quenmora::EightBit, m_main}));
        field<AssetChooser>(dialog)->choose({});
        dialog.show(*m_project, m_folder("short.spr", QByteArray(255, '\1')));
        QCOMPARE(confirm(dialog), "There is no sprite in this file, or it cannot be read");
        dialog.show(*m_project, m_folder("Main.spr", QByteArray(256, '\1')));
        QCOMPARE(confirm(dialog), "There is a palette of this name already; choose it, or another name");
    }

private:
    std::unique_ptr<Project> m_project;
    QUuid m_main;
    QUuid m_tiles;
    TemporaryFolder m_folder;
};

QUENMORA_TEST_MAIN(TestDialogsApp)
#include "tst_dialogs_app.moc"
