#include "editors/palette/channellevels.h"
#include "editors/palette/coloureditor.h"
#include "editors/palette/colourpalette.h"
#include "editors/palette/colourselector.h"
#include "editors/palette/palettedialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettewindow.h"

#include "support/editorinput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

using EditorInput::button;

namespace {

QPoint cellCentre(int index)
{
    return {index % 16 * 16 + 8, index / 16 * 16 + 8};
}

/// A palette editor with a black palette.
struct Fixture
{
    Palette palette;
    PaletteEditor editor;
    PaletteGrid &grid{*editor.findChild<PaletteGrid *>("paletteWidget")};

    Fixture() { editor.setPalette(&palette); }
    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&grid, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(&grid, to);
        QTest::mouseRelease(&grid, Qt::LeftButton, Qt::NoModifier, to);
    }
    /// Which of darken and gradient are enabled.
    QList<bool> enabled() const
    {
        return {button(editor, "Darkens the selected colour(s)")->isEnabled(),
                button(editor, "Create a gradient")->isEnabled()};
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
        QCOMPARE(f.enabled(), (QList{false, false}));
        f.drag(cellCentre(5), cellCentre(5));
        QCOMPARE(f.enabled(), (QList{true, false}));
        f.drag(cellCentre(20), cellCentre(3));
        QCOMPARE(f.enabled(), (QList{true, true}));
        f.drag(cellCentre(17), {900, -5});
        f.editor.setSelection(250, 300);
        QCOMPARE(f.grid.lastSelected(), 255);
        f.editor.setPalette(nullptr);
        f.drag(cellCentre(20), cellCentre(3));
        QCOMPARE(f.enabled(), (QList{false, false}));
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
        f.editor.findChild<QSlider *>("redSlider")->setValue(7);
        QVERIFY(edits.isEmpty());
        ok->click();
        for (int index = 2; index <= 6; ++index)
            QCOMPARE(f.palette.rawColour(index), quint16(index < 3 || index > 5 ? 0 : 0xE080));
        QCOMPARE(edits.count(), 3);
        QVERIFY(!ok->isEnabled());
        // every level that a slider shows is the one that the palette takes
        for (int level = 0; level <= 7; ++level) {
            f.editor.findChild<QSlider *>("redSlider")->setValue(level);
            ok->click();
            QCOMPARE(f.palette.rawColour(3) >> 13, level);
        }
    }

    void cancelGoesBack()
    {
        ColourEditor editor;
        QSignalSpy cancelled(&editor, &ColourEditor::cancelled);
        auto *blue = editor.findChild<QSlider *>("blueSlider");
        editor.setColour(QColor(37, 73, 110), true);
        blue->setValue(1);
        QCOMPARE(editor.colour(), QColor(37, 73, 37));
        QVERIFY(button(editor, "✓")->isEnabled());
        editor.findChild<QCheckBox *>()->setChecked(false);
        editor.cancelClick();
        QCOMPARE(editor.colour(), QColor(37, 73, 110));
        QVERIFY(editor.priority() && cancelled.count() == 1);
        QCOMPARE(blue->value(), 3);
    }

    void darkenAndLightenReachTheNextLevel()
    {
        ColourEditor editor;
        const auto changed = [&editor](QColor colour, void (ColourEditor::*change)()) {
            editor.setColour(colour, false);
            (editor.*change)();
            return Channel::levelsOf(editor.colour());
        };
        QCOMPARE(changed({255, 110, 0}, &ColourEditor::darken), (ChannelLevels{6, 2, 0}));
        QCOMPARE(changed({146, 110, 0}, &ColourEditor::lighten), (ChannelLevels{5, 3, 0}));
        QCOMPARE(changed(Qt::black, &ColourEditor::darken), ChannelLevels{});
        QCOMPARE(changed(Qt::white, &ColourEditor::lighten), (ChannelLevels{7, 7, 7}));
    }

    void gradientKeepsEndsAndPriorities()
    {
        Fixture f;
        f.palette.setRawColour(2, 0x0080);
        f.palette.setRawColour(7, 0xFF01);
        f.palette.setRawColour(9, 0xE000);
        f.editor.setSelection(0, 7);
        f.editor.createGradient();
        // 0, 36, 72, ..., 216, 255 as levels
        for (int index = 0; index <= 7; ++index)
            QCOMPARE(f.palette.rawColour(index) >> 13, index);
        QVERIFY(f.palette.priority(2));
        f.editor.setSelection(8, 9);
        f.editor.createGradient();
        QCOMPARE(f.palette.rawColour(8), quint16(0));

        // steps of 255 / 200 = 1, which end far from white
        f.palette.setRawColour(200, 0xFF01);
        f.editor.setSelection(0, 200);
        f.editor.createGradient();
        QCOMPARE(f.palette.rawColour(199) >> 13, 6);
        QCOMPARE(f.palette.rawColour(200), quint16(0xFF01));
    }

    void selectorChoosesFromItsBank()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const bool flat = orientation == Qt::Horizontal;
            ColourSelector selector(orientation);
            selector.resize(flat ? QSize(215, 48) : QSize(48, 215));
            selector.show();
            selector.setOffset(2);
            SignalLog log;
            log.listen(selector, &ColourSelector::foreColourChanged, "fore");
            log.listen(selector, &ColourSelector::backColourChanged, "back");
            const auto click = [&](Qt::MouseButton mouseButton, QPoint point) {
                QTest::mouseClick(&selector, mouseButton, Qt::NoModifier, flat ? point : point.transposed());
            };
            // (215 - 49) / 8 = 20 pixels a cell after a margin of 55
            click(Qt::LeftButton, {55 + 3 * 20 + 10, 30});
            click(Qt::RightButton, {55 + 3 * 20 + 10, 30});
            click(Qt::LeftButton, {55, 10});
            QTest::keyClick(&selector, flat ? Qt::Key_Up : Qt::Key_Left);
            QTest::keyClick(&selector, flat ? Qt::Key_Up : Qt::Key_Left); // there is no third row
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
        SignalLog log;
        log.listen(window, &PaletteWindow::paletteChosen, "chosen");
        log.listen(window, &PaletteWindow::copyRequested, "copy");
        window.setProject(project.get());
        window.setPalette(first);
        QCOMPARE(window.windowTitle(), "Palette: First");

        const auto second = project->createPalette(CreateAction::Blank, "Second");
        emit chooser->activated(chooser->findText("Second"));
        window.paletteMenu()->actions().at(1)->trigger();
        QCOMPARE(log.take(), (QStringList{"chosen " + second->id().toString(), "copy " + first->id().toString()}));
        const auto rename = [&](const QString &name) {
            window.paletteMenu()->actions().at(0)->trigger();
            chooser->lineEdit()->setText(name);
            QTest::keyClick(chooser->lineEdit(), Qt::Key_Return);
            QCoreApplication::processEvents();
            return window.windowTitle();
        };
        QCOMPARE(rename("Second"), "Palette: First"); // that name is taken
        QCOMPARE(rename("Sky"), "Palette: Sky");
        QCOMPARE(chooser->itemText(0), "Sky");
        QVERIFY(window.isActive() && !chooser->isEditable());

        window.show();
        auto *grid = window.findChild<PaletteGrid *>();
        QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(3));
        project.reset();
        QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(9));
        window.colourChanged(Qt::red, false);
        window.createGradient();
        window.grab();
        QCoreApplication::processEvents();
        QVERIFY(!window.isActive());
        QCOMPARE(window.windowTitle(), "Palette Editor");
        QCOMPARE(chooser->count(), 0);
    }

    void dialogRefusesTakenAndEmptyNames()
    {
        PaletteDialog dialog;
        QSignalSpy accepted(&dialog, &PaletteDialog::accepted);
        dialog.show({"Sky"});
        const auto tryWith = [&](const QString &text) {
            dialog.findChild<QLineEdit *>()->setText(text);
            dialog.accept();
            return dialog.error();
        };
        QCOMPARE(tryWith("Sky"), "Palette names must be unique");
        QCOMPARE(tryWith(""), "Palette name is required");
        QVERIFY(dialog.isVisible());
        dialog.findChildren<QRadioButton *>().at(2)->setChecked(true);
        QCOMPARE(tryWith("sky"), "");
        QCOMPARE(accepted, (QList<QVariantList>{{QVariant::fromValue(CreateAction::Blank), "sky"}}));
    }
};

QUENMORA_TEST_MAIN(TestPaletteEditor)
#include "tst_paletteeditor.moc"
