// The zip archive around a project: an input is a whole project file.

#include "model/project.h"
#include "store/projectstore.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t size)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("input.quenmora")));
    if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char *>(bytes), qint64(size)) < 0)
        qFatal("cannot write the input");
    file.close();
    ProjectStore store;
    store.newProject(QStringLiteral("loading..."));
    (void)store.load(file.fileName());
    return 0;
}
