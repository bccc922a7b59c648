#include "editors/palette/channellevels.h"
#include "editors/palette/colourcyclesdialog.h"
#include "editors/palette/coloureditor.h"
#include "editors/palette/colourpalette.h"
#include "editors/palette/colourselector.h"
#include "editors/palette/palettedialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettewindow.h"
#include "model/image.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "model/tileset.h"

#include "support/editorinput.h"

#include <QtWidgets>

using EditorInput::button;

namespace {

QPoint cellCentre(int index)
{
    return {index % 16 * 16 + 8, index / 16 * 16 + 8};
}

void drag(PaletteGrid &grid, int from, QPoint to, Qt::KeyboardModifiers modifiers = {})
{
    QTest::mousePress(&grid, Qt::LeftButton, modifiers, cellCentre(from));
    QTest::mouseMove(&grid, to);
    QTest::mouseRelease(&grid, Qt::LeftButton, modifiers, to);
}

/// A palette editor with a black palette.
struct Fixture
{
    Palette palette;
    PaletteEditor editor;
    PaletteGrid &grid{*editor.findChild<PaletteGrid *>("paletteWidget")};

    Fixture() { editor.setPalette(&palette); }
};

const QList<QColor> Colours{Qt::white, Qt::blue, Qt::green, Qt::red, Qt::black};

/// The palette dock with a project whose picture is blue.
struct Dock
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::Blank, "Colours");
    QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette->id());
    QUndoStack stack;
    PaletteWindow window;
    QSignalSpy refused{&window, &PaletteWindow::refused};

    Dock()
    {
        project.setScratchPalette(nullptr);
        window.setProject(&project);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setPalette(palette);
        for (int i = 0; i < 5; ++i)
            palette->setColour(10 + i, Colours[i], false);
        image->setImage(plainImage({128, 96}, 11)); // blue
    }
    void run(int first, int last, const QString &entry)
    {
        window.editor()->setSelection(first, last);
        EditorInput::trigger(*window.paletteMenu(), entry);
    }
    int pixel() const { return image->image().pixelIndex(3, 3); }
    /// The first letters of the colours from entry 10 on.
    QString colours() const
    {
        QString found;
        for (int i = 10; i < 15; ++i)
            found += QString("wbgrk?").at(Colours.indexOf(QColor(palette->colour(i).rgb())));
        return found;
    }
};

} // namespace

class TestPaletteEditor : public QObject
{
    Q_OBJECT

private slots:
    void draggingSelectsARunAndEnablesTools()
    {
        Fixture f;
        QSignalSpy selections(&f.editor, &PaletteEditor::selectionChanged);
        const auto enabled = [&f] {
            return std::pair(button(f.editor, "Darkens the selected colour(s)")->isEnabled(),
                             button(f.editor, "Create a gradient")->isEnabled());
        };
        QCOMPARE(enabled(), std::pair(false, false));
        drag(f.grid, 5, cellCentre(5));
        QCOMPARE(enabled(), std::pair(true, false));
        drag(f.grid, 20, cellCentre(3));
        QCOMPARE(enabled(), std::pair(true, true));
        drag(f.grid, 17, {900, -5});
        f.editor.setSelection(250, 300);
        f.editor.setPalette(nullptr);
        drag(f.grid, 20, cellCentre(3));
        QCOMPARE(enabled(), std::pair(false, false));
        QCOMPARE(selections, (QList<QVariantList>{{5, 5}, {3, 20}, {15, 17}, {250, 255}}));
    }

    void theTransparentEntryIsMarked()
    {
        Fixture f;
        const QImage before = f.grid.grab().toImage();
        f.palette.setTransparencyIndex(35);
        const QImage after = f.grid.grab().toImage();
        for (const int index : {34, 35, 36}) {
            const QRect cell(index % 16 * 16, index / 16 * 16, 16, 16);
            QCOMPARE(before.copy(cell) != after.copy(cell), index == 35);
        }
    }

    void okAppliesToTheWholeSelection()
    {
        Fixture f;
        f.editor.setSelection(3, 5);
        QSignalSpy edits(&f.palette, &Palette::colourEdited);
        QAbstractButton *ok = button(f.editor, "✓");
        QVERIFY(!ok->isEnabled());
        f.editor.findChild<QCheckBox *>()->setChecked(true);
        QVERIFY(ok->isEnabled());
        // every level that a slider shows is the one that the palette takes
        for (const int level : {7, 6, 5, 4, 3, 2, 1, 0}) {
            f.editor.findChild<QSlider *>("redSlider")->setValue(level);
            QCOMPARE(edits.count(), 3 * (7 - level)); // not before OK
            ok->click();
            for (int index = 2; index <= 6; ++index)
                QCOMPARE(f.palette.rawColour(index), quint16(index < 3 || index > 5 ? 0 : level << 13 | 0x80));
            QVERIFY(!ok->isEnabled());
        }
    }

    void cancelGoesBack()
    {
        ColourEditor editor;
        QSignalSpy cancelled(&editor, &ColourEditor::cancelled);
        auto *blue = editor.findChild<QSlider *>("blueSlider");
        editor.setColour(QColor(37, 73, 110), true);
        blue->setValue(1);
        editor.findChild<QCheckBox *>()->setChecked(false);
        QCOMPARE(editor.colour(), QColor(37, 73, 37));
        button(editor, "✗")->click();
        QVERIFY(editor.colour() == QColor(37, 73, 110) && editor.priority() && blue->value() == 3);
        QCOMPARE(cancelled.count(), 1);
    }

    void darkenAndLightenReachTheNextLevel()
    {
        ColourEditor editor;
        for (const auto &[colour, darker, lighter] :
             {std::tuple(QColor(146, 110, 0), ChannelLevels{3, 2, 0}, ChannelLevels{5, 3, 0}),
              {Qt::black, {0, 0, 0}, {0, 0, 0}},
              {Qt::white, {6, 6, 6}, {7, 7, 7}}}) {
            editor.setColour(colour, false);
            editor.darken();
            QCOMPARE(Channel::levelsOf(editor.colour()), darker);
            editor.setColour(colour, false);
            editor.lighten();
            QCOMPARE(Channel::levelsOf(editor.colour()), lighter);
        }
    }

    void gradientKeepsEndsAndPriorities()
    {
        Fixture f;
        f.palette.setRawColour(2, 0x0080);
        f.palette.setRawColour(7, 0xFF01);
        f.palette.setRawColour(9, 0xE000);
        f.palette.setRawColour(220, 0xFF01);
        const auto gradient = [&f](int first, int last) {
            f.editor.setSelection(first, last);
            f.editor.createGradient();
        };
        gradient(0, 7);
        for (int index = 0; index <= 7; ++index) // 0, 36, 72, ..., 216, 255 as levels
            QCOMPARE(f.palette.rawColour(index) >> 13, index);
        QVERIFY(f.palette.priority(2));
        gradient(8, 9);
        QCOMPARE(f.palette.rawColour(8), quint16(0)); // there is nothing between
        gradient(20, 220); // in steps of 255 / 200 = 1, which end far from white
        QCOMPARE(f.palette.rawColour(219) >> 13, 6);
        QCOMPARE(f.palette.rawColour(220), quint16(0xFF01));
    }

    void selectorChoosesFromItsBank()
    {
        for (const bool flat : {true, false}) {
            ColourSelector selector(flat ? Qt::Horizontal : Qt::Vertical);
            selector.resize(flat ? QSize(215, 48) : QSize(48, 215));
            selector.show();
            selector.setOffset(2);
            SignalLog log;
            log.listen(selector, &ColourSelector::foreColourChanged, "fore");
            log.listen(selector, &ColourSelector::backColourChanged, "back");
            // (215 - 49) / 8 = 20 pixels a cell after a margin of 55
            for (const auto &[mouseButton, point] : {std::pair(Qt::LeftButton, QPoint(55 + 3 * 20 + 10, 30)),
                                                     {Qt::RightButton, {55 + 3 * 20 + 10, 30}},
                                                     {Qt::LeftButton, {55, 10}}})
                QTest::mouseClick(&selector, mouseButton, Qt::NoModifier, flat ? point : point.transposed());
            for (int i = 0; i < 2; ++i) // there is no third row
                QTest::keyClick(&selector, flat ? Qt::Key_Up : Qt::Key_Left);
            QTest::keyClick(&selector, flat ? Qt::Key_Right : Qt::Key_Down, Qt::ShiftModifier);
            QCOMPARE(log.take(), (QStringList{"fore 27", "back 27", "fore 19", "back 28"}));
        }
    }

    void chosenColoursAreSeenOnEveryColour()
    {
        for (const auto &[colour, count, cell] : {std::tuple(Qt::black, 16, 24), {Qt::white, 256, 14}}) {
            Palette palette;
            palette.fill(colour, false);
            palette.setRawColour(5, 0xE000); // red
            ColourPalette chooser;
            chooser.setPalette(&palette);
            chooser.setRange(0, count);
            chooser.resize(300, chooser.heightForWidth(300));
            chooser.show();
            const auto before = chooser.grab().toImage();
            SignalLog log;
            log.listen(chooser, &ColourPalette::primaryIndexChanged, "fore");
            log.listen(chooser, &ColourPalette::secondaryIndexChanged, "back");
            const QPoint third(42 + 2 * cell + cell / 2, 2 + cell / 2);
            QTest::mouseClick(&chooser, Qt::RightButton, Qt::NoModifier, third);
            QTest::mouseClick(&chooser, Qt::LeftButton, Qt::NoModifier, third + QPoint(3 * cell, 0));
            QTest::mouseClick(&chooser, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20)); // a swatch
            QCOMPARE(log.take(), (QStringList{"back 2", "fore 5"}));
            const auto after = chooser.grab().toImage();
            QCOMPARE(after.pixelColor(5, 5), QColor(Qt::red)); // the foreground's swatch
            QSet<QRgb> mark;
            for (int x = third.x() - cell / 2; x < third.x() + cell / 2; ++x)
                mark += after.pixel(x, third.y() - cell / 2);
            QVERIFY(mark.contains(qRgb(0, 0, 0)) && mark.contains(qRgb(255, 255, 255)));
            QCOMPARE(after.pixel(third), before.pixel(third)); // the colour itself is still to be seen
        }
    }

    void windowFollowsPaletteAndProject()
    {
        auto project = std::make_unique<Project>();
        const auto first = project->createPalette(CreateAction::DefaultNext, "First");
        PaletteWindow window;
        auto *chooser = window.findChild<QComboBox *>();
        const auto run = [&window](const QString &entry) { EditorInput::trigger(*window.paletteMenu(), entry); };
        SignalLog log;
        log.listen(window, &PaletteWindow::paletteChosen, "chosen");
        log.listen(window, &PaletteWindow::copyRequested, "copy");
        window.setProject(project.get());
        window.setPalette(first);
        const auto second = project->createPalette(CreateAction::Blank, "Second");
        emit chooser->activated(chooser->findText("Second"));
        run("Copy");
        QCOMPARE(log.take(), (QStringList{"chosen " + second->id().toString(), "copy " + first->id().toString()}));
        for (const auto &[name, title] :
             {std::pair("Second", "Palette: First"), {"Sky", "Palette: Sky"}}) { // one is taken
            run("Rename");
            chooser->lineEdit()->setText(name);
            QTest::keyClick(chooser->lineEdit(), Qt::Key_Return);
            QCoreApplication::processEvents();
            QCOMPARE(window.windowTitle(), title);
            QVERIFY(window.isActive() && !chooser->isEditable());
        }
        QCOMPARE(chooser->itemText(0), "Sky");

        window.show();
        auto *grid = window.findChild<PaletteGrid *>();
        QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(3));
        project.reset();
        QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(9));
        window.colourChanged(Qt::red, false);
        window.createGradient();
        window.grab();
        QCoreApplication::processEvents();
        QVERIFY(!window.isActive() && chooser->count() == 0);
        QCOMPARE(window.windowTitle(), "Palette Editor");
    }

    void dialogRefusesTakenAndEmptyNames()
    {
        PaletteDialog dialog;
        QSignalSpy accepted(&dialog, &PaletteDialog::accepted);
        dialog.show({"Sky"});
        dialog.findChildren<QRadioButton *>().at(2)->setChecked(true);
        for (const auto &[name, error] :
             {std::pair("Sky", "Palette names must be unique"), {"", "Palette name is required"}, {"sky", ""}}) {
            QVERIFY(dialog.isVisible());
            dialog.findChild<QLineEdit *>()->setText(name);
            dialog.accept();
            QCOMPARE(dialog.error(), error);
        }
        QCOMPARE(accepted, (QList<QVariantList>{{QVariant::fromValue(CreateAction::Blank), "sky"}}));
    }

    void entriesAreOrdered()
    {
        const std::tuple<QString, QString, int> orders[] = {
            {"Sort by Hue", "kwrgb", 14},
            {"Sort by Brightness", "kbrgw", 11},
            {"Reverse", "krgbw", 13},
            {"Exchange Ends", "kbgrw", 11},
        };
        for (const auto &[entry, colours, pixel] : orders) {
            Dock f;
            f.run(10, 14, entry);
            QCOMPARE(f.colours(), colours);
            QCOMPARE(f.pixel(), pixel);
            QCOMPARE(f.stack.count(), 1);
            f.stack.undo();
            QCOMPARE(f.colours(), "wbgrk");
            QCOMPARE(f.pixel(), 11);
            QVERIFY(f.refused.isEmpty());
        }
    }

    void whatCannotMoveStaysOrIsRefused()
    {
        Dock f;
        const QPointer<TileSet> tiles = f.project.createTileSet("Tiles", f.palette->id(), 1);
        f.palette->setTransparencyIndex(10);
        f.run(10, 14, "Reverse");
        QCOMPARE(f.colours(), "wkrgb");
        f.run(10, 14, "Exchange Ends");
        f.run(15, 16, "Reverse"); // of two groups
        f.run(11, 11, "Reverse");
        QVERIFY(f.stack.count() == 1 && f.refused.size() == 3 && f.refused.last() != f.refused.first());
    }

    void selectedEntriesAreDraggedWithCtrl()
    {
        Dock f;
        const auto dragEntry = [&grid = *f.window.editor()->grid()](int from, int to) {
            drag(grid, from, cellCentre(to), Qt::ControlModifier);
        };
        f.window.setPalette(f.palette);
        f.window.editor()->setSelection(10, 11);
        dragEntry(11, 14); // whose place the last of them gets
        QCOMPARE(f.colours(), "grkwb");
        QCOMPARE(f.pixel(), 14);
        QCOMPARE(f.window.editor()->first(), 13);
        dragEntry(11, 10); // another than the selected ones
        QCOMPARE(f.colours(), "rgkwb");
        QCOMPARE(f.window.editor()->last(), 10);
        QCOMPARE(f.stack.count(), 2);
        f.palette->setTransparencyIndex(12);
        dragEntry(11, 13);
        QVERIFY(f.colours() == "rgkwb" && f.refused.size() == 1);
        f.stack.undo();
        f.stack.undo();
        QCOMPARE(f.colours(), "wbgrk");
        QCOMPARE(f.pixel(), 11);
    }

    void entriesAreMarkedAndCounted()
    {
        Dock f;
        const QPointer<TileSet> tiles = f.project.createTileSet("Tiles", f.palette->id(), 1);
        tiles->setTileImage(0, plainImage({8, 8}, 5));
        tiles->setTileOffset(0, 2);
        f.palette->setColour(20, Qt::red, false);
        const auto marks = [&f](const QString &entry) {
            f.run(0, 0, entry);
            return f.window.editor()->grid()->marks();
        };
        const QSet<int> equal = marks("Mark Equal Entries");
        QVERIFY(equal.contains(13) && equal.contains(20) && equal.contains(14) && !equal.contains(11));
        const QSet<int> unused = marks("Mark Unused Entries");
        QVERIFY(unused.size() == 254 && !unused.contains(11) && !unused.contains(0x25));
        QVERIFY(marks("Mark Unused Entries").isEmpty());
    }

    void gradientsTakeTheLevelsOfTheMachine()
    {
        Dock f;
        f.palette->setColour(0, Qt::black, false);
        f.palette->setColour(7, QColor(255, 0, 109), false);
        f.run(0, 7, "Gradient in Machine Steps");
        const int blues[] = {0, 0, 1, 1, 2, 2, 3, 3}; // the nearest to 3 / 7, 6 / 7, ...
        for (int entry = 0; entry < 8; ++entry) {
            QCOMPARE(f.palette->colour(entry).red() * 7 / 255, entry);
            QCOMPARE(f.palette->colour(entry).blue() * 7 / 255, blues[entry]);
        }
    }

    void rangesAreMadeOfTheSelectionAndChanged()
    {
        Dock f;
        f.run(20, 29, "Colour Cycles…");
        auto *dialog = f.window.findChild<ColourCyclesDialog *>();
        QAbstractButton *add = button(*dialog, "&Add Selection");
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
        fields[1]->setValue(40); // as far as the next one lets it go
        fields[2]->setValue(7);
        list->setCurrentRow(1);
        QCOMPARE(f.window.editor()->first(), 20);
        fields[0]->setValue(0);
        QCOMPARE(kept(), (ColourCycles::List{{5, 19, 7}, {20, 29}}));
        button(*dialog, "&Remove")->click();
        QCOMPARE(kept(), (ColourCycles::List{{5, 19, 7}}));
        f.window.setPalette(f.project.createPalette(CreateAction::Blank, "Other"));
        QVERIFY(list->count() == 0 && f.stack.count() == 0);
    }

    void tellsWhenTheEntriesOfARangeAreTornApart()
    {
        Dock f;
        QSignalSpy told(&f.project, &Project::showMessage);
        ColourCycles::set(*f.project.extras(), f.palette->id(), {{11, 12}});
        f.run(10, 14, "Reverse");
        QVERIFY(told.isEmpty());
        f.run(10, 14, "Sort by Brightness"); // red comes between blue and green
        QCOMPARE(told.size(), 1);
        QVERIFY(ColourCycles::of(*f.project.extras(), f.palette->id()).isEmpty());
    }
};

QUENMORA_TEST_MAIN(TestPaletteEditor)
#include "tst_paletteeditor.moc"
