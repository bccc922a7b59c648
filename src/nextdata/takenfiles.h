#pragma once

#include "nextdata/recipe.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace NextData {

/// The files that outputs have, and names for those that are still to get one.
class TakenFiles
{
public:
    explicit TakenFiles(const QList<RecipeOutput> &outputs = {});

    void add(const QString &file) { m_files.insert(file.toCaseFolded()); }
    [[nodiscard]] bool contains(const QString &file) const { return m_files.contains(file.toCaseFolded()); }

    /// Takes the file, or the first one after it that is free: level.map, level_2.map, level_3.map, …
    [[nodiscard]] QString claim(const QString &file);

private:
    QSet<QString> m_files; ///< in one case: some systems have only that
    QHash<QString, int> m_lastNumber; ///< that was added to a file's name without one
};

} // namespace NextData
