#include "editors/palette/channellevels.h"
#include "editors/palette/coloureditor.h"
#include "editors/palette/colourselector.h"
#include "editors/palette/palettedialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettewindow.h"

#include "support/testmain.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace {

/// The button of this text or tool tip.
QAbstractButton *button(const QWidget &widget, const QString &name)
{
    for (QAbstractButton *button : widget.findChildren<QAbstractButton *>()) {
        if (button->text() == name || button->toolTip() == name)
            return button;
    }
    return nullptr;
}

QPoint cellCentre(int index)
{
    return {index % 16 * 16 + 8, index / 16 * 16 + 8};
}

} // namespace

class TestPaletteEditor : public QObject
{
    Q_OBJECT

private slots:
    void levelsMapBackToThemselves();
    void draggingSelectsARunOfIndices();
    void toolsFollowTheSelection();
    void okAppliesToTheWholeSelection();
    void cancelGoesBack();
    void darkenAndLightenReachTheNextLevel();
    void gradientKeepsEndsAndPriorities();
    void selectorChoosesFromItsBank_data();
    void selectorChoosesFromItsBank();
    void windowFollowsPaletteAndProject();
    void windowSurvivesItsPaletteAndProject();
    void renamingInTheChooserRefusesTakenNames();
    void dialogRefusesTakenAndEmptyNames();
};

void TestPaletteEditor::levelsMapBackToThemselves()
{
    constexpr std::array Components{0, 37, 73, 110, 146, 183, 219, 255};
    for (int level = 0; level <= 7; ++level) {
        QCOMPARE(Channel::componentOf(level), Components[size_t(level)]);
        QCOMPARE(Channel::levelOf(Components[size_t(level)]), level);
    }
}

void TestPaletteEditor::draggingSelectsARunOfIndices()
{
    Palette palette;
    PaletteGrid grid;
    QSignalSpy selections(&grid, &PaletteGrid::selectionChanged);
    const auto drag = [&grid](QPoint from, QPoint to) {
        QTest::mousePress(&grid, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(&grid, to);
        QTest::mouseRelease(&grid, Qt::LeftButton, Qt::NoModifier, to);
    };
    drag(cellCentre(20), cellCentre(3));
    QVERIFY(selections.isEmpty());
    grid.setPalette(&palette);
    drag(cellCentre(20), cellCentre(3));
    drag(cellCentre(17), QPoint(900, -5));
    grid.setEnabled(false);
    drag(cellCentre(20), cellCentre(3));
    QCOMPARE(selections, (QList<QVariantList>{{3, 20}, {15, 17}}));
}

void TestPaletteEditor::toolsFollowTheSelection()
{
    Palette palette;
    PaletteEditor editor;
    const auto enabled = [&editor] {
        return std::pair(button(editor, "Darkens the selected colour(s)")->isEnabled(),
                         button(editor, "Create a gradient")->isEnabled());
    };
    editor.setPalette(&palette);
    QCOMPARE(enabled(), std::pair(false, false));
    editor.setSelection(5, 5);
    QCOMPARE(enabled(), std::pair(true, false));
    editor.setSelection(250, 300);
    QCOMPARE(enabled(), std::pair(true, true));
    QCOMPARE(editor.findChild<PaletteGrid *>()->lastSelected(), 255);
    editor.setPalette(nullptr);
    QCOMPARE(enabled(), std::pair(false, false));
}

void TestPaletteEditor::okAppliesToTheWholeSelection()
{
    Palette palette;
    PaletteEditor editor;
    editor.setPalette(&palette);
    editor.setSelection(3, 5);
    QSignalSpy edits(&palette, &Palette::colourEdited);
    QAbstractButton *ok = button(editor, QStringLiteral("✓"));
    QVERIFY(!ok->isEnabled());
    editor.findChild<QSlider *>("redSlider")->setValue(7);
    editor.findChild<QCheckBox *>()->setChecked(true);
    QVERIFY(ok->isEnabled());
    QVERIFY(edits.isEmpty());
    ok->click();
    const std::array words{palette.rawColour(2), palette.rawColour(3), palette.rawColour(5), palette.rawColour(6)};
    QCOMPARE(words, (std::array<quint16, 4>{0, 0xE080, 0xE080, 0}));
    QCOMPARE(edits.count(), 3);
    QVERIFY(!ok->isEnabled());
}

void TestPaletteEditor::cancelGoesBack()
{
    ColourEditor editor;
    QSignalSpy cancelled(&editor, &ColourEditor::cancelled);
    editor.setColour(QColor(37, 73, 110), true);
    editor.findChild<QSlider *>("blueSlider")->setValue(1);
    QCOMPARE(editor.colour(), QColor(37, 73, 37));
    editor.findChild<QCheckBox *>()->setChecked(false);
    editor.cancelClick();
    QCOMPARE(editor.colour(), QColor(37, 73, 110));
    QVERIFY(editor.priority());
    QCOMPARE(editor.findChild<QSlider *>("blueSlider")->value(), 3);
    QCOMPARE(cancelled.count(), 1);
}

void TestPaletteEditor::darkenAndLightenReachTheNextLevel()
{
    ColourEditor editor;
    editor.setColour(QColor(255, 110, 0), false);
    editor.darken();
    const ChannelLevels levels = Channel::levelsOf(editor.colour());
    QVERIFY((levels != ChannelLevels{7, 3, 0}));
    QVERIFY(levels[0] <= 7 && levels[1] <= 3);
    editor.setColour(Qt::black, false);
    editor.darken();
    QCOMPARE(editor.colour().rgb(), QColor(Qt::black).rgb());
    editor.setColour(Qt::white, false);
    editor.lighten();
    QCOMPARE(editor.colour().rgb(), QColor(Qt::white).rgb());
}

void TestPaletteEditor::gradientKeepsEndsAndPriorities()
{
    Palette palette;
    palette.setRawColour(2, 0x0080);
    palette.setRawColour(7, 0xFF01);
    palette.setRawColour(9, 0xE000);
    PaletteEditor editor;
    editor.setPalette(&palette);
    editor.setSelection(0, 7);
    editor.createGradient();
    // 0, 36, 72, ..., 216, 255 as levels
    for (int index = 0; index <= 7; ++index)
        QCOMPARE(palette.rawColour(index) >> 13, index);
    QVERIFY(palette.priority(2));
    editor.setSelection(8, 9);
    editor.createGradient();
    QCOMPARE(palette.rawColour(8), quint16(0));

    // steps of 255 / 200 = 1, which end far from white
    palette.setRawColour(200, 0xFF01);
    editor.setSelection(0, 200);
    editor.createGradient();
    QCOMPARE(palette.rawColour(199) >> 13, 6);
    QCOMPARE(palette.rawColour(200), quint16(0xFF01));
}

void TestPaletteEditor::selectorChoosesFromItsBank_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addRow("horizontal") << Qt::Horizontal;
    QTest::addRow("vertical") << Qt::Vertical;
}

void TestPaletteEditor::selectorChoosesFromItsBank()
{
    QFETCH(Qt::Orientation, orientation);
    const auto oriented = [orientation](QPoint point) {
        return orientation == Qt::Horizontal ? point : point.transposed();
    };
    ColourSelector selector(orientation);
    selector.resize(orientation == Qt::Horizontal ? QSize(215, 48) : QSize(48, 215));
    selector.show();
    selector.setOffset(2);
    QSignalSpy fore(&selector, &ColourSelector::foreColourChanged);
    QSignalSpy back(&selector, &ColourSelector::backColourChanged);
    // (215 - 49) / 8 = 20 pixels a cell after a margin of 55
    const QPoint cell = oriented({55 + 3 * 20 + 10, 30});
    QTest::mouseClick(&selector, Qt::LeftButton, Qt::NoModifier, cell);
    QTest::mouseClick(&selector, Qt::RightButton, Qt::NoModifier, cell);
    QTest::mouseClick(&selector, Qt::LeftButton, Qt::NoModifier, oriented({55, 10}));
    QCOMPARE(fore, (QList<QVariantList>{{27}}));
    QCOMPARE(back, (QList<QVariantList>{{27}}));
    QCOMPARE(selector.foreIndex(), 27);
    QTest::keyClick(&selector, orientation == Qt::Horizontal ? Qt::Key_Up : Qt::Key_Left);
    QTest::keyClick(&selector, orientation == Qt::Horizontal ? Qt::Key_Up : Qt::Key_Left); // there is no third row
    QTest::keyClick(&selector, orientation == Qt::Horizontal ? Qt::Key_Right : Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selector.foreIndex(), 19);
    QCOMPARE(selector.backIndex(), 28);
}

void TestPaletteEditor::windowFollowsPaletteAndProject()
{
    Project project;
    const QPointer<Palette> first = project.createPalette(CreateAction::DefaultNext, "First");
    PaletteWindow window;
    QCOMPARE(window.windowTitle(), QStringLiteral("Palette Editor"));
    QVERIFY(!window.isActive());
    window.setProject(&project);
    window.setPalette(first);
    QVERIFY(window.isActive());
    QCOMPARE(window.windowTitle(), QStringLiteral("Palette: First"));

    const QPointer<Palette> second = project.createPalette(CreateAction::Blank, "Second");
    auto *chooser = window.findChild<QComboBox *>();
    QCOMPARE(chooser->count(), 2);
    QSignalSpy chosen(&window, &PaletteWindow::paletteChosen);
    chooser->setCurrentIndex(1);
    emit chooser->activated(1);
    QCOMPARE(chosen, (QList<QVariantList>{{second->id()}}));
    first->setName("Sky");
    QCOMPARE(window.windowTitle(), QStringLiteral("Palette: Sky"));
    QCOMPARE(chooser->itemText(0), QStringLiteral("Sky"));

    QSignalSpy copies(&window, &PaletteWindow::copyRequested);
    window.paletteMenu()->actions().at(1)->trigger();
    QCOMPARE(copies, (QList<QVariantList>{{first->id()}}));
}

void TestPaletteEditor::windowSurvivesItsPaletteAndProject()
{
    PaletteWindow window;
    window.show();
    auto project = std::make_unique<Project>();
    const QPointer<Palette> palette = project->createPalette(CreateAction::Blank, "Gone");
    window.setProject(project.get());
    window.setPalette(palette);
    auto *grid = window.findChild<PaletteGrid *>("paletteWidget");
    QTest::mousePress(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(3));
    project.reset();
    QVERIFY(!window.isActive());
    QTest::mouseMove(grid, cellCentre(9));
    QTest::mouseRelease(grid, Qt::LeftButton, Qt::NoModifier, cellCentre(9));
    window.colourChanged(Qt::red, false);
    window.createGradient();
    window.grab();
    QCoreApplication::processEvents();
    QCOMPARE(window.findChild<QComboBox *>()->count(), 0);
}

void TestPaletteEditor::renamingInTheChooserRefusesTakenNames()
{
    Project project;
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, "One");
    const auto other = project.createPalette(CreateAction::Blank, "Two");
    PaletteWindow window;
    window.setProject(&project);
    window.setPalette(palette);
    const auto rename = [&window](const QString &name) {
        window.paletteMenu()->actions().at(0)->trigger();
        auto *field = window.findChild<QComboBox *>()->lineEdit();
        field->setText(name);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
    };
    rename("Two");
    QCOMPARE(palette->name(), QStringLiteral("One"));
    rename("Three");
    QCOMPARE(palette->name(), QStringLiteral("Three"));
    QVERIFY(!window.findChild<QComboBox *>()->isEditable());
}

void TestPaletteEditor::dialogRefusesTakenAndEmptyNames()
{
    PaletteDialog dialog;
    QSignalSpy accepted(&dialog, &PaletteDialog::accepted);
    dialog.show({"Sky"});
    auto *name = dialog.findChild<QLineEdit *>();
    const auto tryWith = [&](const QString &text) {
        name->setText(text);
        dialog.accept();
        return dialog.error();
    };
    QCOMPARE(tryWith("Sky"), QStringLiteral("Palette names must be unique"));
    QCOMPARE(tryWith(""), QStringLiteral("Palette name is required"));
    QVERIFY(dialog.isVisible());
    dialog.findChildren<QRadioButton *>().at(2)->setChecked(true);
    QCOMPARE(tryWith("sky"), QString());
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(accepted[0][0].value<CreateAction>(), CreateAction::Blank);
    QCOMPARE(accepted[0][1].toString(), QStringLiteral("sky"));
}

QUENMORA_TEST_MAIN(TestPaletteEditor)
#include "tst_paletteeditor.moc"
