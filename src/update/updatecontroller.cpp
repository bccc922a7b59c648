#include "update/updatecontroller.h"

#include "preferences/generalpage.h"

#include <QDateTime>

#include <utility>

namespace {

/// The name of this program in the update feed.
const QString FeedTag = QStringLiteral("quenmora");

QDate todayUtc()
{
    return QDateTime::currentDateTimeUtc().date();
}

} // namespace

UpdateController::UpdateController(GeneralPage *preferences, std::function<void()> savePreferences,
                                   const Update::RunningVersion &running, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_savePreferences(std::move(savePreferences))
    , m_running(running)
    , m_checker(running.version)
{
    connect(&m_checker, &Update::UpdateChecker::fetched, this, &UpdateController::interpret);
    connect(&m_checker, &Update::UpdateChecker::failed, this,
            [this](const QString &error) { emit checkFailed(error, m_origin); });
}

void UpdateController::checkOnStartup()
{
    if (m_preferences
        && shouldCheck(m_preferences->versionCheckEnabled(), m_preferences->updateInterval(),
                       m_preferences->lastUpdateCheck(), todayUtc()))
        checkNow(Startup);
}

void UpdateController::checkNow(Origin origin)
{
    m_origin = origin;
    m_checker.check();
}

void UpdateController::skipVersion(const QString &version)
{
    if (!m_preferences)
        return;
    m_preferences->setSkippedVersion(version);
    m_savePreferences();
}

void UpdateController::interpret(const QByteArray &feed)
{
    if (!m_preferences)
        return;
    m_preferences->setLastUpdateCheck(todayUtc().toString(Qt::ISODate));
    m_savePreferences();

    std::optional<Update::Release> release = parseFeed(feed, FeedTag);
    if (release)
        release = newerRelease(m_running.version, m_running.releaseDate, m_running.channel, *release,
                               m_preferences->skippedVersion());
    if (release)
        emit updateAvailable(*release, m_origin);
    else
        emit upToDate(m_origin);
}
