#include "preferences/colourbutton.h"
#include "preferences/generalpage.h"
#include "preferences/mapeditorpage.h"
#include "preferences/preferencesdialog.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QJsonDocument Defaults = QJsonDocument::fromJson(R"({
    "general": {"backupOnSave": true, "versionCheckEnabled": true, "updateInterval": "weekly", "skippedVersion": "",
        "lastUpdateCheck": ""},
    "mapEditor": {"checkerBoard": true, "gridColour1": "#404040", "gridColour2": "#505050", "overlayGrid": true,
        "gridSize": 8, "defaultZoom": 4}})");
const QJsonDocument Changed = QJsonDocument::fromJson(R"({
    "general": {"backupOnSave": false, "versionCheckEnabled": false, "updateInterval": "monthly",
        "skippedVersion": "0.7.1.0", "lastUpdateCheck": "2026-12-24"},
    "mapEditor": {"checkerBoard": false, "gridColour1": "#12abef", "gridColour2": "#000000", "overlayGrid": false,
        "gridSize": 64, "defaultZoom": 8}})");
const QJsonDocument Unusable = QJsonDocument::fromJson(R"({
    "general": {"backupOnSave": "no", "versionCheckEnabled": 0, "updateInterval": ["daily"], "skippedVersion": 7},
    "mapEditor": {"checkerBoard": 1, "gridColour1": 255, "gridColour2": {}, "overlayGrid": "", "gridSize": 1e300,
        "defaultZoom": "2"}})");

} // namespace

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void everySettingIsReadBackOrFallsBack()
    {
        PreferencesDialog dialog;
        QCOMPARE(dialog.toJson(), Defaults);
        dialog.fromJson(Unusable);
        QCOMPARE(dialog.toJson(), Defaults);
        dialog.fromJson(Changed);
        dialog.fromJson({});
        QCOMPARE(dialog.toJson(), Changed);
        // what is missing: defaults on the general page, present values on the map editor page
        dialog.fromJson(QJsonDocument(QJsonArray{1, 2}));
        QCOMPARE(dialog.generalPage()->toJson(), Defaults["general"].toObject());
        MapEditorPage *page = dialog.mapEditorPage();
        QCOMPARE(page->toJson(), Changed["mapEditor"].toObject());
        page->fromJson({{"gridSize", 100'000}, {"defaultZoom", -3}, {"gridColour1", "no colour"}});
        QVERIFY(page->gridSize() == 256 && page->defaultZoom() == 1 && !page->gridColour1().isValid());
        for (const char *interval : {"hourly", "Daily", ""}) {
            dialog.generalPage()->fromJson({{"updateInterval", "daily"}});
            dialog.generalPage()->fromJson({{"updateInterval", interval}});
            QCOMPARE(dialog.generalPage()->updateInterval(), "weekly");
        }
    }

    void onlySaveKeepsChanges()
    {
        PreferencesDialog dialog;
        const auto *buttons = dialog.findChild<QDialogButtonBox *>();
        const std::function<void()> rejections[] = {[&] { buttons->button(QDialogButtonBox::Cancel)->click(); },
                                                    [&] { QTest::keyClick(&dialog, Qt::Key_Escape); },
                                                    [&] { dialog.close(); }};
        for (const auto &reject : rejections) {
            dialog.show();
            dialog.fromJson(Changed);
            reject();
            QVERIFY(!dialog.isVisible());
            dialog.generalPage()->setLastUpdateCheck({});
            dialog.generalPage()->setSkippedVersion({});
            QCOMPARE(dialog.toJson(), Defaults);
        }
        dialog.show();
        dialog.generalPage()->setLastUpdateCheck("2026-11-03"); // by a check that ends now
        dialog.generalPage()->setSkippedVersion("0.8.0.0");
        dialog.reject();
        QCOMPARE(dialog.generalPage()->lastUpdateCheck(), "2026-11-03");
        QCOMPARE(dialog.generalPage()->skippedVersion(), "0.8.0.0");
        dialog.show();
        dialog.fromJson(Changed);
        buttons->button(QDialogButtonBox::Save)->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.toJson(), Changed);
    }

    void chosenColourGoesToItsButton()
    {
        MapEditorPage page;
        page.show();
        const auto buttons = page.findChildren<ColourButton *>();
        buttons.at(1)->click();
        auto *chooser = page.findChild<QColorDialog *>();
        QVERIFY(chooser->isVisible() && chooser->isModal());
        QCOMPARE(chooser->currentColor(), QColor(80, 80, 80));
        chooser->setCurrentColor(QColor(1, 2, 3));
        chooser->accept();
        QCOMPARE(page.gridColour2(), QColor(1, 2, 3));
        QCOMPARE(buttons.at(1)->icon().pixmap(QSize(48, 16), 1.0).toImage().pixelColor(20, 8), QColor(1, 2, 3));
        buttons.at(0)->click();
        QCOMPARE(page.findChildren<QColorDialog *>().size(), 1);
        chooser->setCurrentColor(QColor(9, 9, 9));
        chooser->reject();
        QCOMPARE(page.gridColour1(), QColor(64, 64, 64));
    }
};

QUENMORA_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
