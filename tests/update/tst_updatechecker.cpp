#include "support/testmain.h"
#include "update/feedserver.h"

#include <QSignalSpy>
#include <QTest>

using Update::UpdateChecker;

class TestUpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void eachCheckReportsOnceUnlessAnotherReplacesIt()
    {
        FeedServer server;
        UpdateChecker checker(QStringLiteral("0.7.0.0"));
        QSignalSpy fetched(&checker, &UpdateChecker::fetched);
        QSignalSpy failed(&checker, &UpdateChecker::failed);
        checker.check();
        QTRY_COMPARE(server.requests.size(), 1);
        QVERIFY(server.requests.first().startsWith("GET /versions.json HTTP/1.1\r\n"));
        QVERIFY(server.requests.first().contains("\r\nUser-Agent: Quenmora/0.7.0.0 (+https://"));
        server.response = "HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nsecond";
        checker.check();
        QVERIFY(fetched.wait());
        QCOMPARE(fetched, (QList<QVariantList>{{QByteArray("second")}}));
        QVERIFY(failed.isEmpty());

        for (const QByteArray &response :
             {QByteArray("HTTP/1.1 404 Not Found\r\nContent-Length: 2\r\n\r\n{}"),
              QByteArray("220 mail.example.org ESMTP\r\n"),
              QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{}"), // cut
              QByteArray(), // silence
              "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(4 * UpdateChecker::MaxFeedSize, ' ')}) {
            server.response = response;
            checker.setTransferTimeout(response.isEmpty() ? 50 : 5000);
            failed.clear();
            checker.check();
            QVERIFY2(failed.wait(), response.left(40));
            QVERIFY(failed.count() == 1 && !failed.first().first().toString().isEmpty() && fetched.count() == 1);
        }
    }
};

QUENMORA_TEST_MAIN(TestUpdateChecker)
#include "tst_updatechecker.moc"
