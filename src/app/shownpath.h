#pragma once

#include "app/platform.h"

#include <QString>

/// A path as people know it: with "~" for their home folder.
[[nodiscard]] inline QString shownPath(const QString &path)
{
    const QString home = Platform::homeFolder().path();
    const bool isInside = path == home || path.startsWith(home + u'/');
    return QDir::toNativeSeparators(isInside ? u'~' + path.mid(home.size()) : path);
}
