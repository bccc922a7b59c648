#pragma once

#include <QByteArray>
#include <QString>

/// Files that are there with all their bytes or not at all, and keep their time of change while their bytes are the
/// same: what build tools ask of those who write their inputs.
namespace NextData::WholeFile {

enum class State { New, Changed, Unchanged };

/// What writing these bytes would make of a file.
[[nodiscard]] State stateOf(const QString &path, const QByteArray &bytes);

/// Writes the bytes beside the file, makes its folder where there is none, and gives them its name once they are
/// complete. The reason why not, or empty. What is there and no file, or kept from being written, stays.
[[nodiscard]] QString write(const QString &path, const QByteArray &bytes);

} // namespace NextData::WholeFile
