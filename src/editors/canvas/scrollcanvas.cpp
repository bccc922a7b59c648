#include "editors/canvas/scrollcanvas.h"

#include "editors/canvas/canvas.h"

#include <QGridLayout>
#include <QScrollBar>

namespace {

void setAmount(QScrollBar *bar, int amount)
{
    bar->setRange(0, amount);
    bar->setVisible(amount >= 1);
}

} // namespace

ScrollCanvas::ScrollCanvas(Canvas *canvas, QWidget *parent)
    : QWidget(parent)
    , m_canvas(canvas)
    , m_vertical(new QScrollBar(Qt::Vertical, this))
    , m_horizontal(new QScrollBar(Qt::Horizontal, this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_canvas, 0, 0);
    layout->addWidget(m_vertical, 0, 1);
    layout->addWidget(m_horizontal, 1, 0);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    setFocusProxy(m_canvas);

    connect(m_canvas, &Canvas::scrollValuesChanged, this, &ScrollCanvas::updateScrollAmounts);
    connect(m_canvas, &Canvas::scrollPositionChanged, this, &ScrollCanvas::updateScrollBars);
    // The canvas's slots are named after the bar that they serve the other way round.
    connect(m_vertical, &QScrollBar::valueChanged, m_canvas, &Canvas::setHorizontalPosition);
    connect(m_horizontal, &QScrollBar::valueChanged, m_canvas, &Canvas::setVerticalPosition);
}

void ScrollCanvas::updateScrollAmounts(int horizontal, int vertical)
{
    setAmount(m_horizontal, horizontal);
    setAmount(m_vertical, vertical);
}

void ScrollCanvas::updateScrollBars(QPoint pos)
{
    m_vertical->setValue(pos.y());
    m_horizontal->setValue(pos.x());
}
