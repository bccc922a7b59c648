#include "update/release.h"

#include <QDate>
#include <QJsonDocument>
#include <QJsonObject>

bool shouldCheck(bool enabled, const QString &interval, const QString &lastCheck, const QDate &today)
{
    if (!enabled)
        return false;
    const QDate last = QDate::fromString(lastCheck, Qt::ISODate);
    if (!last.isValid())
        return true;
    const qint64 days = last.daysTo(today);
    if (interval == QLatin1String("daily"))
        return days >= 1;
    if (interval == QLatin1String("monthly"))
        return days >= 28;
    return days >= 7;
}

std::optional<Update::Release> parseFeed(const QByteArray &feed, const QString &tag)
{
    const QJsonObject tools = QJsonDocument::fromJson(feed).object().value(QLatin1String("tools")).toObject();
    if (!tools.contains(tag))
        return std::nullopt;
    const QJsonObject tool = tools.value(tag).toObject();
    return Update::Release{
        .latest = tool.value(QLatin1String("latest")).toString(),
        .channel = tool.value(QLatin1String("channel")).toString(),
        .released = tool.value(QLatin1String("released")).toString(),
        .notesUrl = tool.value(QLatin1String("notes_url")).toString(),
        .downloadsUrl = tool.value(QLatin1String("downloads_url")).toString(),
    };
}

std::optional<Update::Release> newerRelease(const QString &version, const QString &releaseDate, const QString &channel,
                                            const Update::Release &release, const QString &skippedVersion)
{
    if (release.latest.isEmpty() || release.latest == version)
        return std::nullopt;
    if (release.latest == skippedVersion)
        return std::nullopt;
    if (release.channel != channel && release.channel != QLatin1String("stable"))
        return std::nullopt;
    if (release.released <= releaseDate)
        return std::nullopt;
    return release;
}
