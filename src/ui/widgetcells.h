#pragma once

#include "ui/celltable.h"

#include <functional>

/// The cells of a widget that is asked by functions; for widgets that move a selection through their cells themselves,
/// and say when they did.
class WidgetCells final : public CellTable
{
    Q_OBJECT

public:
    struct Source
    {
        std::function<QSize()> size;
        std::function<bool(QPoint)> exists; ///< none where all do
        std::function<QRect(QPoint)> area;
        std::function<QPoint(QPoint)> at;
        std::function<QString(QPoint)> text;
        std::function<QPoint()> current;
        std::function<void(QPoint)> choose;
        std::function<QRect()> selected; ///< none where only the current cell is
    };

    WidgetCells(QWidget *widget, const Source &source) : CellTable(widget), m_source(source) { }

    [[nodiscard]] QSize size() const override { return m_source.size(); }
    [[nodiscard]] bool exists(QPoint cell) const override
    {
        return contains(cell) && (!m_source.exists || m_source.exists(cell));
    }
    [[nodiscard]] QRect area(QPoint cell) const override { return m_source.area(cell); }
    [[nodiscard]] QPoint cellAt(QPoint point) const override { return m_source.at(point); }
    [[nodiscard]] QString text(QPoint cell) const override { return m_source.text(cell); }
    [[nodiscard]] QPoint current() const override { return m_source.current(); }
    [[nodiscard]] QRect selected() const override
    {
        return m_source.selected ? m_source.selected() : CellTable::selected();
    }
    void choose(QPoint cell) override { m_source.choose(cell); }

    /// The cell of an index in a grid that is read row by row; Nowhere for a negative index.
    [[nodiscard]] static QPoint cellOf(int index, int columns)
    {
        return index < 0 ? Nowhere : QPoint(index % columns, index / columns);
    }
    [[nodiscard]] static int indexOf(QPoint cell, int columns) { return cell.y() * columns + cell.x(); }

private:
    const Source m_source;
};
