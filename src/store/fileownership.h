#pragma once

#include <QString>

/// Who may do what with a file that takes the place of another one.
namespace FileOwnership {

/// Makes an empty file with the permissions and, as far as this user may, the group and owner of another file. Where
/// the group cannot be kept, it gets no more than everybody has. False when the file cannot be made.
bool createLike(const QString &fileName, const QString &other);

} // namespace FileOwnership
