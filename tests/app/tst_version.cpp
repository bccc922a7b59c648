#include "app/version.h"
#include "support/testmain.h"

#include <QTest>

class TestVersion : public QObject
{
    Q_OBJECT

private slots:
    void namesThisRelease();
    void readsTheChannelOfAVersion_data();
    void readsTheChannelOfAVersion();
};

void TestVersion::namesThisRelease()
{
    QCOMPARE(appChannel(), QStringLiteral("stable"));
    QCOMPARE(appDisplayName(), QStringLiteral("Quenmora v0.7.0.0 [2026-10-15]"));
}

void TestVersion::readsTheChannelOfAVersion_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("channel");

    const auto row = [](const char *version, const char *channel) {
        QTest::newRow(version) << QString::fromLatin1(version) << QString::fromLatin1(channel);
    };
    row("", "stable");
    row("0.8.0.0-alpha", "alpha");
    row("0.8.0.0-beta2", "beta");
    row("0.8.0.0-rc.1", "rc");
    row("0.8.0.0-preview", "stable");
    row("0.8.0.0-Beta", "stable");
    row("0.8.0.0-x-beta", "stable"); // only what follows the first dash counts
}

void TestVersion::readsTheChannelOfAVersion()
{
    QFETCH(QString, version);
    QTEST(channelOfVersion(version), "channel");
}

QUENMORA_TEST_MAIN(TestVersion)

#include "tst_version.moc"
