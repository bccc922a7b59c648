#include "ui/flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent) { }

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

void FlowLayout::insertWidget(int index, QWidget *widget)
{
    addWidget(widget);
    m_items.move(m_items.size() - 1, std::clamp(qsizetype(index), qsizetype(0), m_items.size() - 1));
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, true);
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty()) {
            const QSize hint = item->sizeHint();
            width += hint.width() + (width > 0 ? spacing() : 0);
            height = std::max(height, hint.height());
        }
    }
    return QSize(width, height).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty()) {
            size = size.expandedTo(item->minimumSize());
        }
    }
    return size.grownBy(contentsMargins());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, false);
}

int FlowLayout::arrange(const QRect &rect, bool dry) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    const int gap = std::max(spacing(), 0);
    int x = area.left();
    int y = area.top();
    int rowHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty()) {
            continue;
        }
        const QSize size = item->sizeHint();
        if (rowHeight > 0 && x + size.width() > area.right() + 1) {
            x = area.left();
            y += rowHeight + gap;
            rowHeight = 0;
        }
        if (!dry) {
            item->setGeometry(QStyle::visualRect(direction, area, {QPoint(x, y), size}));
        }
        x += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - rect.top() + contentsMargins().bottom();
}
