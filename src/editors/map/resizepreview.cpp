#include "editors/map/resizepreview.h"

#include <QPainter>

#include <algorithm>

namespace MapEditor {

namespace {

/// By how much the content moves along an axis that changes its length.
int shift(int before, int after, bool centred, bool atEnd)
{
    if (centred)
        return (after - before) / 2;
    return atEnd ? after - before : 0;
}

} // namespace

ResizePreview::ResizePreview(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(96, 96);
}

void ResizePreview::showResize(QSize before, QSize after, Qt::Alignment alignment)
{
    m_after = {QPoint(0, 0), after};
    m_before = {QPoint(shift(before.width(), after.width(), alignment.testFlag(Qt::AlignHCenter),
                             alignment.testFlag(Qt::AlignRight)),
                       shift(before.height(), after.height(), alignment.testFlag(Qt::AlignVCenter),
                             alignment.testFlag(Qt::AlignBottom))),
                before};
    update();
}

QRect ResizePreview::kept() const
{
    return (m_before & m_after).translated(-m_before.topLeft());
}

void ResizePreview::paintEvent(QPaintEvent *)
{
    const QRect all = m_before | m_after;
    if (all.isEmpty())
        return;
    constexpr qreal Margin = 2;
    const qreal scale = std::min((width() - 2 * Margin) / all.width(), (height() - 2 * Margin) / all.height());
    const QPointF origin((width() - all.width() * scale) / 2, (height() - all.height() * scale) / 2);
    const auto placed = [&](const QRect &cells) {
        return QRectF(origin + QPointF(cells.topLeft() - all.topLeft()) * scale, QSizeF(cells.size()) * scale)
            .toAlignedRect()
            .adjusted(0, 0, -1, -1);
    };

    QPainter painter(this);
    const QColor text = palette().color(QPalette::Text);
    QColor faint = text;
    faint.setAlpha(90);
    // cut off: hatched; added: empty; kept: filled
    painter.setPen(QPen(faint, 1, Qt::DotLine));
    painter.setBrush(QBrush(faint, Qt::BDiagPattern));
    painter.drawRect(placed(m_before));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().base());
    painter.drawRect(placed(m_after));
    QColor kept = palette().color(QPalette::Highlight);
    kept.setAlpha(160);
    if (m_before.intersects(m_after))
        painter.fillRect(placed(m_before & m_after), kept);
    painter.setPen(text);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(placed(m_after));
}

} // namespace MapEditor
