#include "app/version.h"

#include <QCoreApplication>

QString appVersion()
{
    return QStringLiteral(QUENMORA_VERSION);
}

QString appReleaseDate()
{
    return QStringLiteral(QUENMORA_RELEASE_DATE);
}

QString appChannel()
{
    return channelOfVersion(appVersion());
}

QString appDisplayName()
{
    return QStringLiteral("%1 v%2 [%3]").arg(QStringLiteral("Quenmora"), appVersion(), appReleaseDate());
}

QString channelOfVersion(const QString &version)
{
    const qsizetype dash = version.indexOf(u'-');
    if (dash >= 0) {
        const QStringView suffix = QStringView(version).sliced(dash + 1);
        for (const auto *channel : {"alpha", "beta", "rc"}) {
            if (suffix.startsWith(QLatin1StringView(channel)))
                return QLatin1StringView(channel);
        }
    }
    return QStringLiteral("stable");
}
