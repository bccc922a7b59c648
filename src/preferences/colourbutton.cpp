#include "preferences/colourbutton.h"

#include <QIcon>
#include <QPixmap>

namespace {

constexpr QSize SwatchSize{48, 16};

} // namespace

ColourButton::ColourButton(const QColor &colour, QWidget *parent) : QPushButton(parent)
{
    setIconSize(SwatchSize);
    setColour(colour);
}

void ColourButton::setColour(const QColor &colour)
{
    m_colour = colour;
    QPixmap swatch(SwatchSize);
    swatch.fill(colour.isValid() ? colour : QColor(Qt::transparent));
    setIcon(swatch);
}
