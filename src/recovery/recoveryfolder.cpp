#include "recovery/recoveryfolder.h"

#include "recovery/platform.h"

#include <QFile>
#include <QUuid>

#include <algorithm>

namespace {

const QString LockName = QStringLiteral("lock");
const QString AsidePrefix = QStringLiteral("damaged-");

/// Others may look into the common folder at the wrong moment, and hold a new folder to see what it is.
constexpr int Attempts = 5;

/// Whether a folder has a name as create() gives it.
bool isOurs(const QString &name)
{
    return !QUuid::fromString(name).isNull();
}

/// Makes a folder that nobody else looks into, for projects may be nobody else's business.
bool makePrivate(const QString &path)
{
    return QDir().mkpath(path) && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

std::optional<RecoveryFolder> RecoveryFolder::create(const QString &common)
{
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        const QString path = QDir(common).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
        if (!makePrivate(common) || !makePrivate(path))
            return {};
        // Until it is held it looks abandoned, and may be removed; then it is another one.
        if (auto folder = take(path))
            return folder;
    }
    return {};
}

std::vector<RecoveryFolder> RecoveryFolder::takeAbandoned(const QString &common)
{
    std::vector<RecoveryFolder> found;
    const QDir folder(common);
    for (const QString &name : folder.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::Name)) {
        auto abandoned = isOurs(name) ? take(folder.filePath(name)) : std::nullopt;
        if (!abandoned)
            continue;
        if (abandoned->files().isEmpty())
            abandoned->remove();
        else
            found.push_back(std::move(*abandoned));
    }
    return found;
}

std::optional<RecoveryFolder> RecoveryFolder::take(const QString &path)
{
    auto lock = FileLock::take(QDir(path).filePath(LockName));
    if (!lock)
        return {};
    return RecoveryFolder(QDir(path), std::move(*lock));
}

QString RecoveryFolder::lockPath() const
{
    return m_folder.filePath(LockName);
}

QStringList RecoveryFolder::files() const
{
    QStringList names = m_folder.entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::Name);
    names.removeOne(LockName);
    std::stable_partition(names.begin(), names.end(),
                          [](const QString &name) { return name.startsWith(ManifestPrefix); });
    return names;
}

QString RecoveryFolder::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(filePath(name));
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qint64 done = 0;
        while (done < bytes.size()) { // a full disk takes what fits, and says why with the next bytes
            const qint64 count = file.write(bytes.constData() + done, bytes.size() - done);
            if (count <= 0)
                break;
            done += count;
        }
        if (done == bytes.size()) {
            Platform::startWriting(file);
            return {};
        }
    }
    const QString problem = file.errorString();
    file.remove();
    return problem;
}

void RecoveryFolder::remove()
{
    if (!isInPlace())
        return;
    for (const QString &name : files())
        QFile::remove(filePath(name));
    // The lock goes last, and on some systems only when nobody holds it; who takes it now finds nothing to keep.
    if (!QFile::remove(lockPath())) {
        m_lock.release();
        QFile::remove(lockPath());
    }
    m_lock.release();
    m_folder.rmdir(m_folder.path());
}

QString RecoveryFolder::setAside()
{
    const QString aside =
        QDir(QDir::cleanPath(m_folder.filePath(QStringLiteral("..")))).filePath(AsidePrefix + m_folder.dirName());
    m_lock.release(); // some systems do not rename what is held
    return QDir().rename(m_folder.path(), aside) ? aside : m_folder.path();
}
