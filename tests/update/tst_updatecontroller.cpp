#include "app/preferences/generalpage.h"
#include "support/testmain.h"
#include "update/feedserver.h"
#include "update/updatecontroller.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

/// A feed that offers this version.
QByteArray feed(const QByteArray &latest)
{
    return QByteArray(R"({"tools": {"quenmora": {"latest": "%1", "channel": "stable", "released": "2026-12-01"}}})")
        .replace("%1", latest);
}

} // namespace

/// Runs the controller of version 0.7.0.0 against a server of the test.
class TestUpdateController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void newerReleaseIsReportedWithItsOrigin();
    void anyFeedCountsAsChecked_data();
    void anyFeedCountsAsChecked();
    void failureIsTriedAgain();
    void startAsksOnlyWhenDue();
    void skippedVersionIsNotOffered();

private:
    static QString today() { return QDateTime::currentDateTimeUtc().date().toString(Qt::ISODate); }

    std::unique_ptr<FeedServer> m_server;
    std::unique_ptr<GeneralPage> m_page;
    std::unique_ptr<UpdateController> m_controller;
    /// What the page held each time the preferences were written.
    QList<QJsonObject> m_saved;
};

void TestUpdateController::init()
{
    m_server = std::make_unique<FeedServer>();
    Update::UpdateChecker::setFeedAddress(m_server->address());
    m_page = std::make_unique<GeneralPage>();
    m_saved.clear();
    const Update::RunningVersion running{"0.7.0.0", "2026-10-15", "stable"};
    m_controller = std::make_unique<UpdateController>(
        m_page.get(), [this] { m_saved.append(m_page->toJson()); }, running);
}

void TestUpdateController::newerReleaseIsReportedWithItsOrigin()
{
    m_server->setBody(feed("0.7.1.0"));
    QSignalSpy available(m_controller.get(), &UpdateController::updateAvailable);
    m_controller->checkNow(UpdateController::AboutBox);
    QVERIFY(available.wait());
    const auto release = available.first().at(0).value<Update::Release>();
    QCOMPARE(release, (Update::Release{"0.7.1.0", "stable", "2026-12-01", {}, {}}));
    QCOMPARE(available.first().at(1).value<UpdateController::Origin>(), UpdateController::AboutBox);
}

void TestUpdateController::anyFeedCountsAsChecked_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("running version") << feed("0.7.0.0");
    QTest::newRow("no entry") << QByteArray("{\"tools\": {}}");
    QTest::newRow("unreadable") << QByteArray("<html>");
}

void TestUpdateController::anyFeedCountsAsChecked()
{
    QFETCH(QByteArray, body);
    m_server->setBody(body);
    QSignalSpy upToDate(m_controller.get(), &UpdateController::upToDate);
    m_controller->checkNow(UpdateController::Manual);
    QVERIFY(upToDate.wait());
    QCOMPARE(upToDate.first().first().value<UpdateController::Origin>(), UpdateController::Manual);
    QCOMPARE(m_page->lastUpdateCheck(), today());
    QCOMPARE(m_saved.size(), 1);
    QCOMPARE(m_saved.first().value("lastUpdateCheck").toString(), today());
}

void TestUpdateController::failureIsTriedAgain()
{
    m_page->setLastUpdateCheck("2026-01-01");
    m_server->setBody({}, "503 Busy");
    QSignalSpy failed(m_controller.get(), &UpdateController::checkFailed);
    m_controller->checkOnStartup();
    QVERIFY(failed.wait());
    QCOMPARE(failed.first().at(1).value<UpdateController::Origin>(), UpdateController::Startup);
    QCOMPARE(m_page->lastUpdateCheck(), QStringLiteral("2026-01-01"));
    QVERIFY(m_saved.isEmpty());
    m_controller->checkOnStartup();
    QVERIFY(failed.wait());
    QCOMPARE(m_server->requests().size(), 2);
}

void TestUpdateController::startAsksOnlyWhenDue()
{
    m_server->setBody(feed("0.7.0.0"));
    m_page->setLastUpdateCheck(today());
    m_controller->checkOnStartup();
    m_page->fromJson({{"versionCheckEnabled", false}});
    m_controller->checkOnStartup();

    QSignalSpy upToDate(m_controller.get(), &UpdateController::upToDate);
    m_controller->checkNow(UpdateController::Manual);
    QVERIFY(upToDate.wait());
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(upToDate.first().first().value<UpdateController::Origin>(), UpdateController::Manual);
}

void TestUpdateController::skippedVersionIsNotOffered()
{
    m_controller->skipVersion("0.7.1.0");
    QCOMPARE(m_saved.size(), 1);
    QCOMPARE(m_saved.first().value("skippedVersion").toString(), QStringLiteral("0.7.1.0"));

    m_server->setBody(feed("0.7.1.0"));
    QSignalSpy upToDate(m_controller.get(), &UpdateController::upToDate);
    m_controller->checkNow(UpdateController::Manual);
    QVERIFY(upToDate.wait());

    m_server->setBody(feed("0.7.2.0"));
    QSignalSpy available(m_controller.get(), &UpdateController::updateAvailable);
    m_controller->checkNow(UpdateController::Manual);
    QVERIFY(available.wait());
}

QUENMORA_TEST_MAIN(TestUpdateController)
#include "tst_updatecontroller.moc"
