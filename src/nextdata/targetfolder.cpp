#include "nextdata/targetfolder.h"

#include "nextdata/filenames.h"
#include "nextdata/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace NextData {
namespace {

/// The path with its links followed, as far as it exists.
QString withoutLinks(const QString &path)
{
    QFileInfo existing(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    QStringList missing;
    while (!existing.exists() && !existing.isRoot()) {
        missing.prepend(existing.fileName());
        existing = QFileInfo(existing.path());
    }
    return QDir::cleanPath(existing.canonicalFilePath() + u'/' + missing.join(u'/'));
}

} // namespace

TargetFolder::TargetFolder(const QString &path) : m_path(withoutLinks(path)) { }

bool TargetFolder::contains(const QString &place) const
{
    return place == m_path || place.startsWith(m_path.endsWith(u'/') ? m_path : m_path + u'/');
}

Result<QString> TargetFolder::placeOf(const QString &name) const
{
    if (const QString problem = FileNames::problemOf(name); !problem.isEmpty())
        return Failure{problem};
    const QStringList parts = name.split(u'/');
    QString place = m_path;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        place = QDir(place).filePath(parts[i]);
        QFileInfo info(place);
        if (info.isSymLink()) {
            place = info.canonicalFilePath(); // of a loop its own path
            if (!info.exists())
                return Failure{
                    Texts::tr("“%1” cannot be written: “%2” is a link that leads nowhere").arg(name, parts[i])};
            if (!contains(place))
                return Failure{
                    Texts::tr("“%1” cannot be written: the link “%2” leads out of the folder").arg(name, parts[i])};
            info = QFileInfo(place);
        }
        const bool isLast = i + 1 == parts.size();
        if (info.exists() && isLast && info.isDir())
            return Failure{Texts::tr("“%1” cannot be written: it is a folder").arg(name)};
        if (info.exists() && !isLast && !info.isDir())
            return Failure{Texts::tr("“%1” cannot be written: “%2” is no folder").arg(name, parts[i])};
    }
    return place;
}

} // namespace NextData
