#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <optional>

class QDate;

namespace Update {

/// A release of the program, as the update feed describes it. The feed is untrusted: the texts are
/// shown as plain text, and an address is opened only when it is one of the web.
struct Release
{
    QString latest; ///< version text
    QString channel; ///< "stable", "alpha", "beta" or "rc"
    QString released; ///< ISO 8601 date text
    QString notesUrl; ///< may be empty
    QString downloadsUrl; ///< may be empty

    bool operator==(const Release &) const = default;
};

/// The program that is running, as far as updates are concerned.
struct RunningVersion
{
    QString version;
    QString releaseDate; ///< ISO 8601 date text
    QString channel; ///< as in Release
};

} // namespace Update

Q_DECLARE_METATYPE(Update::Release)

/// Whether an automatic check is due: never when it is not enabled, always when lastCheck is no ISO
/// date, else once a day, every 7 days ("weekly", and any unknown interval) or every 28 ("monthly").
[[nodiscard]] bool shouldCheck(bool enabled, const QString &interval, const QString &lastCheck, const QDate &today);

/// The entry of the tool named tag in an update feed: UTF-8 JSON, an object whose member "tools" is an
/// object with one member a tool, that holds the strings "latest", "channel", "released", "notes_url"
/// and "downloads_url". Missing strings are empty; nothing when there is no such entry.
[[nodiscard]] std::optional<Update::Release> parseFeed(const QByteArray &feed, const QString &tag);

/// The release, when it is one to offer to the running version: another version than this and than the
/// skipped one, stable or of the running channel, and of a later date. Versions are not ordered.
[[nodiscard]] std::optional<Update::Release> newerRelease(const QString &version, const QString &releaseDate,
                                                          const QString &channel, const Update::Release &release,
                                                          const QString &skippedVersion);
