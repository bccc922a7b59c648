#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QUuid>

/// One tile animation placed on a map.
class AnimationProperties : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        QUuid animationId; ///< the tile animation
        QRect area; ///< where on the map, in cells
        int initialDelay = 0; ///< ticks of 20 ms, as all delays
        int repeatDelay = 0;
        int startFrame = 0;

        bool operator==(const State &) const = default;
    };

    explicit AnimationProperties(QObject *parent = nullptr);
    explicit AnimationProperties(const State &state, QObject *parent = nullptr);

    [[nodiscard]] QUuid animationId() const { return m_state.animationId; }
    void setAnimationId(const QUuid &id) { m_state.animationId = id; }
    [[nodiscard]] QRect area() const { return m_state.area; }
    void setArea(const QRect &area) { m_state.area = area; }
    [[nodiscard]] int initialDelay() const { return m_state.initialDelay; }
    void setInitialDelay(int delay) { m_state.initialDelay = delay; }
    [[nodiscard]] int repeatDelay() const { return m_state.repeatDelay; }
    void setRepeatDelay(int delay) { m_state.repeatDelay = delay; }
    [[nodiscard]] int startFrame() const { return m_state.startFrame; }
    void setStartFrame(int frame) { m_state.startFrame = frame; }

    [[nodiscard]] const State &state() const { return m_state; }
    void setState(const State &state) { m_state = state; }

private:
    State m_state;
};

/// The tile animations placed on one map, in the order in which they were placed.
///
/// There are few of them and they are asked for at every tick and paint: loops run over list(), which
/// builds nothing.
class AnimatedBlocks : public QObject
{
    Q_OBJECT

public:
    /// The placements as values, in order.
    using State = QList<AnimationProperties::State>;

    explicit AnimatedBlocks(QObject *parent = nullptr);

    [[nodiscard]] const QList<QPointer<AnimationProperties>> &list() const { return m_list; }

    void add(const QRect &area, const QUuid &animationId);
    /// Takes ownership; null is ignored.
    void append(AnimationProperties *properties);

    /// The animation id of every area; of several placements on the same area the first counts.
    [[nodiscard]] QHash<QRect, QUuid> areas() const;
    /// The area of the first placement that contains the cell; null if there is none.
    [[nodiscard]] QRect areaAt(const QPoint &cell) const;
    /// The animation id of the first placement on exactly this area; null if there is none.
    [[nodiscard]] QUuid animationIdAt(const QRect &area) const;
    /// Destroys every placement on exactly this area; false if there was none.
    bool remove(const QRect &area);

    [[nodiscard]] State state() const;
    /// Puts placements back; the ones that exist are given the stored values in order.
    void restore(const State &state);

private:
    QList<QPointer<AnimationProperties>> m_list;
};
