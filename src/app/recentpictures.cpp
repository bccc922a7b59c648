#include "app/recentpictures.h"

#include "app/platform.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

// In milliseconds
constexpr int FirstDelay = 150; ///< what is being shown comes first
constexpr int Patience = 20'000;

/// Names a file as it is now; empty for one that is not there.
QString keyOf(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    const QString state = QStringLiteral("%1\n%2\n%3")
                              .arg(file.absoluteFilePath())
                              .arg(file.lastModified().toMSecsSinceEpoch())
                              .arg(file.size());
    return QString::fromLatin1(QCryptographicHash::hash(state.toUtf8(), QCryptographicHash::Sha1).toHex());
}

/// Beside this program, or where it was built.
QString exportProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(QStringLiteral("quenmora-export"),
                                          {folder, folder + QStringLiteral("/../command")});
}

} // namespace

RecentPictures::RecentPictures(QObject *parent)
    : QObject(parent)
    , m_folder(Platform::cacheFolder().filePath(QStringLiteral("quenmora/pictures")))
    , m_program(exportProgram())
{
    m_next.setSingleShot(true);
    m_next.setInterval(FirstDelay);
    connect(&m_next, &QTimer::timeout, this, &RecentPictures::lookForNext);
    m_patience.setSingleShot(true);
    m_patience.setInterval(Patience);
    connect(&m_patience, &QTimer::timeout, &m_process, &QProcess::kill);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::finished, this,
            [this](int code, QProcess::ExitStatus status) { made(status == QProcess::NormalExit && code == 0); });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError problem) {
        if (problem == QProcess::FailedToStart)
            made(false);
    });
}

RecentPictures::~RecentPictures()
{
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished();
}

void RecentPictures::setFolder(const QString &folder)
{
    m_folder = folder;
    m_known.clear();
}

void RecentPictures::setProgram(const QString &program)
{
    m_program = program;
    m_known.clear();
}

void RecentPictures::want(const QStringList &paths)
{
    m_wanted = paths;
    if (!m_wanted.isEmpty() && !m_next.isActive() && m_path.isEmpty())
        m_next.start(FirstDelay);
}

void RecentPictures::lookForNext()
{
    if (m_wanted.isEmpty() || !m_path.isEmpty())
        return;
    const QString path = m_wanted.takeFirst();
    const QString key = keyOf(path);
    if (!key.isEmpty() && m_known.value(path).key != key) {
        m_known.insert(path, {key, {}});
        const QString file = fileFor(key);
        if (QFileInfo::exists(file))
            take(path, file);
        else if (!m_program.isEmpty() && QDir().mkpath(m_folder))
            make(path, file);
    }
    if (m_path.isEmpty())
        m_next.start(0);
}

void RecentPictures::make(const QString &path, const QString &file)
{
    m_path = path;
    m_patience.start();
    m_process.start(m_program,
                    {QStringLiteral("--thumbnail"), file, QStringLiteral("--size"), QString::number(Extent),
                     QStringLiteral("--"), path});
}

void RecentPictures::made(bool succeeded)
{
    m_patience.stop();
    const QString path = std::exchange(m_path, {});
    if (succeeded) {
        take(path, fileFor(m_known.value(path).key));
        tidy();
    }
    m_next.start(0);
}

void RecentPictures::take(const QString &path, const QString &file)
{
    m_known[path].picture = QImage(file, "png");
    emit found(path);
}

/// Removes those that were not made lately: of files that have changed, and of projects that are in the list no more.
void RecentPictures::tidy() const
{
    const QFileInfoList files = QDir(m_folder).entryInfoList({QStringLiteral("*.png")}, QDir::Files, QDir::Time);
    for (const QFileInfo &old : files.mid(MostKept))
        QFile::remove(old.filePath());
}

QString RecentPictures::fileFor(const QString &key) const
{
    return m_folder + u'/' + key + QStringLiteral(".png");
}
