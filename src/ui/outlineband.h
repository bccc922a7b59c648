#pragma once

#include <QBasicTimer>
#include <QRubberBand>

/// A rubber band that looks the same in every style: an outline that is seen on every ground, with nothing over
/// what it encloses. Its dashes can march, which shows it where the ground has such stripes itself.
class OutlineBand : public QRubberBand
{
    Q_OBJECT

public:
    explicit OutlineBand(QWidget *parent = nullptr);

    void setMarching(bool marching);
    /// Whether the dashes move right now, as they do while the band is on the screen.
    [[nodiscard]] bool isOnTheMarch() const { return m_timer.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool event(QEvent *event) override;

private:
    void startOrStop();

    QBasicTimer m_timer;
    int m_step = 0;
    bool m_marching = false;
};
