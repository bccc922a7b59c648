#include "preferences/generalpage.h"
#include "support/testmain.h"
#include "update/updatecontroller.h"

#include <QDateTime>
#include <QHostAddress>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

using Update::UpdateChecker;

namespace {

/// A web server on the loopback address, from which update checkers that are made after it fetch their feed. It
/// answers every request, once it is there to its empty line, with the response set last, as it stands, and then
/// closes the connection. An empty response leaves the client waiting.
class FeedServer : public QTcpServer
{
public:
    FeedServer()
    {
        listen(QHostAddress::LocalHost);
        UpdateChecker::setFeedAddress(QUrl(QStringLiteral("http://127.0.0.1:%1/versions.json").arg(serverPort())));
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                if (!socket->peek(MaxRequest).endsWith("\r\n\r\n"))
                    return;
                requests.append(socket->readAll());
                if (response.isEmpty())
                    return;
                socket->write(response);
                socket->disconnectFromHost();
            });
        });
    }

    QByteArrayList requests;
    QByteArray response;

private:
    static constexpr qint64 MaxRequest = 4096;
};

} // namespace

/// Runs the controller of version 0.7.0.0, and the checker that it uses, against a server of the test.
class TestUpdateController : public QObject
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
            QCOMPARE(saved.takeFirst().value("lastUpdateCheck").toString(), m_today);
        }
    }

    void startAsksWhenDueUntilItSucceeds()
    {
        FeedServer server;
        server.response = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{}";
        GeneralPage page;
        UpdateController controller(&page, [] {}, {"0.7.0.0", "2026-10-15", "stable"});
        page.fromJson({{"versionCheckEnabled", false}});
        controller.checkOnStartup();
        page.fromJson({{"lastUpdateCheck", m_today}});
        controller.checkOnStartup();
        UpdateChecker later("0.7.0.0"); // whose request arrives after those that should not be made
        QSignalSpy fetched(&later, &UpdateChecker::fetched);
        later.check();
        QVERIFY(fetched.wait() && server.requests.size() == 1);

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
