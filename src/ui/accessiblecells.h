#pragma once

#include "ui/celltable.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QList>
#include <QPointer>

/// A widget with a CellTable, as assistive technology sees it: a table whose cells are made when they are asked for.
/// Of those, only the ones that were asked for last are kept.
class AccessibleCells final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    /// Lets widgets with a CellTable be met as tables from now on.
    static void install();
    /// The place of a cell among the children of its table.
    [[nodiscard]] static int indexOf(const CellTable &table, QPoint cell);

    explicit AccessibleCells(CellTable *table);
    ~AccessibleCells() override;

    QAccessible::State state() const override;
    /// The value is what the current cell shows.
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    /// No more than a screen reader can make use of.
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int columnCount() const override;
    int rowCount() const override;
    int selectedColumnCount() const override { return int(selectedColumns().size()); }
    int selectedRowCount() const override { return int(selectedRows().size()); }
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    // Cells are selected with the keyboard.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override { }

private:
    /// The interface of a cell; null for a cell that does not exist.
    QAccessibleInterface *cell(QPoint cell) const;

    QPointer<CellTable> m_table;
    mutable QHash<QPoint, QAccessible::Id> m_ids; ///< of the cells that were asked for last
    mutable QList<QPoint> m_asked; ///< the same cells, in the order of asking
};
