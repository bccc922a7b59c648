#include "preferences/generalpage.h"
#include "support/testmain.h"
#include "update/feedserver.h"
#include "update/updatecontroller.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

/// Runs the controller of version 0.7.0.0 against a server of the test.
class TestUpdateController : public QObject
{
    Q_OBJECT

private slots:
    void feedIsInterpreted()
    {
        const QByteArray feed =
            R"({"tools": {"quenmora": {"latest": "0.7.2.0", "channel": "stable", "released": "2026-12-01"}}})";
        for (const auto &[body, newer] : {std::pair{feed, true},
                                          {QByteArray(feed).replace("0.7.2.0", "0.7.1.0"), false}, // skipped
                                          {QByteArray(feed).replace("0.7.2.0", "0.7.0.0"), false}, // running
                                          {QByteArray("{\"tools\": {}}"), false},
                                          {QByteArray("<html>"), false}}) {
            FeedServer server;
            server.response = "HTTP/1.1 200 OK\r\n\r\n" + body;
            GeneralPage page;
            QList<QJsonObject> saved; // what the page held each time the preferences were written
            UpdateController controller(&page, [&] { saved.append(page.toJson()); },
                                        {"0.7.0.0", "2026-10-15", "stable"});
            QSignalSpy available(&controller, &UpdateController::updateAvailable);
            QSignalSpy upToDate(&controller, &UpdateController::upToDate);
            controller.skipVersion("0.7.1.0");
            QCOMPARE(saved.takeFirst().value("skippedVersion").toString(), "0.7.1.0");
            page.fromJson({{"versionCheckEnabled", false}, {"skippedVersion", "0.7.1.0"}});
            controller.checkNow(UpdateController::AboutBox); // whatever the preferences say
            QTRY_COMPARE(available.count() + upToDate.count(), 1);
            QCOMPARE(available.count(), int(newer));
            QCOMPARE((available + upToDate).first().last().value<UpdateController::Origin>(),
                     UpdateController::AboutBox);
            if (newer)
                QCOMPARE(available.first().first().value<Update::Release>().latest, "0.7.2.0");
            QCOMPARE(saved.takeFirst().value("lastUpdateCheck").toString(), m_today);
        }
    }

    void startAsksWhenDueUntilItSucceeds()
    {
        FeedServer server;
        server.response = "HTTP/1.1 200 OK\r\n\r\n{}";
        GeneralPage page;
        UpdateController controller(&page, [] {}, {"0.7.0.0", "2026-10-15", "stable"});
        page.fromJson({{"versionCheckEnabled", false}});
        controller.checkOnStartup();
        page.fromJson({{"lastUpdateCheck", m_today}});
        controller.checkOnStartup();
        Update::UpdateChecker later("0.7.0.0"); // whose request arrives after those that should not be made
        QSignalSpy fetched(&later, &Update::UpdateChecker::fetched);
        later.check();
        QVERIFY(fetched.wait());
        QCOMPARE(server.requests.size(), 1);

        server.response = "HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n";
        QSignalSpy failed(&controller, &UpdateController::checkFailed);
        page.setLastUpdateCheck("2026-01-01");
        controller.checkOnStartup();
        QVERIFY(failed.wait());
        QCOMPARE(failed.last().last().value<UpdateController::Origin>(), UpdateController::Startup);
        QCOMPARE(page.lastUpdateCheck(), "2026-01-01"); // so the next start tries again
    }

private:
    const QString m_today = QDateTime::currentDateTimeUtc().date().toString(Qt::ISODate);
};

QUENMORA_TEST_MAIN(TestUpdateController)
#include "tst_updatecontroller.moc"
