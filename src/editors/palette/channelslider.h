#pragma once

#include <QSlider>

/// Slider of one colour channel, whose groove shows what the colour becomes along the way.
class ChannelSlider : public QSlider
{
    Q_OBJECT

public:
    /// accent is the colour of the handle's mark.
    explicit ChannelSlider(const QColor &accent, QWidget *parent = nullptr);

    /// The colours at the ends of the groove.
    void setGradient(const QColor &start, const QColor &end);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect handleRect() const;

    QColor m_accent;
    QColor m_start = Qt::black;
    QColor m_end = Qt::white;
};
