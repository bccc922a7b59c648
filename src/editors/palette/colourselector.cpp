#include "editors/palette/colourselector.h"

#include "editors/palette/colourmarks.h"
#include "ui/gridkeys.h"
#include "ui/widgetcells.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int ColoursInBank = 16;
constexpr int CellsInRow = 8;
constexpr int RowHeight = 24;
constexpr int LeastMargin = 49; ///< holds the swatches of the two chosen colours

/// The arrow key for the same way in a selector that is turned over.
int transposed(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return Qt::Key_Up;
    case Qt::Key_Up:
        return Qt::Key_Left;
    case Qt::Key_Right:
        return Qt::Key_Down;
    case Qt::Key_Down:
        return Qt::Key_Right;
    default:
        return key;
    }
}

} // namespace

ColourSelector::ColourSelector(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
{
    setSizePolicy(orientation == Qt::Horizontal ? QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed)
                                                : QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding));
    setAccessibleName(tr("Colours"));
    // A click leaves the keyboard with the canvas.
    setFocusPolicy(Qt::TabFocus);
    setToolTip(tr("Left button: foreground, right button: background"));
    tellCells();
}

void ColourSelector::tellCells()
{
    // the vertical one has as many columns as the other has rows
    const bool upright = m_orientation == Qt::Vertical;
    const auto turned = [upright](QPoint cell) { return upright ? cell.transposed() : cell; };
    const auto place = [turned](QPoint cell) { return WidgetCells::indexOf(turned(cell), CellsInRow); };
    const auto cellOf = [turned, this](int index) {
        const int inBank = index - (m_offset - 1) * ColoursInBank;
        const bool shown = index >= 0 && inBank >= 0 && inBank < ColoursInBank;
        return shown ? turned(WidgetCells::cellOf(inBank, CellsInRow)) : CellTable::Nowhere;
    };
    const auto index = [place, this](QPoint cell) { return (m_offset - 1) * ColoursInBank + place(cell); };
    m_cells = new WidgetCells(this,
                              {.size =
                                   [upright] {
                                       const QSize size(CellsInRow, ColoursInBank / CellsInRow);
                                       return upright ? size.transposed() : size;
                                   },
                               .exists = {},
                               .area = [this, place](QPoint cell) { return cellRect(place(cell)); },
                               .at = [this, cellOf](QPoint point) { return cellOf(indexAt(point)); },
                               .text = [this, index](QPoint cell) { return textOf(index(cell)); },
                               .current = [this, cellOf] { return cellOf(m_foreIndex); },
                               .choose = [this, index](QPoint cell) { chooseFore(index(cell)); },
                               .selected = {}});
}

QString ColourSelector::textOf(int index) const
{
    const QString name = colour(index).name();
    if (index == m_clearIndex)
        return tr("Colour %1, %2, transparent").arg(index).arg(name);
    return index == m_backIndex ? tr("Colour %1, %2, background").arg(index).arg(name)
                                : tr("Colour %1, %2").arg(index).arg(name);
}

QSize ColourSelector::sizeHint() const
{
    const QSize size(LeastMargin + CellsInRow * RowHeight, 2 * RowHeight);
    return m_orientation == Qt::Horizontal ? size : size.transposed();
}

QSize ColourSelector::minimumSizeHint() const
{
    const QSize size(LeastMargin + CellsInRow * RowHeight / 2, 2 * RowHeight);
    return m_orientation == Qt::Horizontal ? size : size.transposed();
}

void ColourSelector::setOffset(int offset)
{
    m_offset = qBound(1, offset, Palette::Size / ColoursInBank);
    update();
}

void ColourSelector::setPalette(const QPointer<Palette> &pal)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = pal;
    if (m_palette) {
        connect(m_palette, &Palette::colourChanged, this, [this](int index) { paletteChanged(index, index); });
        connect(m_palette, &Palette::shownColoursChanged, this, qOverload<>(&QWidget::update));
        connect(m_palette, &QObject::destroyed, this, qOverload<>(&QWidget::update));
    }
    update();
}

void ColourSelector::setForeIndex(int index)
{
    m_foreIndex = index;
    update();
    m_cells->tellCurrent();
}

void ColourSelector::setBackIndex(int index)
{
    m_backIndex = index;
    update();
}

void ColourSelector::setClearIndex(int index)
{
    m_clearIndex = index;
    update();
}

void ColourSelector::paletteChanged(int, int)
{
    update();
}

bool ColourSelector::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool clear = m_clearIndex >= 0 && indexAt(static_cast<QHelpEvent *>(event)->pos()) == m_clearIndex;
        setToolTip(clear ? tr("Transparent on maps") : tr("Left button: foreground, right button: background"));
    }
    return QWidget::event(event);
}

int ColourSelector::along(QSize size) const
{
    return m_orientation == Qt::Horizontal ? size.width() : size.height();
}

void ColourSelector::resizeEvent(QResizeEvent *)
{
    m_cell = qMax(1, (along(size()) - LeastMargin) / CellsInRow);
    m_margin = along(size()) - CellsInRow * m_cell;
}

int ColourSelector::indexAt(QPoint point) const
{
    const QPoint p = m_orientation == Qt::Horizontal ? point : point.transposed();
    const int past = p.x() - m_margin;
    const int column = past / m_cell;
    const int row = p.y() / RowHeight;
    if (past <= 0 || column >= CellsInRow || p.y() < 0 || row > 1)
        return -1;
    return (m_offset - 1) * ColoursInBank + column + row * CellsInRow;
}

void ColourSelector::mousePressEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index < 0)
        return;
    if (event->button() == Qt::LeftButton)
        chooseFore(index);
    else if (event->button() == Qt::RightButton)
        chooseBack(index);
}

void ColourSelector::chooseFore(int index)
{
    setForeIndex(index);
    emit foreColourChanged(index);
}

void ColourSelector::chooseBack(int index)
{
    setBackIndex(index);
    emit backColourChanged(index);
}

void ColourSelector::keyPressEvent(QKeyEvent *event)
{
    // Up and down in the vertical selector go along the cells, left and right across them.
    const int key = m_orientation == Qt::Vertical ? transposed(event->key()) : event->key();
    const int step = GridKeys::step(key, CellsInRow);
    if (step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool back = event->modifiers() & Qt::ShiftModifier;
    const int moved = (back ? m_backIndex : m_foreIndex) + step;
    if ((moved < 0 ? -1 : moved / ColoursInBank) != m_offset - 1)
        return;
    if (back)
        chooseBack(moved);
    else
        chooseFore(moved);
}

void ColourSelector::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index >= 0)
        emit doubleClicked(index);
}

QRect ColourSelector::oriented(QRect rect) const
{
    return m_orientation == Qt::Horizontal ? rect : QRect(rect.topLeft().transposed(), rect.size().transposed());
}

QRect ColourSelector::cellRect(int cell) const
{
    return oriented({m_margin + cell % CellsInRow * m_cell, cell / CellsInRow * RowHeight, m_cell, RowHeight});
}

QColor ColourSelector::colour(int index) const
{
    if (!m_palette || index < 0 || index >= Palette::Size)
        return Qt::transparent;
    const QColor colour = m_palette->shownColour(index);
    return {colour.red(), colour.green(), colour.blue()};
}

void ColourSelector::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPalette &colours = QWidget::palette();
    ColourMarks::paintSwatches(painter, oriented({4, 4, 40, 40}), colour(m_foreIndex), colour(m_backIndex),
                               colours.color(QPalette::Mid));

    const int first = (m_offset - 1) * ColoursInBank;
    for (int cell = 0; cell < ColoursInBank; ++cell) {
        const QRect rect = cellRect(cell).adjusted(0, 0, -1, -1);
        painter.setPen(Qt::black);
        painter.setBrush(colour(first + cell));
        painter.drawRect(rect);
        if (first + cell == m_clearIndex)
            ColourMarks::paintClear(painter, rect);
        const QRect marked = cellRect(cell).adjusted(2, 2, -2, -2);
        if (first + cell == m_foreIndex)
            ColourMarks::paintFore(painter, marked);
        if (first + cell == m_backIndex)
            ColourMarks::paintBack(painter, marked);
    }
    if (hasFocus()) {
        painter.setPen(colours.color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(oriented({m_margin, 0, CellsInRow * m_cell - 1, 2 * RowHeight - 1}));
    }
}
