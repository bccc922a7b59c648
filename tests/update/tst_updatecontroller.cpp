#include "preferences/generalpage.h"
#include "support/testmain.h"
#include "update/release.h"
#include "update/updatecontroller.h"
#include "update/updatedialog.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>
#include <QtWidgets>

using Update::Release;
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

/// Version 0.7.0.0 and what a feed says, which a server of the test brings, up to the dialog that offers a release.
class TestUpdateController : public QObject
{
    Q_OBJECT

public slots:
    void openAddress(const QUrl &address) { m_opened.append(address); }

private slots:
    void automaticCheckIsDue()
    {
        // today is the first of March 2027
        const std::tuple<bool, const char *, const char *, bool> cases[] = {
            {false, "daily", "", false},           {true, "monthly", "", true},
            {true, "monthly", "2027-02-29", true}, // no date
            {true, "daily", "2027-02-28", true},   {true, "weekly", "2027-02-23", false},
            {true, "weekly", "2027-02-22", true},  {true, "monthly", "2027-02-02", false},
            {true, "monthly", "2027-02-01", true}, {true, "Daily", "2027-02-23", false}, // unknown
            {true, "hourly", "2027-02-22", true},  {true, "daily", "2027-03-02", false},
        };
        for (const auto &[enabled, interval, lastCheck, due] : cases)
            QVERIFY2(shouldCheck(enabled, interval, lastCheck, {2027, 3, 1}) == due, lastCheck);
    }

    void feedEntryIsRead();

    void onlyNewerReleasesAreOffered()
    {
        // 0.7.0.0 of the 15th of October 2026 is running, and 0.7.1.1 was skipped
        const std::tuple<const char *, const char *, const char *, const char *, bool> cases[] = {
            {"stable", "0.7.1.0", "stable", "2026-10-16", true},
            {"stable", "0.6.9.0", "stable", "2026-10-16", true}, // numbers are not compared
            {"stable", "", "stable", "2026-10-16", false},
            {"stable", "0.7.1.0", "stable", "", false},
            {"stable", "0.7.0.0", "stable", "2026-10-16", false},
            {"stable", "0.7.1.0", "stable", "2026-10-15", false},
            {"stable", "0.7.1.1", "stable", "2026-10-16", false},
            {"stable", "0.7.1.0", "beta", "2026-10-16", false},
            {"beta", "0.7.1.0", "beta", "2026-10-16", true},
            {"beta", "0.7.1.0", "alpha", "2026-10-16", false},
            {"beta", "0.7.1.0", "stable", "2026-10-16", true},
            {"stable", "0.7.1.0", "Stable", "2026-10-16", false},
        };
        for (const auto &[running, latest, channel, released, offered] : cases) {
            const Release release{latest, channel, released, {}, {}};
            QVERIFY2(newerRelease("0.7.0.0", "2026-10-15", running, release, "0.7.1.1")
                         == (offered ? std::optional(release) : std::nullopt),
                     (QByteArray(latest) + channel + released).constData());
        }
    }

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

    void showsTheReleaseAsPlainText()
    {
        UpdateDialog dialog;
        dialog.setRelease({"<b>0.8</b>", "stable", "2026-12-01", {}, {}}, "0.7.0.0", "2026-10-15");
        const auto *heading = dialog.findChild<QLabel *>("heading");
        const auto *detail = dialog.findChild<QLabel *>("detail");
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Quenmora — update available"));
        QCOMPARE(heading->text(), "Quenmora <b>0.8</b> is available");
        QCOMPARE(detail->text(), "You have 0.7.0.0 (built 2026-10-15).\nThe new version was released 2026-12-01.");
        QVERIFY(heading->textFormat() == Qt::PlainText && detail->textFormat() == Qt::PlainText);
        const QString endless(100'000, u'9');
        dialog.setRelease({endless, "stable", endless, {}, {}}, "0.7.0.0", "2026-10-15");
        QVERIFY(dialog.sizeHint().width() < 1024 && dialog.sizeHint().height() < 768);
    }

    void opensOnlyWebAddressesUntilItCloses()
    {
        UpdateDialog dialog;
        dialog.show();
        for (const QString address :
             {"https://www.example.org/n?v=1", "http://e.org/", "", "file:///etc/", "vnc://e/"}) {
            m_opened.clear();
            QDesktopServices::setUrlHandler(QUrl(address).scheme(), this, "openAddress");
            const QString other = address.isEmpty() ? "" : address + 'd';
            dialog.setRelease({"0.8", "stable", "", address, other}, "0.7", "");
            const bool opens = address.startsWith("http");
            for (const char *name : {"releaseNotes", "download"}) {
                auto *button = dialog.findChild<QPushButton *>(name);
                QCOMPARE(button->isEnabled(), opens);
                button->click();
            }
            QCOMPARE(m_opened, opens ? (QList<QUrl>{QUrl(address), QUrl(other)}) : QList<QUrl>());
        }
        QSignalSpy skipped(&dialog, &UpdateDialog::skipVersion);
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Return); // "Later"
        QVERIFY(!dialog.isVisible() && skipped.isEmpty());
        dialog.show();
        dialog.findChild<QPushButton *>("skip")->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(skipped, (QList<QVariantList>{{"0.8"}}));
    }

private:
    QList<QUrl> m_opened;
    const QString m_today = QDateTime::currentDateTimeUtc().date().toString(Qt::ISODate);
};

// outside the class, where moc does not read its strings
void TestUpdateController::feedEntryIsRead()
{
    const std::pair<QByteArray, std::optional<Release>> cases[] = {
        {R"({"schema": 1, "tools": {"another": {"latest": "9"}, "quenmora": {"latest": "0.7.1.0", "channel": "stable",
             "released": "2026-11-20", "size": 4711, "notes_url": "https://n", "downloads_url": "https://d"}}})",
         Release{"0.7.1.0", "stable", "2026-11-20", "https://n", "https://d"}},
        {R"({"tools": {"quenmora": {"latest": "1"}}})", Release{"1", {}, {}, {}, {}}},
        {R"({"tools": {"quenmora": {"latest": 8, "channel": ["stable"]}}})", Release()},
        {R"({"tools": {"Quenmora": {"latest": "1"}}})", {}},
        {R"({"quenmora": {"latest": "1"}})", {}},
        {R"({"tools": {"quenmora": {"latest": "1)", {}}, // cut
        {"<html><body>Welcome</body></html>", {}},
        {QByteArray(100000, '['), {}},
    };
    for (const auto &[feed, entry] : cases)
        QVERIFY2(parseFeed(feed, "quenmora") == entry, feed.left(80));
}

QUENMORA_TEST_MAIN(TestUpdateController)
#include "tst_updatecontroller.moc"
