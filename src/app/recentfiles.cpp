#include "app/recentfiles.h"

void RecentFiles::add(const QString &path)
{
    m_paths.removeOne(path);
    m_paths.prepend(path);
    if (m_paths.size() > Limit)
        m_paths.resize(Limit);
}
