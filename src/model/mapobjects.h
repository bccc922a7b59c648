#pragma once

#include "model/assetregistry.h"
#include "model/tileanimation.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

class TileSet;

/// A block set: the tile animations that are made of the tiles of one tile set.
///
/// The animations are its children. It keeps their cells on the same tiles when tiles of the set move.
class MapObjects : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/tileset.h")

public:
    explicit MapObjects(QObject *parent = nullptr);
    ~MapObjects() override;

    [[nodiscard]] QUuid id() const { return m_id; }
    /// To be set before a tile set is bound, which keeps the block set under this id.
    void setId(const QUuid &id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QPointer<TileSet> tileSet() const { return m_tileSet; }

    /// In the order in which they were added.
    [[nodiscard]] QList<QPointer<TileAnimation>> animations() const { return m_animations.all(); }
    /// The animation of that id, or null.
    [[nodiscard]] QPointer<TileAnimation> animation(const QUuid &id) const { return m_animations.find(id); }
    [[nodiscard]] bool contains(const QUuid &id) const { return !animation(id).isNull(); }

    /// A new animation bound to the tile set.
    QPointer<TileAnimation> createBoundTileAnimation(const QString &name);
    /// The same with a given id; an animation that has this id already is destroyed.
    QPointer<TileAnimation> createTileAnimation(const QUuid &id, const QString &name);
    /// Null for an unknown id.
    QPointer<TileAnimation> cloneAnimation(const QUuid &id);
    /// Destroys the animation; an unknown id is ignored.
    void removeAnimation(const QUuid &id);

signals:
    void nameChanged(const QString &name);
    /// An animation was added or removed.
    void animationsChanged();

public slots:
    /// A new animation without a tile set.
    QPointer<TileAnimation> createTileAnimation(const QString &name);
    void setName(const QString &name);
    /// Binds the tile set (or none). Animations that exist already keep theirs.
    void setTileSet(QPointer<TileSet> tiles);

private slots:
    void swapTiles(int first, int second);

private:
    QPointer<TileAnimation> add(TileAnimation *animation);

    QUuid m_id = QUuid::createUuid();
    QString m_name;
    QPointer<TileSet> m_tileSet;
    AssetRegistry<TileAnimation> m_animations;
};
