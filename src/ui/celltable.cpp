#include "ui/celltable.h"

#include "ui/accessiblecells.h"

#include <QWidget>

CellTable::CellTable(QWidget *widget) : QObject(widget)
{
    AccessibleCells::install();
    // Whoever was told of the widget before there were cells knows it without them.
    if (QAccessibleInterface *before = QAccessible::queryAccessibleInterface(widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
}

CellTable *CellTable::of(const QObject *widget)
{
    return widget->findChild<CellTable *>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget *CellTable::widget() const
{
    return static_cast<QWidget *>(parent());
}

QRect CellTable::selected() const
{
    const QPoint cell = current();
    return exists(cell) ? QRect(cell, QSize(1, 1)) : QRect();
}

void CellTable::tell(QAccessible::Event what)
{
    const QPoint cell = current();
    if (!exists(cell))
        return;
    QAccessibleEvent event(widget(), what);
    event.setChild(AccessibleCells::indexOf(*this, cell));
    QAccessible::updateAccessibility(&event);
    emit told(cell);
}

void CellTable::tellCurrent()
{
    if (widget()->hasFocus())
        tell(QAccessible::Focus);
    tellSelection();
}

void CellTable::tellContent()
{
    tell(QAccessible::NameChanged);
}

void CellTable::tellSelection()
{
    QAccessibleEvent event(widget(), QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&event);
}
