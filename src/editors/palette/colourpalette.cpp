#include "editors/palette/colourpalette.h"

#include "ui/gridkeys.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int FewColumns = 16;
constexpr int ManyColumns = 32;
constexpr int LeastCell = 8;
constexpr int UsualCell = 12;
constexpr int LargestCell = 16;

} // namespace

ColourPalette::ColourPalette(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Colours"));
    // A click leaves the keyboard with the canvas.
    setFocusPolicy(Qt::TabFocus);
}

int ColourPalette::columns(int width) const
{
    return m_count >= Palette::Size && width >= ManyColumns * LeastCell ? ManyColumns : FewColumns;
}

int ColourPalette::cell(int width) const
{
    return qBound(LeastCell, width / columns(width), LargestCell);
}

int ColourPalette::heightForWidth(int width) const
{
    return cell(width) * (m_count / columns(width));
}

QSize ColourPalette::sizeHint() const
{
    const int width = ManyColumns * UsualCell;
    return {width, heightForWidth(width)};
}

QSize ColourPalette::minimumSizeHint() const
{
    return {FewColumns * LeastCell, cell(width()) * (m_count / columns(width()))};
}

void ColourPalette::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette) {
        connect(m_palette, &Palette::colourChanged, this, qOverload<>(&QWidget::update));
        connect(m_palette, &QObject::destroyed, this, qOverload<>(&QWidget::update));
    }
    update();
}

void ColourPalette::setRange(int offset, int count)
{
    m_offset = qBound(0, offset, Palette::Size - count);
    m_count = count;
    updateGeometry();
    update();
}

void ColourPalette::setPrimaryIndex(int index)
{
    m_primary = index;
    update();
}

void ColourPalette::setSecondaryIndex(int index)
{
    m_secondary = index;
    update();
}

int ColourPalette::indexAt(QPoint point) const
{
    const int across = columns(width());
    const int column = point.x() / cell(width());
    const int row = point.y() / cell(width());
    if (point.x() < 0 || point.y() < 0 || column >= across || row >= m_count / across)
        return -1;
    return m_offset + row * across + column;
}

void ColourPalette::mousePressEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index < 0)
        return;
    if (event->button() == Qt::LeftButton)
        choosePrimary(index);
    else if (event->button() == Qt::RightButton)
        chooseSecondary(index);
}

void ColourPalette::choosePrimary(int index)
{
    setPrimaryIndex(index);
    emit primaryIndexChanged(index);
}

void ColourPalette::chooseSecondary(int index)
{
    setSecondaryIndex(index);
    emit secondaryIndexChanged(index);
}

void ColourPalette::keyPressEvent(QKeyEvent *event)
{
    const int step = GridKeys::step(event->key(), columns(width()));
    if (step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool secondary = event->modifiers() & Qt::ShiftModifier;
    const int moved = (secondary ? m_secondary : m_primary) + step;
    if (moved < m_offset || moved >= m_offset + m_count)
        return;
    if (secondary)
        chooseSecondary(moved);
    else
        choosePrimary(moved);
}

void ColourPalette::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index >= 0)
        emit doubleClicked(index);
}

bool ColourPalette::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int index = indexAt(help->pos());
    if (index >= 0)
        QToolTip::showText(help->globalPos(), tr("Index: %1").arg(index), this);
    else
        QToolTip::hideText();
    return true;
}

void ColourPalette::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int side = cell(width());
    const int across = columns(width());
    for (int i = 0; i < m_count; ++i) {
        const int index = m_offset + i;
        const QRect rect(i % across * side, i / across * side, side - 1, side - 1);
        QColor colour = m_palette ? m_palette->colour(index) : QColor(Qt::black);
        colour.setAlpha(255);
        painter.fillRect(rect, colour);
        if (index != m_primary && index != m_secondary)
            continue;
        // A black frame inside a white one reads on any colour; the secondary colour's is dotted.
        painter.setPen(QPen(Qt::white, 1, index == m_primary ? Qt::SolidLine : Qt::DotLine));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
        painter.setPen(Qt::black);
        painter.drawRect(rect.adjusted(1, 1, -2, -2));
    }
    if (hasFocus()) {
        painter.setPen(QWidget::palette().color(QPalette::Highlight));
        painter.drawRect(0, 0, across * side - 1, m_count / across * side - 1);
    }
}
