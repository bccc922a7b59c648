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
    void startsAsListed_data();
    void startsAsListed();
    void tellsItsChanges_data();
    void tellsItsChanges();
    void servesTheAttachedView();
    void keepsTheMapsSettings();
    void showsTheSizeOfTheMap();
};

void TestMapEditorToolBar::startsAsListed_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QList<int>>("values"); // minimum, maximum, value of each spin box
    QTest::addColumn<QString>("special"); // the text of the minimum
    QTest::newRow("viewport") << "Size in cells of the viewport" << QList{1, 1000, 40, 1, 1000, 32} << "";
    QTest::newRow("background") << "Tile index to be used as a background" << QList{-1, 1024, -1} << "None";
    QTest::newRow("transparency") << "Sets the transparency index of the tile set (0-15) or off" << QList{-1, 15, -1}
                                  << "Off";
    QTest::newRow("snap") << "Sets the snap to grid size" << QList{1, 16, 1} << "Off";
}

void TestMapEditorToolBar::startsAsListed()
{
    QFETCH(QString, toolTip);
    QFETCH(QString, special);
    ToolBar toolBar;
    QList<int> values;
    for (const QSpinBox *box : withToolTip<QSpinBox>(toolBar, toolTip)) {
        values << box->minimum() << box->maximum() << box->value();
        QCOMPARE(box->specialValueText(), special);
    }
    QTEST(values, "values");
}

void TestMapEditorToolBar::tellsItsChanges_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariant>("argument");
    const auto row = [](const char *toolTip, int value, const char *signal, const QVariant &argument) {
        QTest::newRow(signal) << toolTip << value << QByteArray(signal) << argument;
    };
    row("Show or hide the tile layer", 0, "mapVisibilityChanged(bool)", false);
    row("Show or hide the object layer", 0, "objectVisibilityChanged(bool)", false);
    row("Show or hide the sprite layer", 0, "spriteVisibilityChanged(bool)", false);
    row("Size in cells of the viewport", 32, "viewPortChanged(QSize)", QSize(32, 32));
    row("Tile index to be used as a background", 7, "backgroundTileIndexChanged(int)", 7);
    row("Sets the transparency index of the tile set (0-15) or off", 0, "transparencyIndexChanged(int)", 0);
    row("Sets the snap to grid size", 4, "snapToValueChanged(int)", 4);
}

void TestMapEditorToolBar::tellsItsChanges()
{
    QFETCH(QString, toolTip);
    QFETCH(int, value);
    QFETCH(QByteArray, signal);
    QFETCH(QVariant, argument);
    ToolBar toolBar;
    QSignalSpy spy(&toolBar, QByteArray(QByteArray::number(QSIGNAL_CODE) + signal).constData());
    QVERIFY(spy.isValid());
    const QList<QSpinBox *> boxes = withToolTip<QSpinBox>(toolBar, toolTip);
    if (!boxes.isEmpty()) {
        boxes.first()->setValue(value);
    } else {
        for (QAction *action : toolBar.actions()) {
            if (action->toolTip() == toolTip)
                action->trigger();
        }
    }
    QCOMPARE(spy, (QList<QVariantList>{{argument}}));
}

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
}

void TestMapEditorToolBar::keepsTheMapsSettings()
{
    MapViewFixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    auto *transparency =
        withToolTip<QSpinBox>(toolBar, "Sets the transparency index of the tile set (0-15) or off").first();
    transparency->setValue(3);
    withToolTip<QSpinBox>(toolBar, "Tile index to be used as a background").first()->setValue(5);
    QCOMPARE(f.grid->transparencyIndex(), 3);
    QCOMPARE(f.map->tileTransparencyIndex(), 3);
    QCOMPARE(f.map->backgroundTileIndex(), 5);
    const View reopened(f.map);
    QCOMPARE(reopened.grid()->transparencyIndex(), 3);

    transparency->setValue(-1);
    QCOMPARE(transparency->text(), QStringLiteral("Off"));
    QCOMPARE(f.grid->transparencyIndex(), -1);
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
    QCOMPARE(f.view.sizeText(), QStringLiteral("21x17 (714 bytes)"));
    f.view.removeRow(Quenmora::Begin);
    f.view.removeColumn(Quenmora::End);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x16 (640 bytes)"));
    f.stack.undo();
    QCOMPARE(toolBar.sizeText(), QStringLiteral("21x16 (672 bytes)"));
    QCOMPARE(f.stack.count(), 4);
}

QUENMORA_TEST_MAIN(TestMapEditorToolBar)
#include "tst_mapeditortoolbar.moc"
