#pragma once

#include <QColor>
#include <QPushButton>

/// A button that shows the colour it stands for as a swatch of 48×16 pixels.
class ColourButton final : public QPushButton
{
    Q_OBJECT

public:
    explicit ColourButton(const QColor &colour, QWidget *parent = nullptr);

    [[nodiscard]] QColor colour() const { return m_colour; }
    /// An invalid colour is kept and shown as an empty swatch.
    void setColour(const QColor &colour);

private:
    QColor m_colour;
};
