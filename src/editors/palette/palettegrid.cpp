#include "editors/palette/palettegrid.h"

#include "editors/palette/colourmarks.h"
#include "ui/gridkeys.h"
#include "ui/reveal.h"
#include "ui/widgetcells.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int Cell = 16;
constexpr int Mark = 5;
constexpr int Columns = 16;
constexpr int Side = Cell * Columns;

QPoint cornerOf(int index)
{
    return {index % Columns * Cell, index / Columns * Cell};
}

int indexAt(QPoint point)
{
    return point.y() / Cell * Columns + point.x() / Cell;
}

QPoint clamped(QPoint point)
{
    return {std::clamp(point.x(), 0, Side - 1), std::clamp(point.y(), 0, Side - 1)};
}

/// Frames a run of entries.
void paintMoveTarget(QPainter &painter, int first, int count)
{
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int index = first; index < first + count; ++index) {
        const QRect frame(cornerOf(index), QSize(Cell - 1, Cell - 1));
        painter.setPen(Qt::black);
        painter.drawRect(frame);
        painter.setPen(Qt::white);
        painter.drawRect(frame.adjusted(1, 1, -1, -1));
    }
}

} // namespace

PaletteGrid::PaletteGrid(QWidget *parent) : QWidget(parent)
{
    setWindowTitle(tr("Palette Grid Colour Chooser"));
    setAccessibleName(windowTitle());
    setFixedSize(Side, Side);
    setFocusPolicy(Qt::StrongFocus);
    tellCells();
}

void PaletteGrid::tellCells()
{
    const auto index = [](QPoint cell) { return WidgetCells::indexOf(cell, Columns); };
    m_cells = new WidgetCells(
        this,
        {.size = [this] { return m_palette ? QSize(Columns, Palette::Size / Columns) : QSize(); },
         .exists = {},
         .area = [index](QPoint cell) { return QRect(cornerOf(index(cell)), QSize(Cell, Cell)); },
         .at = [this](QPoint point) { return rect().contains(point) ? point / Cell : CellTable::Nowhere; },
         .text = [this, index](QPoint cell) { return textOf(index(cell)); },
         .current = [this] { return m_current / Cell; },
         .choose =
             [this, index](QPoint cell) {
                 setSelection(index(cell), index(cell));
                 emit selectionChanged(m_first, m_last);
             },
         .selected =
             [this] {
                 const QPoint first = WidgetCells::cellOf(m_first, Columns);
                 const QPoint last = WidgetCells::cellOf(m_last, Columns);
                 const bool row = first.y() == last.y();
                 return QRect(row ? first : QPoint(0, first.y()), row ? last : QPoint(Columns - 1, last.y()));
             }});
}

QString PaletteGrid::textOf(int index) const
{
    const QColor shown = colour(index);
    return index == m_palette->transparencyIndex() ? tr("Colour %1, %2, transparent").arg(index).arg(shown.name())
                                                   : tr("Colour %1, %2").arg(index).arg(shown.name());
}

void PaletteGrid::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    m_dragging = false;
    m_grabbed.reset();
    m_marks.clear();
    if (m_palette) {
        connect(m_palette, &Palette::colourChanged, this, &PaletteGrid::updateColour);
        connect(m_palette, &Palette::shownColoursChanged, this, qOverload<>(&QWidget::update));
        connect(m_palette, &QObject::destroyed, this, qOverload<>(&QWidget::update));
    }
    update();
}

void PaletteGrid::setMarks(const QSet<int> &entries)
{
    m_marks = entries == m_marks ? QSet<int>() : entries;
    update();
}

QColor PaletteGrid::colour(int index) const
{
    return m_palette ? m_palette->colour(index) : QColor(0, 0, 0, 0);
}

void PaletteGrid::setSelection(int first, int last)
{
    m_anchor = cornerOf(first);
    m_current = cornerOf(last);
    updateRange();
    update();
}

void PaletteGrid::updateColour(int, const QColor &)
{
    update();
}

void PaletteGrid::updateRange()
{
    const auto [first, last] = std::minmax({indexAt(m_anchor), indexAt(m_current)});
    m_first = first;
    m_last = last;
}

void PaletteGrid::paintEvent(QPaintEvent *)
{
    updateRange();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < Palette::Size; ++index) {
        const QPoint corner = cornerOf(index);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRect(QRect(corner, QSize(Cell, Cell)));
        const bool selected = isEnabled() && index >= m_first && index <= m_last;
        painter.setPen(selected ? QPen(Qt::white, 1, Qt::DotLine) : QPen(Qt::NoPen));
        // The transparent entry shows its colour too; being transparent is not a colour to choose.
        QColor shown = colour(index);
        if (m_palette) {
            shown = m_palette->shownColour(index);
            shown.setAlpha(255);
        }
        painter.setBrush(shown);
        painter.drawRect(QRect(corner, QSize(Cell - 1, Cell - 1)));
        if (m_palette && index == m_palette->transparencyIndex())
            ColourMarks::paintClear(painter, QRect(corner, QSize(Cell - 1, Cell - 1)));
        if (m_marks.contains(index)) {
            painter.setPen(Qt::black);
            painter.setBrush(Qt::white);
            painter.drawRect(QRect(corner, QSize(Mark, Mark)).translated(Mark - 1, Mark - 1));
        }
    }
    if (m_grabbed)
        paintMoveTarget(painter, moveTarget(), m_last - m_first + 1);
}

int PaletteGrid::moveTarget() const
{
    return std::clamp(m_first + indexAt(m_pointer) - *m_grabbed, 0, Palette::Size - 1 - (m_last - m_first));
}

void PaletteGrid::grabAt(int index)
{
    updateRange();
    if (index < m_first || index > m_last) {
        setSelection(index, index);
        emit selectionChanged(index, index);
    }
    m_grabbed = index;
}

void PaletteGrid::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_palette)
        return;
    m_pointer = clamped(event->position().toPoint());
    if (m_offersMoves && event->modifiers() & Qt::ControlModifier) {
        grabAt(indexAt(m_pointer));
        update();
        return;
    }
    m_anchor = m_current = m_pointer;
    m_dragging = true;
    update();
}

void PaletteGrid::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = clamped(event->position().toPoint());
    if (m_grabbed)
        update();
    if (!m_dragging)
        return;
    m_current = m_pointer;
    update();
}

void PaletteGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_grabbed) {
        const int target = moveTarget();
        m_grabbed.reset();
        update();
        if (target != m_first)
            emit moveRequested(target);
    }
    if (event->button() != Qt::LeftButton || !m_dragging)
        return;
    m_dragging = false;
    updateRange();
    update();
    emit selectionChanged(m_first, m_last);
}

void PaletteGrid::keyPressEvent(QKeyEvent *event)
{
    const int from = indexAt(m_current);
    const int step = GridKeys::step(event->key(), Columns);
    const int leap = GridKeys::leap(event->key(), Columns, from, Palette::Size);
    if (step == 0 && leap == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!m_palette)
        return;
    const bool sideways = std::abs(step) == 1; // which ends with the row
    const QPoint moved = sideways ? m_current + QPoint(step * Cell, 0) : m_current + QPoint(0, step / Columns * Cell);
    if (clamped(moved) != moved)
        return;
    m_current = leap == 0 ? moved : cornerOf(from + leap);
    if (!(event->modifiers() & Qt::ShiftModifier))
        m_anchor = m_current;
    updateRange();
    update();
    reveal(this, QRect(cornerOf(indexAt(m_current)), QSize(Cell, Cell)));
    m_cells->tellCurrent();
    emit selectionChanged(m_first, m_last);
}

bool PaletteGrid::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    if (m_palette && rect().contains(help->pos())) {
        const int index = indexAt(help->pos());
        QString text = tr("Index %1: $%2").arg(index).arg(m_palette->rawColour(index), 4, 16, QLatin1Char('0'));
        if (const QString note = m_notes ? m_notes(index) : QString(); !note.isEmpty())
            text += u'\n' + note;
        QToolTip::showText(help->globalPos(), text, this);
    }
    return true;
}
