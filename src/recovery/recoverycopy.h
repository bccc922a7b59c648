#pragma once

#include "recovery/recoveryfolder.h"
#include "recovery/recoverymanifest.h"

#include <QImage>

/// The copy that a crashed program left in a folder, with the folder, which nobody else has.
///
/// Two copies may lie there, the last and the one before: should the computer have stopped before all of the last
/// one was on the disk, the other one is taken.
class RecoveryCopy
{
public:
    enum State {
        Missing, ///< the program crashed before a first one was complete
        Whole,
        Damaged, ///< there was one, and some of it is lost
    };

    /// Looks for a copy, and whether every byte of it is there.
    explicit RecoveryCopy(RecoveryFolder folder);

    [[nodiscard]] State state() const { return m_state; }
    /// What is known of the copy; of a damaged one maybe nothing.
    [[nodiscard]] const RecoveryManifest &manifest() const { return m_manifest; }
    [[nodiscard]] QImage picture() const;
    /// Its number; a later one has a higher number.
    [[nodiscard]] qint64 number() const { return m_number; }

    /// The bytes of a member of the project; empty when the copy does not have it, or not whole.
    [[nodiscard]] QByteArray read(const QString &member) const;

    [[nodiscard]] RecoveryFolder &folder() { return m_folder; }

    /// The file of a copy that names all others.
    [[nodiscard]] static QString manifestName(qint64 number);

private:
    [[nodiscard]] bool isWhole() const;
    [[nodiscard]] QByteArray bytesOf(const QString &file) const;

    RecoveryFolder m_folder;
    RecoveryManifest m_manifest;
    qint64 m_number = 0;
    State m_state = Missing;
};
