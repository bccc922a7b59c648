#include "app/preferences/colourbutton.h"
#include "app/preferences/generalpage.h"
#include "app/preferences/mapeditorpage.h"
#include "app/preferences/preferencesdialog.h"
#include "support/testmain.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QPushButton>
#include <QTest>

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void everySettingIsReadBack();
    void damagedSettingsFallBack();
    void onlySaveKeepsChanges_data();
    void onlySaveKeepsChanges();
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

void TestPreferences::everySettingIsReadBack()
{
    PreferencesDialog dialog;
    QCOMPARE(dialog.toJson(), document(defaultGeneral(), defaultMapEditor()));
    dialog.fromJson({});
    const QJsonDocument changed = document(changedGeneral(), changedMapEditor());
    dialog.fromJson(changed);
    QCOMPARE(dialog.toJson(), changed);

    // What is missing: defaults on the general page, present values on the map editor page.
    dialog.fromJson(QJsonDocument(QJsonObject{{"other", 1}}));
    QCOMPARE(dialog.toJson(), document(defaultGeneral(), changedMapEditor()));
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

    for (const char *interval : {"hourly", "Daily", ""}) {
        dialog.fromJson(document({{"updateInterval", "daily"}}, {}));
        dialog.fromJson(document({{"updateInterval", interval}}, {}));
        QCOMPARE(dialog.generalPage()->updateInterval(), "weekly");
    }
    dialog.fromJson(QJsonDocument(QJsonArray{1, 2}));
}

void TestPreferences::onlySaveKeepsChanges_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"save", "cancel", "escape", "close"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void TestPreferences::onlySaveKeepsChanges()
{
    QFETCH(QString, way);
    PreferencesDialog dialog;
    dialog.fromJson(document(changedGeneral(), changedMapEditor()));
    const QJsonDocument shown = dialog.toJson();
    dialog.show();
    dialog.fromJson(document(defaultGeneral(), defaultMapEditor()));
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    if (way == u"save")
        buttons->button(QDialogButtonBox::Save)->click();
    else if (way == u"cancel")
        buttons->button(QDialogButtonBox::Cancel)->click();
    else if (way == u"escape")
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(way == u"save" ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(dialog.toJson(), way == u"save" ? document(defaultGeneral(), defaultMapEditor()) : shown);
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
