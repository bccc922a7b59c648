#pragma once

#include "recovery/filelock.h"

#include <QDir>
#include <QString>

#include <optional>
#include <vector>

/// A folder for the copies of one project, which one running program has to itself.
///
/// It lies below a common folder under a random name and is held by its file "lock", which the system lets go when
/// the program ends: what nobody holds was left by one that crashed. Letting go of a folder leaves it as it is.
class RecoveryFolder
{
public:
    /// What the names of the files begin with that name the others of a copy.
    static constexpr QLatin1String ManifestPrefix{"manifest-"};

    /// A new, empty one below a common folder, which is made where it is missing; nothing when that cannot be done.
    [[nodiscard]] static std::optional<RecoveryFolder> create(const QString &common);

    /// Those that no running program has, which are this program's now. What holds no files of a copy is removed.
    [[nodiscard]] static std::vector<RecoveryFolder> takeAbandoned(const QString &common);

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }
    /// The files of the copies in it, in the order in which they may go: first those that name others, of which they
    /// would else make a damaged copy.
    [[nodiscard]] QStringList files() const;

    /// Makes or replaces a file, or removes it and says why that is not possible; empty when all went well. Nothing
    /// waits for the disk, but the bytes are on their way to it.
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes) const;

    /// Whether it is still there; a home folder may vanish, and come back as another one.
    [[nodiscard]] bool isInPlace() const { return m_lock.holds(lockPath()); }

    /// Removes it with all that is in it.
    void remove();
    /// Lets go of it under a name by which nobody takes it for one; its new path, or the old one when it stays.
    QString setAside();

private:
    RecoveryFolder(QDir folder, FileLock lock) : m_folder(std::move(folder)), m_lock(std::move(lock)) { }

    [[nodiscard]] static std::optional<RecoveryFolder> take(const QString &path);
    [[nodiscard]] QString lockPath() const;

    QDir m_folder;
    FileLock m_lock;
};
