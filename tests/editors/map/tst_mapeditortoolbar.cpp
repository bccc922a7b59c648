#include "editors/map/mapeditortoolbar.h"

#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QAction>

using MapEditor::ToolBar;

class TestMapEditorToolBar : public QObject
{
    Q_OBJECT

private slots:
    void servesTheAttachedView()
    {
        MapViewFixture first;
        MapViewFixture second;
        ToolBar toolBar;
        QAction *tiles = toolBar.actions().at(0);
        const auto set = [&toolBar](const QString &toolTip, int value) {
            spinBoxes(toolBar, toolTip).first()->setValue(value);
        };
        QSignalSpy snaps(&toolBar, &ToolBar::snapToValueChanged);
        first.map->objectLayer()->setVisible(false);
        first.view.toolPaletteClicked(Quenmora::Ui::ToggleViewport, true);
        first.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked() && !toolBar.actions().at(1)->isChecked());
        tiles->trigger();
        set("Sets the snap to grid size", 4);
        set("Size in cells of the viewport", 10);
        set("Tile index to be used as a background", 5);
        set("Sets the transparency index of the tile set (0-15) or off", 99); // above the range: its end
        QVERIFY(!first.map->tileLayer()->isVisible());
        QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));
        QCOMPARE(first.map->backgroundTileIndex(), 5);
        QCOMPARE(first.grid->transparencyIndex(), 15);
        QCOMPARE(MapEditor::View(first.map).grid()->transparencyIndex(), 15); // the map keeps it for the next view

        first.view.detachToolBar();
        second.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked());
        QCOMPARE(toolBar.viewport(), QSize(40, 32));
        set("Sets the snap to grid size", 2);
        QCOMPARE(first.grid->viewport().snap, 4);
        QCOMPARE(second.grid->viewport().snap, 2);

        second.view.detachToolBar();
        first.view.attachToolBar(&toolBar);
        QVERIFY(!tiles->isChecked());
        QCOMPARE(toolBar.viewport(), QSize(10, 32));
        QCOMPARE(snaps, (Signals{{4}, {2}})); // showing a state tells nothing
        QCOMPARE(toolBar.sizeText(), "20x16 (640 bytes)");
        first.view.addColumn(Quenmora::End);
        first.view.removeRow(Quenmora::Begin);
        first.view.removeColumn(Quenmora::End);
        QCOMPARE(first.steps(), "Add Columns|Remove Rows|Remove Columns");
        QCOMPARE(toolBar.sizeText(), "20x15 (600 bytes)");
    }
};

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
