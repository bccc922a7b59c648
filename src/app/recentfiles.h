#pragma once

#include <QString>
#include <QStringList>

/// The projects that the File menu offers to open again, the latest first.
class RecentFiles
{
public:
    static constexpr int Limit = 10;

    [[nodiscard]] QStringList paths() const { return m_paths; }
    /// Takes a stored list as it stands; it is cut to the limit when the next path is added.
    void setPaths(const QStringList &paths) { m_paths = paths; }

    /// Puts a path in front, from wherever it stood, and drops what is beyond the limit. Paths are
    /// compared exactly, letter case included.
    void add(const QString &path);

    void clear() { m_paths.clear(); }

private:
    QStringList m_paths;
};
