#pragma once

#include "nextdata/reciperun.h"

#include <QString>

/// What exporting a project did, for the person who wanted it.
class ExportReport
{
public:
    /// Fewer outcomes than outputs when it was stopped.
    ExportReport(const NextData::Recipe &recipe, const QList<NextData::RecipeRun::Outcome> &outcomes,
                 const QString &folder);

    /// "Exported 3 files (12,288 bytes), 9 unchanged, to …"
    [[nodiscard]] QString text() const;
    /// File and reason of what could not be written, a line each; empty when all could.
    [[nodiscard]] QString failures() const;

private:
    QString m_folder;
    int m_written = 0;
    int m_unchanged = 0;
    qint64 m_bytes = 0; ///< that were written
    bool m_stopped;
    QStringList m_failures;
};
