#include "app/version.h"
#include "support/testmain.h"

#include <QTest>

class TestVersion : public QObject
{
    Q_OBJECT

private slots:
    void namesThisReleaseAndTheChannelOfEach()
    {
        QCOMPARE(appChannel(), "stable");
        QCOMPARE(appDisplayName(), "Quenmora v0.7.0.0 [2026-10-15]");
        for (const auto &[version, channel] : {std::pair{"", "stable"},
                                               {"0.8.0.0-alpha", "alpha"},
                                               {"0.8.0.0-beta2", "beta"},
                                               {"0.8.0.0-rc.1", "rc"},
                                               {"0.8.0.0-preview", "stable"},
                                               {"0.8.0.0-Beta", "stable"},
                                               {"0.8.0.0-x-beta", "stable"}}) // only what follows the first dash counts
            QCOMPARE(channelOfVersion(version), channel);
    }
};

QUENMORA_TEST_MAIN(TestVersion)

#include "tst_version.moc"
