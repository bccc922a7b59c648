#pragma once

#include <QByteArray>
#include <QStringList>

/// Rules that tell make and ninja which files are made of which.
namespace Depfile {

/// "targets: prerequisites", in the words that both understand.
[[nodiscard]] QByteArray rule(const QStringList &targets, const QStringList &prerequisites);

/// Whether both can be told of a file of that name.
[[nodiscard]] bool canName(const QString &path);

} // namespace Depfile
