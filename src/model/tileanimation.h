#pragma once

#include "model/animation.h"

class TileSet;

/// How the game moves a map object.
enum class MapObjectType : int { Normal = 0, HorizontalPlatform = 1 };

/// A rectangle of tiles with several frames that plays in place on a map.
///
/// It belongs to a block set. Made by the constructor alone it has no frame yet.
class TileAnimation : public Animation
{
    Q_OBJECT

public:
    struct State : Animation::State
    {
        int type = 0; ///< a MapObjectType

        bool operator==(const State &) const = default;
    };

    explicit TileAnimation(QObject *parent = nullptr);

    [[nodiscard]] MapObjectType type() const { return m_type; }
    /// The tile set whose tiles the cells name.
    [[nodiscard]] QPointer<TileSet> tileSet() const { return m_tileSet; }
    void setTileSet(const QPointer<TileSet> &tileSet) { m_tileSet = tileSet; }

    /// A copy without parent, named "… (Copy)", whose frames keep their ids; the caller owns it.
    [[nodiscard]] QPointer<TileAnimation> clone() const;

    /// Sets the offset of every cell to that of the tile which it names.
    void updateOffsets();

    /// Plays on: the frame to show at a tick of the map's clock, or −1 when nothing changes. Asked again
    /// for the same tick, it answers with the current frame. Only one clock may drive it.
    qint64 tick(quint64 tick);

    [[nodiscard]] State state() const;
    void restore(const State &state);

    void swapTiles(int first, int second) { swapIndexes(first, second); }

    /// The first frame centred on a dark square.
    [[nodiscard]] QImage preview(const QSize &size) const override;
    /// The first frame on a transparent picture, scaled to fit into size.
    [[nodiscard]] QImage frameImage(const QSize &size) const;

public slots:
    void setMapObjectType(MapObjectType type);

private:
    QPointer<TileSet> m_tileSet;
    MapObjectType m_type = MapObjectType::Normal;
    quint64 m_currentFrame = 0;
    quint64 m_lastTick = 0;
};
