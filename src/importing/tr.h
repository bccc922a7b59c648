#pragma once

#include <QCoreApplication>
#include <QString>

namespace Importing {

/// Translates a text of this layer.
inline QString tr(const char *text)
{
    return QCoreApplication::translate("Importing", text);
}

} // namespace Importing
