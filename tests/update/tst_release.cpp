#include "support/testmain.h"
#include "update/release.h"

#include <QDate>
#include <QTest>

using Update::Release;

class TestRelease : public QObject
{
    Q_OBJECT

private slots:
    void automaticCheckIsDue();
    void feedEntryIsRead_data();
    void feedEntryIsRead();
    void onlyNewerReleasesAreOffered();
};

void TestRelease::automaticCheckIsDue()
{
    // today is the first of March 2027
    const std::tuple<bool, const char *, const char *, bool> cases[] = {
        {false, "daily", "", false},
        {true, "monthly", "", true},
        {true, "monthly", "2027-02-29", true}, // no date
        {true, "daily", "2027-03-01", false},
        {true, "daily", "2027-02-28", true},
        {true, "weekly", "2027-02-23", false},
        {true, "weekly", "2027-02-22", true},
        {true, "monthly", "2027-02-02", false},
        {true, "monthly", "2027-02-01", true},
        {true, "Daily", "2027-02-23", false}, // unknown, like the next
        {true, "hourly", "2027-02-22", true},
        {true, "daily", "2027-03-02", false},
    };
    for (const auto &[enabled, interval, lastCheck, due] : cases)
        QVERIFY2(shouldCheck(enabled, interval, lastCheck, QDate(2027, 3, 1)) == due,
                 qPrintable(QStringLiteral("%1 after %2").arg(interval, lastCheck)));
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

void TestRelease::onlyNewerReleasesAreOffered()
{
    // 0.7.0.0 of the 15th of October 2026 is running, and 0.7.1.1 was skipped
    const std::tuple<const char *, const char *, const char *, const char *, bool> cases[] = {
        {"stable", "0.7.1.0", "stable", "2026-10-16", true},
        {"stable", "0.6.9.0", "stable", "2026-10-16", true}, // numbers are not compared
        {"stable", "", "stable", "2026-10-16", false},
        {"stable", "0.7.1.0", "stable", "", false},
        {"stable", "0.7.0.0", "stable", "2026-10-16", false},
        {"stable", "0.7.1.0", "stable", "2026-10-15", false},
        {"stable", "0.7.1.0", "stable", "2025-12-31", false},
        {"stable", "0.7.1.1", "stable", "2026-10-16", false},
        {"stable", "0.7.1.0", "beta", "2026-10-16", false},
        {"beta", "0.7.1.0", "beta", "2026-10-16", true},
        {"beta", "0.7.1.0", "alpha", "2026-10-16", false},
        {"beta", "0.7.1.0", "stable", "2026-10-16", true},
        {"stable", "0.7.1.0", "Stable", "2026-10-16", false},
    };
    for (const auto &[running, latest, channel, released, offered] : cases) {
        const Release release{latest, channel, released, "https://www.example.org/notes", {}};
        QVERIFY2(newerRelease("0.7.0.0", "2026-10-15", running, release, "0.7.1.1")
                     == (offered ? std::optional(release) : std::nullopt),
                 qPrintable(QStringLiteral("%1: %2 (%3) of %4").arg(running, latest, channel, released)));
    }
}

QUENMORA_TEST_MAIN(TestRelease)
#include "tst_release.moc"
