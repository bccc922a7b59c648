#include "app/preferences/colourbutton.h"
#include "app/preferences/generalpage.h"
#include "app/preferences/mapeditorpage.h"
#include "app/preferences/preferencesdialog.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void everySettingIsReadBack();
    void intervalThatIsUnknownBecomesWeekly();
    void damagedSettingsFallBack();
    void cancelUndoesEverything_data();
    void cancelUndoesEverything();
    void saveKeepsChanges();
    void listShowsPages();
    void gridSizeMovesInSteps();
    void chosenColourGoesToItsButton();

private:
    static QJsonObject defaultGeneral()
    {
        return {{"backupOnSave", true},
                {"versionCheckEnabled", true},
                {"updateInterval", "weekly"},
                {"skippedVersion", ""},
                {"lastUpdateCheck", ""}};
    }
    static QJsonObject defaultMapEditor()
    {
        return {{"checkerBoard", true}, {"gridColour1", "#404040"}, {"gridColour2", "#505050"}, {"overlayGrid", true},
                {"gridSize", 8},        {"defaultZoom", 4}};
    }
    static QJsonObject changedGeneral()
    {
        return {{"backupOnSave", false},
                {"versionCheckEnabled", false},
                {"updateInterval", "monthly"},
                {"skippedVersion", "0.7.1.0"},
                {"lastUpdateCheck", "2026-12-24"}};
    }
    static QJsonObject changedMapEditor()
    {
        return {{"checkerBoard", false}, {"gridColour1", "#12abef"}, {"gridColour2", "#000000"},
                {"overlayGrid", false},  {"gridSize", 64},           {"defaultZoom", 8}};
    }
    static QJsonDocument document(const QJsonObject &general, const QJsonObject &mapEditor)
    {
        return QJsonDocument(QJsonObject{{"general", general}, {"mapEditor", mapEditor}});
    }
};

void TestPreferences::defaults()
{
    PreferencesDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Preferences"));
    const QJsonDocument expected = document(defaultGeneral(), defaultMapEditor());
    QCOMPARE(dialog.toJson(), expected);
    dialog.fromJson({});
    dialog.fromJson(QJsonDocument(QJsonObject()));
    QCOMPARE(dialog.toJson(), expected);
}

void TestPreferences::everySettingIsReadBack()
{
    PreferencesDialog dialog;
    const QJsonDocument changed = document(changedGeneral(), changedMapEditor());
    dialog.fromJson(changed);
    QCOMPARE(dialog.toJson(), changed);

    const GeneralPage *general = dialog.generalPage();
    QVERIFY(!general->backupOnSave() && !general->versionCheckEnabled());
    QCOMPARE(general->updateInterval(), QStringLiteral("monthly"));
    QCOMPARE(general->skippedVersion(), QStringLiteral("0.7.1.0"));
    QCOMPARE(general->lastUpdateCheck(), QStringLiteral("2026-12-24"));
    const MapEditorPage *mapEditor = dialog.mapEditorPage();
    QVERIFY(!mapEditor->checkerBoard() && !mapEditor->overlayGrid());
    QCOMPARE(mapEditor->gridColour1(), QColor(0x12, 0xab, 0xef));
    QCOMPARE(mapEditor->gridColour2(), QColor(0, 0, 0));
    QCOMPARE(mapEditor->gridSize(), 64);
    QCOMPARE(mapEditor->defaultZoom(), 8);

    // What is missing: defaults on the general page, present values on the map editor page.
    dialog.fromJson(QJsonDocument(QJsonObject{{"other", 1}}));
    QCOMPARE(dialog.toJson(), document(defaultGeneral(), changedMapEditor()));
}

void TestPreferences::intervalThatIsUnknownBecomesWeekly()
{
    GeneralPage page;
    for (const char *interval : {"hourly", "Daily", "", "month"}) {
        page.fromJson({{"updateInterval", "daily"}});
        page.fromJson({{"updateInterval", interval}});
        QCOMPARE(page.findChild<QComboBox *>()->currentText(), QStringLiteral("Weekly"));
        QCOMPARE(page.toJson().value("updateInterval").toString(), QStringLiteral("weekly"));
    }
}

void TestPreferences::damagedSettingsFallBack()
{
    PreferencesDialog dialog;
    const QJsonObject wrongGeneral{{"backupOnSave", "no"},
                                   {"versionCheckEnabled", 0},
                                   {"updateInterval", QJsonArray{"daily"}},
                                   {"skippedVersion", 7},
                                   {"lastUpdateCheck", QJsonValue::Null}};
    const QJsonObject wrongMapEditor{{"checkerBoard", 1}, {"gridColour1", 255}, {"gridColour2", QJsonObject()},
                                     {"overlayGrid", ""}, {"gridSize", 1e300},  {"defaultZoom", "2"}};
    dialog.fromJson(document(wrongGeneral, wrongMapEditor));
    QCOMPARE(dialog.toJson(), document(defaultGeneral(), defaultMapEditor()));

    dialog.fromJson(document({}, {{"gridSize", 100'000}, {"defaultZoom", -3}, {"gridColour1", "no colour"}}));
    QCOMPARE(dialog.mapEditorPage()->gridSize(), 256);
    QCOMPARE(dialog.mapEditorPage()->defaultZoom(), 1);
    QVERIFY(!dialog.mapEditorPage()->gridColour1().isValid());

    dialog.fromJson(QJsonDocument(QJsonArray{1, 2}));
}

void TestPreferences::cancelUndoesEverything_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"button", "escape", "close"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void TestPreferences::cancelUndoesEverything()
{
    QFETCH(QString, way);
    PreferencesDialog dialog;
    dialog.fromJson(document(changedGeneral(), changedMapEditor()));
    const QJsonDocument shown = dialog.toJson();
    dialog.show();
    dialog.fromJson(document(defaultGeneral(), defaultMapEditor()));
    if (way == u"button")
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
    else if (way == u"escape")
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.toJson(), shown);
}

void TestPreferences::saveKeepsChanges()
{
    PreferencesDialog dialog;
    dialog.show();
    auto *frequency = dialog.findChild<QComboBox *>();
    frequency->setCurrentIndex(frequency->findText("Daily"));
    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.generalPage()->updateInterval(), QStringLiteral("daily"));

    // The next showing starts from what was saved.
    dialog.show();
    frequency->setCurrentIndex(frequency->findText("Monthly"));
    dialog.reject();
    QCOMPARE(dialog.generalPage()->updateInterval(), QStringLiteral("daily"));
}

void TestPreferences::listShowsPages()
{
    PreferencesDialog dialog;
    auto *list = dialog.findChild<QListWidget *>();
    auto *stack = dialog.findChild<QStackedWidget *>();
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(stack->currentWidget(), dialog.generalPage());
    list->setCurrentRow(1);
    QCOMPARE(list->currentItem()->text(), QStringLiteral("Map Editor"));
    QCOMPARE(stack->currentWidget(), dialog.mapEditorPage());
}

void TestPreferences::gridSizeMovesInSteps()
{
    MapEditorPage page;
    auto *gridSize = page.findChild<QSpinBox *>();
    gridSize->stepBy(1);
    QCOMPARE(page.gridSize(), 16);
    gridSize->stepBy(1000);
    QCOMPARE(page.gridSize(), 256);
    gridSize->stepBy(-1000);
    QCOMPARE(page.gridSize(), 8);
}

void TestPreferences::chosenColourGoesToItsButton()
{
    MapEditorPage page;
    page.show();
    const auto buttons = page.findChildren<ColourButton *>();
    QCOMPARE(buttons.size(), 2);

    buttons.at(1)->click();
    auto *chooser = page.findChild<QColorDialog *>();
    QVERIFY(chooser->isVisible() && chooser->isModal());
    QCOMPARE(chooser->currentColor(), QColor(80, 80, 80));
    chooser->setCurrentColor(QColor(1, 2, 3));
    chooser->accept();
    QCOMPARE(page.gridColour2(), QColor(1, 2, 3));
    QCOMPARE(page.gridColour1(), QColor(64, 64, 64));
    QCOMPARE(buttons.at(1)->icon().pixmap(QSize(48, 16), 1.0).toImage().pixelColor(20, 8), QColor(1, 2, 3));

    buttons.at(0)->click();
    QCOMPARE(page.findChildren<QColorDialog *>().size(), 1);
    chooser->setCurrentColor(QColor(9, 9, 9));
    chooser->reject();
    QCOMPARE(page.gridColour1(), QColor(64, 64, 64));
}

QUENMORA_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
