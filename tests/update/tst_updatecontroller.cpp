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
    void feedIsInterpreted_data();
    void feedIsInterpreted();
    void failureIsTriedAgain();
    void startAsksOnlyWhenDue();

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

void TestUpdateController::feedIsInterpreted_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("newer");
    QTest::newRow("newer") << feed("0.7.2.0") << true;
    QTest::newRow("skipped") << feed("0.7.1.0") << false;
    QTest::newRow("running version") << feed("0.7.0.0") << false;
    QTest::newRow("no entry") << QByteArray("{\"tools\": {}}") << false;
    QTest::newRow("unreadable") << QByteArray("<html>") << false;
}

void TestUpdateController::feedIsInterpreted()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, newer);
    m_controller->skipVersion("0.7.1.0");
    QCOMPARE(m_saved.size(), 1);
    QCOMPARE(m_saved.takeFirst().value("skippedVersion").toString(), "0.7.1.0");
    m_server->setBody(body);
    QSignalSpy available(m_controller.get(), &UpdateController::updateAvailable);
    QSignalSpy upToDate(m_controller.get(), &UpdateController::upToDate);
    m_controller->checkNow(UpdateController::AboutBox);
    QTRY_COMPARE(available.count() + upToDate.count(), 1);
    QCOMPARE(available.count(), int(newer));
    QCOMPARE((available + upToDate).first().last().value<UpdateController::Origin>(), UpdateController::AboutBox);
    if (newer)
        QCOMPARE(available.first().first().value<Update::Release>(),
                 (Update::Release{"0.7.2.0", "stable", "2026-12-01", {}, {}}));
    QCOMPARE(m_saved.size(), 1);
    QCOMPARE(m_saved.first().value("lastUpdateCheck").toString(), today());
}

void TestUpdateController::failureIsTriedAgain()
{
    m_page->setLastUpdateCheck("2026-01-01");
    m_server->setBody({}, "503 Busy");
    QSignalSpy failed(m_controller.get(), &UpdateController::checkFailed);
    for (int start = 1; start <= 2; ++start) {
        m_controller->checkOnStartup();
        QVERIFY(failed.wait());
        QCOMPARE(failed.last().last().value<UpdateController::Origin>(), UpdateController::Startup);
        QCOMPARE(m_server->requests().size(), start);
    }
    QCOMPARE(m_page->lastUpdateCheck(), "2026-01-01");
    QVERIFY(m_saved.isEmpty());
}

void TestUpdateController::startAsksOnlyWhenDue()
{
    m_server->setBody(feed("0.7.0.0"));
    m_page->setLastUpdateCheck(today());
    m_controller->checkOnStartup();
    m_page->fromJson({{"versionCheckEnabled", false}});
    m_controller->checkOnStartup();
    QSignalSpy upToDate(m_controller.get(), &UpdateController::upToDate);
    m_controller->checkNow(UpdateController::Manual); // whatever the preferences say
    QVERIFY(upToDate.wait());
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(upToDate.first().first().value<UpdateController::Origin>(), UpdateController::Manual);
}

QUENMORA_TEST_MAIN(TestUpdateController)
#include "tst_updatecontroller.moc"
