#pragma once

#include "update/release.h"
#include "update/updatechecker.h"

#include <QObject>
#include <QPointer>

#include <functional>

class GeneralPage;

/// Decides when to look for a newer release and what the update feed means for the running version.
/// What the user is shown is up to whoever listens to the results.
class UpdateController final : public QObject
{
    Q_OBJECT

public:
    /// Who started a check.
    enum Origin {
        Startup = 0, ///< the program's start
        Manual = 1, ///< the user, from the menu
        AboutBox = 2 ///< the About box when it opened
    };
    Q_ENUM(Origin)

    /// The update settings are read from and written to the preferences page; savePreferences writes
    /// the preferences file.
    UpdateController(GeneralPage *preferences, std::function<void()> savePreferences,
                     const Update::RunningVersion &running, QObject *parent = nullptr);

    /// Checks if the preferences want it and the time for it has come.
    void checkOnStartup();
    /// Checks whatever the preferences say.
    void checkNow(Origin origin);

public slots:
    /// Keeps a version from being offered again.
    void skipVersion(const QString &version);

signals:
    // One of them follows every check that is not replaced by a later one. origin is that of the check.
    void updateAvailable(const Update::Release &release, UpdateController::Origin origin);
    void upToDate(UpdateController::Origin origin);
    void checkFailed(const QString &error, UpdateController::Origin origin);

private:
    void interpret(const QByteArray &feed);

    QPointer<GeneralPage> m_preferences;
    std::function<void()> m_savePreferences;
    Update::RunningVersion m_running;
    Update::UpdateChecker m_checker;
    Origin m_origin = Startup;
};
