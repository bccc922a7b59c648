#include "ui/keymark.h"

#include <QPainter>

namespace {

constexpr int Thickness = 4;

} // namespace

KeyMark::KeyMark(QWidget *widget) : QWidget(widget)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void KeyMark::showAround(const QRect &place)
{
    setGeometry(place.adjusted(-Thickness, -Thickness, Thickness, Thickness) & parentWidget()->rect());
    raise();
    show();
}

void KeyMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const auto frame = [&](int inset, int width, QColor colour) {
        const QRect outer = rect().adjusted(inset, inset, -inset, -inset);
        const QRegion ring = QRegion(outer) - outer.adjusted(width, width, -width, -width);
        for (const QRect &side : ring)
            painter.fillRect(side, colour);
    };
    frame(0, 1, Qt::black);
    frame(1, 2, Qt::white);
    frame(3, 1, Qt::black);
}
