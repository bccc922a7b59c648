#include "nextdata/filenames.h"

#include "nextdata/texts.h"

#include <QStringList>

#include <algorithm>

namespace NextData::FileNames {
namespace {

constexpr qsizetype LongestBase = 80; ///< leaves room for a part and a suffix, whatever takes four bytes a character
constexpr qsizetype LongestName = 255; ///< in bytes, that file systems take

bool isForbidden(QChar c)
{
    return c < u' ' || c == QChar(0x7F) || c.category() == QChar::Other_Control
        || QStringView(u"<>:\"/\\|?*").contains(c);
}

/// Whether Windows takes the name, whatever its suffix, for a device: CON, NUL, COM1 …
bool isDevice(const QString &name)
{
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    if (base == QStringLiteral("CON") || base == QStringLiteral("PRN") || base == QStringLiteral("AUX")
        || base == QStringLiteral("NUL"))
        return true;
    // ports have a digit, which may be a raised one
    return base.size() == 4 && (base.startsWith(QStringLiteral("COM")) || base.startsWith(QStringLiteral("LPT")))
        && QStringView(u"0123456789\u00B9\u00B2\u00B3").contains(base.back());
}

QString problemOfName(const QString &name)
{
    if (name == QStringLiteral(".."))
        return Texts::tr("it leads out of its folder");
    if (name.isEmpty() || name == QStringLiteral("."))
        return Texts::tr("a folder or file in it has no name");
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

/// Where the suffix begins, with its dot; the end when there is none. A dot in front begins a name.
qsizetype suffixAt(const QString &fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? dot : fileName.size();
}

} // namespace

QString fromAssetName(const QString &name, const QString &fallback)
{
    QString base = name.left(4 * LongestBase).normalized(QString::NormalizationForm_C);
    std::replace_if(base.begin(), base.end(), isForbidden, u'_');
    while (base.startsWith(u'.') || base.startsWith(u' '))
        base.remove(0, 1);
    base.truncate(LongestBase);
    if (!base.isEmpty() && base.back().isHighSurrogate())
        base.chop(1);
    while (base.endsWith(u'.') || base.endsWith(u' '))
        base.chop(1);
    if (base.isEmpty())
        return fallback;
    return isDevice(base) ? fallback + u'_' + base : base;
}

QString problemOf(const QString &relativePath)
{
    if (relativePath.isEmpty())
        return Texts::tr("There is no file name");
    QString problem;
    if (relativePath.startsWith(u'/') || (relativePath.size() > 1 && relativePath.at(1) == u':'))
        problem = Texts::tr("it is not relative");
    const QStringList names = relativePath.split(u'/');
    for (const QString &name : names) {
        if (problem.isEmpty())
            problem = problemOfName(name);
    }
    return problem.isEmpty() ? QString() : Texts::tr("“%1” cannot be written: %2").arg(relativePath, problem);
}

QString withPart(const QString &fileName, const QString &part)
{
    return QString(fileName).insert(suffixAt(fileName), part);
}

QString withSuffix(const QString &fileName, const QString &suffix)
{
    return fileName.left(suffixAt(fileName)) + u'.' + suffix;
}

} // namespace NextData::FileNames
