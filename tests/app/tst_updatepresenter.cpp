#include "app/updatepresenter.h"

#include "app/version.h"
#include "preferences/generalpage.h"
#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "update/updatedialog.h"

#include <QTest>

class TestUpdatePresenter : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhoAsked()
    {
        enum Result { Newer, Same, Failed };
        const QMap<Result, QString> statusOf{{Newer, "Update available: 0.7.1.0"},
                                             {Same, QString::fromUtf8("You’re up to date")},
                                             {Failed, "Could not reach the update server"}};
        const QMap<Result, QString> boxOf{{Same, "Quenmora 0.7.0.0 is up to date."},
                                          {Failed, "Could not reach the update server.\n<b>Refused"}};
        Update::UpdateChecker::setFeedAddress({});
        for (const Result result : {Newer, Same, Failed}) {
            for (const auto origin :
                 {UpdateController::Startup, UpdateController::Manual, UpdateController::AboutBox}) {
                GeneralPage page;
                UpdateController controller(&page, [] {}, {appVersion(), appReleaseDate(), appChannel()});
                QWidget window;
                UpdatePresenter presenter(&controller, &window);
                presenter.showAboutBox();
                const auto *about = window.findChild<AboutBox *>();
                QCOMPARE(about->status(), QString::fromUtf8("Checking for updates…"));
                if (result == Newer)
                    emit controller.updateAvailable({"0.7.1.0", "stable", "2026-12-01", {}, {}}, origin);
                else if (result == Same)
                    emit controller.upToDate(origin);
                else
                    emit controller.checkFailed("<b>Refused", origin);
                QCOMPARE(about->status(), statusOf.value(result));

                auto *dialog = window.findChild<UpdateDialog *>();
                QCOMPARE(dialog && dialog->isVisible(), result == Newer && origin != UpdateController::AboutBox);
                if (dialog) {
                    emit dialog->skipVersion("0.7.1.0");
                    QCOMPARE(page.skippedVersion(), "0.7.1.0");
                }
                const auto *box = window.findChild<QMessageBox *>();
                QCOMPARE(box ? box->text() : QString(), origin == UpdateController::Manual ? boxOf.value(result) : "");
                if (box) {
                    QVERIFY(box->isVisible());
                    QCOMPARE(box->windowTitle(), "Check for Updates");
                    QCOMPARE(box->icon(), result == Failed ? QMessageBox::Warning : QMessageBox::Information);
                    QCOMPARE(box->textFormat(), Qt::PlainText); // it quotes the network
                }
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestUpdatePresenter)
#include "tst_updatepresenter.moc"
