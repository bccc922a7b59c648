#pragma once

#include "model/map.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>

class QTimer;

namespace MapEditor {

/// The clock of a map: every 20 ms it plays the placed tile animations on by stamping the frames that
/// are due into the map's object layer. Sprite animations follow from ticks().
///
/// A tile animation may be driven by one clock at a time only.
class MapAnimator : public QObject
{
    Q_OBJECT

public:
    static constexpr int Interval = 20; ///< milliseconds of a tick

    explicit MapAnimator(QObject *parent = nullptr);

    void setMap(const QPointer<Map> &map) { m_map = map; }
    /// Stopped at first.
    void setRunning(bool running);
    [[nodiscard]] bool isRunning() const;
    /// How many ticks were played.
    [[nodiscard]] quint64 ticks() const { return m_ticks; }
    /// The cells that look different since the last tick.
    [[nodiscard]] const QList<QRect> &changedAreas() const { return m_changedAreas; }

public slots:
    /// What the timer does while running.
    void tick();

signals:
    /// A tick has shown a frame, or the map has sprites, which may move.
    void framesAdvanced();

private:
    bool play(const AnimationProperties &placement);

    QPointer<Map> m_map;
    QTimer *m_timer;
    quint64 m_ticks = 0;
    QList<QRect> m_changedAreas;
};

} // namespace MapEditor
