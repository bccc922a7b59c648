#include "editors/palette/colourpalette.h"

#include "editors/palette/colourmarks.h"
#include "ui/gridkeys.h"
#include "ui/widgetcells.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int FewColours = 16;
constexpr int ColumnsOfFew = 8;
constexpr int UsualColumns = 16;
constexpr int ManyColumns = 32;
constexpr int LeastCell = 8;
constexpr int UsualCell = 12; ///< from here on many columns are taken
constexpr int LargestCell = 24;
constexpr int LargestOfMany = 18; ///< where the rows of all colours shall leave room for what is painted
constexpr int LargestOfTallRows = 14;

constexpr int Edge = 2; ///< around the cells, for the marks of the outer ones
constexpr QRect Swatches(Edge, Edge, 36, 36);
constexpr int Left = Swatches.width() + 3 * Edge; ///< of the cells

} // namespace

ColourPalette::ColourPalette(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Colours"));
    // A click leaves the keyboard with the canvas.
    setFocusPolicy(Qt::TabFocus);
    tellCells();
}

void ColourPalette::tellCells()
{
    const auto index = [this](QPoint cell) { return m_offset + WidgetCells::indexOf(cell, columns(width())); };
    const auto cellOf = [this](int entry) { return WidgetCells::cellOf(entry - m_offset, columns(width())); };
    m_cells = new WidgetCells(this,
                              {.size = [this] { return QSize(columns(width()), rows(width())); },
                               .exists = {},
                               .area = [this, index](QPoint cell) { return cellRect(index(cell)); },
                               .at =
                                   [this, cellOf](QPoint point) {
                                       const int entry = indexAt(point);
                                       return entry < 0 ? CellTable::Nowhere : cellOf(entry);
                                   },
                               .text = [this, index](QPoint cell) { return textOf(index(cell)); },
                               .current = [this, cellOf] { return cellOf(m_primary); },
                               .choose = [this, index](QPoint cell) { choosePrimary(index(cell)); },
                               .selected = {}});
}

QString ColourPalette::textOf(int index) const
{
    const QString name = colour(index).name();
    if (index == m_clear)
        return tr("Colour %1, %2, transparent").arg(index).arg(name);
    return index == m_secondary ? tr("Colour %1, %2, background").arg(index).arg(name)
                                : tr("Colour %1, %2").arg(index).arg(name);
}

// ---- Layout ---------------------------------------------------------------------------------

int ColourPalette::columns(int width) const
{
    if (m_count <= FewColours)
        return ColumnsOfFew;
    return width >= Left + ManyColumns * UsualCell + Edge ? ManyColumns : UsualColumns;
}

int ColourPalette::rows(int width) const
{
    return m_count / columns(width);
}

int ColourPalette::wantedCell(int width) const
{
    const int across = columns(width);
    const int largest = across == ManyColumns ? LargestOfMany
        : across == UsualColumns              ? LargestOfTallRows
                                              : LargestCell;
    return qBound(LeastCell, (width - Left - Edge) / across, largest);
}

int ColourPalette::heightFor(int cell, int width) const
{
    return std::max(cell * rows(width), Swatches.height()) + 2 * Edge;
}

int ColourPalette::cell() const
{
    // a place that is too low for the cells has smaller ones
    const int fitting = (height() - 2 * Edge) / rows(width());
    return std::max(LeastCell, std::min(wantedCell(width()), fitting));
}

int ColourPalette::heightForWidth(int width) const
{
    return heightFor(wantedCell(width), width);
}

QSize ColourPalette::sizeHint() const
{
    const int width = Left + ManyColumns * UsualCell + Edge;
    return {width, heightForWidth(width)};
}

QSize ColourPalette::minimumSizeHint() const
{
    const int across = m_count <= FewColours ? ColumnsOfFew : UsualColumns;
    return {Left + across * LeastCell + Edge, heightFor(LeastCell, width())};
}

QRect ColourPalette::cellRect(int index) const
{
    const int place = index - m_offset;
    const int across = columns(width());
    return {Left + place % across * cell(), Edge + place / across * cell(), cell(), cell()};
}

int ColourPalette::indexAt(QPoint point) const
{
    const int across = columns(width());
    const QPoint inside = point - QPoint(Left, Edge);
    if (inside.x() < 0 || inside.y() < 0 || inside.x() >= across * cell() || inside.y() >= rows(width()) * cell())
        return -1;
    return m_offset + inside.y() / cell() * across + inside.x() / cell();
}

// ---- What is shown --------------------------------------------------------------------------

void ColourPalette::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette) {
        connect(m_palette, &Palette::colourChanged, this, qOverload<>(&QWidget::update));
        connect(m_palette, &Palette::shownColoursChanged, this, qOverload<>(&QWidget::update));
        connect(m_palette, &QObject::destroyed, this, qOverload<>(&QWidget::update));
    }
    update();
}

void ColourPalette::setRange(int offset, int count)
{
    m_offset = qBound(0, offset, Palette::Size - count);
    m_count = count;
    updateGeometry();
    update();
}

void ColourPalette::setPrimaryIndex(int index)
{
    m_primary = index;
    update();
    m_cells->tellCurrent();
}

void ColourPalette::setSecondaryIndex(int index)
{
    m_secondary = index;
    update();
}

void ColourPalette::setClearIndex(int index)
{
    m_clear = index;
    update();
}

QColor ColourPalette::colour(int index) const
{
    QColor colour =
        m_palette && index >= 0 && index < Palette::Size ? m_palette->shownColour(index) : QColor(Qt::black);
    colour.setAlpha(255);
    return colour;
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

void ColourPalette::mousePressEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index < 0)
        return;
    if (event->button() == Qt::LeftButton)
        choosePrimary(index);
    else if (event->button() == Qt::RightButton)
        chooseSecondary(index);
}

void ColourPalette::choosePrimary(int index)
{
    setPrimaryIndex(index);
    emit primaryIndexChanged(index);
}

void ColourPalette::chooseSecondary(int index)
{
    setSecondaryIndex(index);
    emit secondaryIndexChanged(index);
}

void ColourPalette::keyPressEvent(QKeyEvent *event)
{
    const int step = GridKeys::step(event->key(), columns(width()));
    if (step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool secondary = event->modifiers() & Qt::ShiftModifier;
    const int moved = (secondary ? m_secondary : m_primary) + step;
    if (moved < m_offset || moved >= m_offset + m_count)
        return;
    if (secondary)
        chooseSecondary(moved);
    else
        choosePrimary(moved);
}

void ColourPalette::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index >= 0)
        emit doubleClicked(index);
}

bool ColourPalette::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int index = indexAt(help->pos());
    if (index >= 0)
        QToolTip::showText(help->globalPos(),
                           (index == m_clear ? tr("Index: %1\nTransparent") : tr("Index: %1")).arg(index), this);
    else
        QToolTip::hideText();
    return true;
}

// ---- Painting -------------------------------------------------------------------------------

void ColourPalette::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ColourMarks::paintSwatches(painter, Swatches, colour(m_primary), colour(m_secondary),
                               QWidget::palette().color(QPalette::Mid));
    for (int index = m_offset; index < m_offset + m_count; ++index)
        painter.fillRect(cellRect(index).adjusted(0, 0, -1, -1), colour(index));
    const auto marked = [this](int index) { return index >= m_offset && index < m_offset + m_count; };
    if (marked(m_clear))
        ColourMarks::paintClear(painter, cellRect(m_clear).adjusted(0, 0, -1, -1));
    if (marked(m_primary))
        ColourMarks::paintFore(painter, cellRect(m_primary).adjusted(0, 0, -1, -1));
    if (marked(m_secondary))
        ColourMarks::paintBack(painter, cellRect(m_secondary).adjusted(0, 0, -1, -1));
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QWidget::palette().color(QPalette::Highlight));
        painter.drawRect(QRect(cellRect(m_offset).topLeft(), cellRect(m_offset + m_count - 1).bottomRight()));
    }
}
