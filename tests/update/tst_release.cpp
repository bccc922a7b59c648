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
    void feedEntryIsRead();
    void onlyNewerReleasesAreOffered();
};

void TestRelease::automaticCheckIsDue()
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

void TestRelease::feedEntryIsRead()
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
        {QByteArray(100'000, '['), {}},
    };
    for (const auto &[feed, entry] : cases)
        QVERIFY2(parseFeed(feed, "quenmora") == entry, feed.left(80));
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

QUENMORA_TEST_MAIN(TestRelease)
#include "tst_release.moc"
