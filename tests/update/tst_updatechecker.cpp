#include "support/testmain.h"
#include "update/feedserver.h"
#include "update/updatechecker.h"

#include <QSignalSpy>
#include <QTest>

using Update::UpdateChecker;

class TestUpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void failuresAreReported_data();
    void failuresAreReported();
    void onlyTheLastCheckReports();
};

void TestUpdateChecker::failuresAreReported_data()
{
    QTest::addColumn<QByteArray>("response");
    QTest::newRow("not found") << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 2\r\n\r\n{}");
    QTest::newRow("server error") << QByteArray("HTTP/1.1 500 Oops\r\nContent-Length: 0\r\n\r\n");
    QTest::newRow("no web server") << QByteArray("220 mail.example.org ESMTP\r\n");
    QTest::newRow("cut") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{}");
    QTest::newRow("silence") << QByteArray();
    QTest::newRow("endless") << "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(4 * UpdateChecker::MaxFeedSize, ' ');
}

void TestUpdateChecker::failuresAreReported()
{
    QFETCH(QByteArray, response);
    FeedServer server;
    server.setResponse(response);
    UpdateChecker::setFeedAddress(server.address());
    UpdateChecker checker(QStringLiteral("0.7.0.0"));
    checker.setTransferTimeout(response.isEmpty() ? 50 : 5000);
    QSignalSpy fetched(&checker, &UpdateChecker::fetched);
    QSignalSpy failed(&checker, &UpdateChecker::failed);
    checker.check();

    QVERIFY(failed.wait());
    QVERIFY(!failed.first().first().toString().isEmpty());
    QCOMPARE(failed.count(), 1);
    QCOMPARE(fetched.count(), 0);
}

void TestUpdateChecker::onlyTheLastCheckReports()
{
    FeedServer server;
    UpdateChecker::setFeedAddress(server.address());
    UpdateChecker checker(QStringLiteral("0.7.0.0"));
    QSignalSpy fetched(&checker, &UpdateChecker::fetched);
    QSignalSpy failed(&checker, &UpdateChecker::failed);
    checker.check();
    QTRY_COMPARE(server.requests().size(), 1);
    server.setBody("second");
    checker.check();

    QVERIFY(fetched.wait());
    QCOMPARE(fetched.first().first().toByteArray(), QByteArray("second"));
    QCOMPARE(fetched.count(), 1);
    QCOMPARE(failed.count(), 0);
    QCOMPARE(server.requests().size(), 2);
    QVERIFY(server.requests().last().startsWith("GET /versions.json HTTP/1.1\r\n"));
    QVERIFY(server.requests().last().contains("\r\nUser-Agent: Quenmora/0.7.0.0 (+https://"));
}

QUENMORA_TEST_MAIN(TestUpdateChecker)
#include "tst_updatechecker.moc"
