#include "model/map.h"

void Map::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(name);
}
