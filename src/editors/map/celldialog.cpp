#include "editors/map/celldialog.h"

#include <QFormLayout>
#include <QSpinBox>

namespace MapEditor {

CellDialog::CellDialog(QWidget *parent)
    : DialogBase(tr("Go to Cell"), parent)
    , m_column(new QSpinBox)
    , m_row(new QSpinBox)
{
    form()->addRow(tr("Column"), m_column);
    form()->addRow(tr("Row"), m_row);
}

void CellDialog::propose(QPoint cell, QSize map)
{
    m_column->setRange(0, map.width() - 1);
    m_row->setRange(0, map.height() - 1);
    m_column->setValue(cell.x());
    m_row->setValue(cell.y());
    m_column->selectAll();
}

QPoint CellDialog::cell() const
{
    return {m_column->value(), m_row->value()};
}

} // namespace MapEditor
