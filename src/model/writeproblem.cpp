#include "model/writeproblem.h"

#include "model/filename.h"
#include "model/rawfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WriteProblem)
};

} // namespace

QString writeProblem(const QString &filePath)
{
    const QFileInfo file(filePath);
    const QFileInfo folder(file.absolutePath());
    const QString path = QDir::toNativeSeparators(filePath);
    if (!folder.isDir())
        return Texts::tr("There is no folder %1").arg(QDir::toNativeSeparators(folder.filePath()));
    if (file.isDir())
        return Texts::tr("%1 is a folder").arg(path);
    if (file.exists() && !file.isFile())
        return Texts::tr("%1 is a pipe or a device, not a file").arg(path);
    if (file.exists() ? !RawFile::isWritable(filePath) : !folder.isWritable())
        return Texts::tr("You may not write to %1").arg(path);
    return Texts::tr("%1 could not be written to its end; there may be no room left").arg(path);
}

QString writeProblem(const QString &folder, const QString &fileName)
{
    if (fileName.contains(u'/'))
        return Texts::tr(
                   "No file can be called %1: a slash would lead into another folder. Another name of the asset helps.")
            .arg(fileName);
    if (const QString problem = FileName::problemOf(fileName); !problem.isEmpty())
        return Texts::tr("No file can be called that: %1. Another name of the asset helps.").arg(problem);
    return writeProblem(QDir(folder).filePath(fileName));
}
