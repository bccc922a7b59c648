#pragma once

#include <QColor>
#include <QWidget>

#include <array>

class ChannelSlider;
class QSpinBox;

/// Edits a colour as the three levels of 0–7 that the hardware has for each channel.
class RgbEditor : public QWidget
{
    Q_OBJECT

public:
    explicit RgbEditor(QWidget *parent = nullptr);

    QColor colour() const { return m_colour; }
    /// Shows a colour without a signal. The colour is kept as it is until a slider is moved.
    void setColour(const QColor &colour);

public slots:
    /// Takes the colour from the sliders and announces it.
    void sliderValuesChanged();

signals:
    void colourChanged(QColor colour);

private:
    struct Row
    {
        ChannelSlider *slider;
        QSpinBox *number;
    };

    void showGradients();

    std::array<Row, 3> m_rows{};
    QColor m_colour = Qt::black;
};
