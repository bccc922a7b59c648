#include "model/mapobjects.h"

#include "model/tileset.h"

MapObjects::MapObjects(QObject *parent) : QObject(parent), m_name(tr("Empty")) { }

MapObjects::~MapObjects()
{
    if (m_tileSet)
        m_tileSet->unregisterBlocks(m_id);
}

void MapObjects::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(name);
}

void MapObjects::setTileSet(QPointer<TileSet> tiles)
{
    if (m_tileSet) {
        m_tileSet->disconnect(this);
        m_tileSet->unregisterBlocks(m_id);
    }
    m_tileSet = tiles;
    if (!m_tileSet)
        return;
    m_tileSet->registerBlocks(this);
    connect(m_tileSet.data(), &TileSet::tileSwapped, this, &MapObjects::swapTiles);
    connect(m_tileSet.data(), &TileSet::tileDeleted, this, [this](int index) {
        for (const QPointer<TileAnimation> &animation : animations())
            animation->indexDeleted(index);
    });
    connect(m_tileSet.data(), &TileSet::tileInserted, this, [this](int index) {
        for (const QPointer<TileAnimation> &animation : animations())
            animation->indexInserted(index);
    });
}

void MapObjects::swapTiles(int first, int second)
{
    for (const QPointer<TileAnimation> &animation : animations())
        animation->swapTiles(first, second);
}

QPointer<TileAnimation> MapObjects::createTileAnimation(const QString &name)
{
    auto *animation = new TileAnimation(this);
    animation->setName(name);
    return add(animation);
}

QPointer<TileAnimation> MapObjects::createBoundTileAnimation(const QString &name)
{
    return createTileAnimation(QUuid::createUuid(), name);
}

QPointer<TileAnimation> MapObjects::createTileAnimation(const QUuid &id, const QString &name)
{
    delete m_animations.find(id).data();
    auto *animation = new TileAnimation(this);
    animation->setId(id);
    animation->setName(name);
    animation->setTileSet(m_tileSet);
    return add(animation);
}

QPointer<TileAnimation> MapObjects::cloneAnimation(const QUuid &id)
{
    const QPointer<TileAnimation> source = animation(id);
    if (!source)
        return nullptr;
    const QPointer<TileAnimation> copy = source->clone();
    copy->setParent(this);
    return add(copy);
}

QPointer<TileAnimation> MapObjects::add(TileAnimation *animation)
{
    m_animations.insert(animation);
    emit animationsChanged();
    return animation;
}

void MapObjects::removeAnimation(const QUuid &id)
{
    const QPointer<TileAnimation> animation = m_animations.take(id);
    if (!animation)
        return;
    delete animation.data();
    emit animationsChanged();
}
