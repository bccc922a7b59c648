#include "command/depfile.h"

#include <algorithm>

namespace {

enum class Place { Target, Prerequisite };

/// As compilers write it. Percent signs are patterns in a target alone.
QByteArray escaped(const QString &path, Place place)
{
    QByteArray text;
    qsizetype backslashes = 0; // before this character: they count where it is escaped by one itself
    for (const char c : path.toUtf8()) {
        if (c == ' ' || c == '#')
            text.append(backslashes + 1, '\\');
        else if (c == ':' || c == '[' || (c == '%' && place == Place::Target))
            text.append('\\');
        else if (c == '$')
            text.append('$');
        text.append(c);
        backslashes = c == '\\' ? backslashes + 1 : 0;
    }
    return path.startsWith(u'~') ? "./" + text : text;
}

} // namespace

bool Depfile::canName(const QString &path)
{
    // a variable, a recipe, a pattern: there is no way to write these in a rule
    constexpr QStringView Forbidden = u";=|*?";
    return std::none_of(path.cbegin(), path.cend(),
                        [&](QChar c) { return c < u' ' || c == QChar(0x7F) || Forbidden.contains(c); });
}

QByteArray Depfile::rule(const QStringList &targets, const QStringList &prerequisites)
{
    QByteArrayList words;
    for (const QString &target : targets)
        words.append(escaped(target, Place::Target));
    QByteArray text = words.join(" \\\n") + ':';
    for (const QString &prerequisite : prerequisites)
        text += " \\\n  " + escaped(prerequisite, Place::Prerequisite);
    return text + '\n';
}
