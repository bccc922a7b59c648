#include "store/fileownership.h"

#include <QFile>

bool FileOwnership::createLike(const QString &fileName, const QString &other)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.setPermissions(QFile::permissions(other));
}
