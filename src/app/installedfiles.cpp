#include "app/installedfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

constexpr int MostFoldersUp = 5; ///< from a program to its build folder

/// The source tree of the build folder that a folder lies in; empty for one that lies in none.
QString sourceTree(QDir folder)
{
    const QByteArray key = "CMAKE_HOME_DIRECTORY:INTERNAL=";
    for (int up = 0; up < MostFoldersUp; ++up) {
        QFile cache(folder.filePath(QStringLiteral("CMakeCache.txt")));
        if (cache.open(QIODevice::ReadOnly)) {
            while (!cache.atEnd()) {
                if (const QByteArray line = cache.readLine(); line.startsWith(key))
                    return QString::fromUtf8(line.mid(key.size()).trimmed());
            }
            return {};
        }
        if (!folder.cdUp())
            return {};
    }
    return {};
}

/// The first of these files that there is, in the folder of an installation or else of the source tree.
QString found(const QString &programFolder, const QStringList &installed, const QStringList &files,
              const QString &source)
{
    const auto fileIn = [&files](const QDir &folder) {
        for (const QString &file : files) {
            if (QFileInfo(folder.filePath(file)).isFile())
                return QDir::cleanPath(folder.filePath(file));
        }
        return QString();
    };
    const QDir program(programFolder);
    for (const QString &folder : installed) {
        if (const QString file = fileIn(QDir(QDir::cleanPath(program.filePath(folder)))); !file.isEmpty())
            return file;
    }
    const QString tree = sourceTree(program);
    return tree.isEmpty() ? QString() : fileIn(QDir(tree + u'/' + source));
}

} // namespace

QString InstalledFiles::sampleProject(const QString &programFolder)
{
    return found(programFolder, {QStringLiteral("../share/quenmora/examples"), QStringLiteral("examples")},
                 {QStringLiteral("sample.quenmora")}, QStringLiteral("examples"));
}

QString InstalledFiles::guidePage(const QString &page, const QString &programFolder)
{
    QStringList files;
    if (!page.isEmpty())
        files << page + QStringLiteral(".html") << page + QStringLiteral(".md");
    files << QStringLiteral("index.html") << QStringLiteral("README.md");
    return found(programFolder, {QStringLiteral("../share/doc/quenmora/guide"), QStringLiteral("documentation/guide")},
                 files, QStringLiteral("docs/guide"));
}
