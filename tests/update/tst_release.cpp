#include "support/testmain.h"
#include "update/release.h"

#include <QDate>
#include <QTest>

using Update::Release;

class TestRelease : public QObject
{
    Q_OBJECT

private slots:
    void automaticCheckIsDue_data();
    void automaticCheckIsDue();
    void feedEntryIsRead_data();
    void feedEntryIsRead();
    void onlyNewerReleasesAreOffered_data();
    void onlyNewerReleasesAreOffered();
};

void TestRelease::automaticCheckIsDue_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("interval");
    QTest::addColumn<QString>("lastCheck");
    QTest::addColumn<bool>("due");

    // today is the first of March 2027
    const auto row = [](const char *name, bool enabled, const char *interval, const char *lastCheck, bool due) {
        QTest::newRow(name) << enabled << QString::fromLatin1(interval) << QString::fromLatin1(lastCheck) << due;
    };
    row("disabled, never checked", false, "daily", "", false);
    row("never checked", true, "monthly", "", true);
    row("impossible date", true, "monthly", "2027-02-29", true);
    row("daily, today", true, "daily", "2027-03-01", false);
    row("daily, yesterday", true, "daily", "2027-02-28", true);
    row("weekly, 6 days", true, "weekly", "2027-02-23", false);
    row("weekly, 7 days", true, "weekly", "2027-02-22", true);
    row("monthly, 27 days", true, "monthly", "2027-02-02", false);
    row("monthly, 28 days", true, "monthly", "2027-02-01", true);
    row("unknown interval, 6 days", true, "Daily", "2027-02-23", false);
    row("unknown interval, 7 days", true, "hourly", "2027-02-22", true);
    row("checked in the future", true, "daily", "2027-03-02", false);
}

void TestRelease::automaticCheckIsDue()
{
    QFETCH(bool, enabled);
    QFETCH(QString, interval);
    QFETCH(QString, lastCheck);
    QTEST(shouldCheck(enabled, interval, lastCheck, QDate(2027, 3, 1)), "due");
}

void TestRelease::feedEntryIsRead_data()
{
    using Entry = std::optional<Release>;
    QTest::addColumn<QByteArray>("feed");
    QTest::addColumn<Entry>("entry");
    QTest::newRow("whole") << QByteArray(R"({"schema": 1, "tools": {"another": {"latest": "9"}, "quenmora": {
            "latest": "0.7.1.0", "channel": "stable", "released": "2026-11-20", "size": 4711,
            "notes_url": "https://www.example.org/n", "downloads_url": "https://www.example.org/d"}}})")
                           << Entry({"0.7.1.0", "stable", "2026-11-20", "https://www.example.org/n",
                                     "https://www.example.org/d"});
    QTest::newRow("members missing") << QByteArray(R"({"tools": {"quenmora": {"latest": "1"}}})")
                                     << Entry({"1", {}, {}, {}, {}});
    QTest::newRow("wrong types") << QByteArray(R"({"tools": {"quenmora": {"latest": 8, "channel": ["stable"]}}})")
                                 << Entry(Release());
    QTest::newRow("entry no object") << QByteArray(R"({"tools": {"quenmora": 17}})") << Entry(Release());
    QTest::newRow("other tools only") << QByteArray(R"({"tools": {"Quenmora": {"latest": "1"}}})") << Entry();
    QTest::newRow("tools no object") << QByteArray(R"({"tools": ["quenmora"]})") << Entry();
    QTest::newRow("tools missing") << QByteArray(R"({"quenmora": {"latest": "1"}})") << Entry();
    QTest::newRow("cut") << QByteArray(R"({"tools": {"quenmora": {"latest": "1)") << Entry();
    QTest::newRow("page of a login portal") << QByteArray("<html><body>Welcome</body></html>") << Entry();
    QTest::newRow("nested too deep") << QByteArray(100'000, '[') << Entry();
}

void TestRelease::feedEntryIsRead()
{
    QFETCH(QByteArray, feed);
    QFETCH(std::optional<Release>, entry);
    QVERIFY(parseFeed(feed, QStringLiteral("quenmora")) == entry);
}

void TestRelease::onlyNewerReleasesAreOffered_data()
{
    QTest::addColumn<QString>("runningChannel");
    QTest::addColumn<QString>("latest");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("released");
    QTest::addColumn<QString>("skipped");
    QTest::addColumn<bool>("offered");

    // 0.7.0.0 of the 15th of October 2026 is running
    const auto row = [](const char *name, const char *runningChannel, const char *latest, const char *channel,
                        const char *released, const char *skipped, bool offered) {
        QTest::newRow(name) << QString::fromLatin1(runningChannel) << QString::fromLatin1(latest)
                            << QString::fromLatin1(channel) << QString::fromLatin1(released)
                            << QString::fromLatin1(skipped) << offered;
    };
    row("later", "stable", "0.7.1.0", "stable", "2026-10-16", "", true);
    row("later with a lower number", "stable", "0.6.9.0", "stable", "2026-10-16", "", true);
    row("no version", "stable", "", "stable", "2026-10-16", "", false);
    row("no date", "stable", "0.7.1.0", "stable", "", "", false);
    row("same version", "stable", "0.7.0.0", "stable", "2026-10-16", "", false);
    row("same date", "stable", "0.7.1.0", "stable", "2026-10-15", "", false);
    row("earlier", "stable", "0.7.1.0", "stable", "2025-12-31", "", false);
    row("skipped", "stable", "0.7.1.0", "stable", "2026-10-16", "0.7.1.0", false);
    row("another was skipped", "stable", "0.7.2.0", "stable", "2026-10-16", "0.7.1.0", true);
    row("beta to stable", "stable", "0.7.1.0", "beta", "2026-10-16", "", false);
    row("beta to beta", "beta", "0.7.1.0", "beta", "2026-10-16", "", true);
    row("alpha to beta", "beta", "0.7.1.0", "alpha", "2026-10-16", "", false);
    row("stable to beta", "beta", "0.7.1.0", "stable", "2026-10-16", "", true);
    row("channel in capitals", "stable", "0.7.1.0", "Stable", "2026-10-16", "", false);
}

void TestRelease::onlyNewerReleasesAreOffered()
{
    QFETCH(QString, runningChannel);
    QFETCH(QString, latest);
    QFETCH(QString, channel);
    QFETCH(QString, released);
    QFETCH(QString, skipped);
    QFETCH(bool, offered);

    const Release release{latest, channel, released, "https://www.example.org/notes", {}};
    const auto result = newerRelease("0.7.0.0", "2026-10-15", runningChannel, release, skipped);
    QCOMPARE(result, offered ? std::optional(release) : std::nullopt);
}

QUENMORA_TEST_MAIN(TestRelease)
#include "tst_release.moc"
