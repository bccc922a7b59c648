#include "store/fileownership.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool FileOwnership::createLike(const QString &fileName, const QString &other)
{
    struct stat wanted = {};
    if (stat(QFile::encodeName(other).constData(), &wanted) != 0)
        return false;
    // nobody else looks into it before it is settled who may
    const int file = open(QFile::encodeName(fileName).constData(), O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (file < 0)
        return false;
    mode_t mode = wanted.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (fchown(file, wanted.st_uid, wanted.st_gid) != 0 && fchown(file, uid_t(-1), wanted.st_gid) != 0)
        mode &= mode_t(~S_IRWXG) | ((mode & S_IRWXO) << 3);
    const bool kept = fchmod(file, mode) == 0;
    return close(file) == 0 && kept;
}
