#include "editors/map/mapeditortoolbar.h"

#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QAction>

using MapEditor::ToolBar;

constexpr auto TransparencyTip = "Sets the transparency index of the tile set (0-15) or off";

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
        QSpinBox *snap = spinBoxes(toolBar, "Sets the snap to grid size").first();
        QSignalSpy snaps(&toolBar, &ToolBar::snapToValueChanged);
        first.map->objectLayer()->setVisible(false);
        first.view.toolPaletteClicked(Quenmora::Ui::ToggleViewport, true);
        first.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked() && !toolBar.actions().at(1)->isChecked());
        tiles->trigger();
        snap->setValue(4);
        spinBoxes(toolBar, "Size in cells of the viewport").first()->setValue(10);
        QVERIFY(!first.map->tileLayer()->isVisible());
        QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));

        first.view.detachToolBar();
        second.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked());
        QCOMPARE(toolBar.viewport(), QSize(40, 32));
        snap->setValue(2);
        QCOMPARE(first.grid->viewport().snap, 4);
        QCOMPARE(second.grid->viewport().snap, 2);

        second.view.detachToolBar();
        first.view.attachToolBar(&toolBar);
        QVERIFY(!tiles->isChecked());
        QCOMPARE(toolBar.viewport(), QSize(10, 32));
        QCOMPARE(snaps, (Signals{{4}, {2}})); // showing a state tells nothing
        spinBoxes(toolBar, TransparencyTip).first()->setValue(3);
        QCOMPARE(first.grid->transparencyIndex(), 3);
        QCOMPARE(MapEditor::View(first.map).grid()->transparencyIndex(), 3); // the map keeps it for the next view

        QCOMPARE(toolBar.sizeText(), "20x16 (640 bytes)");
        first.view.addRow(Quenmora::Begin);
        QCOMPARE(toolBar.sizeText(), "20x17 (680 bytes)");
        QCOMPARE(first.map->sprites().at(0).y, 48);
        first.view.addColumn(Quenmora::End);
        first.view.removeRow(Quenmora::Begin);
        first.view.removeColumn(Quenmora::End);
        QCOMPARE(first.steps(), "Add Rows|Add Columns|Remove Rows|Remove Columns");
        first.stack.undo();
        QCOMPARE(toolBar.sizeText(), "21x16 (672 bytes)");
    }

    void startsAsListedAndTellsChanges()
    {
        using Values = QList<int>;
        // minimum, maximum and value of each spin box (none for a layer), the text of the minimum, and what is told
        // with which argument when 4 was entered
        for (const auto &[toolTip, values, special, signal, argument] :
             {std::tuple("Show or hide the tile layer", Values(), "", "mapVisibilityChanged(bool)", QVariant(false)),
              {"Show or hide the object layer", {}, "", "objectVisibilityChanged(bool)", false},
              {"Show or hide the sprite layer", {}, "", "spriteVisibilityChanged(bool)", false},
              {"Size in cells of the viewport", {1, 1000, 40, 1, 1000, 32}, "", "viewPortChanged(QSize)", QSize(4, 32)},
              {"Tile index to be used as a background", {-1, 1024, -1}, "None", "backgroundTileIndexChanged(int)", 4},
              {TransparencyTip, {-1, 15, -1}, "Off", "transparencyIndexChanged(int)", 4},
              {"Sets the snap to grid size", {1, 16, 1}, "Off", "snapToValueChanged(int)", 4}}) {
            ToolBar toolBar;
            QSignalSpy spy(&toolBar, (QByteArray::number(QSIGNAL_CODE) + signal).constData());
            Values found;
            for (QSpinBox *box : spinBoxes(toolBar, toolTip)) {
                found << box->minimum() << box->maximum() << box->value();
                QCOMPARE(box->specialValueText(), special);
                if (spy.isEmpty())
                    box->setValue(4);
            }
            QCOMPARE(found, values);
            for (QAction *action : toolBar.actions()) {
                if (action->isCheckable() && action->toolTip() == toolTip)
                    action->trigger();
            }
            QCOMPARE(spy, (Signals{{argument}}));
        }
    }
};

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
