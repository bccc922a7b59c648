#include "editors/map/mapeditortoolbar.h"

#include "mapviewfixture.h"
#include "support/testmain.h"

#include <QAction>
#include <QSignalSpy>
#include <QSpinBox>

using namespace Quenmora::Ui;
using MapEditor::ToolBar;
using MapEditor::View;

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
    second.map->resize({30, 2});
    ToolBar toolBar;
    QSignalSpy transparency(&toolBar, &ToolBar::transparencyIndexChanged);
    first.view.attachToolBar(&toolBar);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x16 (640 bytes)"));
    QVERIFY(!toolBar.actions().at(1)->isChecked()); // the object layer of a new map is hidden
    withToolTip<QSpinBox>(toolBar, "Sets the snap to grid size").first()->setValue(4);
    withToolTip<QSpinBox>(toolBar, "Size in cells of the viewport").first()->setValue(10);
    toolBar.actions().at(0)->trigger();
    QCOMPARE(first.grid->viewport().snap, 4);
    QVERIFY(!first.map->tileLayer()->isVisible());
    first.view.toolPaletteClicked(ToggleViewport, true);
    QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));

    first.view.detachToolBar();
    second.view.attachToolBar(&toolBar);
    QVERIFY(toolBar.actions().at(0)->isChecked());
    QCOMPARE(toolBar.viewport(), QSize(40, 32));
    withToolTip<QSpinBox>(toolBar, "Sets the snap to grid size").first()->setValue(2);
    toolBar.actions().at(2)->trigger();
    QCOMPARE(first.grid->viewport().snap, 4);
    QVERIFY(first.map->spriteLayerVisible());
    QCOMPARE(second.grid->viewport().snap, 2);
    QVERIFY(!second.map->spriteLayerVisible());

    second.view.detachToolBar();
    first.view.attachToolBar(&toolBar);
    QVERIFY(!toolBar.actions().at(0)->isChecked());
    QCOMPARE(toolBar.viewport(), QSize(10, 32));
    QCOMPARE(transparency.count(), 0);

    auto *field = withToolTip<QSpinBox>(toolBar, "Sets the transparency index of the tile set (0-15) or off").first();
    field->setValue(3);
    QCOMPARE(first.grid->transparencyIndex(), 3);
    QCOMPARE(View(first.map).grid()->transparencyIndex(), 3); // the map keeps it for the next view
    field->setValue(-1);
    QCOMPARE(field->text(), QStringLiteral("Off"));
    QCOMPARE(first.grid->transparencyIndex(), -1);
}

void TestMapEditorToolBar::showsTheSizeOfTheMap()
{
    MapViewFixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    f.view.addRow(Quenmora::Begin);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x17 (680 bytes)"));
    QCOMPARE(f.map->sprites().at(0).y, 48);
    f.view.addColumn(Quenmora::End);
    f.view.removeRow(Quenmora::Begin);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("21x16 (672 bytes)"));
    f.view.removeColumn(Quenmora::End);
    f.stack.undo();
    QCOMPARE(toolBar.sizeText(), QStringLiteral("21x16 (672 bytes)"));
    QCOMPARE(f.stack.count(), 4);
}

void TestMapEditorToolBar::startsAsListedAndTellsChanges_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QList<int>>("values"); // minimum, maximum, value of each spin box; none for a layer
    QTest::addColumn<QString>("special"); // the text of the minimum
    QTest::addColumn<QByteArray>("signal"); // when 4 was entered
    QTest::addColumn<QVariant>("argument");
    const auto row = [](const char *signal, const QVariant &argument, const char *toolTip,
                        const QList<int> &values = {}, const char *special = "") {
        QTest::newRow(signal) << toolTip << values << special << QByteArray(signal) << argument;
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
    QFETCH(QString, special);
    QFETCH(QByteArray, signal);
    QFETCH(QVariant, argument);
    ToolBar toolBar;
    QSignalSpy spy(&toolBar, QByteArray(QByteArray::number(QSIGNAL_CODE) + signal).constData());
    const QList<QSpinBox *> boxes = withToolTip<QSpinBox>(toolBar, toolTip);
    QList<int> values;
    for (const QSpinBox *box : boxes) {
        values << box->minimum() << box->maximum() << box->value();
        QCOMPARE(box->specialValueText(), special);
    }
    QTEST(values, "values");
    if (!boxes.isEmpty())
        boxes.first()->setValue(4);
    for (QAction *action : toolBar.actions()) {
        if (action->isCheckable() && action->toolTip() == toolTip)
            action->trigger();
    }
    QCOMPARE(spy, (QList<QVariantList>{{argument}}));
}

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
