#pragma once

#include "app/pausewatch.h"
#include "recovery/recoverycopier.h"
#include "recovery/recoverywriter.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QUuid>

#include <functional>
#include <memory>
#include <optional>

class ProjectController;

/// Keeps a copy of the open project while that has changes which its file has not, for the time after a crash.
///
/// A copy begins when something changed since the last one, that one is old enough and the person pauses, and it is
/// written in slices of a few milliseconds while the pause lasts. With somebody who does not pause it becomes urgent:
/// then every moment is good in which no button is held. Copies go when the project is saved or closed. Saving writes
/// over the file at once, so a copy is completed before it does: whenever the program is killed, file or copy is whole.
class RecoveryKeeper : public QObject
{
    Q_OBJECT
    /// Milliseconds between the beginnings of two copies, at least.
    Q_PROPERTY(int interval READ interval WRITE setInterval)

public:
    static constexpr int DefaultInterval = 20'000;

    /// What of the project is in front of the person.
    struct Shown
    {
        QStringList documents; ///< those that have tabs
        QUuid front; ///< the one that the picture of the copy is to show
    };

    /// Keeps its copies in a folder of their own below this one, which is made when it is first needed.
    RecoveryKeeper(ProjectController *controller, const QString &folder, QObject *parent = nullptr);

    [[nodiscard]] int interval() const { return m_interval; }
    void setInterval(int milliseconds) { m_interval = milliseconds; }
    void setShownCallback(std::function<Shown()> shown) { m_shown = std::move(shown); }

    /// The project that was opened just now comes from this copy, which stays until there is a newer one.
    void goOnFrom(RecoveryCopy copy);

public slots:
    /// Looks for changes as soon as it may, instead of when it would by itself.
    void lookSoon();

signals:
    /// The project as it is now is going to be copied.
    void copyBegun();
    void copyCompleted();
    /// No copy can be written; told once for each project that is opened.
    void failed(const QString &message);

private:
    void onProjectOpened();
    void onProjectClosed();
    void onUnmodified();
    void onAboutToSave();
    void onSaveFinished();

    /// Begins a copy if there is something to copy and this is a good moment, or comes back.
    void look();
    /// Writes some of the copy, or removes some of what is left of earlier ones.
    void workOn();
    /// Nothing is left to do.
    void rest();
    [[nodiscard]] bool isGoodMoment() const;
    [[nodiscard]] ProjectSnapshot contentNow();
    [[nodiscard]] bool begin(const ProjectSnapshot &content);
    void finish(RecoveryCopier::Progress progress);
    void fail(const QString &reason);
    void removeCopies();

    ProjectController *m_controller;
    QString m_folder;
    int m_interval = DefaultInterval;
    std::function<Shown()> m_shown = [] { return Shown(); };
    PauseWatch m_pause;
    QTimer m_nextLook{this};
    QTimer m_slices{this}; ///< runs while there is something to write or remove
    QElapsedTimer m_sinceBegin; ///< of the last copy
    QElapsedTimer m_sinceDue; ///< since there is something to do, or to look for
    int m_failures = 0; ///< one after the other
    bool m_told = false;
    bool m_saving = false;
    QString m_file; ///< of the project when it was opened or saved last: saving under another name forgets it

    std::optional<RecoveryWriter> m_writer; ///< once there is something to write
    std::unique_ptr<RecoveryCopier> m_copier; ///< while a copy is written
    // Content is never empty: an empty snapshot is none.
    ProjectSnapshot m_saved; ///< what the project's file holds, unless that is not known
    ProjectSnapshot m_begun; ///< what the copy holds that was begun last
    ProjectSnapshot m_copied; ///< what the last whole one holds
};
