#include "editors/map/mapanimator.h"

#include "model/mapobjects.h"
#include "model/tileset.h"

#include <QTimer>

namespace MapEditor {

MapAnimator::MapAnimator(QObject *parent) : QObject(parent), m_timer(new QTimer(this))
{
    m_timer->setInterval(Interval);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, &MapAnimator::tick);
}

void MapAnimator::setRunning(bool running)
{
    if (running == isRunning())
        return;
    if (running)
        m_timer->start();
    else
        m_timer->stop();
}

bool MapAnimator::isRunning() const
{
    return m_timer->isActive();
}

void MapAnimator::tick()
{
    if (!m_map)
        return;
    m_changedAreas.clear();
    bool changed = false;
    for (const QPointer<AnimationProperties> &placement : m_map->animatedBlocks()->list()) {
        if (placement && play(*placement))
            changed = true;
    }
    ++m_ticks;
    if (changed || !m_map->sprites().isEmpty())
        emit framesAdvanced();
}

/// Whether a frame of the placed animation was due.
bool MapAnimator::play(const AnimationProperties &placement)
{
    const QPointer<TileSet> tileSet = m_map->tileSet();
    if (!tileSet)
        return false;
    bool due = false;
    const QHash<QUuid, QPointer<MapObjects>> blockSets = tileSet->blockSets();
    for (const QPointer<MapObjects> &blocks : blockSets) {
        const QPointer<TileAnimation> animation = blocks ? blocks->animation(placement.animationId()) : nullptr;
        const qint64 frame = animation ? animation->tick(m_ticks) : -1;
        if (frame < 0)
            continue;
        due = true;
        // frames of an animation often have cells in common, or all of them
        if (m_map->stampFrame(*animation, int(frame), placement.area()))
            m_changedAreas.append(placement.area());
    }
    return due;
}

} // namespace MapEditor
