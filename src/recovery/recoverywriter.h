#pragma once

#include "recovery/recoverycopy.h"
#include "recovery/recoveryfolder.h"
#include "recovery/recoverymanifest.h"

#include <QSet>

/// Writes copies of a project into a folder, one after the other, and into each only what the ones before it lack.
///
/// A copy counts from the moment in which its manifest gets its name, and until then the one before it does; whenever
/// the program is killed, one of them is whole. The one before the last is kept until the next, because the last may
/// not be on the disk yet: nothing here waits for that. Each call is short, so that all can be done between what a
/// person does.
class RecoveryWriter
{
public:
    /// Begins in an empty folder.
    explicit RecoveryWriter(RecoveryFolder folder) : m_folder(std::move(folder)) { }
    /// Goes on after a whole copy.
    explicit RecoveryWriter(RecoveryCopy copy);

    /// Whether the copies written so far are still there.
    [[nodiscard]] bool isInPlace() const { return m_folder.isInPlace(); }

    /// Puts bytes into the next copy; the name of their file, empty when that could not be written.
    [[nodiscard]] QString put(const QByteArray &bytes);
    /// Completes the copy with everything that its manifest names; false when that could not be written.
    [[nodiscard]] bool finish(const RecoveryManifest &manifest);
    /// Gives up the copy that was begun: no copy needs what was put into it.
    void giveUp();
    /// Gives up all copies, none of which can be found from now on.
    void giveUpAll();
    [[nodiscard]] bool hasCopies() const { return !m_last.isEmpty(); }

    /// Removes a file that no copy needs any more; false when there is none.
    bool tidy();
    /// Removes all copies, and their folder.
    void remove() { m_folder.remove(); }

    /// Why the last put() or finish() failed.
    [[nodiscard]] QString problem() const { return m_problem; }

private:
    RecoveryFolder m_folder;
    qint64 m_number = 0; ///< of the last copy
    QSet<QString> m_last; ///< files of the last copy, its manifest among them
    QSet<QString> m_previous; ///< those of the one before
    QSet<QString> m_begun; ///< those put into the next one
    QSet<QString> m_unneeded; ///< those that are to be removed
    QString m_problem;
};
