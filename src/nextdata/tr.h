#pragma once

#include <QCoreApplication>
#include <QString>

namespace NextData {

/// Translates a text of this layer.
inline QString tr(const char *text)
{
    return QCoreApplication::translate("NextData", text);
}

} // namespace NextData
