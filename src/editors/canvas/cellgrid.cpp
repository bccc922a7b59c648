#include "editors/canvas/cellgrid.h"

#include "ui/gridkeys.h"
#include "ui/reveal.h"
#include "ui/widgetcells.h"

#include <QApplication>
#include <QDrag>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

CellGrid::CellGrid(const QString &mimeType, const QString &menuTitle, QWidget *parent)
    : QWidget(parent)
    , m_mimeType(mimeType)
    , m_menu(new QMenu(menuTitle, this))
{
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    tellCells();
}

void CellGrid::tellCells()
{
    const auto across = [this] { return columns(width()); };
    const auto index = [across](QPoint cell) { return WidgetCells::indexOf(cell, across()); };
    m_cells =
        new WidgetCells(this,
                        {.size = [this, across] { return QSize(across(), (cellCount() + across() - 1) / across()); },
                         .exists = [this, index](QPoint cell) { return index(cell) < cellCount(); },
                         .area = [this, index](QPoint cell) { return cellRect(index(cell)); },
                         .at = [this, across](QPoint point) { return WidgetCells::cellOf(indexAt(point), across()); },
                         .text = [this, index](QPoint cell) { return textOf(index(cell)); },
                         .current = [this, across] { return WidgetCells::cellOf(m_selected, across()); },
                         .choose = [this, index](QPoint cell) { clicked(index(cell)); },
                         .selected = {}});
}

void CellGrid::reset(int selected)
{
    m_hovered = m_dropTarget = -1;
    m_pressPoint = {-1, -1};
    m_pressed = false;
    m_selected = selected;
    refresh();
}

void CellGrid::refresh()
{
    m_selected = std::min(m_selected, count() - 1);
    if (m_hovered >= cellCount())
        m_hovered = -1;
    updateGeometry();
    update();
}

void CellGrid::setSelectedIndex(int index)
{
    select(index < count() ? index : -1);
}

void CellGrid::select(int index)
{
    m_selected = index;
    update();
    m_cells->tellCurrent();
}

// ---- Layout ---------------------------------------------------------------------------------

int CellGrid::indexAt(QPoint point) const
{
    if (point.x() < margin() || point.y() < 0)
        return -1;
    const int column = (point.x() - margin()) / cell();
    if (column >= columns(width()))
        return -1;
    const int index = point.y() / cell() * columns(width()) + column;
    return index < cellCount() ? index : -1;
}

int CellGrid::elementAt(QPoint point) const
{
    const int index = indexAt(point);
    return index < count() ? index : -1;
}

QRect CellGrid::cellRect(int index) const
{
    const int across = columns(width());
    return {margin() + index % across * cell(), index / across * cell(), cell(), cell()};
}

std::pair<int, int> CellGrid::cellsIn(const QRect &area) const
{
    const int across = columns(width());
    return {area.top() / cell() * across, std::min((area.bottom() / cell() + 1) * across, cellCount())};
}

// ---- Painting -------------------------------------------------------------------------------

void CellGrid::paintHovered(QPainter &painter, const QRect &frame)
{
    painter.fillRect(frame, QColor(160, 160, 255, 80));
    painter.setPen(QColor(160, 160, 255, 128));
    painter.drawRect(frame);
}

void CellGrid::paintDotted(QPainter &painter, const QRect &frame, int dotWidth)
{
    painter.setPen(Qt::black);
    painter.drawRect(frame);
    QPen dotted(Qt::white, dotWidth, Qt::DotLine);
    dotted.setCosmetic(true);
    painter.setPen(dotted);
    painter.drawRect(frame);
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

void CellGrid::mousePressEvent(QMouseEvent *event)
{
    m_pressPoint = event->position().toPoint();
    m_pressed = true;
}

void CellGrid::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const bool dragged = (event->buttons() & Qt::LeftButton) && pressedIndex() >= 0
        && (point - m_pressPoint).manhattanLength() >= QApplication::startDragDistance();
    const int index = dragged ? -1 : indexAt(point);
    setToolTip(index < 0 ? QString() : toolTipOf(index));
    if (index != m_hovered) {
        m_hovered = index;
        update();
    }
    if (dragged)
        startDrag(pressedIndex());
}

void CellGrid::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressed = false;
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton)
        clicked(index);
    else if (event->button() == Qt::RightButton)
        openMenu(index, event->globalPosition().toPoint());
}

void CellGrid::leaveEvent(QEvent *event)
{
    m_hovered = -1;
    update();
    QWidget::leaveEvent(event);
}

void CellGrid::keyPressEvent(QKeyEvent *event)
{
    const int from = std::max(m_selected, 0);
    const int step = GridKeys::step(event->key(), columns(width()));
    const int leap = GridKeys::leap(event->key(), columns(width()), from, count());
    if (step == 0 && leap == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int moved = from + step + leap;
    if (moved < 0 || moved >= count())
        return;
    if (event->modifiers() & Qt::AltModifier)
        carry(moved, event->modifiers() & Qt::ShiftModifier);
    choose(moved);
    reveal(this, cellRect(moved));
}

void CellGrid::carry(int target, bool copies)
{
    if (m_selected < 0)
        return;
    if (copies)
        copyElement(m_selected, target);
    else
        moveElement(m_selected, target);
}

void CellGrid::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard || m_selected < 0) {
        event->ignore();
        return;
    }
    m_pressPoint = cellRect(m_selected).center();
    openMenu(m_selected, mapToGlobal(m_pressPoint));
}

// ---- Drag and drop --------------------------------------------------------------------------

void CellGrid::startDrag(int index)
{
    auto *drag = new QDrag(this);
    drag->setMimeData(dragData(index));
    drag->setPixmap(QPixmap::fromImage(picture(index).scaled(cell(), cell())));
    const QPointer guard(this); // anything can happen while it is being dragged
    drag->exec(Qt::MoveAction);
    if (guard)
        m_pressed = false;
}

void CellGrid::setDropTarget(int index)
{
    if (index == m_dropTarget)
        return;
    m_dropTarget = index;
    update();
}

void CellGrid::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(m_mimeType))
        event->acceptProposedAction();
}

void CellGrid::dragMoveEvent(QDragMoveEvent *event)
{
    setDropTarget(elementAt(event->position().toPoint()));
    event->acceptProposedAction();
}

void CellGrid::dragLeaveEvent(QDragLeaveEvent *)
{
    setDropTarget(-1);
}

int CellGrid::sourceOf(const QDropEvent &drop) const
{
    // A drag from another program has no source here. It can be another editor with elements of its own, and what
    // was pressed here last is not meant then: that button is up again.
    const bool ours = m_pressed && (!drop.source() || drop.source() == this);
    return ours ? pressedIndex() : -1;
}

void CellGrid::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasFormat(m_mimeType))
        return;
    event->acceptProposedAction();
    setDropTarget(-1);
    const int source = sourceOf(*event);
    const int target = elementAt(event->position().toPoint());
    if (source < 0 || target < 0)
        return;
    if (event->modifiers() == Qt::ShiftModifier)
        copyElement(source, target);
    else if (event->modifiers() == Qt::NoModifier)
        moveElement(source, target);
}
