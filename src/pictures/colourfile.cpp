#include "pictures/colourfile.h"

bool ColourFile::recognises(const QByteArray &)
{
    return false;
}

Result<ColourFile> ColourFile::read(const QString &)
{
    return Failure{QStringLiteral("not read yet")};
}

Result<ColourFile> ColourFile::read(const QByteArray &)
{
    return Failure{QStringLiteral("not read yet")};
}
