// What the palette dock's menu does with the selected entries.

#include "editors/palette/colourcyclesdialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettewindow.h"
#include "model/image.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "model/tileset.h"

#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>
#include <QSpinBox>
#include <QUndoStack>

namespace {

struct Fixture
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::Blank, "Colours");
    QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette->id());
    QUndoStack stack;
    PaletteWindow window;
    QSignalSpy refused{&window, &PaletteWindow::refused};

    Fixture()
    {
        project.setScratchPalette(nullptr);
        window.setProject(&project);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setPalette(palette);
        const QColor colours[] = {Qt::white, Qt::blue, Qt::green, Qt::red, Qt::black};
        for (int i = 0; i < 5; ++i)
            palette->setColour(10 + i, colours[i], false);
        image->setImage(plainImage({128, 96}, 11)); // blue
    }
    void run(int first, int last, const QString &entry)
    {
        window.editor()->setSelection(first, last);
        EditorInput::trigger(*window.paletteMenu(), entry);
    }
    /// The first letters of the colours from entry 10 on.
    QString colours() const
    {
        const QHash<QString, QString> names{
            {"#ffffff", "w"}, {"#0000ff", "b"}, {"#00ff00", "g"}, {"#ff0000", "r"}, {"#000000", "k"}};
        QString found;
        for (int i = 0; i < 5; ++i)
            found += names.value(palette->colour(10 + i).name(QColor::HexRgb), "?");
        return found;
    }
};

} // namespace

class TestPaletteTools : public QObject
{
    Q_OBJECT

private slots:
    void entriesAreOrdered()
    {
        const std::tuple<QString, QString, int> orders[] = {
            {"Sort by Hue", "kwrgb", 14},
            {"Sort by Brightness", "kbrgw", 11},
            {"Reverse", "krgbw", 13},
            {"Exchange Ends", "kbgrw", 11},
        };
        for (const auto &[entry, colours, pixel] : orders) {
            Fixture f;
            QCOMPARE(f.colours(), "wbgrk");
            f.run(10, 14, entry);
            QCOMPARE(f.colours(), colours);
            QCOMPARE(f.image->image().pixelIndex(3, 3), pixel);
            QCOMPARE(f.stack.count(), 1);
            f.stack.undo();
            QCOMPARE(f.colours(), "wbgrk");
            QCOMPARE(f.image->image().pixelIndex(3, 3), 11);
            QVERIFY(f.refused.isEmpty());
        }
    }

    void whatCannotMoveStaysOrIsRefused()
    {
        Fixture f;
        const QPointer<TileSet> tiles = f.project.createTileSet("Tiles", f.palette->id(), 1);
        f.palette->setTransparencyIndex(10);
        f.run(10, 14, "Reverse");
        QCOMPARE(f.colours(), "wkrgb");
        f.run(10, 14, "Exchange Ends");
        f.run(15, 16, "Reverse"); // of two groups
        f.run(11, 11, "Reverse");
        QCOMPARE(f.stack.count(), 1);
        QCOMPARE(f.refused.size(), 3);
        QVERIFY(f.refused.last() != f.refused.first());
    }

    void selectedEntriesAreDraggedWithCtrl()
    {
        Fixture f;
        PaletteGrid *grid = f.window.editor()->grid();
        const auto drag = [grid](int from, int to) {
            const auto middle = [](int entry) { return QPoint(entry % 16 * 16 + 8, entry / 16 * 16 + 8); };
            QTest::mousePress(grid, Qt::LeftButton, Qt::ControlModifier, middle(from));
            QTest::mouseMove(grid, middle(to));
            QTest::mouseRelease(grid, Qt::LeftButton, Qt::ControlModifier, middle(to));
        };
        f.window.setPalette(f.palette);
        f.window.editor()->setSelection(10, 11);
        drag(11, 14); // whose place the last of them gets
        QCOMPARE(f.colours(), "grkwb");
        QCOMPARE(f.image->image().pixelIndex(3, 3), 14);
        QCOMPARE(f.window.editor()->first(), 13);
        drag(11, 10); // another than the selected ones
        QCOMPARE(f.colours(), "rgkwb");
        QCOMPARE(f.window.editor()->last(), 10);
        QCOMPARE(f.stack.count(), 2);
        f.palette->setTransparencyIndex(12);
        drag(11, 13);
        QVERIFY(f.colours() == "rgkwb" && f.refused.size() == 1);
        f.stack.undo();
        f.stack.undo();
        QCOMPARE(f.colours(), "wbgrk");
        QCOMPARE(f.image->image().pixelIndex(3, 3), 11);
    }

    void entriesAreMarkedAndCounted()
    {
        Fixture f;
        f.palette->setColour(20, Qt::red, false);
        f.run(0, 0, "Mark Equal Entries");
        const QSet<int> equal = f.window.editor()->grid()->marks();
        QVERIFY(equal.contains(13) && equal.contains(20) && equal.contains(14) && !equal.contains(11));
        f.run(0, 0, "Mark Unused Entries");
        const QSet<int> unused = f.window.editor()->grid()->marks();
        QVERIFY(unused.size() == 255 && !unused.contains(11));
        f.run(0, 0, "Mark Unused Entries");
        QVERIFY(f.window.editor()->grid()->marks().isEmpty());
    }

    void gradientsTakeTheLevelsOfTheMachine()
    {
        Fixture f;
        f.palette->setColour(0, Qt::black, false);
        f.palette->setColour(7, QColor(255, 0, 109), false);
        f.run(0, 7, "Gradient in Machine Steps");
        QList<int> reds;
        for (int entry = 0; entry < 8; ++entry)
            reds += f.palette->colour(entry).red() * 7 / 255;
        QCOMPARE(reds, (QList{0, 1, 2, 3, 4, 5, 6, 7}));
        QCOMPARE(f.palette->colour(4).blue() * 7 / 255, 2); // of 3, the nearest to 12 / 7
        QCOMPARE(f.palette->colour(2).blue() * 7 / 255, 1);
    }

    void rangesAreMadeOfTheSelectionAndChanged()
    {
        Fixture f;
        f.run(20, 29, "Colour Cycles…");
        auto *dialog = f.window.findChild<ColourCyclesDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QAbstractButton *add = EditorInput::button(*dialog, "&Add Selection");
        const auto kept = [&f] { return ColourCycles::of(*f.project.extras(), f.palette->id()); };
        add->click();
        f.window.editor()->setSelection(5, 8);
        add->click();
        QCOMPARE(kept(), (ColourCycles::List{{5, 8}, {20, 29}}));
        for (const auto &[first, last] : {std::pair(8, 12), {29, 30}, {3, 3}}) {
            f.window.editor()->setSelection(first, last);
            QVERIFY(!add->isEnabled()); // entries that are in another range, or none to exchange
        }
        const auto fields = dialog->findChildren<QSpinBox *>(); // first, last, frames
        auto *list = dialog->findChild<QListWidget *>();
        QCOMPARE(list->currentRow(), 0);
        fields[1]->setValue(40); // as far as the next one lets it go
        fields[2]->setValue(7);
        QCOMPARE(kept(), (ColourCycles::List{{5, 19, 7}, {20, 29}}));
        list->setCurrentRow(1);
        QCOMPARE(f.window.editor()->first(), 20);
        fields[0]->setValue(0);
        QCOMPARE(kept(), (ColourCycles::List{{5, 19, 7}, {20, 29}}));
        EditorInput::button(*dialog, "&Remove")->click();
        QCOMPARE(kept(), (ColourCycles::List{{5, 19, 7}}));
        const QPointer<Palette> other = f.project.createPalette(CreateAction::Blank, "Other");
        f.window.setPalette(other);
        QCOMPARE(list->count(), 0);
        QCOMPARE(f.stack.count(), 0);
    }

    void tellsWhenTheEntriesOfARangeAreTornApart()
    {
        Fixture f;
        QSignalSpy told(&f.project, &Project::showMessage);
        ColourCycles::set(*f.project.extras(), f.palette->id(), {{11, 12}});
        f.run(10, 14, "Reverse");
        QVERIFY(told.isEmpty());
        f.run(10, 14, "Sort by Brightness"); // red comes between blue and green
        QCOMPARE(told.size(), 1);
        QVERIFY(ColourCycles::of(*f.project.extras(), f.palette->id()).isEmpty());
    }
};

QUENMORA_TEST_MAIN(TestPaletteTools)
#include "tst_palettetools.moc"
