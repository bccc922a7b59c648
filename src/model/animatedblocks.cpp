#include "model/animatedblocks.h"

#include <algorithm>

AnimationProperties::AnimationProperties(QObject *parent) : QObject(parent) { }

AnimationProperties::AnimationProperties(const State &state, QObject *parent) : QObject(parent), m_state(state) { }

AnimatedBlocks::AnimatedBlocks(QObject *parent) : QObject(parent) { }

void AnimatedBlocks::add(const QRect &area, const QUuid &animationId)
{
    append(new AnimationProperties({animationId, area}, this));
}

void AnimatedBlocks::append(AnimationProperties *properties)
{
    if (!properties)
        return;
    properties->setParent(this);
    m_list.append(properties);
}

QHash<QRect, QUuid> AnimatedBlocks::areas() const
{
    QHash<QRect, QUuid> areas;
    for (const QPointer<AnimationProperties> &properties : m_list) {
        if (properties && !areas.contains(properties->area()))
            areas.insert(properties->area(), properties->animationId());
    }
    return areas;
}

QRect AnimatedBlocks::areaAt(const QPoint &cell) const
{
    const auto found = std::find_if(m_list.cbegin(), m_list.cend(), [&cell](const auto &properties) {
        return properties && properties->area().contains(cell);
    });
    return found == m_list.cend() ? QRect() : (*found)->area();
}

QUuid AnimatedBlocks::animationIdAt(const QRect &area) const
{
    const auto found = std::find_if(m_list.cbegin(), m_list.cend(), [&area](const auto &properties) {
        return properties && properties->area() == area;
    });
    return found == m_list.cend() ? QUuid() : (*found)->animationId();
}

bool AnimatedBlocks::remove(const QRect &area)
{
    return m_list.removeIf([&area](const QPointer<AnimationProperties> &properties) {
        if (!properties || properties->area() != area)
            return false;
        delete properties.data();
        return true;
    }) > 0;
}

AnimatedBlocks::State AnimatedBlocks::state() const
{
    State placements;
    placements.reserve(m_list.size());
    for (const QPointer<AnimationProperties> &properties : m_list) {
        if (properties)
            placements.append(properties->state());
    }
    return placements;
}

void AnimatedBlocks::restore(const State &state)
{
    m_list.removeAll(nullptr);
    while (m_list.size() > state.size())
        delete m_list.takeLast().data();
    for (qsizetype i = 0; i < state.size(); ++i) {
        if (i < m_list.size())
            m_list.at(i)->setState(state.at(i));
        else
            append(new AnimationProperties(state.at(i), this));
    }
}
