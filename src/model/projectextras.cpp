#include "model/projectextras.h"

#include <utility>

void ProjectExtras::setSection(const QString &name, const QJsonValue &content)
{
    if (m_sections.value(name) == content)
        return;
    if (content.isUndefined())
        m_sections.remove(name);
    else
        m_sections.insert(name, content);
    m_changed.insert(name);
    emit sectionChanged(name);
}

void ProjectExtras::setSections(const QJsonObject &sections)
{
    m_changed.clear();
    const QJsonObject before = std::exchange(m_sections, sections);
    QStringList names = before.keys();
    for (const QString &name : sections.keys()) {
        if (!before.contains(name))
            names.append(name);
    }
    for (const QString &name : std::as_const(names)) {
        if (before.value(name) != sections.value(name))
            emit sectionChanged(name);
    }
}
