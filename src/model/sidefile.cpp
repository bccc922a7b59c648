#include "model/sidefile.h"

#include <QFile>
#include <QFileInfo>

QString SideFile::pathFor(const QString &projectFile, const QString &kind)
{
    const QString suffix = QStringLiteral(".quenmora");
    const bool isUsual = projectFile.endsWith(suffix, Qt::CaseInsensitive);
    return (isUsual ? projectFile.chopped(suffix.size()) : projectFile) + suffix + u'-' + kind
        + QStringLiteral(".json");
}

QString SideFile::keepAside(const QString &path)
{
    QString aside = path + QStringLiteral(".bad");
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = QStringLiteral("%1.bad%2").arg(path).arg(number);
    QFile file(path);
    return file.rename(aside) ? QString() : file.errorString();
}
