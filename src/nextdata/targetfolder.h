#pragma once

#include "nextdata/result.h"

#include <QString>

namespace NextData {

/// The folder below which outputs are written. Names come from files that others made: nothing outside it is touched,
/// wherever its links lead.
class TargetFolder
{
public:
    /// A folder that is not there yet is made with the first file.
    explicit TargetFolder(const QString &path);

    [[nodiscard]] QString path() const { return m_path; }

    /// Where a file of that name, with "/" between its folders, is when links have been followed: two names of one
    /// file have one place. A failure when that is no file below the folder, or the name can be no file's.
    [[nodiscard]] Result<QString> placeOf(const QString &name) const;

private:
    [[nodiscard]] bool contains(const QString &place) const;

    QString m_path; ///< without links
};

} // namespace NextData
