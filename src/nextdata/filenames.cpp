#include "nextdata/filenames.h"

#include "model/filename.h"
#include "nextdata/texts.h"

#include <QStringList>

#include <algorithm>

namespace NextData::FileNames {
namespace {

constexpr qsizetype LongestBase = 80; ///< leaves room for a part and a suffix, whatever takes four bytes a character

/// A place in a path, of which problemOf() of a name alone need not know.
QString problemOfPart(const QString &name)
{
    if (name == QStringLiteral(".."))
        return Texts::tr("it leads out of its folder");
    if (name.isEmpty() || name == QStringLiteral("."))
        return Texts::tr("a folder or file in it has no name");
    return FileName::problemOf(name);
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
    std::replace_if(base.begin(), base.end(), FileName::isForbidden, u'_');
    while (base.startsWith(u'.') || base.startsWith(u' '))
        base.remove(0, 1);
    base.truncate(LongestBase);
    if (!base.isEmpty() && base.back().isHighSurrogate())
        base.chop(1);
    while (base.endsWith(u'.') || base.endsWith(u' '))
        base.chop(1);
    if (base.isEmpty())
        return fallback;
    return FileName::isDevice(base) ? fallback + u'_' + base : base;
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
            problem = problemOfPart(name);
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
