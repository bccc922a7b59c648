#include "nextdata/wholefile.h"

#include "model/rawfile.h"
#include "model/writeproblem.h"
#include "nextdata/texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <filesystem>
#include <system_error>

namespace NextData::WholeFile {
namespace {

constexpr int MaxAttempts = 100; ///< at a name that nobody has

/// Makes a file in a folder under a name that is no other's, not even another process'. Its name is short, whatever
/// that of the file will be, and hidden where a dot does that.
bool createAside(QFile &file, const QDir &folder)
{
    static std::atomic<int> counter = 0;
    for (int i = 0; i < MaxAttempts; ++i) {
        file.setFileName(folder.filePath(
            QStringLiteral(".quenmora-%1-%2.part").arg(QCoreApplication::applicationPid()).arg(counter++)));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
        if (!file.exists())
            return false;
    }
    return false;
}

/// The file that is to be replaced: what a link leads to, so that it stays a link.
QString targetOf(const QString &path)
{
    const QFileInfo file(path);
    const QString target = file.isSymLink() ? file.canonicalFilePath() : QString(); // empty where it leads nowhere
    return target.isEmpty() ? path : target;
}

/// Gives the file the name of another one, which it replaces. QFile would not replace it.
QString rename(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return QString::fromStdString(error ? error.message() : std::string());
}

} // namespace

State stateOf(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.exists())
        return State::New;
    const bool isSame = file.size() == bytes.size() && RawFile::openForReading(file) && file.readAll() == bytes;
    return isSame ? State::Unchanged : State::Changed;
}

QString write(const QString &wanted, const QByteArray &bytes)
{
    const QString path = targetOf(wanted);
    const QDir folder = QFileInfo(path).absoluteDir();
    if (!folder.mkpath(QStringLiteral(".")))
        return Texts::tr("The folder %1 cannot be made").arg(QDir::toNativeSeparators(folder.path()));
    if (!RawFile::isWritable(path))
        return writeProblem(path);
    QFile aside;
    if (!createAside(aside, folder))
        return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), aside.errorString());

    QString problem;
    if (aside.write(bytes) != bytes.size() || !aside.flush())
        problem = aside.errorString();
    else if (QFile::exists(path) && !aside.setPermissions(QFile::permissions(path)))
        problem = aside.errorString();
    aside.close();
    if (problem.isEmpty())
        problem = rename(aside.fileName(), path);
    if (problem.isEmpty())
        return {};
    aside.remove();
    return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), problem);
}

} // namespace NextData::WholeFile
