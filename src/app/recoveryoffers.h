#pragma once

#include "recovery/recoverycopy.h"

#include <QObject>
#include <QStringList>

#include <vector>

class ProjectController;
class RecoveryKeeper;

/// What can be recovered after a crash: the copies that programs which no longer run left behind.
///
/// A copy that is offered is held, so that no other program offers it, too. A damaged one is put aside at once, and
/// told from then on, never offered.
class RecoveryOffers : public QObject
{
    Q_OBJECT

public:
    /// A copy that cannot be opened.
    struct Damaged
    {
        QString projectName; ///< empty when not even that is known
        QString folder; ///< where it is now
    };

    /// Looks below the folder in which the keeper keeps its copies.
    RecoveryOffers(ProjectController *controller, RecoveryKeeper *keeper, const QString &folder,
                   QObject *parent = nullptr);

    /// The whole copies, the latest first.
    [[nodiscard]] const std::vector<RecoveryCopy> &copies() const { return m_copies; }
    [[nodiscard]] const QList<Damaged> &damaged() const { return m_damaged; }

    /// Opens the project of a copy, which is the keeper's from then on.
    void recover(int index);
    /// Removes a copy for good.
    void discard(int index);

public slots:
    /// Looks for copies again.
    void refresh();
    /// Leaves the copies to others, while nobody sees them here.
    void release();

signals:
    void changed();

private:
    void putAside(RecoveryCopy copy);

    ProjectController *m_controller;
    RecoveryKeeper *m_keeper;
    QString m_folder;
    std::vector<RecoveryCopy> m_copies;
    QList<Damaged> m_damaged;
};
