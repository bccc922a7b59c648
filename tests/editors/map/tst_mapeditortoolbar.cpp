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
        QVERIFY(!first.map->tileLayer()->isVisible());
        QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));
        QCOMPARE(first.map->backgroundTileIndex(), 5);

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
        set("Sets the transparency index of the tile set (0-15) or off", 3);
        QCOMPARE(first.grid->transparencyIndex(), 3);
        QCOMPARE(MapEditor::View(first.map).grid()->transparencyIndex(), 3); // the map keeps it for the next view

        QCOMPARE(toolBar.sizeText(), "20x16 (640 bytes)");
        first.view.addColumn(Quenmora::End);
        first.view.removeRow(Quenmora::Begin);
        first.view.removeColumn(Quenmora::End);
        first.view.addRow(Quenmora::Begin);
        QCOMPARE(first.steps(), "Add Columns|Remove Rows|Remove Columns|Add Rows");
        first.stack.undo();
        QCOMPARE(toolBar.sizeText(), "20x15 (600 bytes)");
    }

    void numbersHaveTheirRanges()
    {
        const ToolBar toolBar;
        QStringList found;
        for (const QSpinBox *box : toolBar.findChildren<QSpinBox *>())
            found += QString("%1 to %2: %3")
                         .arg(QString::number(box->minimum()), QString::number(box->maximum()), box->text());
        QCOMPARE(found.join(", "), "1 to 1000: 40, 1 to 1000: 32, -1 to 1024: None, -1 to 15: Off, 1 to 16: Off");
    }
};

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
