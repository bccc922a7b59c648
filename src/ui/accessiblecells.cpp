#include "ui/accessiblecells.h"

#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr qsizetype MostKept = 512;
constexpr qint64 MostSelected = 256;

class AccessibleCell final : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface
{
public:
    AccessibleCell(CellTable *table, QPoint cell) : m_table(table), m_cell(cell) { }

    [[nodiscard]] QPoint place() const { return m_cell; }

    bool isValid() const override { return m_table && m_table->exists(m_cell); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return isValid() ? m_table->widget()->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_table ? QAccessible::queryAccessibleInterface(m_table->widget()) : nullptr;
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QRect rect() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? m_table->text(m_cell) : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }
    void *interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return isValid() && m_table->isSelected(m_cell); }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_cell.x(); }
    int rowIndex() const override { return m_cell.y(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    void doAction(const QString &name) override
    {
        if (isValid() && name == pressAction())
            m_table->choose(m_cell);
    }

private:
    QPointer<CellTable> m_table;
    QPoint m_cell;
};

QRect AccessibleCell::rect() const
{
    if (!isValid())
        return {};
    const QRect area = m_table->area(m_cell);
    return {m_table->widget()->mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::State AccessibleCell::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QWidget *widget = m_table->widget();
    state.focusable = true;
    state.focused = widget->hasFocus() && m_table->current() == m_cell;
    state.selectable = true;
    state.selected = isSelected();
    state.readOnly = true;
    state.disabled = !widget->isEnabled();
    state.invisible = !widget->isVisible();
    state.offscreen = !widget->visibleRegion().intersects(m_table->area(m_cell));
    return state;
}

void *AccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface *>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

QAccessibleInterface *make(const QString &, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    CellTable *table = CellTable::of(object);
    return table ? new AccessibleCells(table) : nullptr;
}

QList<int> numbers(int first, int count)
{
    QList<int> list(std::max(count, 0));
    std::iota(list.begin(), list.end(), first);
    return list;
}

} // namespace

void AccessibleCells::install()
{
    QAccessible::installFactory(make); // once, however often it is asked for
}

int AccessibleCells::indexOf(const CellTable &table, QPoint cell)
{
    return cell.y() * table.size().width() + cell.x();
}

AccessibleCells::AccessibleCells(CellTable *table)
    : QAccessibleWidget(table->widget(), QAccessible::Table)
    , m_table(table)
{ }

AccessibleCells::~AccessibleCells()
{
    for (const QAccessible::Id id : std::as_const(m_ids))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessible::State AccessibleCells::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = widget()->focusPolicy() != Qt::NoFocus;
    return state;
}

QString AccessibleCells::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value && m_table && m_table->exists(m_table->current()))
        return m_table->text(m_table->current());
    return QAccessibleWidget::text(kind);
}

void *AccessibleCells::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

// ---- Cells ----------------------------------------------------------------------------------

QAccessibleInterface *AccessibleCells::cell(QPoint cell) const
{
    if (!m_table || !m_table->exists(cell))
        return nullptr;
    if (const auto known = m_ids.constFind(cell); known != m_ids.constEnd())
        return QAccessible::accessibleInterface(*known);
    if (m_asked.size() >= MostKept)
        QAccessible::deleteAccessibleInterface(m_ids.take(m_asked.takeFirst()));
    auto *made = new AccessibleCell(m_table, cell);
    m_ids.insert(cell, QAccessible::registerAccessibleInterface(made));
    m_asked.append(cell);
    return made;
}

int AccessibleCells::childCount() const
{
    const qint64 cells = qint64(columnCount()) * rowCount();
    return int(std::min<qint64>(cells, std::numeric_limits<int>::max()));
}

QAccessibleInterface *AccessibleCells::child(int index) const
{
    const int columns = columnCount();
    return columns > 0 && index >= 0 ? cell({index % columns, index / columns}) : nullptr;
}

int AccessibleCells::indexOfChild(const QAccessibleInterface *child) const
{
    if (!m_table || !child || child->role() != QAccessible::Cell || child->parent() != this)
        return -1;
    return indexOf(*m_table, static_cast<const AccessibleCell *>(child)->place());
}

QAccessibleInterface *AccessibleCells::childAt(int x, int y) const
{
    return m_table ? cell(m_table->cellAt(widget()->mapFromGlobal(QPoint(x, y)))) : nullptr;
}

QAccessibleInterface *AccessibleCells::focusChild() const
{
    return m_table && widget()->hasFocus() ? cell(m_table->current()) : nullptr;
}

QAccessibleInterface *AccessibleCells::cellAt(int row, int column) const
{
    return cell({column, row});
}

int AccessibleCells::columnCount() const
{
    return m_table ? m_table->size().width() : 0;
}

int AccessibleCells::rowCount() const
{
    return m_table ? m_table->size().height() : 0;
}

// ---- Selection ------------------------------------------------------------------------------

int AccessibleCells::selectedCellCount() const
{
    const QRect selected = m_table ? m_table->selected() : QRect();
    return int(std::min(qint64(selected.width()) * selected.height(), MostSelected));
}

QList<QAccessibleInterface *> AccessibleCells::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    const QRect selected = m_table ? m_table->selected() : QRect();
    const int count = selectedCellCount();
    for (int i = 0; i < count; ++i)
        cells.append(cell(selected.topLeft() + QPoint(i % selected.width(), i / selected.width())));
    cells.removeAll(nullptr);
    return cells;
}

QList<int> AccessibleCells::selectedColumns() const
{
    const QRect selected = m_table ? m_table->selected() : QRect();
    return selected.height() == rowCount() ? numbers(selected.left(), selected.width()) : QList<int>();
}

QList<int> AccessibleCells::selectedRows() const
{
    const QRect selected = m_table ? m_table->selected() : QRect();
    return selected.width() == columnCount() ? numbers(selected.top(), selected.height()) : QList<int>();
}

bool AccessibleCells::isColumnSelected(int column) const
{
    return selectedColumns().contains(column);
}

bool AccessibleCells::isRowSelected(int row) const
{
    return selectedRows().contains(row);
}
