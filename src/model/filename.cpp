#include "model/filename.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr qsizetype LongestName = 255; ///< in bytes, that file systems take

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FileName)
};

} // namespace

bool FileName::isForbidden(QChar c)
{
    return c < u' ' || c == QChar(0x7F) || c.category() == QChar::Other_Control
        || QStringView(u"<>:\"/\\|?*").contains(c);
}

bool FileName::isDevice(const QString &name)
{
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    if (base == QStringLiteral("CON") || base == QStringLiteral("PRN") || base == QStringLiteral("AUX")
        || base == QStringLiteral("NUL"))
        return true;
    // ports have a digit, which may be a raised one
    return base.size() == 4 && (base.startsWith(QStringLiteral("COM")) || base.startsWith(QStringLiteral("LPT")))
        && QStringView(u"0123456789\u00B9\u00B2\u00B3").contains(base.back());
}

QString FileName::problemOf(const QString &name)
{
    if (std::any_of(name.cbegin(), name.cend(), isForbidden))
        return Texts::tr("“%1” has a character that file names cannot have everywhere").arg(name);
    if (name.endsWith(u'.') || name.endsWith(u' '))
        return Texts::tr("“%1” ends in a dot or a space, which Windows takes away").arg(name);
    if (isDevice(name))
        return Texts::tr("Windows takes “%1” for a device").arg(name);
    if (name.toUtf8().size() > LongestName)
        return Texts::tr("a name in it is longer than %1 bytes").arg(LongestName);
    return {};
}
