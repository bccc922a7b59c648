#include "editors/map/mapeditortoolbar.h"

#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QAction>

using MapEditor::ToolBar;

class TestMapEditorToolBar : public QObject
{
    Q_OBJECT

private slots:
    void servesTheAttachedView();
    void showsTheSizeOfTheMap();
    void startsAsListedAndTellsChanges_data();
    void startsAsListedAndTellsChanges();
};

void TestMapEditorToolBar::servesTheAttachedView()
{
    MapViewFixture first;
    MapViewFixture second;
    ToolBar toolBar;
    QAction *tiles = toolBar.actions().at(0);
    QSpinBox *snap = spinBoxes(toolBar, "Sets the snap to grid size").first();
    QSignalSpy transparencies(&toolBar, &ToolBar::transparencyIndexChanged);
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
    QCOMPARE(transparencies.count(), 0);
    spinBoxes(toolBar, "Sets the transparency index of the tile set (0-15) or off").first()->setValue(3);
    QCOMPARE(first.grid->transparencyIndex(), 3);
    QCOMPARE(MapEditor::View(first.map).grid()->transparencyIndex(), 3); // the map keeps it for the next view
}

void TestMapEditorToolBar::showsTheSizeOfTheMap()
{
    MapViewFixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    QCOMPARE(toolBar.sizeText(), "20x16 (640 bytes)");
    f.view.addRow(Quenmora::Begin);
    QCOMPARE(toolBar.sizeText(), "20x17 (680 bytes)");
    QCOMPARE(f.map->sprites().at(0).y, 48);
    f.view.addColumn(Quenmora::End);
    f.view.removeRow(Quenmora::Begin);
    f.view.removeColumn(Quenmora::End);
    QCOMPARE(f.steps(), "Add Rows|Add Columns|Remove Rows|Remove Columns");
    f.stack.undo();
    QCOMPARE(toolBar.sizeText(), "21x16 (672 bytes)");
}

void TestMapEditorToolBar::startsAsListedAndTellsChanges_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QList<int>>("values"); // minimum, maximum, value of each spin box; none for a layer
    QTest::addColumn<QString>("special"); // the text of the minimum
    QTest::addColumn<QVariant>("argument"); // of the signal, when 4 was entered
    const auto row = [](const char *signal, const QVariant &argument, const char *toolTip,
                        const QList<int> &values = {}, const char *special = "") {
        QTest::newRow(signal) << toolTip << values << special << argument;
    };
    row("mapVisibilityChanged(bool)", false, "Show or hide the tile layer");
    row("objectVisibilityChanged(bool)", false, "Show or hide the object layer");
    row("spriteVisibilityChanged(bool)", false, "Show or hide the sprite layer");
    row("viewPortChanged(QSize)", QSize(4, 32), "Size in cells of the viewport", {1, 1000, 40, 1, 1000, 32});
    row("backgroundTileIndexChanged(int)", 4, "Tile index to be used as a background", {-1, 1024, -1}, "None");
    row("transparencyIndexChanged(int)", 4, "Sets the transparency index of the tile set (0-15) or off", {-1, 15, -1},
        "Off");
    row("snapToValueChanged(int)", 4, "Sets the snap to grid size", {1, 16, 1}, "Off");
}

void TestMapEditorToolBar::startsAsListedAndTellsChanges()
{
    QFETCH(QString, toolTip);
    QFETCH(QVariant, argument);
    ToolBar toolBar;
    QSignalSpy spy(&toolBar, (QByteArray::number(QSIGNAL_CODE) + QTest::currentDataTag()).constData());
    QList<int> values;
    for (QSpinBox *box : spinBoxes(toolBar, toolTip)) {
        values << box->minimum() << box->maximum() << box->value();
        QTEST(box->specialValueText(), "special");
        if (spy.isEmpty())
            box->setValue(4);
    }
    QTEST(values, "values");
    for (QAction *action : toolBar.actions()) {
        if (action->isCheckable() && action->toolTip() == toolTip)
            action->trigger();
    }
    QCOMPARE(spy, (Signals{{argument}}));
}

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
