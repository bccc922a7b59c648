#pragma once

#include <QAccessible>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

/// What a widget shows in rows and columns but paints as one picture, for those who do not see it: assistive technology
/// meets the widget as a table, whose cells it can ask for, and hears where the keyboard is.
///
/// It is a child of its widget, which says by a subclass what the cells are. Cells are points, the column in x and the
/// row in y. No object is kept for a cell, so a table may have any number of them.
class CellTable : public QObject
{
    Q_OBJECT

public:
    static constexpr QPoint Nowhere{-1, -1};

    explicit CellTable(QWidget *widget);

    /// The table that tells of a widget; null for one that has none.
    [[nodiscard]] static CellTable *of(const QObject *widget);

    [[nodiscard]] QWidget *widget() const;
    [[nodiscard]] bool contains(QPoint cell) const
    {
        const QSize all = size(); // which may be empty, and a rectangle of less than nothing holds points
        return cell.x() >= 0 && cell.y() >= 0 && cell.x() < all.width() && cell.y() < all.height();
    }

    /// Columns and rows; the last row may be filled in part, see exists().
    [[nodiscard]] virtual QSize size() const = 0;
    [[nodiscard]] virtual bool exists(QPoint cell) const { return contains(cell); }
    /// Where the cell is in the widget, and which is at a place of it; Nowhere for none.
    [[nodiscard]] virtual QRect area(QPoint cell) const = 0;
    [[nodiscard]] virtual QPoint cellAt(QPoint point) const = 0;
    /// Where the cell is and what it shows, in words.
    [[nodiscard]] virtual QString text(QPoint cell) const = 0;
    /// The cell that has the keyboard when the widget has it; Nowhere for none.
    [[nodiscard]] virtual QPoint current() const = 0;
    /// The selected cells; only the current one unless told otherwise.
    [[nodiscard]] virtual QRect selected() const;
    /// Whether a cell of them is selected; all are unless told otherwise.
    [[nodiscard]] virtual bool isSelected(QPoint cell) const { return selected().contains(cell); }
    /// Does what a click on the cell does.
    virtual void choose(QPoint cell) = 0;

    /// Tells that another cell is the current one.
    void tellCurrent();
    /// Tells that the current cell shows something else.
    void tellContent();
    /// Tells that other cells are selected.
    void tellSelection();

signals:
    /// Something was told about a cell.
    void told(QPoint cell);

private:
    void tell(QAccessible::Event what);
};
