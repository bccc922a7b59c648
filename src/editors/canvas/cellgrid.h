#pragma once

#include <QImage>
#include <QMimeData>
#include <QWidget>

#include <algorithm>
#include <utility>

class QMenu;
class WidgetCells;

/// The elements of an asset (tiles, sprites) in square cells that fill the widget's width row by row.
///
/// One element is selected, by mouse or keyboard; an element dragged onto another asks for a move, or
/// with Shift for a copy, and so does Alt with an arrow key for the selected one. What an element looks like, and what
/// becomes of a click, a drop and the context menu, a subclass says.
class CellGrid : public QWidget
{
    Q_OBJECT

public:
    /// The selected element, -1 when there is none.
    int selectedIndex() const { return m_selected; }
    QMenu *contextMenu() const { return m_menu; }

    /// The cell under a point, -1 when there is none.
    int indexAt(QPoint point) const;
    QRect cellRect(int index) const;

    bool hasHeightForWidth() const override { return true; }

public slots:
    /// Selects without a signal; an index beyond the last element clears the selection.
    void setSelectedIndex(int index);

protected:
    /// Elements are dragged within the grid as data of this type.
    CellGrid(const QString &mimeType, const QString &menuTitle, QWidget *parent);

    virtual int count() const = 0;
    /// The cells that can be hit: the elements, and what may follow them.
    virtual int cellCount() const { return count(); }
    /// Side of a cell in screen pixels.
    virtual int cell() const = 0;
    /// Left of the first column.
    virtual int margin() const { return 0; }
    virtual QImage picture(int index) const = 0;
    /// What a dragged element carries; the drag owns it.
    virtual QMimeData *dragData(int index) const = 0;
    virtual QString toolTipOf(int) const { return {}; }
    /// What a cell is, for those who do not see it.
    virtual QString textOf(int index) const = 0;
    /// The left button was released over a cell, or over none (-1).
    virtual void clicked(int index) = 0;
    /// The user has chosen an element with the keyboard.
    virtual void choose(int index) = 0;
    /// The menu was asked for at a cell, or at none (-1).
    virtual void openMenu(int index, QPoint globalPosition) = 0;
    virtual void copyElement(int source, int target) = 0;
    virtual void moveElement(int source, int target) = 0;

    int columns(int width) const { return std::max(1, width / cell()); }
    /// Height of the rows of all elements, of which there is always one more than full ones.
    int rowsHeight(int width) const { return (count() / columns(width) + 1) * cell(); }
    /// The element under the point of the last press, -1 for none.
    int pressedIndex() const { return elementAt(m_pressPoint); }
    int hoveredIndex() const { return m_hovered; }
    /// The element onto which a drag would fall, -1 for none.
    int dropTarget() const { return m_dropTarget; }
    /// The first cell of the rows that an area touches, and the one behind their last.
    std::pair<int, int> cellsIn(const QRect &area) const;

    /// Starts anew with other elements, of which one (or none, -1) is selected.
    void reset(int selected);
    /// Follows a change of the number of elements.
    void refresh();
    void select(int index);

    /// Marks the cell under the pointer.
    static void paintHovered(QPainter &painter, const QRect &frame);
    /// A solid black frame with white dots on it, which reads on any picture.
    static void paintDotted(QPainter &painter, const QRect &frame, int dotWidth);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    int elementAt(QPoint point) const;
    void tellCells();
    /// Moves or copies the selected element.
    void carry(int target, bool copies);
    void setDropTarget(int index);
    void startDrag(int index);

    /// The element that a drag which is dropped here was started with, -1 when it came from somewhere else.
    int sourceOf(const QDropEvent &drop) const;

    const QString m_mimeType;
    QMenu *const m_menu;
    WidgetCells *m_cells = nullptr;
    int m_selected = -1;
    int m_hovered = -1;
    int m_dropTarget = -1;
    QPoint m_pressPoint{-1, -1};
    /// The button is down since the press, or what was dragged then has not been let go of yet.
    bool m_pressed = false;
};
